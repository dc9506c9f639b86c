/// \file
/// Registers of the connected drive: reading and writing them, and asking again where that does no harm.
#ifndef VELBRIN_SESSION_DRIVEACCESS_H
#define VELBRIN_SESSION_DRIVEACCESS_H

#include "busline.h"
#include "pauses.h"

#include <functional>
#include <initializer_list>

enum class Reply { Done, Refused, None }; ///< to a write

/// Worker thread. Errors are left in the line's accumulated status.
class DriveAccess
{
public:
    DriveAccess(BusLine &line, Pauses &pauses) : m_line(line), m_pauses(pauses) {}

    /// How often at most something is said that got no good reply: what only reads, and writes that say the same twice.
    enum Times { Read = 3, Setting = 2 };
    /// Asks again, silently, when no good reply came. `ask` makes one exchange and returns whether it was good. Never
    /// for what acts.
    bool askAgain(Times times, const std::function<bool()> &ask);
    /// Not in a search, where silence is an answer.
    void setAsksAgain(bool asksAgain) { m_asksAgain = asksAgain; }

    /// One exchange for all of them.
    ZbStatus readParameters(int address1, long &value1);
    ZbStatus readParameters(int address1, long &value1, int address2, long &value2);
    ZbStatus readParameters(int address1, long &value1, int address2, long &value2, int address3, long &value3);

    Reply write(int address, long value);
    /// The same for what may be said twice: settings, never a command.
    Reply writeSetting(int address, long value);
    bool writeAndFetch(int address, long value) { return write(address, value) != Reply::None; }
    /// Whether the last write that was answered told its outcome.
    bool outcomeIsKnown() const { return m_outcomeIsKnown; }
    /// Until the drive acknowledges it, three times at most. A failure that was mended is forgotten; what went wrong
    /// when no answer came stays in the status, to be reported.
    bool sendStop(int address, long value);

    static constexpr int stopAttempts = 3;

private:
    ZbStatus readRegisters(std::initializer_list<int> addresses, std::initializer_list<long *> values);

    BusLine &m_line;
    Pauses &m_pauses;
    bool m_asksAgain = false;
    bool m_outcomeIsKnown = false;
};

#endif
