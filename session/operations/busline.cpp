#include "busline.h"

#include <cerrno>

namespace {
constexpr long minWriteValue = -(1L << 29);
constexpr long maxWriteValue = (1L << 29) - 1;
constexpr int registerBits = 0x3FFF;
constexpr int babblesAfter = 3; // requests in a row that found something on the line
constexpr BusLine::Milliseconds closingLimit(2400);

bool isFailure(ZbStatus status)
{
    return (status & ~ZB_OK) != 0;
}
} // namespace

bool BusLine::open(const QString &portName, int timeoutMs)
{
    close();
    m_status = 0;
    m_appended = 0;
    m_lastFailed = m_mayComeLate = false;
    m_straysInARow = 0;
    startTask();
    m_timeoutMs = timeoutMs;
    zbSetTimeout(static_cast<std::uint16_t>(timeoutMs));
    m_handle = zbOpenBus(portName.toLocal8Bit().constData());
    m_openError = isOpen() ? 0 : errno;
    if (isOpen())
        zbResetZB485variables(m_handle);
    return isOpen();
}

void BusLine::close()
{
    if (isOpen())
        zbCloseBus(m_handle);
    m_handle = -1;
}

ZbStatus BusLine::record(ZbStatus status)
{
    m_status |= status;
    return status;
}

ZbStatus BusLine::recordAppend(ZbStatus status)
{
    m_appended |= status;
    return record(status);
}

/// A value that is missing or left over makes the reply the answer to something else.
ZbStatus BusLine::recordDecoding(ZbStatus status)
{
    if (isFailure(status) && !m_lastFailed) {
        m_lastFailed = m_mayComeLate = true; // it answered something else
        ++m_meter.errors;
    }
    return record(status);
}

bool BusLine::isDead() const
{
    return m_failuresInARow >= 3 || m_failures >= 4 || (m_lastFailed && isClosing());
}

bool BusLine::maySend() const
{
    return (m_stopping || !isDead()) && !isClosing(closingLimit);
}

bool BusLine::wasSilent() const
{
    return m_lastFailed && zbBytesHeard(m_handle) == 0;
}

bool BusLine::mayRepeat() const
{
    return m_lastFailed && m_wasSent && !isDead() && !isClosing() && !isGone();
}

void BusLine::forgive(const Mark &before)
{
    m_status = before.status;
    m_failures = before.failures;
}

ZbStatus BusLine::append(const QueueItem &item)
{
    return recordAppend(zbAppendZBCommandToQueue(m_handle, item.kind, item.value));
}

ZbStatus BusLine::appendRead(int address)
{
    return recordAppend(zbAppendGetParamCommandToQueue(m_handle, static_cast<std::int16_t>(address)));
}

ZbStatus BusLine::appendWrite(int address, long value)
{
    // The bits that an item has no room for would be cut off: another register or value than was asked for.
    if (value < minWriteValue || value > maxWriteValue || (address & ~registerBits) != 0)
        return recordAppend(ZB_ERR_PARAMETER);
    return recordAppend(zbAppendSetParamCommandToQueue(m_handle, static_cast<std::int16_t>(address), value));
}

bool BusLine::canCarry(int address, double value)
{
    // Written so that a NaN fails it.
    return value > minWriteValue - 1.0 && value < maxWriteValue + 1.0 && (address & ~registerBits) == 0;
}

ZbStatus BusLine::execute()
{
    return exchange(zbExecuteCommandQueue);
}

ZbStatus BusLine::upload()
{
    return exchange(zbUploadCommandQueueToDeviceBuffer);
}

ZbStatus BusLine::exchange(ZbStatus (*roundTrip)(ZbHandle, std::uint8_t))
{
    const ZbStatus appended = m_appended;
    m_appended = 0;
    m_wasSent = false;
    if (isFailure(appended) || !maySend()) {
        zbResetZB485variables(m_handle);
        return record(isFailure(appended) ? appended : ZB_ERR_COMMUNICATION);
    }
    dropStrays();
    if (m_straysInARow >= babblesAfter && !m_stopping) {
        countFailure();
        zbResetZB485variables(m_handle);
        return record(ZB_ERR_COMMUNICATION);
    }
    m_wasSent = true;
    ++m_meter.exchanges;
    const ZbStatus status = record(roundTrip(m_handle, m_node));
    m_lastFailed = isFailure(status);
    m_mayComeLate = m_lastFailed && wasSilent();
    if (m_lastFailed) {
        countFailure();
        // A failed send leaves its items queued; they would go out in front of the next batch.
        zbResetZB485variables(m_handle);
    } else if (!m_stopping) {
        m_failuresInARow = 0;
    }
    return status;
}

void BusLine::countFailure()
{
    m_lastFailed = true;
    ++m_meter.errors;
    ++m_failures;
    ++m_failuresInARow;
}

void BusLine::dropStrays()
{
    int dropped = 0;
    zbDiscardInput(m_handle, &dropped);
    m_straysInARow = dropped > 0 ? m_straysInARow + 1 : 0;
    m_meter.strays += dropped > 0;
}

ZbStatus BusLine::fetch(long *value)
{
    return recordDecoding(zbGetQueuedZBCommandReturnValue(m_handle, value));
}

ZbStatus BusLine::fetchRead(long *value)
{
    return recordDecoding(zbGetQueuedGetParamReturnValue(m_handle, value));
}

ZbStatus BusLine::fetchWrite(long *value)
{
    return recordDecoding(zbGetQueuedSetParamReturnValue(m_handle, value));
}

ZbStatus BusLine::finishReply()
{
    return recordDecoding(bytesLeft() == 0 ? ZB_OK : ZB_ERR_LENGTH);
}

int BusLine::bytesLeft() const
{
    int count = 0;
    zbBytesReceived(m_handle, &count);
    return count;
}

bool BusLine::isGone() const
{
    return zbIsLineGone(m_handle) != 0;
}

int BusLine::replyAddress() const
{
    return zbReplyAddress(m_handle);
}

ZbStatus BusLine::readBufferClock()
{
    return exchange([](ZbHandle handle, std::uint8_t node) {
        std::uint16_t clock = 0;
        return zbGetBufferClock(handle, node, &clock);
    });
}
