/// \file
/// Waiting, in which a stop always gets through.
#ifndef VELBRIN_SESSION_PAUSES_H
#define VELBRIN_SESSION_PAUSES_H

#include "sessiondata.h"
#include "taskqueue.h"

#include <functional>

/// Worker thread. Every pause of the session goes through here: quitting ends it, a disable is served in it, and tests
/// shorten it.
class Pauses
{
public:
    using Milliseconds = std::chrono::milliseconds;
    using TimePoint = std::chrono::steady_clock::time_point;

    /// Who serves a disable that waits in the queue; each does nothing when none waits.
    struct Stops
    {
        std::function<bool()> serve; ///< true when one was sent
        std::function<void(TimePoint deadline)> serveWhileTheDriveRestarts;
    };

    Pauses(const SessionData &data, TaskQueue &queue) : m_data(data), m_queue(queue) {}
    void setStops(const Stops &stops) { m_stops = stops; }

    /// Between two exchanges of a long task; true when a disable was sent.
    bool serveWaitingDisable() { return m_stops.serve && m_stops.serve(); }
    bool isClosing(Milliseconds grace = Milliseconds(0)) const { return m_queue.isClosing(grace); }

    enum class Drive { Answers, Restarts };
    /// False when the session is closing, which cuts it short. Without a connection a disable ends it, too: that is the
    /// next task, which a pause must not hold up.
    bool pause(Milliseconds length, Drive drive = Drive::Answers);
    /// A reply that is merely late must not answer what is asked next. A stop does not wait for it; false where that
    /// cannot be served in here, so that what is being done has to end for it.
    bool letLateRepliesPass(Milliseconds lateness);

private:
    bool waitUntil(TimePoint deadline, Drive drive, bool whenStopped);

    const SessionData &m_data;
    TaskQueue &m_queue;
    Stops m_stops;
};

#endif
