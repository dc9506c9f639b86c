#include "identification.h"

#include "errortexts.h"

std::variant<DriveIdentity, NoIdentity> Identification::identify(int nodeAddress)
{
    DriveIdentity drive;
    bool read = readIdentity(nodeAddress, drive);
    const bool unexpected = drive.firmwareUpgradeMode && nodeAddress != firmwareUpgradeNode;
    if (read && (unexpected || !checkVersions(drive).accepted))
        read = readSameIdentityTwice(nodeAddress, drive);
    if (!read)
        return noIdentity(nodeAddress);
    return drive;
}

/// False when any of it was not read cleanly: such a value decides nothing.
bool Identification::readIdentity(int nodeAddress, DriveIdentity &drive)
{
    long mode = 0, type = 0, firmware = 0, firmwareCompanion = 0, protocol = 0, protocolCompanion = 0;
    if (nodeAddress != firmwareUpgradeNode && m_drive.readParameters(reg::OperatingMode, mode) != ZB_OK)
        return false;
    if (m_drive.readParameters(reg::DeviceType, type, reg::FirmwareVersion, firmware, reg::FirmwareCompatible,
                               firmwareCompanion) != ZB_OK ||
        m_drive.readParameters(reg::ProtocolVersion, protocol, reg::ProtocolCompatible, protocolCompanion) != ZB_OK)
        return false;
    long core = 0, coreCompanion = 0;
    if (mode != 0 && supportedVersionOf(static_cast<int>(type)) &&
        m_drive.readParameters(reg::CoreVersion, core, reg::CoreCompatible, coreCompanion) != ZB_OK)
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
bool Identification::readSameIdentityTwice(int nodeAddress, DriveIdentity &drive)
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

NoIdentity Identification::noIdentity(int nodeAddress)
{
    const QString text = busErrorText(true, m_line.status(), 0);
    if (text.isEmpty())
        return {
            SessionText::tr("The drive's answers contradict each other: try again, and check that no two drives have "
                            "the same address.")};
    return {text + QStringLiteral("<br>") + noConnectionText(m_line.wasSilent(), nodeAddress)};
}
