// Enable conditions, faults, limits, recovery and brake.
#include "drivebench.h"

#include <algorithm>
#include <cmath>

using namespace sim;

namespace {

using Protection = DriveBench;

} // namespace

TEST_F(Protection, EnableNeedsInputSoftwareAndPulses)
{
    // Enable conditions, one after the other on the same drive.
    const struct
    {
        const char *what;
        int address;
        std::int32_t value;
        bool isSetFromOutside, runs;
    } steps[] = {
        {"software enable", reg::SoftEnable, 1, false, true},
        {"enable input open", reg::ControlInputs, 6, true, false},
        {"closed again", reg::ControlInputs, 7, true, true},
        {"software disable", reg::SoftEnable, 0, false, false},
        {"a drive that needs no software enable", reg::Flags, 0, false, true},
        {"one that needs pulses, too", reg::Flags, 0x21, false, false},
        {"the enable input does not pulse", reg::SoftEnable, 1, false, false},
        {"forced", reg::ForceEnable, 7, false, true},
        {"a disable ends force, too", reg::SoftEnable, 0, false, false},
        {"which has to be asked for again", reg::SoftEnable, 1, false, false},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.what);
        if (step.isSetFromOutside)
            drive.set(step.address, step.value);
        else
            drive.write(step.address, step.value);
        drive.advanceCycles(2);
        for (const std::int32_t bit : {StatusRun, StatusEnabled, StatusReady})
            EXPECT_EQ(has(bit), step.runs) << bit;
    }
}

TEST_F(Protection, EveryCauseRaisesItsFaultStopsTheMotorAndCanBeCleared)
{
    // What is changed from outside or in the settings, and the fault that it leads to on a move of 1000 counts.
    const struct
    {
        const char *name;
        int address;
        std::int32_t value, fault, location;
        std::int32_t good; ///< takes the cause away
        bool recovers = true;
    } causes[] = {
        {"over current", reg::OverCurrentLimit, 10, FaultOverCurrent, 301, 800},    // 0.6 A
        {"over voltage", reg::OverVoltageLimit, 4700, FaultOverVoltage, 303, 5800}, // under the 48 V bus
        {"under voltage", reg::UnderVoltageLimit, 4900, FaultUnderVoltage, 302, 3600},
        {"low supply", reg::BusVoltage, 1500, FaultUnderVoltage, 302, 4800},
        {"hot drive", reg::Temperature, 85, FaultOverTemperature, 304, 34},
        {"over speed", reg::OverSpeedLimit, 15, FaultOverVelocity, 203, 240},
        {"velocity error", reg::VelocityErrorLimit, 1, FaultTracking, 202, 120},
        {"position error", reg::PositionErrorLimit, 900, FaultTracking, 201, 2000},
        {"limit switch with fault", reg::LimitSwitches, 2, FaultMotionRange, 205, 0},
        {"inverted feedback", reg::Flags, 0x0009, FaultTracking, 202, 1},
        {"wrong motor type", reg::MotorType, 1, FaultInit, 401, 3, false},
        {"wrong pole count", reg::PolePairs, 2, FaultInit, 401, 4, false},
        {"both Hall settings", reg::Flags, 0x6001, FaultInit, 402, 1},
        {"wrong feedback device", reg::FeedbackDevice, 5, FaultFeedback, 403, 1, false},
    };
    for (const auto &cause : causes) {
        SCOPED_TRACE(cause.name);
        BenchDrive other;
        const auto change = [&](std::int32_t value) {
            if (other.write(cause.address, value) != Outcome::Done)
                other.set(cause.address, value); // live values come from outside
        };
        change(cause.value);
        if (cause.fault == FaultMotionRange)
            other.set(reg::ControlInputs, InputEnable | InputNegativeFeed);
        other.advanceCycles(5);
        EXPECT_TRUE(cause.fault != FaultUnderVoltage || other.read(reg::Faults) == 0) << "it waits for its supply";
        other.enable();
        other.moved(1000, 500);
        EXPECT_EQ(other.read(reg::Faults), cause.fault);
        EXPECT_EQ(other.read(reg::FaultLocation1), cause.location);
        EXPECT_EQ(other.read(reg::Status) & (StatusRun | StatusFaultStopped), StatusFaultStopped);
        change(cause.good);
        other.write(reg::Faults, 0);
        other.advanceCycles(5000);
        EXPECT_EQ(other.read(reg::Faults), 0) << "the cause is gone";
        if (cause.recovers)
            EXPECT_EQ(other.read(reg::PositionFeedback), 1000) << "and the axis got there";
        else
            EXPECT_TRUE(other.read(reg::Status) & StatusPermanentStop) << "changed while enabled";
    }
}

TEST_F(Protection, CurrentOfAnUnpoweredMotorIsNoOverCurrent)
{
    drive.enable();
    drive.moved(1900, 30);
    ASSERT_GT(std::abs(drive.read(reg::OutputCurrent)), 560);
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(1);
    EXPECT_FALSE(has(StatusRun)) << "power goes in the next cycle";
    drive.set(reg::OverCurrentLimit, 0);
    ASSERT_NE(drive.axis().motor().amperes(), 0.0);
    drive.advanceCycles(1);
    EXPECT_EQ(faults(), 0) << "it only dies away";
    drive.advanceCycles(25); // 10 ms
    EXPECT_EQ(drive.read(reg::OutputCurrent), 0);
}

TEST_F(Protection, LimitReasonsNameWhatLimits)
{
    // Full torque asked for with a locked shaft.
    const struct
    {
        Writes fromOutside, settings;
        int cycles;
        LimitReason reason;
    } limits[] = {
        {{}, {}, 100, LimitReason::PeakCurrent},
        {{{reg::Temperature, 80}}, {}, 100, LimitReason::Temperature},
        {{{reg::BusVoltage, 3610}}, {{reg::UnderVoltageLimit, 1000}}, 100, LimitReason::PeakCurrent},
        {{{reg::BusVoltage, 300}, {reg::UnderVoltageLimit, 0}}, {}, 100, LimitReason::SupplyVoltage},
        // 32 A against 13 A continuous: full heat after about a sixth of the time constant, here 1 s.
        {{}, {{reg::ThermalTime, 1}}, 6000, LimitReason::ThermalModel},
    };
    for (const auto &limit : limits) {
        BenchDrive other;
        other.writeAll({{reg::ControlMode, 3}, {reg::Divider, 100}}); // full scale asks for twice the peak current
        other.axis().inputs().locked = true;
        for (const auto &[address, value] : limit.fromOutside)
            other.set(address, value);
        other.writeAll(limit.settings);
        other.enable();
        other.moved(16384, limit.cycles);
        EXPECT_EQ(static_cast<LimitReason>(other.read(reg::LimitReason)), limit.reason);
        if (limit.reason != LimitReason::ThermalModel)
            continue;
        other.advanceCycles(20000);
        EXPECT_NEAR(other.read(reg::CurrentLimit), 13000, 400) << "a hot motor gets its continuous current only";
        other.moved(0, 25000); // 10 s
        EXPECT_EQ(other.read(reg::CurrentLimit), 32000) << "cooled down again";
    }
}

TEST_F(Protection, ClosingTheClearInputClearsOnce)
{
    for (const std::int32_t left : {0, int(FaultFeedback)}) {
        drive.set(reg::Faults, FaultFeedback);
        drive.set(reg::ControlInputs, InputEnable | InputClearFaults); // the second time it is closed already
        drive.advanceCycles(2);
        EXPECT_EQ(faults(), left);
    }
}

TEST_F(Protection, TrackingFaultIsClearedAndRecoveredFromSlowly)
{
    drive.enable();
    drive.moved(30000, 2);
    EXPECT_EQ(faults(), FaultTracking);
    drive.advanceCycles(500);
    EXPECT_EQ(position(), 0);

    drive.write(reg::Faults, 0);
    drive.advanceCycles(2);
    EXPECT_TRUE(has(StatusRecovering) && has(StatusRun));
    int fastest = 0;
    for (int cycle = 0; cycle < 1500; ++cycle) {
        drive.advanceCycles(1);
        fastest = std::max(fastest, drive.read(reg::VelocityFeedback));
    }
    EXPECT_LE(fastest, 45) << "recovery velocity is 40 counts per cycle";
    EXPECT_EQ(position(), 30000);
    EXPECT_FALSE(has(StatusRecovering));
    EXPECT_TRUE(has(StatusTargetReached));
    EXPECT_EQ(faults(), 0);
}

TEST_F(Protection, TrackingDelayRidesThroughAShortOverload)
{
    drive.write(reg::TrackingDelay, 500); // 0.2 s
    drive.enable();
    EXPECT_NEAR(drive.moved(3000, 400), 3000, 1);
    EXPECT_EQ(faults(), 0) << "it caught up in time";
    drive.axis().inputs().locked = true;
    drive.moved(6000, 499);
    EXPECT_EQ(faults(), 0);
    EXPECT_TRUE(has(StatusTrackingWarning));
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultTracking);
}

TEST_F(Protection, InvertedAxisMovesTheMotorTheOtherWay)
{
    drive.write(reg::Flags, 0x0011);
    drive.enable();
    EXPECT_EQ(drive.moved(1000, 500), 1000);
    EXPECT_NEAR(drive.axis().motor().angle(), -1000.0, 2.0);
}

TEST_F(Protection, BrakeHoldsBeforeAndAfterRunning)
{
    drive.writeAll({{reg::BrakeReleaseDelay, 100}, {reg::BrakeEngageDelay, 200}});
    drive.advanceCycles(1);
    EXPECT_TRUE(has(StatusBraking));
    drive.enable();
    EXPECT_TRUE(has(StatusRun) && has(StatusBraking)) << "powered, not open yet";
    EXPECT_NEAR(cyclesUntil(StatusBraking, false) * 0.4, 100.0, 5.0);
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(5);
    EXPECT_TRUE(has(StatusRun) && has(StatusBraking)) << "still holding while the brake closes";
    EXPECT_NEAR(cyclesUntil(StatusRun, false) * 0.4, 200.0, 5.0);
}
