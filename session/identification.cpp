// Finding out what answers, and whether this program may work with it.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"
#include "versioncheck.h"

bool SessionWorker::identify(int nodeAddress)
{
    DriveIdentity drive;
    bool read = readIdentity(nodeAddress, drive);
    // What would turn a drive away, restart it, or take it for a bootloader must not hang on one reading: noise must
    // never restart a running drive.
    const bool unexpected = drive.firmwareUpgradeMode && nodeAddress != firmwareUpgradeNode;
    if (read && (unexpected || !checkVersions(drive).accepted))
        read = readSameIdentityTwice(nodeAddress, drive);
    if (!read) {
        refuseLine(nodeAddress);
        return false;
    }
    m_data.firmwareUpgradeMode = drive.firmwareUpgradeMode;
    m_firmwareVersion = drive.firmwareVersion;
    m_coreVersion = drive.coreVersion;
    setDeviceSpecificVariables(drive.deviceType);
    return judge(drive);
}

/// False when any of it was not read cleanly: such a value decides nothing.
bool SessionWorker::readIdentity(int nodeAddress, DriveIdentity &drive)
{
    long mode = 0, type = 0, firmware = 0, firmwareCompanion = 0, protocol = 0, protocolCompanion = 0;
    if (nodeAddress != firmwareUpgradeNode && readParameters(reg::OperatingMode, mode) != ZB_OK)
        return false;
    if (readParameters(reg::DeviceType, type, reg::FirmwareVersion, firmware, reg::FirmwareCompatible,
                       firmwareCompanion) != ZB_OK ||
        readParameters(reg::ProtocolVersion, protocol, reg::ProtocolCompatible, protocolCompanion) != ZB_OK)
        return false;
    long core = 0, coreCompanion = 0;
    if (mode != 0 && supportedVersionOf(static_cast<int>(type)) &&
        readParameters(reg::CoreVersion, core, reg::CoreCompatible, coreCompanion) != ZB_OK)
        return false;
    drive.deviceType = static_cast<int>(type);
    drive.firmwareVersion = static_cast<int>(firmware);
    drive.firmwareCompanion = static_cast<int>(firmwareCompanion);
    drive.coreVersion = static_cast<int>(core);
    drive.coreCompanion = static_cast<int>(coreCompanion);
    drive.protocolVersion = static_cast<int>(protocol);
    drive.protocolCompanion = static_cast<int>(protocolCompanion);
    drive.firmwareUpgradeMode = mode == 0;
    return true;
}

/// Reads on until two readings in a row agree.
bool SessionWorker::readSameIdentityTwice(int nodeAddress, DriveIdentity &drive)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        const DriveIdentity before = drive;
        if (!readIdentity(nodeAddress, drive))
            return false;
        if (drive == before)
            return true;
    }
    return false;
}

void SessionWorker::refuseLine(int nodeAddress)
{
    m_errorLatch = true;
    const QString text = busErrorText(true, m_line.status(), 0);
    const QString plain = text.isEmpty() ? Connection::tr("The drive's answers contradict each other: try again, and "
                                                          "check that no two drives have the same address.")
                                         : noConnectionText(m_line.wasSilent(), nodeAddress);
    refuse(MessageKind::ConnectFailed, QString(), text.isEmpty() ? plain : text + QStringLiteral("<br>") + plain);
}

bool SessionWorker::judge(const DriveIdentity &drive)
{
    const VersionVerdict verdict = checkVersions(drive);
    if (verdict.accepted) {
        if (!verdict.errorText.isEmpty())
            tell(MessageKind::Note, verdict.errorText);
        return true;
    }
    const bool restarted = verdict.restartToDFU && sendRestartToDFU();
    const bool failed = verdict.restartToDFU && !restarted;
    refuse(MessageKind::Identity, verdict.statusText, failed ? verdict.notRestartedText : verdict.errorText);
    if (restarted)
        pause(restartPauseMs, Drive::Restarts);
    return false;
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
