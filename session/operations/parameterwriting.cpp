#include "parametertransfer.h"

#include "errortexts.h"

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

/// A setting, and whether it was refused also where a stop that was served in between has changed how writes are
/// answered. With the error latch set every write is followed by a question anyway.
Reply ParameterTransfer::writeAndLook(int address, long value)
{
    const Reply reply = m_drive.writeSetting(address, value);
    long bits = 0;
    if (reply != Reply::Done || m_drive.outcomeIsKnown() || m_errors.isLatched() ||
        m_drive.readParameters(reg::ErrorBits, bits) != ZB_OK)
        return reply;
    return bits != 0 ? Reply::Refused : reply;
}

/// Whatever register a settings file or an override names.
bool ParameterTransfer::refuseCommand(const QString &name, int address)
{
    if (!reg::isCommandRegister(address))
        return false;
    m_errors.tell(MessageKind::NotWritten,
                  SessionText::tr("%1 was not written: register %2 is a command to the drive and not a setting.")
                      .arg(name.toHtmlEscaped())
                      .arg(address));
    return true;
}

/// What the bus has no room for is left out, or it would arrive as something else.
bool ParameterTransfer::refuseValue(const SingleParam &param, double deviceValue)
{
    if (BusLine::canCarry(param.addr, deviceValue))
        return false;
    m_errors.tell(MessageKind::NotWritten,
                  SessionText::tr("%1 was not written: %2 in register %3 is more than the bus can carry.")
                      .arg(param.name.toHtmlEscaped(), QString::number(deviceValue, 'g', 10))
                      .arg(param.addr));
    return true;
}

/// With the limits that the drive has told, which are not always those of the set that is written.
SingleParam ParameterTransfer::withDriveLimits(SingleParam param) const
{
    std::lock_guard<std::mutex> lock(m_data.mutex);
    const SingleParam held = m_data.drive.getParam(param.name);
    param.min = m_data.driveWasRead && held.addr == param.addr ? held.min : 0.0;
    param.max = m_data.driveWasRead && held.addr == param.addr ? held.max : 0.0;
    return param;
}

void ParameterTransfer::writeRecord(const SingleParam &param)
{
    const double deviceValue = param.convertToDeviceScale(param.value);
    if (refuseCommand(param.name, param.addr) || refuseValue(param, deviceValue))
        return;
    const Reply reply = writeAndLook(param.addr, static_cast<long>(deviceValue));
    noteWrite(param.name, reply);
    if (!m_errors.reportWrite(withDriveLimits(param), reply) && reply == Reply::Done)
        noteHeld(param);
}

/// Keeps account of how far a write has come, for the text about one that broke off.
void ParameterTransfer::noteWrite(const QString &name, Reply reply)
{
    if (reply == Reply::None && m_atStake.brokenOffWrite.isEmpty())
        m_atStake.brokenOffWrite = brokenOffWriteText(m_lastWritten);
    else if (reply == Reply::Done && m_atStake.brokenOffWrite.isEmpty())
        m_lastWritten = name;
}

/// The drive has acknowledged this value.
void ParameterTransfer::noteHeld(const SingleParam &param)
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
        emit m_out.controlModeChanged(mode);
    m_controlMode = mode;
}

void ParameterTransfer::setParams(const WriteRequest &request)
{
    qCDebug(sessionLog, "   SET PARAMS");
    m_lastWritten.clear();
    m_atStake.brokenOffWrite.clear();
    const Reply prepared = m_drive.writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    noteWrite(QString(), prepared);
    m_errors.reportWrite(undefinedParam(reg::ReturnLength, reg::ReturnsOutcome), prepared);
    writeRecords(request.parameters);
    // Else what comes later would be told as its failure.
    if (m_line.isClean())
        m_atStake.brokenOffWrite.clear();
    emit m_out.driveParametersChanged(m_data.driveParameters());
}

void ParameterTransfer::writeRecords(const Parameters &list)
{
    // Closing gives the whole session five seconds; a write that the user chose on the way out has most of them.
    constexpr Pauses::Milliseconds closingGrace(2000);

    for (int index = 0; index < list.getParamCount(); ++index) {
        if (m_line.isDead() || m_pauses.isClosing(closingGrace))
            return;
        m_pauses.serveWaitingDisable();
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

void ParameterTransfer::setOverriddenParam(const Parameters &list, unsigned slot)
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
    m_errors.reportWrite(target, reply);
}
