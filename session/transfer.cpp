// Reading from the drive: registers, and the session's list of parameters.
#include "sessionregisters.h"
#include "sessionworker.h"

namespace {

/// Part of the identity that a bootloader knows, too.
bool knownToBootloader(int address)
{
    return address == reg::DeviceType || address == reg::FirmwareVersion || address == reg::SerialNumber ||
           address == reg::UniqueId;
}

} // namespace

/// One exchange for all of them, asked a second time when no good reply came.
ZbStatus SessionWorker::readRegisters(std::initializer_list<int> addresses, std::initializer_list<long *> values)
{
    ZbStatus status = 0;
    askAgain([&] {
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

ZbStatus SessionWorker::readParameters(int address1, long &value1)
{
    return readRegisters({address1}, {&value1});
}

ZbStatus SessionWorker::readParameters(int address1, long &value1, int address2, long &value2)
{
    return readRegisters({address1, address2}, {&value1, &value2});
}

ZbStatus SessionWorker::readParameters(int address1, long &value1, int address2, long &value2, int address3,
                                       long &value3)
{
    return readRegisters({address1, address2, address3}, {&value1, &value2, &value3});
}

ZbStatus SessionWorker::requestParamStruct(const SingleParam &param)
{
    ZbStatus status = m_line.appendRead(param.addr);
    status |= m_line.appendRead(param.addr | reg::MinimumFlag);
    status |= m_line.appendRead(param.addr | reg::MaximumFlag);
    if (!statusIsClean())
        qCDebug(sessionLog) << "err1" << m_line.status();
    return status;
}

bool SessionWorker::fillParamStruct(SingleParam &param)
{
    long value = 0, min = 0, max = 0;
    ZbStatus status = m_line.fetchRead(&value);
    status |= m_line.fetchRead(&min);
    status |= m_line.fetchRead(&max);
    status |= m_line.finishReply();
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
    return askAgain([&] {
        const ZbStatus requested = requestParamStruct(param);
        const ZbStatus executed = m_line.execute();
        return fillParamStruct(param) && (requested | executed) == ZB_OK;
    });
}

/// All records into `list`; false when it broke off.
bool SessionWorker::readRecords(Parameters &list)
{
    for (int index = 0; index < list.getParamCount(); ++index) {
        if (m_queue.isClosing())
            return false;
        serveWaitingDisable();
        SingleParam param = list.getParam(index);
        if (inFirmwareUpgradeMode() && !knownToBootloader(param.addr))
            continue;
        if (!isParamAvailableInCurrentDevice(param)) {
            param.value = -1.0;
        } else if (!readRecord(param)) {
            return false;
        }
        list.replaceParam(param, index);
    }
    return true;
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
    const int strays = m_line.meter().strays;
    bool whole = readRecords(list);
    // What should not have been on the line may have been taken for an answer before it was found.
    if (whole && strays != m_line.meter().strays)
        whole = readRecords(list);
    // A part, or the former drive's values, must not pass for the drive's.
    if (!whole)
        return;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        m_data.drive = list;
        // A set that was handed over meanwhile is newer than what this read began with.
        if (m_data.parameterHandOvers == handOvers)
            m_data.wanted.parameters = list;
    }
    m_data.driveWasRead = true;
    m_controlMode = truncateToInt32(list.getParam(QStringLiteral("CM")).value);
    m_data.valuesComplete = !inFirmwareUpgradeMode();
    emit m_session.driveParametersChanged(list);
    emit m_session.parametersRetreived(list, false);
}
