/// \file
/// The periodic poll: three panels, and what follows from the values.
#ifndef VELBRIN_SESSION_STATUSMONITOR_H
#define VELBRIN_SESSION_STATUSMONITOR_H

#include "operation.h"

#include <optional>

class StatusMonitor : private Operation
{
public:
    explicit StatusMonitor(OperationContext &context) : Operation(context) {}

    /// One poll and what it tells; false, and nothing told, when no good reply came.
    bool poll();
    /// Of the last good poll.
    const DriveState &state() const { return m_state; }
    /// A new connection; the sequence number goes on.
    void reset();

private:
    bool askPoll(const StatusPoll &plan, DriveState &state);
    bool askExchange(const QVector<QueueItem> &items, QVector<qint32> &values);
    void announcePoll();
    void announcePanels();

    DriveState m_state;
    /// What has been said about the polls of this connection.
    struct Announced
    {
        bool permanentStop = false;
        std::optional<qint32> setpoint;
    } m_announced;
};

#endif
