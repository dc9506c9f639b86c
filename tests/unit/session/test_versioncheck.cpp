#include "printqt.h"
#include "versioncheck.h"

#include <gtest/gtest.h>

namespace {

const QString note = "<br/><br/>Note: it's also possible that this message is caused by connection instability. For "
                     "troubleshooting, see https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting";

// A drive that passes, as the start for one that does not.
DriveIdentity keta(int type = 11000)
{
    DriveIdentity drive;
    drive.deviceType = type;
    drive.firmwareVersion = drive.firmwareCompanion = 1078;
    drive.coreVersion = drive.coreCompanion = 1078;
    drive.protocolVersion = drive.protocolCompanion = 25;
    return drive;
}

DriveIdentity torva()
{
    DriveIdentity drive = keta(4000);
    drive.firmwareVersion = drive.firmwareCompanion = 1090;
    drive.coreVersion = drive.coreCompanion = 1090;
    return drive;
}

DriveIdentity bootloader(int version, int companion, int protocol = 25, int protocolCompanion = 25)
{
    DriveIdentity drive;
    drive.deviceType = 11000;
    drive.firmwareUpgradeMode = true;
    drive.firmwareVersion = version;
    drive.firmwareCompanion = companion;
    drive.protocolVersion = protocol;
    drive.protocolCompanion = protocolCompanion;
    return drive;
}

void expectAccepted(const DriveIdentity &drive)
{
    const VersionVerdict verdict = checkVersions(drive);
    EXPECT_TRUE(verdict.accepted);
    EXPECT_FALSE(verdict.restartToDFU);
    EXPECT_EQ(verdict.errorText, "");
    EXPECT_EQ(verdict.statusText, "");
}

void expectRefused(const DriveIdentity &drive, const QString &text, bool restart = false)
{
    const VersionVerdict verdict = checkVersions(drive);
    EXPECT_FALSE(verdict.accepted);
    EXPECT_EQ(verdict.restartToDFU, restart);
    EXPECT_EQ(verdict.errorText, text + note);
    EXPECT_EQ(verdict.statusText, "Connect failed");
}

} // namespace

TEST(VersionCheck, AcceptsTheSupportedDrives)
{
    for (int type : {11000, 11001, 11200, 11205, 11400})
        expectAccepted(keta(type));
    expectAccepted(torva());
}

TEST(VersionCheck, RefusesAModelWithoutARecord)
{
    for (int type : {9000, 5000, 0, -11000, 12345}) {
        for (bool upgradeMode : {false, true}) {
            DriveIdentity drive = keta(type);
            drive.firmwareUpgradeMode = upgradeMode;
            const VersionVerdict verdict = checkVersions(drive);
            EXPECT_FALSE(verdict.accepted);
            EXPECT_FALSE(verdict.restartToDFU);
            EXPECT_EQ(verdict.statusText, "Unsupported device connected, try upgrading Velbrin");
            EXPECT_EQ(verdict.errorText, QString("Unsupported device model connected. Try upgrading Velbrin to latest "
                                                 "version. Connected device ID ") +
                                             QString::number(type));
        }
    }
}

TEST(VersionCheck, RefusesFirmwareThatIsTooNew)
{
    DriveIdentity drive = torva();
    drive.firmwareVersion = drive.firmwareCompanion = 1091;
    expectRefused(drive, "Device firmware version too new, not supported by this software version. Check for Velbrin "
                         "upgrades from https://wiki.tarnwell.example/wiki/Velbrin. Connected FW version: 1091");
    drive.firmwareCompanion = 1090;
    expectAccepted(drive);
}

TEST(VersionCheck, RestartsAnOutdatedKetaIntoFirmwareUpgradeMode)
{
    DriveIdentity drive = keta();
    drive.firmwareVersion = drive.firmwareCompanion = 1077;
    expectRefused(
        drive,
        "Device firmware version too old, not supported by this software version. Check for firmware upgrades "
        "at https://wiki.tarnwell.example/wiki/Firmware. Connected FW Version is 1077 and the olders supported "
        "FW version is 1078.<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. "
        "Old Velbrin release can be found from https://wiki.tarnwell.example/wiki/Velbrin"
        "<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try connecting again and "
        "installing a newer firmware to it.</b>",
        true);
    EXPECT_TRUE(checkVersions(drive).notRestartedText.contains("could not be restarted in firmware upgrade mode"));
    EXPECT_FALSE(checkVersions(drive).notRestartedText.contains("now has been restarted"));
    drive.firmwareCompanion = 1078;
    expectAccepted(drive);
}

TEST(VersionCheck, LeavesAnOutdatedTorvaRunning)
{
    DriveIdentity drive = torva();
    drive.firmwareVersion = drive.firmwareCompanion = 1089;
    expectRefused(
        drive, "Device firmware version too old, not supported by this software version. Check for firmware upgrades "
               "at https://wiki.tarnwell.example/wiki/Firmware. Connected FW Version is 1089 and the olders supported "
               "FW version is 1090.<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. "
               "Old Velbrin release can be found from https://wiki.tarnwell.example/wiki/Velbrin");
}

TEST(VersionCheck, RefusesCoreFirmwareThatIsTooNew)
{
    DriveIdentity drive = keta();
    drive.coreVersion = drive.coreCompanion = 1079;
    expectRefused(drive,
                  "Device TarnwellCore firmware version too new, not supported by this software version. Check for "
                  "Velbrin upgrades from https://wiki.tarnwell.example/wiki/Velbrin. Connected TC FW version: 1079");
    drive.coreCompanion = 1078;
    expectAccepted(drive);
}

TEST(VersionCheck, RefusesCoreFirmwareThatIsTooOld)
{
    const QString beforeVersion =
        "Device TarnwellCore firmware version too old, not supported by this software version. Check for firmware "
        "upgrades at https://wiki.tarnwell.example/wiki/Firmware. Connected TC FW Version is ";
    const QString closing =
        ".<br/><br/>You <i>may</i> need to use older Velbrin version to upgrade firmware. Old Velbrin "
        "release can be found from https://wiki.tarnwell.example/wiki/Velbrin";
    DriveIdentity drive = keta();
    drive.coreVersion = drive.coreCompanion = 1077;
    expectRefused(drive,
                  beforeVersion + "1077 and the olders supported TC FW version is 1078" + closing +
                      "<br/><br/><b>Device now has been restarted in firmware upgrade mode. Try connecting again and "
                      "installing a newer firmware to it</b>.",
                  true);
    drive = torva();
    drive.coreVersion = drive.coreCompanion = 1089;
    expectRefused(drive, beforeVersion + "1089 and the olders supported TC FW version is 1090" + closing);
}

TEST(VersionCheck, RecommendsAnUpgradeAndSkipsTheProtocolThen)
{
    DriveIdentity drive = keta();
    drive.coreVersion = 1077; // the companion alone is within the bounds
    drive.protocolVersion = drive.protocolCompanion = 99;
    const VersionVerdict verdict = checkVersions(drive);
    EXPECT_TRUE(verdict.accepted);
    EXPECT_FALSE(verdict.restartToDFU);
    EXPECT_EQ(verdict.statusText, "");
    EXPECT_EQ(verdict.errorText,
              "Connected device firmware version is outdated, an upgrade is recommended. Download the latest FW from "
              "<i>https://wiki.tarnwell.example/wiki/Firmware</i>");
}

TEST(VersionCheck, ChecksTheProtocolInNormalMode)
{
    const struct
    {
        int version, companion;
        const char *refusal; // empty: accepted
    } cases[] = {
        {25, 25, ""},
        {26, 25, ""},
        {25, 26, ""},
        {24, 25, ""},
        {24, 99, ""},
        {24, 24,
         "Zetabus protocol version too old, not supported by this software version. Check older Velbrin versions from "
         "https://wiki.tarnwell.example/wiki/Velbrin. Connected ZBV2 Version: 24"},
        {26, 26,
         "Zetabus protocol version too new, not supported by this software version. Check for Velbrin upgrades. "
         "Connected ZBV2 Version: 26"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.version << ' ' << c.companion);
        DriveIdentity drive = keta();
        drive.protocolVersion = c.version;
        drive.protocolCompanion = c.companion;
        if (*c.refusal)
            expectRefused(drive, c.refusal);
        else
            expectAccepted(drive);
    }
}

TEST(VersionCheck, ChecksBootloaderAndProtocolInFirmwareUpgradeMode)
{
    for (const DriveIdentity &drive : {bootloader(1260, 1260), bootloader(1200, 1200), bootloader(1300, 1300),
                                       bootloader(1301, 1300), bootloader(1199, 1200), bootloader(1260, 1260, 20, 20),
                                       bootloader(1260, 1260, 19, 20), bootloader(1260, 1260, 26, 25)})
        expectAccepted(drive);
    expectRefused(bootloader(1301, 1301),
                  "Bootloader version too new, not supported by this software version. Check for "
                  "Velbrin upgrades. Connected BL Version: 1301");
    expectRefused(bootloader(1199, 1199), "Bootloader version too old, not supported by this software version. Check "
                                          "older Velbrin versions from https://wiki.tarnwell.example/wiki/Velbrin. "
                                          "Connected BL Version: 1199");
    expectRefused(
        bootloader(1260, 1260, 19, 19),
        "Zetabus protocol version too old, not supported by this software version. Check older Velbrin versions "
        "from https://wiki.tarnwell.example/wiki/Velbrin. Connected ZBV2 Version: 19");
    expectRefused(bootloader(1260, 1260, 26, 26), "Zetabus protocol version too new, not supported by this software "
                                                  "version. Check for Velbrin upgrades. Connected ZBV2 Version: 26");
}

TEST(VersionCheck, FindsTheRecordOfAFamily)
{
    ASSERT_NE(supportedVersionOf(11214), nullptr);
    EXPECT_EQ(supportedVersionOf(11214)->lowestCore, 1078);
    ASSERT_NE(supportedVersionOf(4999), nullptr);
    EXPECT_EQ(supportedVersionOf(4999)->recommendedCore, 1090);
    EXPECT_EQ(supportedVersionOf(3999), nullptr);
    EXPECT_EQ(supportedVersionOf(12000), nullptr);
}
