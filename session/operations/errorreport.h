/// \file
/// What went wrong: the drive's error bits, and the one text that ends a connection.
#ifndef VELBRIN_SESSION_ERRORREPORT_H
#define VELBRIN_SESSION_ERRORREPORT_H

#include "driveaccess.h"
#include "message.h"
#include "sessiondata.h"
#include "sessionevents.h"
#include "taskqueue.h"

/// What the user has to know besides when the line is lost. Begins anew with each connection.
struct AtStake
{
    bool mayBeEnabled = false;      ///< as far as polls and commands tell
    bool stopIsUnconfirmed = false; ///< a stop was sent and nothing has shown its effect
    bool isStreaming = false;       ///< setpoints were sent, and no stop of them was acknowledged
    QString brokenOffWrite;         ///< what to say about the running write, empty when none was broken off
};

/// Worker thread.
class ErrorReport
{
public:
    ErrorReport(BusLine &line, DriveAccess &drive, const SessionData &data, TaskQueue &queue, SessionEvents &out,
                const AtStake &atStake)
        : m_line(line), m_drive(drive), m_data(data), m_queue(queue), m_out(out), m_atStake(atStake)
    {
    }

    /// Every text for the user, from where it arises.
    void tell(MessageKind kind, const QString &text);

    /// A new connection. The latch stays.
    void reset() { m_state = {}; }
    /// What the drive holds when a connection begins is another master's doing, or our own of before the latch was set;
    /// until the connect task has ended it counts for nothing.
    void beginConnection() { m_state.areOld = true; }
    /// So that no later write gets the blame for it.
    void dropOldErrorBits();
    /// The epilogue of every task: asks the drive where the latch is set, and tells what has accumulated.
    void finishTask();

    /// Asks the drive for its error bits and clears them there.
    void checkZBErrors();
    /// Text for what has accumulated, empty when nothing did; ends the connection and clears what it words.
    QString stringifyZBBusErrors(const SingleParam *param = nullptr);
    void report(const SingleParam *param = nullptr);
    /// After a write, when it was refused or the latch is set. True when it was refused, which has been told.
    bool reportWrite(const SingleParam &param, Reply reply = Reply::Done);

    /// Set by every error text: from then on each write is followed by a question, in later connections, too.
    bool isLatched() const { return m_latch; }
    void setLatch(bool latch) { m_latch = latch; }
    /// Whether the end of this connection has been told: one text about the line is enough.
    bool lineWasReported() const { return m_state.lineReported; }
    /// Register 13 as last asked.
    quint32 deviceErrors() const { return m_state.deviceErrors; }
    void addDeviceErrors(quint32 bits) { m_state.deviceErrors |= bits; }
    void forgetDeviceErrors() { m_state.deviceErrors = 0; }

private:
    void tellRefusal(const SingleParam *param);
    void tellLostLine(const QString &text);

    BusLine &m_line;
    DriveAccess &m_drive;
    const SessionData &m_data;
    TaskQueue &m_queue;
    SessionEvents &m_out;
    const AtStake &m_atStake;

    bool m_latch = false;
    struct State
    {
        quint32 deviceErrors = 0;
        bool lineReported = false;
        bool areOld = false;
    } m_state;
};

#endif
