#include "printqt.h"
#include "versioncheck.h"

#include <gtest/gtest.h>

namespace {

const QString note = "<br/><br/>Note: it's also possible that this message is caused by connection instability. For "
                     "troubleshooting, see https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting";

using D = DriveIdentity;

/// A drive that passes, as the start for one that does not.
D keta(int type = 11000)
{
    return {type, 1078, 1078, 1078, 1078, 25, 25, false};
}

D with(D drive, std::initializer_list<std::pair<int D::*, int>> changes)
{
    for (const auto &[member, value] : changes)
        drive.*member = value;
    return drive;
}

const D torva{4000, 1090, 1090, 1090, 1090, 25, 25, false};
const D bootloader{11000, 1260, 1260, 0, 0, 25, 25, true};

const char firmwareTooOld[] =
    "Device firmware version too old, not supported by this software version. Check for firmware upgrades at "
    "https://wiki.tarnwell.example/wiki/Firmware. Connected FW Version is %1 and the olders supported FW version is "
    "%2.<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. Old Velbrin release can be "
    "found from https://wiki.tarnwell.example/wiki/Velbrin";
const char coreTooOld[] =
    "Device TarnwellCore firmware version too old, not supported by this software version. Check for firmware upgrades "
    "at https://wiki.tarnwell.example/wiki/Firmware. Connected TC FW Version is %1 and the olders supported TC FW "
    "version is %2.<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. Old Velbrin "
    "release can be found from https://wiki.tarnwell.example/wiki/Velbrin";
const char restarted[] =
    "<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try connecting again and "
    "installing a newer firmware to it";
const char protocolTooOld[] =
    "Zetabus protocol version too old, not supported by this software version. Check older Velbrin versions from "
    "https://wiki.tarnwell.example/wiki/Velbrin. Connected ZBV2 Version: %1";
const char protocolTooNew[] = "Zetabus protocol version too new, not supported by this software version. Check for "
                              "Velbrin upgrades. Connected ZBV2 Version: %1";

} // namespace

TEST(VersionCheck, AcceptsWhatItKnowsAndWhatClaimsToBeCompatible)
{
    const D accepted[] = {
        keta(),
        keta(11001),
        keta(11200),
        keta(11205),
        keta(11400),
        torva,
        // Only the version itself is out of bounds, what it claims to be compatible with is not.
        with(torva, {{&D::firmwareVersion, 1091}}),
        with(keta(), {{&D::firmwareVersion, 1077}}),
        with(keta(), {{&D::coreVersion, 1079}}),
        with(keta(), {{&D::protocolVersion, 26}}),
        with(keta(), {{&D::protocolCompanion, 26}}),
        with(keta(), {{&D::protocolVersion, 24}}),
        with(keta(), {{&D::protocolVersion, 24}, {&D::protocolCompanion, 99}}),
        bootloader,
        with(bootloader, {{&D::firmwareVersion, 1200}, {&D::firmwareCompanion, 1200}}),
        with(bootloader, {{&D::firmwareVersion, 1300}, {&D::firmwareCompanion, 1300}}),
        with(bootloader, {{&D::firmwareVersion, 1301}, {&D::firmwareCompanion, 1300}}),
        with(bootloader, {{&D::firmwareVersion, 1199}, {&D::firmwareCompanion, 1200}}),
        with(bootloader, {{&D::protocolVersion, 20}, {&D::protocolCompanion, 20}}),
        with(bootloader, {{&D::protocolVersion, 19}, {&D::protocolCompanion, 20}}),
        with(bootloader, {{&D::protocolVersion, 26}}),
    };
    for (const D &drive : accepted) {
        SCOPED_TRACE(&drive - accepted);
        const VersionVerdict verdict = checkVersions(drive);
        EXPECT_TRUE(verdict.accepted && !verdict.restartToDFU);
        EXPECT_EQ(verdict.errorText + verdict.statusText, "");
    }
}

TEST(VersionCheck, RefusesWhatIsTooNewOrTooOldAndRestartsAnOutdatedKeta)
{
    const QString outdated = firmwareTooOld, outdatedCore = coreTooOld;
    const struct
    {
        D drive;
        int D::*version, D::*companion;
        int value;
        QString text;
        bool restart = false;
    } rows[] = {
        {torva, &D::firmwareVersion, &D::firmwareCompanion, 1091,
         "Device firmware version too new, not supported by this software version. Check for Velbrin upgrades from "
         "https://wiki.tarnwell.example/wiki/Velbrin. Connected FW version: 1091"},
        {keta(), &D::firmwareVersion, &D::firmwareCompanion, 1077, outdated.arg(1077).arg(1078) + restarted + ".</b>",
         true},
        {torva, &D::firmwareVersion, &D::firmwareCompanion, 1089, outdated.arg(1089).arg(1090)},
        {keta(), &D::coreVersion, &D::coreCompanion, 1079,
         "Device TarnwellCore firmware version too new, not supported by this software version. Check for Velbrin "
         "upgrades from https://wiki.tarnwell.example/wiki/Velbrin. Connected TC FW version: 1079"},
        {keta(), &D::coreVersion, &D::coreCompanion, 1077, outdatedCore.arg(1077).arg(1078) + restarted + "</b>.",
         true},
        {torva, &D::coreVersion, &D::coreCompanion, 1089, outdatedCore.arg(1089).arg(1090)},
        {keta(), &D::protocolVersion, &D::protocolCompanion, 24, QString(protocolTooOld).arg(24)},
        {keta(), &D::protocolVersion, &D::protocolCompanion, 26, QString(protocolTooNew).arg(26)},
        {bootloader, &D::firmwareVersion, &D::firmwareCompanion, 1301,
         "Bootloader version too new, not supported by this software version. Check for Velbrin upgrades. Connected BL "
         "Version: 1301"},
        {bootloader, &D::firmwareVersion, &D::firmwareCompanion, 1199,
         "Bootloader version too old, not supported by this software version. Check older Velbrin versions from "
         "https://wiki.tarnwell.example/wiki/Velbrin. Connected BL Version: 1199"},
        {bootloader, &D::protocolVersion, &D::protocolCompanion, 19, QString(protocolTooOld).arg(19)},
        {bootloader, &D::protocolVersion, &D::protocolCompanion, 26, QString(protocolTooNew).arg(26)},
    };
    for (const auto &row : rows) {
        const VersionVerdict verdict =
            checkVersions(with(row.drive, {{row.version, row.value}, {row.companion, row.value}}));
        EXPECT_FALSE(verdict.accepted);
        EXPECT_EQ(verdict.restartToDFU, row.restart) << row.text.toStdString();
        EXPECT_EQ(verdict.errorText, row.text + note);
        EXPECT_EQ(verdict.statusText, "Connect failed");
        if (row.restart) {
            EXPECT_TRUE(verdict.notRestartedText.contains("could not be restarted in firmware upgrade mode"));
            EXPECT_FALSE(verdict.notRestartedText.contains("now has been restarted"));
        }
    }
}

TEST(VersionCheck, RefusesAModelWithoutARecord)
{
    for (const int type : {9000, 5000, 0, -11000, 12345}) {
        for (const D &drive : {keta(type), with(bootloader, {{&D::deviceType, type}})}) {
            const VersionVerdict verdict = checkVersions(drive);
            EXPECT_FALSE(verdict.accepted || verdict.restartToDFU);
            EXPECT_EQ(verdict.statusText, "Unsupported device connected, try upgrading Velbrin");
            EXPECT_EQ(verdict.errorText, QString("Unsupported device model connected. Try upgrading Velbrin to latest "
                                                 "version. Connected device ID %1")
                                             .arg(type));
        }
    }
}

TEST(VersionCheck, RecommendsAnUpgradeAndSkipsTheProtocolThen)
{
    // The companion alone is within the bounds.
    const VersionVerdict verdict =
        checkVersions(with(keta(), {{&D::coreVersion, 1077}, {&D::protocolVersion, 99}, {&D::protocolCompanion, 99}}));
    EXPECT_TRUE(verdict.accepted && !verdict.restartToDFU && verdict.statusText.isEmpty());
    EXPECT_EQ(verdict.errorText,
              "Connected device firmware version is outdated, an upgrade is recommended. Download the latest FW from "
              "<i>https://wiki.tarnwell.example/wiki/Firmware</i>");
}
