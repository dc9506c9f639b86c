/// \file
/// What the operations of a session work with. Each operation is a class of its own with a small state; this is what
/// they have in common. Worker thread; a test makes one without a thread.
#ifndef VELBRIN_SESSION_OPERATION_H
#define VELBRIN_SESSION_OPERATION_H

#include "busline.h"
#include "driveaccess.h"
#include "errorreport.h"
#include "pauses.h"
#include "sessiondata.h"
#include "sessionevents.h"
#include "sessionregisters.h"
#include "sessiontext.h"
#include "taskqueue.h"

struct OperationContext
{
    OperationContext(SessionData &sessionData, TaskQueue &tasks, SessionEvents &events)
        : data(sessionData), queue(tasks), out(events),
          line([&tasks](BusLine::Milliseconds grace) { return tasks.isClosing(grace); }), pauses(sessionData, tasks),
          drive(line, pauses), errors(line, drive, sessionData, tasks, events, atStake)
    {
    }

    SessionData &data;
    TaskQueue &queue;
    SessionEvents &out;
    AtStake atStake;
    BusLine line;
    Pauses pauses;
    DriveAccess drive;
    ErrorReport errors;
};

/// Short names for the context.
class Operation
{
protected:
    explicit Operation(OperationContext &context)
        : m_data(context.data), m_queue(context.queue), m_out(context.out), m_atStake(context.atStake),
          m_line(context.line), m_pauses(context.pauses), m_drive(context.drive), m_errors(context.errors)
    {
    }

    SessionData &m_data;
    TaskQueue &m_queue;
    SessionEvents &m_out;
    AtStake &m_atStake;
    BusLine &m_line;
    Pauses &m_pauses;
    DriveAccess &m_drive;
    ErrorReport &m_errors;
};

#endif
