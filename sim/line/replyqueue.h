/// \file
/// Replies on their way: each leaves when it is due, whatever was asked for meanwhile.
#ifndef VELBRIN_SIM_REPLYQUEUE_H
#define VELBRIN_SIM_REPLYQUEUE_H

#include "drivepacket.h"

#include <algorithm>
#include <chrono>
#include <deque>

namespace sim {

class ReplyQueue
{
public:
    using Time = std::chrono::steady_clock::time_point;

    void add(Time due, Bytes bytes) { m_waiting.push_back({due, std::move(bytes)}); }
    void clear() { m_waiting.clear(); }

    /// All bytes that are due, in the order in which they were asked for.
    Bytes takeDue(Time now)
    {
        Bytes bytes;
        for (const Reply &reply : m_waiting) {
            if (reply.due <= now)
                bytes.insert(bytes.end(), reply.bytes.begin(), reply.bytes.end());
        }
        const auto isGone = [now](const Reply &reply) { return reply.due <= now; };
        m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isGone), m_waiting.end());
        return bytes;
    }

    /// When the next reply is due, at the latest `otherwise`.
    Time nextDue(Time otherwise) const
    {
        for (const Reply &reply : m_waiting)
            otherwise = std::min(otherwise, reply.due);
        return otherwise;
    }

private:
    struct Reply
    {
        Time due;
        Bytes bytes;
    };
    std::deque<Reply> m_waiting;
};

} // namespace sim

#endif
