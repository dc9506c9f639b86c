#include "versioncheck.h"

#include "devicemodel.h"
#include "makerlinks.h"
#include "sessiontext.h"

#include <vector>

namespace {

constexpr SupportedVersion supportedVersions[] = {
    // family, core lowest and highest, firmware lowest and highest, core recommended
    {4, 1090, 1090, 1090, 1090, 1090},
    {11, 1078, 1078, 1078, 1078, 1078},
};

enum Side { TooNew, TooOld };
/// What a text quotes in place of %1, %2, ...
enum Quote { ProgramPage, FirmwarePage, Version, LowestFirmware };

struct Measured
{
    int DriveIdentity::*version;
    int DriveIdentity::*companion;
};
constexpr Measured firmware{&DriveIdentity::firmwareVersion, &DriveIdentity::firmwareCompanion};
constexpr Measured core{&DriveIdentity::coreVersion, &DriveIdentity::coreCompanion};
constexpr Measured protocol{&DriveIdentity::protocolVersion, &DriveIdentity::protocolCompanion};

/// One reason to refuse a drive: a version on the wrong side of its bound.
struct Rule
{
    Measured measured;
    Side side;
    int SupportedVersion::*bound;
    const char *text;
    std::vector<Quote> quotes;
    const char *restartNotice = nullptr; ///< behind the text when the drive is restarted into firmware-upgrade mode
};
using Rules = std::vector<Rule>;

// In the order in which they are judged; the first that applies is told. Texts: context "Connection".
const Rules firmwareRules = {
    {firmware,
     TooNew,
     &SupportedVersion::highestFirmware,
     QT_TRANSLATE_NOOP("Connection",
                       "Device firmware version too new, not supported by this software version. Check for "
                       "Velbrin upgrades from %1. Connected FW version: %2"),
     {ProgramPage, Version}},
    {firmware,
     TooOld,
     &SupportedVersion::lowestFirmware,
     QT_TRANSLATE_NOOP("Connection",
                       "Device firmware version too old, not supported by this software version. Check for "
                       "firmware upgrades at %1. Connected FW Version is %2 and the olders supported FW "
                       "version is %3.<br/><br/>You <i>may</i> need to use older Velbrin version to "
                       "upgrade firmware. Old Velbrin release can be found from %4"),
     {FirmwarePage, Version, LowestFirmware, ProgramPage},
     QT_TRANSLATE_NOOP("Connection", "<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try "
                                     "connecting again and installing a newer firmware to it.</b>")},
    {core,
     TooNew,
     &SupportedVersion::highestCore,
     QT_TRANSLATE_NOOP("Connection", "Device TarnwellCore firmware version too new, not supported by this software "
                                     "version. Check for Velbrin upgrades from %1. Connected TC FW version: %2"),
     {ProgramPage, Version}},
    {core,
     TooOld,
     &SupportedVersion::lowestCore,
     QT_TRANSLATE_NOOP("Connection",
                       "Device TarnwellCore firmware version too old, not supported by this software "
                       "version. Check for firmware upgrades at %1. Connected TC FW Version is %2 and the "
                       "olders supported TC FW version is %3.<br/><br/>You <i>may</i> need to use older "
                       "Velbrin version to upgrade firmware. Old Velbrin release can be found from %4"),
     // The lowest firmware, not the lowest core firmware, is what this text has always quoted.
     {FirmwarePage, Version, LowestFirmware, ProgramPage},
     QT_TRANSLATE_NOOP("Connection", "<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try "
                                     "connecting again and installing a newer firmware to it</b>.")},
};

const Rules bootloaderRules = {
    {firmware,
     TooNew,
     &SupportedVersion::highestBootloader,
     QT_TRANSLATE_NOOP("Connection", "Bootloader version too new, not supported by this software version. Check for "
                                     "Velbrin upgrades. Connected BL Version: %1"),
     {Version}},
    {firmware,
     TooOld,
     &SupportedVersion::lowestBootloader,
     QT_TRANSLATE_NOOP("Connection", "Bootloader version too old, not supported by this software version. Check older "
                                     "Velbrin versions from %1. Connected BL Version: %2"),
     {ProgramPage, Version}},
};

Rules protocolRules(int SupportedVersion::*lowest)
{
    return {
        {protocol,
         TooOld,
         lowest,
         QT_TRANSLATE_NOOP("Connection", "Zetabus protocol version too old, not supported by this software version. "
                                         "Check older Velbrin versions from %1. Connected ZBV2 Version: %2"),
         {ProgramPage, Version}},
        {protocol,
         TooNew,
         &SupportedVersion::highestProtocol,
         QT_TRANSLATE_NOOP("Connection", "Zetabus protocol version too new, not supported by this software version. "
                                         "Check for Velbrin upgrades. Connected ZBV2 Version: %1"),
         {Version}},
    };
}

// A drive is out of bounds only with its version and its companion beyond the bound.
bool applies(const Rule &rule, const DriveIdentity &drive, const SupportedVersion &supported)
{
    const int version = drive.*rule.measured.version;
    const int companion = drive.*rule.measured.companion;
    const int bound = supported.*rule.bound;
    return rule.side == TooNew ? version > bound && companion > bound : version < bound && companion < bound;
}

QString textOf(const Rule &rule, const DriveIdentity &drive, const SupportedVersion &supported)
{
    QString text = SessionText::tr(rule.text);
    for (const Quote quote : rule.quotes) {
        switch (quote) {
        case ProgramPage:
            text = text.arg(makerWikiPage(QStringLiteral("/wiki/Velbrin")));
            break;
        case FirmwarePage:
            text = text.arg(makerWikiPage(QStringLiteral("/wiki/Firmware")));
            break;
        case Version:
            text = text.arg(drive.*rule.measured.version);
            break;
        case LowestFirmware:
            text = text.arg(supported.lowestFirmware);
            break;
        }
    }
    return text;
}

VersionVerdict refused(const QString &text)
{
    VersionVerdict verdict;
    verdict.errorText =
        text + SessionText::tr("<br/><br/>Note: it's also possible that this message is caused by connection "
                               "instability. For troubleshooting, see %1")
                   .arg(makerWikiPage(QStringLiteral("/wiki/Device_connection_troubleshooting")));
    verdict.statusText = SessionText::tr("Connect failed");
    return verdict;
}

VersionVerdict refused(const Rule &rule, const DriveIdentity &drive, const SupportedVersion &supported)
{
    const QString text = textOf(rule, drive, supported);
    if (!rule.restartNotice || !modelHasCapability(drive.deviceType, DeviceCapability::RestartToDFU))
        return refused(text);
    // An outdated drive that can be restarted by command is left where new firmware can be installed at once.
    VersionVerdict verdict = refused(text + SessionText::tr(rule.restartNotice));
    verdict.restartToDFU = true;
    verdict.notRestartedText =
        refused(text +
                SessionText::tr("<br/><br/><b>Device could not be restarted in firmware upgrade mode: it did not "
                                "confirm the command and is probably still in normal mode. Try connecting "
                                "again.</b>"))
            .errorText;
    return verdict;
}

VersionVerdict judge(const Rules &rules, const DriveIdentity &drive, const SupportedVersion &supported)
{
    for (const Rule &rule : rules) {
        if (applies(rule, drive, supported))
            return refused(rule, drive, supported);
    }
    VersionVerdict verdict;
    verdict.accepted = true;
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

VersionVerdict outdatedCore()
{
    // Accepted without a look at the protocol: such a drive is asked to be upgraded, not turned away.
    VersionVerdict verdict;
    verdict.accepted = true;
    verdict.errorText = SessionText::tr("Connected device firmware version is outdated, an upgrade is recommended. "
                                        "Download the latest FW from <i>%1</i>")
                            .arg(makerWikiPage(QStringLiteral("/wiki/Firmware")));
    return verdict;
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
    const bool upgrading = drive.firmwareUpgradeMode;
    const VersionVerdict verdict = judge(upgrading ? bootloaderRules : firmwareRules, drive, *supported);
    if (!verdict.accepted)
        return verdict;
    if (!upgrading && supported->recommendedCore > drive.coreVersion)
        return outdatedCore();
    return judge(
        protocolRules(upgrading ? &SupportedVersion::lowestProtocolForUpgrade : &SupportedVersion::lowestProtocol),
        drive, *supported);
}
