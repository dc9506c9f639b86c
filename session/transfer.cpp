// Parameters between the session's list and the drive.
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

/// Part of the identity that a bootloader knows, too.
bool knownToBootloader(int address)
{
    return address == reg::DeviceType || address == reg::FirmwareVersion || address == reg::SerialNumber ||
           address == reg::UniqueId;
}

} // namespace

ZbStatus SessionWorker::readParameters(int address1, long &value1)
{
    m_line.appendRead(address1);
    m_line.execute();
    const ZbStatus status = m_line.fetchRead(&value1);
    return status | m_line.finishReply();
}

ZbStatus SessionWorker::readParameters(int address1, long &value1, int address2, long &value2)
{
    m_line.appendRead(address1);
    m_line.appendRead(address2);
    m_line.execute();
    m_line.fetchRead(&value1);
    const ZbStatus status = m_line.fetchRead(&value2);
    return status | m_line.finishReply();
}

ZbStatus SessionWorker::readParameters(int address1, long &value1, int address2, long &value2, int address3,
                                       long &value3)
{
    m_line.appendRead(address1);
    m_line.appendRead(address2);
    m_line.appendRead(address3);
    m_line.execute();
    m_line.fetchRead(&value1);
    m_line.fetchRead(&value2);
    const ZbStatus status = m_line.fetchRead(&value3);
    return status | m_line.finishReply();
}

ZbStatus SessionWorker::requestParamStruct(const SingleParam &param)
{
    const ZbStatus status = m_line.appendRead(param.addr) | m_line.appendRead(param.addr | reg::MinimumFlag) |
                            m_line.appendRead(param.addr | reg::MaximumFlag);
    if (!statusIsClean())
        qCDebug(sessionLog) << "err1" << m_line.status();
    return status;
}

bool SessionWorker::fillParamStruct(SingleParam &param)
{
    long value = 0, min = 0, max = 0;
    const ZbStatus status =
        m_line.fetchRead(&value) | m_line.fetchRead(&min) | m_line.fetchRead(&max) | m_line.finishReply();
    if (!statusIsClean())
        qCDebug(sessionLog) << "err2" << m_line.status();
    if (status != ZB_OK)
        return false;
    param.value = param.convertToGUIScale(value);
    param.min = param.convertToGUIScale(min);
    param.max = param.convertToGUIScale(max);
    return true;
}

bool SessionWorker::readRecord(SingleParam &param)
{
    const ZbStatus requested = requestParamStruct(param);
    const ZbStatus executed = m_line.execute();
    return fillParamStruct(param) && (requested | executed) == ZB_OK;
}

void SessionWorker::getParams(const TaskRequest &)
{
    unsigned handOvers = 0;
    Parameters list;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        handOvers = m_data.parameterHandOvers;
        list = m_data.wanted.parameters;
    }
    int index = 0;
    for (; index < list.getParamCount() && !m_queue.isClosing(); ++index) {
        serveWaitingDisable();
        SingleParam param = list.getParam(index);
        if (inFirmwareUpgradeMode() && !knownToBootloader(param.addr))
            continue;
        if (!isParamAvailableInCurrentDevice(param)) {
            param.value = -1.0;
        } else if (!readRecord(param)) {
            break;
        }
        list.replaceParam(param, index);
        if (param.name == QLatin1String("CM"))
            m_controlMode = truncateToInt32(param.value);
    }
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        // A set that was handed over meanwhile is newer than what this read began with.
        if (m_data.parameterHandOvers == handOvers)
            m_data.wanted.parameters = list;
    }
    // The answer to a read that failed brings a part; nobody may take it for the whole.
    if (index == list.getParamCount() && !inFirmwareUpgradeMode())
        m_data.valuesComplete = true;
    emit m_session.parametersRetreived(list, false);
}

bool SessionWorker::writeAndFetch(int address, long value)
{
    const ZbStatus appended = m_line.appendWrite(address, value);
    const ZbStatus executed = m_line.execute();
    // A late reply to something longer must not pass for an acknowledgement.
    const ZbStatus fetched = m_line.fetchWrite() | m_line.finishReply();
    return (appended | executed | fetched) == ZB_OK;
}

bool SessionWorker::setParameter(int address, long value)
{
    writeAndFetch(address, value);
    reportWrite(undefinedParam(address, static_cast<int>(value)));
    return true;
}

/// Applying settings enables, moves and restarts nothing, whatever register a settings file or an override names.
bool SessionWorker::refuseCommand(const QString &name, int address)
{
    if (!reg::isCommandRegister(address))
        return false;
    emit m_session.error(Connection::tr("%1 was not written: register %2 is a command to the drive and not a setting.")
                             .arg(name.toHtmlEscaped())
                             .arg(address));
    return true;
}

void SessionWorker::writeRecord(const SingleParam &param)
{
    if (refuseCommand(param.name, param.addr))
        return;
    writeAndFetch(param.addr, toBusValue(param.convertToDeviceScale(param.value)));
    reportWrite(param);
}

void SessionWorker::setParams(const TaskRequest &request)
{
    // Closing gives the whole session five seconds; a write that the user chose on the way out has most of them.
    constexpr TaskQueue::Milliseconds closingGrace(2000);

    qCDebug(sessionLog, "   SET PARAMS");
    const Parameters &list = request.parameters;
    setParameter(reg::ReturnLength, reg::ReturnsOutcome);
    for (int index = 0; index < list.getParamCount(); ++index) {
        if (m_line.isDead() || m_queue.isClosing(closingGrace))
            return;
        serveWaitingDisable();
        const SingleParam param = list.getParam(index);
        if (!isParamAvailableInCurrentDevice(param))
            continue;
        qCDebug(sessionLog) << "       SET PARAM " << index << param.name << param.value;
        if (param.readonly)
            continue;
        if (param.name == QLatin1String("CM")) {
            const int mode = truncateToInt32(param.value);
            if (param.value != m_controlMode)
                emit m_session.controlModeChanged(mode);
            m_controlMode = mode;
        }
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
    const long target = toBusValue(address.value);
    if (refuseCommand(address.name, static_cast<qint16>(target)))
        return;
    writeAndFetch(static_cast<qint16>(target), toBusValue(value.value));
    reportWrite(undefinedParam(static_cast<qint16>(target), static_cast<int>(toBusValue(value.value))));
}
