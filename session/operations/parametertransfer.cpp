#include "parametertransfer.h"

#include "devicemodel.h"

namespace {

/// Part of the identity that a bootloader knows, too.
bool knownToBootloader(int address)
{
    return address == reg::DeviceType || address == reg::FirmwareVersion || address == reg::SerialNumber ||
           address == reg::UniqueId;
}

} // namespace

ZbStatus ParameterTransfer::requestParamStruct(const SingleParam &param)
{
    ZbStatus status = m_line.appendRead(param.addr);
    status |= m_line.appendRead(param.addr | reg::MinimumFlag);
    status |= m_line.appendRead(param.addr | reg::MaximumFlag);
    if (!m_line.isClean())
        qCDebug(sessionLog) << "err1" << m_line.status();
    return status;
}

bool ParameterTransfer::fillParamStruct(SingleParam &param)
{
    long value = 0, min = 0, max = 0;
    ZbStatus status = m_line.fetchRead(&value);
    status |= m_line.fetchRead(&min);
    status |= m_line.fetchRead(&max);
    status |= m_line.finishReply();
    if (!m_line.isClean())
        qCDebug(sessionLog) << "err2" << m_line.status();
    if (status != ZB_OK)
        return false;
    param.value = param.convertToGUIScale(value);
    param.min = param.convertToGUIScale(min);
    param.max = param.convertToGUIScale(max);
    return true;
}

bool ParameterTransfer::readRecord(SingleParam &param)
{
    return m_drive.askAgain(DriveAccess::Read, [&] {
        const ZbStatus requested = requestParamStruct(param);
        const ZbStatus executed = m_line.execute();
        return fillParamStruct(param) && (requested | executed) == ZB_OK;
    });
}

bool ParameterTransfer::isParamAvailableInCurrentDevice(const SingleParam &param) const
{
    return param.supportedInDevice(deviceModelName(m_data.deviceType, false));
}

/// All records into `list`; false when it broke off.
bool ParameterTransfer::readRecords(Parameters &list)
{
    for (int index = 0; index < list.getParamCount(); ++index) {
        if (m_pauses.isClosing())
            return false;
        m_pauses.serveWaitingDisable();
        SingleParam param = list.getParam(index);
        if (m_data.firmwareUpgradeMode && !knownToBootloader(param.addr))
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

void ParameterTransfer::getParams()
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
    m_data.valuesComplete = !m_data.firmwareUpgradeMode;
    emit m_out.driveParametersChanged(list);
    emit m_out.parametersRetreived(list, false);
}
