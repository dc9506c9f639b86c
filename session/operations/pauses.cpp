#include "pauses.h"

bool Pauses::pause(Milliseconds length, Drive drive)
{
    return waitUntil(std::chrono::steady_clock::now() + m_data.scaled(length), drive, true);
}

bool Pauses::letLateRepliesPass(Milliseconds lateness)
{
    return waitUntil(std::chrono::steady_clock::now() + lateness, Drive::Answers, false);
}

/// `whenStopped` is what a disable without a connection makes of it.
bool Pauses::waitUntil(TimePoint deadline, Drive drive, bool whenStopped)
{
    for (;;) {
        switch (m_queue.pauseUntil(deadline)) {
        case TaskQueue::Wake::TimeOver:
            return true;
        case TaskQueue::Wake::Disable:
            if (!m_data.connected || !m_stops.serve)
                return whenStopped;
            if (drive == Drive::Restarts)
                m_stops.serveWhileTheDriveRestarts(deadline);
            else
                m_stops.serve();
            break;
        case TaskQueue::Wake::Closing:
            return false;
        }
    }
}
