#include "driveaccess.h"

#include "sessionregisters.h"

bool DriveAccess::askAgain(Times times, const std::function<bool()> &ask)
{
    const BusLine::Mark before = m_line.mark();
    if (ask())
        return true;
    BusLine::Mark mended = before; // to which a good reply goes back
    for (int asked = 1; asked == 1 || !ask(); ++asked) {
        if (asked == times || !m_asksAgain || !m_line.mayRepeat())
            return false;
        const BusLine::Mark failed = m_line.mark();
        m_line.forgive({mended.status, failed.failures});
        if (!m_pauses.letLateRepliesPass(m_line.lateness())) {
            m_line.forgive(failed);
            return false;
        }
        m_line.countRepeat();
        mended = m_line.mark(); // a stop that was served meanwhile may have failed
        mended.failures = before.failures;
    }
    m_line.forgive({mended.status, before.failures});
    return true;
}

ZbStatus DriveAccess::readRegisters(std::initializer_list<int> addresses, std::initializer_list<long *> values)
{
    ZbStatus status = 0;
    askAgain(Read, [&] {
        status = 0;
        for (int address : addresses)
            status |= m_line.appendRead(address);
        status |= m_line.execute();
        for (long *value : values)
            status |= m_line.fetchRead(value);
        status |= m_line.finishReply();
        return status == ZB_OK;
    });
    return status;
}

ZbStatus DriveAccess::readParameters(int address1, long &value1)
{
    return readRegisters({address1}, {&value1});
}

ZbStatus DriveAccess::readParameters(int address1, long &value1, int address2, long &value2)
{
    return readRegisters({address1, address2}, {&value1, &value2});
}

ZbStatus DriveAccess::readParameters(int address1, long &value1, int address2, long &value2, int address3, long &value3)
{
    return readRegisters({address1, address2, address3}, {&value1, &value2, &value3});
}

Reply DriveAccess::write(int address, long value)
{
    const ZbStatus appended = m_line.appendWrite(address, value);
    const ZbStatus executed = m_line.execute();
    // With the length control at 3 each of the two items is answered by a byte: its outcome.
    m_outcomeIsKnown = executed == ZB_OK && m_line.bytesLeft() == 2;
    long outcome = 0;
    ZbStatus fetched = m_line.fetchWrite(&outcome);
    // A late reply to something longer must not pass for an acknowledgement.
    fetched |= m_line.finishReply();
    if ((appended | executed | fetched) != ZB_OK)
        return Reply::None;
    return m_outcomeIsKnown && outcome == reg::OutcomeRefused ? Reply::Refused : Reply::Done;
}

Reply DriveAccess::writeSetting(int address, long value)
{
    Reply reply = Reply::None;
    askAgain(Setting, [&] {
        reply = write(address, value);
        return reply != Reply::None;
    });
    return reply;
}

bool DriveAccess::sendStop(int address, long value)
{
    const BusLine::Mark before = m_line.mark();
    bool acknowledged = false;
    m_line.beginStop();
    for (int attempt = 0; attempt < stopAttempts && !acknowledged; ++attempt)
        acknowledged = writeAndFetch(address, value);
    m_line.endStop();
    if (acknowledged)
        m_line.forgive(before);
    return acknowledged;
}
