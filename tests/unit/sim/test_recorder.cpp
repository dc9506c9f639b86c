// The recorder: triggers, sources, divider, re-arming.
#include "drivebench.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace sim;

namespace {

constexpr std::int32_t AllSources = 0x2 | 0x4 | 0x8 | 0x10 | 0x20 | 0x40 | 0x80 | 0x100 | 0x200 | 0x10000 | 0x20000 |
                                    0x40000 | 0x80000 | 0x100000 | 0x800000 | 0x1000000;

class RecorderBench : public DriveBench
{
protected:
    void arm(std::int32_t sources, std::int32_t divider, std::int32_t trigger)
    {
        drive.write(reg::RecorderSources, sources);
        drive.write(reg::RecorderDivider, divider);
        ASSERT_EQ(drive.write(reg::RecorderState, trigger), Outcome::Done);
    }
    bool isDone() const { return drive.read(reg::RecorderState) == 0; }
    void enable()
    {
        drive.write(reg::SoftEnable, 1);
        drive.advanceCycles(5);
    }
    std::vector<std::int32_t> words()
    {
        std::vector<std::int32_t> all;
        for (int address = 0; address < Recorder::Words; ++address) {
            drive.write(reg::RecorderAddress, address);
            all.push_back(drive.read(reg::RecorderWord));
        }
        return all;
    }
};

} // namespace

TEST_F(RecorderBench, FillsTwoThousandWordsAtTheDividedRate)
{
    // Sixteen sources, 125 samples of each: every second base period of 0.05 ms, so 12.5 ms or 31.2 cycles.
    arm(AllSources, 1, 4);
    EXPECT_EQ(drive.read(reg::RecorderState), 4);
    drive.advanceCycles(31);
    EXPECT_FALSE(isDone());
    drive.advanceCycles(1);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, StoresEnabledSourcesInterleavedLowestBitFirst)
{
    drive.set(reg::BusVoltage, 4803);
    enable();
    drive.write(reg::SetpointAbsolute, 700);
    drive.advanceCycles(1000);
    arm(0x20 | 0x40 | 0x200, 0, 4);
    drive.advanceCycles(100);
    const std::vector<std::int32_t> all = words();
    for (int i = 0; i < Recorder::Words; ++i) {
        const int expected[] = {700, 700, 4803};
        ASSERT_NEAR(all[std::size_t(i)], expected[i % 3], i % 3 == 1 ? 1 : 0) << i; // 667, 667 and 666 of each
    }
}

TEST_F(RecorderBench, HighVoltageWordIsUnsignedTheOthersSigned)
{
    VirtualDrive torva(*findProfile("torva"));
    torva.set(reg::BusVoltage, 40000);
    torva.write(reg::SetpointAbsolute, -700);
    torva.write(reg::RecorderSources, 0x20 | 0x200);
    torva.write(reg::RecorderState, 4);
    torva.advanceCycles(150);
    EXPECT_EQ(torva.read(reg::RecorderWord), -700);
    torva.write(reg::RecorderAddress, 1);
    EXPECT_EQ(torva.read(reg::RecorderWord), 40000);
}

TEST_F(RecorderBench, SetpointTriggersSeeTheirDirection)
{
    enable();
    arm(0x20, 0, 1);
    drive.advanceCycles(50);
    drive.write(reg::SetpointAbsolute, -300);
    drive.advanceCycles(50);
    EXPECT_EQ(drive.read(reg::RecorderState), 1) << "falling is not rising";
    drive.write(reg::SetpointAbsolute, 200);
    drive.advanceCycles(300);
    EXPECT_TRUE(isDone());
    EXPECT_EQ(words()[0], 200) << "the first word is from the moment of the trigger";

    arm(0x20, 0, 2);
    drive.advanceCycles(50);
    EXPECT_FALSE(isDone());
    drive.write(reg::SetpointAbsolute, -300);
    drive.advanceCycles(300);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, SetpointWrittenRightAfterArmingTriggers)
{
    enable();
    drive.write(reg::RecorderSources, 0x20);
    drive.write(reg::RecorderState, 1);
    drive.write(reg::SetpointAbsolute, 10);
    drive.advanceCycles(300);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, FaultTriggersOnANewFaultOnly)
{
    drive.set(reg::Faults, FaultFeedback);
    drive.advanceCycles(1);
    arm(0x2, 0, 3);
    drive.advanceCycles(300);
    EXPECT_FALSE(isDone());
    drive.set(reg::Faults, FaultHardware);
    drive.advanceCycles(300);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, RearmingStartsOver)
{
    arm(0x40, 100, 4);
    drive.advanceCycles(100);
    EXPECT_FALSE(isDone());
    arm(0x40, 0, 1);
    drive.advanceCycles(2000);
    EXPECT_FALSE(isDone()) << "waits for the new trigger, and never ends by itself";
    drive.write(reg::RecorderState, 0);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, RefusesUnknownTriggersAndNoSources)
{
    drive.write(reg::RecorderSources, 0x40);
    EXPECT_EQ(errorsOfWriting(reg::RecorderState, 5), ErrorValueNotAllowed);
    drive.write(reg::RecorderSources, 0x1);
    EXPECT_EQ(errorsOfWriting(reg::RecorderState, 4), ErrorValueNotAllowed);
    EXPECT_EQ(errorsOfWriting(reg::RecorderAddress, 2000), ErrorAboveMaximum);
}

TEST_F(RecorderBench, EverySourceOfAMoveIsPlausible)
{
    enable();
    arm(AllSources, 7, 1); // 50 ms of a step
    drive.write(reg::SetpointAbsolute, 1900);
    drive.advanceCycles(200);
    ASSERT_TRUE(isDone());
    const std::vector<std::int32_t> all = words();
    std::int32_t low[16], high[16];
    for (std::size_t source = 0; source < 16; ++source) {
        low[source] = high[source] = all[source];
        for (std::size_t i = source; i < all.size(); i += 16) {
            low[source] = std::min(low[source], all[i]);
            high[source] = std::max(high[source], all[i]);
        }
    }
    enum {
        TorqueRef,
        Torque,
        VelRef,
        Vel,
        PosRef,
        Pos,
        Error,
        Output,
        Bus,
        Pwm1,
        Pwm2,
        Pwm3,
        Debug1,
        Debug2,
        Flux,
        FluxU
    };
    for (const int torque : {TorqueRef, Torque}) {
        EXPECT_GT(high[torque], 5 * 560);
        EXPECT_LT(high[torque], 32 * 560);
        EXPECT_LT(low[torque], -1 * 560) << "it brakes, too";
    }
    EXPECT_NEAR(high[VelRef], high[Vel], 6);
    EXPECT_GT(high[Vel], 30);
    EXPECT_EQ(low[PosRef], 1900);
    EXPECT_GT(high[Pos], 1800);
    EXPECT_GT(high[Error], 1800);
    EXPECT_GT(high[Output], 1000);
    EXPECT_LT(high[Output], 16384);
    EXPECT_GT(low[Bus], 4700);
    EXPECT_LT(high[Bus], 4900);
    for (const int pwm : {Pwm1, Pwm2, Pwm3}) {
        EXPECT_GE(low[pwm], 0);
        EXPECT_LE(high[pwm], 16384);
        EXPECT_GT(high[pwm] - low[pwm], 500);
    }
    EXPECT_NE(low[FluxU], high[FluxU]);
    EXPECT_NE(low[Debug1], high[Debug1]);
}
