#include "versioncheck.h"

#include "devicemodel.h"
#include "makerlinks.h"
#include "sessiontext.h"

namespace {

constexpr SupportedVersion supportedVersions[] = {
    // family, core lowest and highest, firmware lowest and highest, core recommended
    {4, 1090, 1090, 1090, 1090, 1090},
    {11, 1078, 1078, 1078, 1078, 1078},
};

constexpr int lowestProtocol = 25;           // in normal mode
constexpr int highestProtocol = 25;          // in both modes
constexpr int lowestProtocolForUpgrade = 20; // a bootloader speaks less
constexpr int lowestBootloader = 1200;
constexpr int highestBootloader = 1300;

// A drive is out of bounds only with its version and its companion beyond the bound.
bool tooNew(int version, int companion, int highest)
{
    return version > highest && companion > highest;
}

bool tooOld(int version, int companion, int lowest)
{
    return version < lowest && companion < lowest;
}

QString programPage()
{
    return makerWikiPage(QStringLiteral("/wiki/Velbrin"));
}

QString firmwarePage()
{
    return makerWikiPage(QStringLiteral("/wiki/Firmware"));
}

// Ends every refusal.
QString instabilityNote()
{
    return SessionText::tr("<br/><br/>Note: it's also possible that this message is caused by connection instability. "
                           "For troubleshooting, see %1")
        .arg(makerWikiPage(QStringLiteral("/wiki/Device_connection_troubleshooting")));
}

VersionVerdict accepted()
{
    VersionVerdict verdict;
    verdict.accepted = true;
    return verdict;
}

VersionVerdict refused(const QString &text)
{
    VersionVerdict verdict;
    verdict.errorText = text + instabilityNote();
    verdict.statusText = SessionText::tr("Connect failed");
    return verdict;
}

// An outdated drive that can be restarted by command is left where new firmware can be installed at once.
VersionVerdict refusedAsOutdated(const DriveIdentity &drive, const QString &text, const QString &restartNotice)
{
    if (!modelHasCapability(drive.deviceType, DeviceCapability::RestartToDFU))
        return refused(text);
    VersionVerdict verdict = refused(text + restartNotice);
    verdict.restartToDFU = true;
    verdict.notRestartedText =
        refused(text +
                SessionText::tr("<br/><br/><b>Device could not be restarted in firmware upgrade mode: it did not "
                                "confirm the command and is probably still in normal mode. Try connecting "
                                "again.</b>"))
            .errorText;
    return verdict;
}

VersionVerdict unsupportedModel(int deviceType)
{
    VersionVerdict verdict;
    verdict.errorText = SessionText::tr("Unsupported device model connected. Try upgrading Velbrin to latest version. "
                                        "Connected device ID %1")
                            .arg(deviceType);
    verdict.statusText = SessionText::tr("Unsupported device connected, try upgrading Velbrin");
    return verdict;
}

VersionVerdict checkProtocol(const DriveIdentity &drive, int lowest)
{
    if (tooOld(drive.protocolVersion, drive.protocolCompanion, lowest))
        return refused(SessionText::tr("Zetabus protocol version too old, not supported by this software version. "
                                       "Check older Velbrin versions from %1. Connected ZBV2 Version: %2")
                           .arg(programPage())
                           .arg(drive.protocolVersion));
    if (tooNew(drive.protocolVersion, drive.protocolCompanion, highestProtocol))
        return refused(SessionText::tr("Zetabus protocol version too new, not supported by this software version. "
                                       "Check for Velbrin upgrades. Connected ZBV2 Version: %1")
                           .arg(drive.protocolVersion));
    return accepted();
}

VersionVerdict firmwareTooNew(const DriveIdentity &drive)
{
    return refused(SessionText::tr("Device firmware version too new, not supported by this software version. Check for "
                                   "Velbrin upgrades from %1. Connected FW version: %2")
                       .arg(programPage())
                       .arg(drive.firmwareVersion));
}

VersionVerdict firmwareTooOld(const DriveIdentity &drive, const SupportedVersion &supported)
{
    const QString text =
        SessionText::tr("Device firmware version too old, not supported by this software version. Check for firmware "
                        "upgrades at %1. Connected FW Version is %2 and the olders supported FW version is %3."
                        "<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. Old Velbrin "
                        "release can be found from %4")
            .arg(firmwarePage(), QString::number(drive.firmwareVersion), QString::number(supported.lowestFirmware),
                 programPage());
    return refusedAsOutdated(drive, text,
                             SessionText::tr("<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try "
                                             "connecting again and installing a newer firmware to it.</b>"));
}

VersionVerdict coreTooNew(const DriveIdentity &drive)
{
    return refused(SessionText::tr("Device TarnwellCore firmware version too new, not supported by this software "
                                   "version. Check for Velbrin upgrades from %1. Connected TC FW version: %2")
                       .arg(programPage())
                       .arg(drive.coreVersion));
}

VersionVerdict coreTooOld(const DriveIdentity &drive, const SupportedVersion &supported)
{
    const QString text =
        SessionText::tr("Device TarnwellCore firmware version too old, not supported by this software version. Check "
                        "for firmware upgrades at %1. Connected TC FW Version is %2 and the olders supported TC FW "
                        "version is %3.<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. "
                        "Old Velbrin release can be found from %4")
            // The lowest firmware, not the lowest core firmware, is what this text has always quoted.
            .arg(firmwarePage(), QString::number(drive.coreVersion), QString::number(supported.lowestFirmware),
                 programPage());
    return refusedAsOutdated(drive, text,
                             SessionText::tr("<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try "
                                             "connecting again and installing a newer firmware to it</b>."));
}

VersionVerdict checkNormalMode(const DriveIdentity &drive, const SupportedVersion &supported)
{
    if (tooNew(drive.firmwareVersion, drive.firmwareCompanion, supported.highestFirmware))
        return firmwareTooNew(drive);
    if (tooOld(drive.firmwareVersion, drive.firmwareCompanion, supported.lowestFirmware))
        return firmwareTooOld(drive, supported);
    if (tooNew(drive.coreVersion, drive.coreCompanion, supported.highestCore))
        return coreTooNew(drive);
    if (tooOld(drive.coreVersion, drive.coreCompanion, supported.lowestCore))
        return coreTooOld(drive, supported);
    if (supported.recommendedCore > drive.coreVersion) {
        // Accepted without a look at the protocol: such a drive is asked to be upgraded, not turned away.
        VersionVerdict verdict = accepted();
        verdict.errorText = SessionText::tr("Connected device firmware version is outdated, an upgrade is recommended. "
                                            "Download the latest FW from <i>%1</i>")
                                .arg(firmwarePage());
        return verdict;
    }
    return checkProtocol(drive, lowestProtocol);
}

VersionVerdict checkUpgradeMode(const DriveIdentity &drive)
{
    if (tooNew(drive.firmwareVersion, drive.firmwareCompanion, highestBootloader))
        return refused(SessionText::tr("Bootloader version too new, not supported by this software version. Check for "
                                       "Velbrin upgrades. Connected BL Version: %1")
                           .arg(drive.firmwareVersion));
    if (tooOld(drive.firmwareVersion, drive.firmwareCompanion, lowestBootloader))
        return refused(SessionText::tr("Bootloader version too old, not supported by this software version. Check "
                                       "older Velbrin versions from %1. Connected BL Version: %2")
                           .arg(programPage())
                           .arg(drive.firmwareVersion));
    return checkProtocol(drive, lowestProtocolForUpgrade);
}

} // namespace

bool DriveIdentity::operator==(const DriveIdentity &other) const
{
    return deviceType == other.deviceType && firmwareVersion == other.firmwareVersion &&
           firmwareCompanion == other.firmwareCompanion && coreVersion == other.coreVersion &&
           coreCompanion == other.coreCompanion && protocolVersion == other.protocolVersion &&
           protocolCompanion == other.protocolCompanion && firmwareUpgradeMode == other.firmwareUpgradeMode;
}

const SupportedVersion *supportedVersionOf(int deviceType)
{
    for (const SupportedVersion &supported : supportedVersions) {
        if (supported.deviceFamily == deviceType / 1000)
            return &supported;
    }
    return nullptr;
}

VersionVerdict checkVersions(const DriveIdentity &drive)
{
    const SupportedVersion *supported = supportedVersionOf(drive.deviceType);
    if (!supported)
        return unsupportedModel(drive.deviceType);
    return drive.firmwareUpgradeMode ? checkUpgradeMode(drive) : checkNormalMode(drive, *supported);
}
