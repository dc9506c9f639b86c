// Finding out what answers, and whether this program may work with it.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"
#include "versioncheck.h"

bool SessionWorker::identify(int nodeAddress)
{
    long mode = 0;
    if (nodeAddress != firmwareUpgradeNode) {
        readParameters(reg::OperatingMode, mode);
        if (refuseUncleanLine())
            return false;
    }
    m_data.firmwareUpgradeMode = mode == 0;
    return checkFWversion();
}

/// A value that was not read cleanly decides nothing: noise must never restart a running drive into firmware-upgrade
/// mode, which is what too old a version would do.
bool SessionWorker::refuseUncleanLine()
{
    if (m_line.status() == 0 || m_line.status() == ZB_OK)
        return false;
    const QString text = busErrorText(true, m_line.status(), 0);
    m_errorLatch = true;
    refuse(QString(), text);
    return true;
}

bool SessionWorker::checkFWversion()
{
    long type = 0, firmware = 0, firmwareCompanion = 0, protocol = 0, protocolCompanion = 0;
    readParameters(reg::DeviceType, type, reg::FirmwareVersion, firmware, reg::FirmwareCompatible, firmwareCompanion);
    if (refuseUncleanLine())
        return false;
    readParameters(reg::ProtocolVersion, protocol, reg::ProtocolCompatible, protocolCompanion);
    if (refuseUncleanLine())
        return false;
    setDeviceSpecificVariables(static_cast<int>(type));

    long core = 0, coreCompanion = 0;
    if (!inFirmwareUpgradeMode() && supportedVersionOf(static_cast<int>(type))) {
        readParameters(reg::CoreVersion, core, reg::CoreCompatible, coreCompanion);
        if (refuseUncleanLine())
            return false;
    }
    m_firmwareVersion = static_cast<int>(firmware);
    m_coreVersion = static_cast<int>(core);

    DriveIdentity drive;
    drive.deviceType = static_cast<int>(type);
    drive.firmwareVersion = m_firmwareVersion;
    drive.firmwareCompanion = static_cast<int>(firmwareCompanion);
    drive.coreVersion = m_coreVersion;
    drive.coreCompanion = static_cast<int>(coreCompanion);
    drive.protocolVersion = static_cast<int>(protocol);
    drive.protocolCompanion = static_cast<int>(protocolCompanion);
    drive.firmwareUpgradeMode = inFirmwareUpgradeMode();
    const VersionVerdict verdict = checkVersions(drive);
    if (!verdict.accepted) {
        refuse(verdict.statusText, verdict.errorText);
        if (verdict.restartToDFU)
            restartToDFUMode();
    } else if (!verdict.errorText.isEmpty()) {
        emit m_session.error(verdict.errorText);
    }
    return verdict.accepted;
}

void SessionWorker::setDeviceSpecificVariables(int typeId)
{
    m_data.deviceType = typeId;
    m_data.baseFrequency = baseFrequencyOfModel(typeId, m_data.baseFrequency);
}

bool SessionWorker::isParamAvailableInCurrentDevice(const SingleParam &param) const
{
    return param.supportedInDevice(deviceModelName(m_data.deviceType, false));
}
