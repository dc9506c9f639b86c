/// \file
/// The session's end of the bus: one open bus handle, the address it talks to, and what went wrong on it.
#ifndef VELBRIN_SESSION_BUSLINE_H
#define VELBRIN_SESSION_BUSLINE_H

#include "drivestate.h"
#include "queueitem.h"
#include "zetabus.h"

#include <QString>
#include <chrono>
#include <functional>

/// Worker thread only. Work is batched as the bus library does it: append, execute, fetch the return values in order.
/// Every status is ORed into an accumulated status, which is a success only while it is 0 or ZB_OK.
class BusLine
{
public:
    using Milliseconds = std::chrono::milliseconds;
    /// Whether the session has been closing for that long.
    using IsClosing = std::function<bool(Milliseconds)>;

    /// Closing has five seconds in all: from then on nothing follows a failed exchange but a stop, and nothing at all
    /// is begun after 2.4 s, since one exchange on a babbling line takes two. Without a function it never closes.
    explicit BusLine(IsClosing isClosing = {}) : m_isClosing(std::move(isClosing)) {}
    ~BusLine() { close(); }
    BusLine(const BusLine &) = delete;
    BusLine &operator=(const BusLine &) = delete;

    /// Opens the bus with a read time-out in ms and starts clean: a reused handle still holds what its last user left
    /// in its queue. False when there is no such port, no permission, or it is in use; see openError.
    bool open(const QString &portName, int timeoutMs);
    /// The errno of the last open that failed.
    int openError() const { return m_openError; }
    void close();
    bool isOpen() const { return m_handle >= 0; }
    int handle() const { return m_handle; }

    void setNodeAddress(int address) { m_node = static_cast<std::uint8_t>(address); }

    ZbStatus status() const { return m_status; }
    void clearStatus() { m_status = 0; }
    /// No failure since the status was cleared.
    bool isClean() const { return (m_status & ~ZB_OK) == 0; }

    /// Forgets the exchanges that went unanswered.
    void startTask() { m_failuresInARow = m_failures = 0; }
    /// Three exchanges in a row without a good reply, or four in one task. A line that is not quiet before any of three
    /// requests has no good replies: what looks like one may belong to another request. From then on nothing is sent
    /// until the next task: 57 writes to a dead line would take a minute.
    bool isDead() const;
    /// Between these a stop is being sent: also on a line that counts as dead, and without reviving it for the task
    /// that goes on afterwards.
    void beginStop() { ++m_stopping; }
    void endStop() { --m_stopping; }
    /// Whether nothing at all came in answer to the last request.
    bool wasSilent() const;

    /// What an exchange that is asked a second time goes back to, so that a failure which was mended is forgotten (but
    /// stays in the meter).
    struct Mark
    {
        ZbStatus status;
        int failures;
    };
    Mark mark() const { return {m_status, m_failures}; }
    /// Whether asking again may help: the request went out, no good reply came, and the line is not given up.
    bool mayRepeat() const;
    void countRepeat() { ++m_meter.repeats; }
    /// Back to a mark.
    void forgive(const Mark &before);
    /// How long after a failure a late reply to it is waited for before anything is asked again. Not where one came,
    /// damaged: the line has been quiet since.
    Milliseconds lateness() const { return Milliseconds(m_mayComeLate ? m_timeoutMs : 0); }
    const LineMeter &meter() const { return m_meter; }

    /// Each returns its own status. An item that does not fit, or a register or value with more bits than a write item
    /// carries, spoils the whole batch: `execute` then sends nothing and reports it.
    ZbStatus append(const QueueItem &item);
    ZbStatus appendRead(int address);
    ZbStatus appendWrite(int address, long value);
    /// Whether a write item has room for the register and, truncated, the value; never for what is not a number.
    static bool canCarry(int address, double value);

    /// Sends the batch and receives its reply. What waits on the line is dropped first: neither a late reply nor a
    /// second copy of the last one may answer the next request.
    ZbStatus execute();
    /// The same for timed execution from the drive's command buffer.
    ZbStatus upload();

    ZbStatus fetch(long *value);
    ZbStatus fetchRead(long *value);
    ZbStatus fetchWrite(long *value = nullptr);
    /// Ends the decoding of a reply: bytes that are left over make it the reply to something else, a failure.
    ZbStatus finishReply();
    /// Undecoded bytes of the last reply.
    int bytesLeft() const;

    /// Whether the adapter was pulled out.
    bool isGone() const;
    /// Who sent the reply of the last exchange, if that was good.
    int replyAddress() const;

    ZbStatus readBufferClock();

private:
    ZbStatus record(ZbStatus status);
    ZbStatus recordAppend(ZbStatus status);
    ZbStatus recordDecoding(ZbStatus status);
    ZbStatus exchange(ZbStatus (*roundTrip)(ZbHandle, std::uint8_t));
    bool maySend() const;
    void dropStrays();
    void countFailure();

    bool isClosing(Milliseconds grace = Milliseconds(0)) const { return m_isClosing && m_isClosing(grace); }

    IsClosing m_isClosing;
    ZbHandle m_handle = -1;
    std::uint8_t m_node = 0;
    ZbStatus m_status = 0;
    ZbStatus m_appended = 0; ///< OR of the appends of the batch that is being built
    int m_failuresInARow = 0;
    int m_failures = 0; ///< in this task
    bool m_lastFailed = false;
    bool m_wasSent = false;     ///< the last batch, which was not spoiled
    bool m_mayComeLate = false; ///< the reply to it
    int m_straysInARow = 0;
    int m_stopping = 0; ///< stops that are under way, one inside another
    int m_timeoutMs = 0;
    int m_openError = 0;
    LineMeter m_meter;
};

#endif
