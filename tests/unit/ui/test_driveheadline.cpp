// The words of the strip, and the other sentences that are made of values without a window.
#include "driveheadline.h"
#include "printqt.h"
#include "recordlength.h"
#include "settingchanges.h"

#include <gtest/gtest.h>

TEST(DriveHeadline, SaysTheMostUrgentThingFirst)
{
    struct Row
    {
        int status, faults, velocity;
        const char *word, *detail;
        DriveLook look;
    };
    // 16 enabled, 8 running, 2048 homing, 32 fault stopped, 128 torque off, 32768 permanent stop
    const Row rows[] = {
        {0, 0, 0, "disabled", "standing", DriveLook::Disabled},
        {0, 0, -3, "disabled", "moving", DriveLook::Disabled},
        {128, 0, 0, "disabled", "safe torque off is active", DriveLook::Disabled},
        {32768, 0, 0, "disabled", "permanent stop until a restart", DriveLook::Disabled},
        {16, 0, 0, "ENABLED", "motor not powered yet", DriveLook::Enabled},
        {24, 0, 0, "ENABLED", "standing", DriveLook::Enabled},
        {24, 0, 7, "ENABLED", "moving", DriveLook::Enabled},
        {24 + 2048, 0, 7, "ENABLED", "homing, moving", DriveLook::Homing},
        {32, 64, 0, "FAULT", "Under voltage", DriveLook::Fault},
        {32, 64 + 2 + 16, 0, "FAULT", "Tracking error and 2 more", DriveLook::Fault},
        {24, 64, 0, "FAULT", "Under voltage, motor powered", DriveLook::Fault},
    };
    for (const Row &row : rows) {
        DriveNews news;
        news.connected = news.polled = true;
        news.state.statusRegister = row.status;
        news.state.faultRegister = row.faults;
        news.state.rawVelocity = row.velocity;
        const DriveHeadline line = driveHeadline(news);
        EXPECT_EQ(line.word, row.word);
        EXPECT_EQ(line.detail, row.detail);
        EXPECT_EQ(line.look, row.look) << row.detail;
    }
}

TEST(DriveHeadline, SaysWhatIsNotThePresentAnyMore)
{
    DriveNews news;
    EXPECT_EQ(driveHeadline(news).spoken, "Not connected");
    news.busAddress = 5;
    news.connected = true;
    EXPECT_EQ(driveHeadline(news).word, "Connected");
    news.polled = true;
    news.serialNumber = 240117;
    news.state.deviceType = 11000;
    news.state.statusRegister = 24;
    news.state.busVoltage = 48.04;
    news.state.position = -12;
    EXPECT_EQ(driveHeadline(news).spoken, "ENABLED, standing, KETA at address 5, serial number 240117, 48.0 V, "
                                          "position -12");
    news.secondsOld = 3.7;
    EXPECT_EQ(driveHeadline(news).word, "Last known: ENABLED");
    EXPECT_EQ(driveHeadline(news).detail, "3 s ago, standing");
    news.connected = false;
    EXPECT_EQ(driveHeadline(news).detail, "3 s ago, not connected, standing");
    EXPECT_EQ(driveHeadline(news).look, DriveLook::LastKnown);
    news.leftByUser = true;
    EXPECT_EQ(driveHeadline(news).spoken, "Not connected");
    news = DriveNews();
    news.connected = news.polled = true;
    news.state.firmwareUpgradeMode = true;
    news.state.faultRegister = 128; // speaks of the upgrade there
    EXPECT_EQ(driveHeadline(news).word, "Firmware upgrade mode");
    EXPECT_EQ(driveHeadline(news).figures, "");
}

TEST(SettingChanges, AreListedWhenManyOrWhenALimitGrowsMuch)
{
    const auto change = [](const char *name, double before, double after) {
        return SettingChange{name, QString("[%1]").arg(name), QString::number(before), QString::number(after), before,
                             after};
    };
    const QList<SettingChange> few{change("KVP", 1, 1000), change("MMC", 10, 30), change("FOV", 58, 60)};
    EXPECT_FALSE(needsLook(few, QString()));
    EXPECT_TRUE(needsLook(few, "<li>a warning</li>"));
    EXPECT_TRUE(needsLook(few + QList{change("KVI", 1, 2)}, QString()));
    const QList<SettingChange> much{change("MMC", 10, 30.1), change("FOC", 0, 1), change("FUV", 60, 10)};
    EXPECT_TRUE(needsLook(much, QString()));
    EXPECT_EQ(growthWarnings(much), (QStringList{"[MMC] grows more than threefold: 10 -> 30.1.",
                                                 "[FOC] grows more than threefold: 0 -> 1."}));
}

TEST(RecordLength, IsToldWithTheMoveThatDoesNotFit)
{
    EXPECT_EQ(recordText(10000, 7, 0.070), "28 ms at 10 kHz with 7 channels: a move of 70 ms will be cut off");
    EXPECT_EQ(recordText(10000, 7, 0.020), "28 ms at 10 kHz with 7 channels");
    EXPECT_EQ(recordText(100, 1, 0), "20 s at 100 Hz with 1 channel");
    EXPECT_EQ(recordText(100, 0, 0), "No channel is chosen: there is nothing to record");
    MoveLimits limits{2.0, 200, 1.6, 2500};
    EXPECT_NEAR(moveSeconds(-500, limits), 0.020, 1e-9); // 1000 counts: 25 cycles up, 25 down
    EXPECT_NEAR(moveSeconds(50000, limits), 0.25, 1e-9); // 100000 counts at 200 a cycle, and 125 cycles of ramps
    EXPECT_EQ(moveSeconds(100, MoveLimits()), 0.0);
}
