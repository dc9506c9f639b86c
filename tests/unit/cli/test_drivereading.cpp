// Panels as the session words them, for hand-made states.
#include "drivereading.h"

#include "printqt.h"
#include "statustexts.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

LiveState panelsOf(const DriveState &state)
{
    bool mark = false;
    LiveState live;
    live.inputs = getDigitalInsString(state, mark);
    live.status = getStatusRegString(state, mark);
    live.faults = getFaultRegString(state, mark);
    return live;
}

} // namespace

TEST(DriveReading, FindsEveryFlagInItsPanel)
{
    const struct
    {
        int statusBit;
        bool DriveReading::*flag;
    } flags[] = {
        {4, &DriveReading::recovering},    {8, &DriveReading::running},     {16, &DriveReading::enabled},
        {32, &DriveReading::faultStopped}, {128, &DriveReading::torqueOff}, {256, &DriveReading::ready},
        {1024, &DriveReading::braking},    {2048, &DriveReading::homing},   {32768, &DriveReading::permanentStop},
    };
    for (const auto &each : flags) {
        DriveState state;
        state.statusRegister = each.statusBit;
        const DriveReading drive = readPanels(panelsOf(state));
        for (const auto &other : flags)
            EXPECT_EQ(drive.*other.flag, other.statusBit == each.statusBit) << each.statusBit << ' ' << other.statusBit;
        EXPECT_FALSE(drive.softEnabled);
    }
    DriveState state;
    state.softEnable = 1;
    EXPECT_TRUE(readPanels(panelsOf(state)).softEnabled);
}

TEST(DriveReading, TellsFaultsReasonsAndNumbers)
{
    DriveState state;
    state.statusRegister = 4096 + 8192 + 32; // initialized, voltages good, fault stopped
    state.faultRegister = 2 + 4;
    state.softEnable = 1;
    state.controlInputs = 1;
    state.setpoint = -536870912;
    state.position = 123456;
    const DriveReading drive = readPanels(panelsOf(state));
    EXPECT_THAT(drive.faults, ElementsAre(QString("Tracking error"), QString("Over current")));
    EXPECT_EQ(inactivityText(drive),
              "Reason for inactivity: Enabled (off), Fault stopped (on), Tracking error (on), Over current (on).");
    EXPECT_EQ(drive.setpoint, -536870912);
    EXPECT_EQ(drive.position, 123456);

    state.statusRegister |= 8;
    EXPECT_EQ(inactivityText(readPanels(panelsOf(state))), "") << "nothing keeps a running drive from running";
}
