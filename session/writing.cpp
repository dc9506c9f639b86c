// Writing to the drive: settings, which may be said twice, and commands, which act once.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"

#include <cmath>
#include <limits>

namespace {

using LongRange = std::numeric_limits<long>;

/// As a number for the bus; what is not a number, or far out of range, becomes one that the line refuses to send.
long toBusValue(double deviceValue)
{
    return std::abs(deviceValue) < 4294967296.0 ? static_cast<long>(deviceValue) : LongRange::max();
}

} // namespace

SessionWorker::Reply SessionWorker::write(int address, long value)
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

SessionWorker::Reply SessionWorker::writeSetting(int address, long value)
{
    Reply reply = Reply::None;
    askAgain([&] {
        reply = write(address, value);
        return reply != Reply::None;
    });
    return reply;
}

/// A setting, and whether it was refused also where a stop that was served in between has changed how writes are
/// answered. With the error latch set every write is followed by a question anyway.
SessionWorker::Reply SessionWorker::writeAndLook(int address, long value)
{
    const Reply reply = writeSetting(address, value);
    long bits = 0;
    if (reply != Reply::Done || m_outcomeIsKnown || m_errorLatch || readParameters(reg::ErrorBits, bits) != ZB_OK)
        return reply;
    return bits != 0 ? Reply::Refused : reply;
}

SessionWorker::Reply SessionWorker::writeCommand(int address, long value, const QString &refusal)
{
    const Reply reply = write(address, value);
    if (reply == Reply::None)
        return reply;
    long bits = 0;
    if (readParameters(reg::ErrorBits, bits) != ZB_OK || (bits == 0 && reply == Reply::Done))
        return reply;
    writeSetting(reg::ErrorBits, 0);
    m_errorLatch = true;
    const auto reasons = static_cast<quint32>(bits != 0 ? bits : reg::ErrorCommandFailed);
    tell(MessageKind::Refused, refusal.arg(refusalReasons(reasons)));
    return Reply::Refused;
}

bool SessionWorker::setParameter(int address, long value)
{
    write(address, value);
    reportWrite(undefinedParam(address, static_cast<int>(value)));
    return true;
}

/// Applying settings enables, moves and restarts nothing, whatever register a settings file or an override names.
bool SessionWorker::refuseCommand(const QString &name, int address)
{
    if (!reg::isCommandRegister(address))
        return false;
    tell(MessageKind::NotWritten,
         Connection::tr("%1 was not written: register %2 is a command to the drive and not a setting.")
             .arg(name.toHtmlEscaped())
             .arg(address));
    return true;
}

/// What the bus has no room for is left out, or it would arrive as something else.
bool SessionWorker::refuseValue(const SingleParam &param, double deviceValue)
{
    if (BusLine::canCarry(param.addr, deviceValue))
        return false;
    tell(MessageKind::NotWritten,
         Connection::tr("%1 was not written: %2 in register %3 is more than the bus can carry.")
             .arg(param.name.toHtmlEscaped(), QString::number(deviceValue, 'g', 10))
             .arg(param.addr));
    return true;
}

/// With the limits that the drive has told, which are not always those of the set that is written.
SingleParam SessionWorker::withDriveLimits(SingleParam param) const
{
    std::lock_guard<std::mutex> lock(m_data.mutex);
    const SingleParam held = m_data.drive.getParam(param.name);
    param.min = m_data.driveWasRead && held.addr == param.addr ? held.min : 0.0;
    param.max = m_data.driveWasRead && held.addr == param.addr ? held.max : 0.0;
    return param;
}

void SessionWorker::writeRecord(const SingleParam &param)
{
    const double deviceValue = param.convertToDeviceScale(param.value);
    if (refuseCommand(param.name, param.addr) || refuseValue(param, deviceValue))
        return;
    const Reply reply = writeAndLook(param.addr, static_cast<long>(deviceValue));
    noteWrite(param.name, reply);
    if (!reportWrite(withDriveLimits(param), reply) && reply == Reply::Done)
        noteHeld(param);
}

/// Keeps account of how far a write has come, for the text about one that broke off.
void SessionWorker::noteWrite(const QString &name, Reply reply)
{
    if (reply == Reply::None && m_brokenOffWrite.isEmpty())
        m_brokenOffWrite = brokenOffWriteText(m_lastWritten);
    else if (reply == Reply::Done && m_brokenOffWrite.isEmpty())
        m_lastWritten = name;
}

/// The drive has acknowledged this value.
void SessionWorker::noteHeld(const SingleParam &param)
{
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        SingleParam held = m_data.drive.getParam(param.name);
        if (held.addr == param.addr) {
            held.value = param.value;
            m_data.drive.replaceParam(held);
        }
    }
    if (param.name != QLatin1String("CM"))
        return;
    const int mode = truncateToInt32(param.value);
    if (param.value != m_controlMode)
        emit m_session.controlModeChanged(mode);
    m_controlMode = mode;
}

void SessionWorker::setParams(const TaskRequest &request)
{
    qCDebug(sessionLog, "   SET PARAMS");
    m_lastWritten.clear();
    m_brokenOffWrite.clear();
    const Reply prepared = writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    noteWrite(QString(), prepared);
    reportWrite(undefinedParam(reg::ReturnLength, reg::ReturnsOutcome), prepared);
    writeRecords(request.parameters);
    // Else what comes later would be told as its failure.
    if (statusIsClean())
        m_brokenOffWrite.clear();
    emit m_session.driveParametersChanged(m_session.driveParameters());
}

void SessionWorker::writeRecords(const Parameters &list)
{
    // Closing gives the whole session five seconds; a write that the user chose on the way out has most of them.
    constexpr TaskQueue::Milliseconds closingGrace(2000);

    for (int index = 0; index < list.getParamCount(); ++index) {
        if (m_line.isDead() || m_queue.isClosing(closingGrace))
            return;
        serveWaitingDisable();
        const SingleParam param = list.getParam(index);
        if (!isParamAvailableInCurrentDevice(param))
            continue;
        qCDebug(sessionLog) << "       SET PARAM " << index << param.name << param.value;
        if (!param.readonly)
            writeRecord(param);
    }
    for (unsigned slot = 1; slot <= 3; ++slot)
        setOverriddenParam(list, slot);
}

void SessionWorker::setOverriddenParam(const Parameters &list, unsigned slot)
{
    if (slot < 1 || slot > 3)
        return;
    const SingleParam address = list.getParam(QStringLiteral("overrideAddr%1").arg(slot));
    const SingleParam value = list.getParam(QStringLiteral("overrideVal%1").arg(slot));
    if (address.value == 0.0 || std::isnan(address.value))
        return;
    qCDebug(sessionLog) << "overriding " << address.value << " to " << value.value;
    SingleParam target = undefinedParam(static_cast<qint16>(toBusValue(address.value)), 0);
    target.value = value.value;
    SingleParam named = target;
    named.name = address.name;
    if (refuseCommand(named.name, target.addr) || refuseValue(named, value.value))
        return;
    const Reply reply = writeAndLook(target.addr, static_cast<long>(value.value));
    noteWrite(address.name, reply);
    reportWrite(target, reply);
}
