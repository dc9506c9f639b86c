// Enable conditions, faults, limits, recovery and brake.
#include "runningaxis.h"

#include <algorithm>
#include <cmath>

using namespace sim;

namespace {

class Protection : public RunningAxis
{
};

} // namespace

TEST_F(Protection, EnableNeedsInputSoftwareAndPulses)
{
    enable();
    EXPECT_TRUE(has(StatusEnabled) && has(StatusRun) && has(StatusReady) && has(StatusTargetReached));
    drive.set(reg::ControlInputs, 6);
    drive.advanceCycles(2);
    EXPECT_FALSE(has(StatusEnabled) || has(StatusRun)) << "enable input open";
    drive.set(reg::ControlInputs, 7);
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(2);
    EXPECT_FALSE(has(StatusEnabled) || has(StatusRun));
    drive.write(reg::Flags, 0);
    drive.advanceCycles(2);
    EXPECT_TRUE(has(StatusRun)) << "a drive that needs no software enable";
    drive.write(reg::Flags, 0x21);
    drive.write(reg::SoftEnable, 1);
    drive.advanceCycles(2);
    EXPECT_FALSE(has(StatusRun)) << "the enable input does not pulse";
    drive.write(reg::ForceEnable, 7);
    drive.advanceCycles(2);
    EXPECT_TRUE(has(StatusRun));
}

TEST_F(Protection, TrackingFaultIsClearedAndRecoveredFromSlowly)
{
    enable();
    drive.write(reg::SetpointAbsolute, 30000);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultTracking);
    EXPECT_TRUE(has(StatusFaultStopped));
    EXPECT_FALSE(has(StatusRun));
    EXPECT_NE(drive.read(reg::FaultLocation1), 0);
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
    enable();
    drive.write(reg::SetpointAbsolute, 3000);
    drive.advanceCycles(400);
    EXPECT_EQ(faults(), 0) << "it caught up in time";
    EXPECT_NEAR(position(), 3000, 1);
    drive.axis().inputs().locked = true;
    drive.write(reg::SetpointAbsolute, 6000);
    drive.advanceCycles(499);
    EXPECT_EQ(faults(), 0);
    EXPECT_TRUE(has(StatusTrackingWarning));
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultTracking);
}

TEST_F(Protection, SettingsProvokeEachElectricalFault)
{
    const struct
    {
        const char *name;
        int address;
        std::int32_t value, fault;
    } provocations[] = {
        {"over current", reg::OverCurrentLimit, 10, FaultOverCurrent},   // 0.6 A
        {"over voltage", reg::OverVoltageLimit, 4700, FaultOverVoltage}, // under the 48 V bus
        {"under voltage", reg::UnderVoltageLimit, 4900, FaultUnderVoltage},
        {"over speed", reg::OverSpeedLimit, 15, FaultOverVelocity},
        {"velocity error", reg::VelocityErrorLimit, 1, FaultTracking},
    };
    for (const auto &provocation : provocations) {
        SCOPED_TRACE(provocation.name);
        VirtualDrive other(*findProfile("keta"));
        other.write(provocation.address, provocation.value);
        other.write(reg::SoftEnable, 1);
        other.advanceCycles(5);
        other.write(reg::SetpointAbsolute, 1000);
        other.advanceCycles(200);
        EXPECT_EQ(other.read(reg::Faults), provocation.fault);
        EXPECT_FALSE(other.read(reg::Status) & StatusRun);
        other.write(provocation.address, other.flash().settings.at(provocation.address));
        other.write(reg::Faults, 0);
        other.advanceCycles(1000);
        EXPECT_EQ(other.read(reg::Faults), 0) << "the cause is gone";
        EXPECT_EQ(other.read(reg::PositionFeedback), 1000) << "and the axis got there";
    }
}

TEST_F(Protection, ClosingTheClearInputClearsOnce)
{
    drive.set(reg::Faults, FaultFeedback);
    drive.set(reg::ControlInputs, InputEnable | InputClearFaults);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), 0);
    drive.set(reg::Faults, FaultFeedback);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultFeedback);
}

TEST_F(Protection, LowSupplyIsNoFaultWhileDisabled)
{
    drive.set(reg::BusVoltage, 1500);
    drive.advanceCycles(5);
    EXPECT_FALSE(has(StatusVoltagesGood));
    EXPECT_EQ(faults(), 0);
    enable();
    EXPECT_EQ(faults(), FaultUnderVoltage);
}

TEST_F(Protection, WrongFeedbackDirectionRunsAwayAndStops)
{
    drive.write(reg::Flags, 0x0009);
    enable();
    drive.write(reg::SetpointAbsolute, 100);
    drive.advanceCycles(500);
    EXPECT_NE(faults() & (FaultTracking | FaultOverVelocity), 0);
    EXPECT_FALSE(has(StatusRun));
}

TEST_F(Protection, InvertedAxisMovesTheMotorTheOtherWay)
{
    drive.write(reg::Flags, 0x0011);
    enable();
    drive.write(reg::SetpointAbsolute, 1000);
    drive.advanceCycles(500);
    EXPECT_EQ(position(), 1000);
    EXPECT_NEAR(drive.axis().motor().angle(), -1000.0, 2.0);
}

TEST_F(Protection, MotorThatIsNotTheWiredOneFaultsAtTheFirstEnable)
{
    const struct
    {
        int address;
        std::int32_t value, fault;
    } wrong[] = {
        {reg::MotorType, 1, FaultInit}, {reg::PolePairs, 2, FaultInit}, {reg::FeedbackDevice, 5, FaultFeedback}};
    for (const auto &setting : wrong) {
        VirtualDrive other(*findProfile("keta"));
        other.write(setting.address, setting.value);
        other.write(reg::SoftEnable, 1);
        other.advanceCycles(3);
        EXPECT_EQ(other.read(reg::Faults), setting.fault) << setting.address;
    }
}

TEST_F(Protection, LimitReasonsNameWhatLimits)
{
    const auto reasonWith = [](void (*prepare)(VirtualDrive &), int cycles) {
        VirtualDrive other(*findProfile("keta"));
        other.write(reg::ControlMode, 3);
        other.write(reg::Divider, 100); // full scale asks for twice the peak current
        other.axis().inputs().locked = true;
        prepare(other);
        other.write(reg::SoftEnable, 1);
        other.advanceCycles(5);
        other.write(reg::SetpointAbsolute, 16384);
        other.advanceCycles(cycles);
        return static_cast<LimitReason>(other.read(reg::LimitReason));
    };
    EXPECT_EQ(reasonWith([](VirtualDrive &) {}, 100), LimitReason::PeakCurrent);
    EXPECT_EQ(reasonWith([](VirtualDrive &d) { d.set(reg::Temperature, 80); }, 100), LimitReason::Temperature);
    EXPECT_EQ(
        reasonWith([](VirtualDrive &d) { d.set(reg::BusVoltage, 3610), d.write(reg::UnderVoltageLimit, 1000); }, 100),
        LimitReason::PeakCurrent);
    EXPECT_EQ(reasonWith([](VirtualDrive &d) { d.set(reg::BusVoltage, 300), d.set(reg::UnderVoltageLimit, 0); }, 100),
              LimitReason::SupplyVoltage);
    // 32 A against 13 A continuous: full heat after about a sixth of the time constant, here 1 s.
    EXPECT_EQ(reasonWith([](VirtualDrive &d) { d.write(reg::ThermalTime, 1); }, 6000), LimitReason::ThermalModel);
}

TEST_F(Protection, HotMotorGetsContinuousCurrentOnly)
{
    drive.write(reg::ControlMode, 3);
    drive.write(reg::ThermalTime, 1);
    drive.axis().inputs().locked = true;
    enable();
    drive.write(reg::SetpointAbsolute, 16384);
    drive.advanceCycles(100);
    EXPECT_EQ(drive.read(reg::CurrentLimit), 32000);
    drive.advanceCycles(25000); // 10 s
    EXPECT_NEAR(drive.read(reg::CurrentLimit), 13000, 400);
    drive.write(reg::SetpointAbsolute, 0);
    drive.advanceCycles(25000);
    EXPECT_EQ(drive.read(reg::CurrentLimit), 32000) << "cooled down again";
}

TEST_F(Protection, LimitSwitchHoldsOrStops)
{
    drive.write(reg::LimitSwitches, 1);
    enable();
    drive.set(reg::ControlInputs, InputEnable | InputNegativeFeed);
    drive.write(reg::SetpointAbsolute, 1000);
    drive.advanceCycles(500);
    EXPECT_EQ(position(), 0);
    EXPECT_EQ(faults(), 0);
    drive.write(reg::SetpointAbsolute, -1000);
    drive.advanceCycles(500);
    EXPECT_EQ(position(), -1000) << "the other direction is free";
    drive.write(reg::LimitSwitches, 2);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultMotionRange);
}

TEST_F(Protection, BrakeHoldsBeforeAndAfterRunning)
{
    drive.write(reg::BrakeReleaseDelay, 100);
    drive.write(reg::BrakeEngageDelay, 200);
    drive.advanceCycles(1);
    EXPECT_TRUE(has(StatusBraking));
    drive.write(reg::SoftEnable, 1);
    drive.advanceCycles(5);
    EXPECT_TRUE(has(StatusRun) && has(StatusBraking)) << "powered, not open yet";
    EXPECT_NEAR(cyclesUntil(StatusBraking, false) * 0.4, 100.0, 5.0);
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(5);
    EXPECT_TRUE(has(StatusRun) && has(StatusBraking)) << "still holding while the brake closes";
    EXPECT_NEAR(cyclesUntil(StatusRun, false) * 0.4, 200.0, 5.0);
}

TEST_F(Protection, DisablingCutsPowerInTheNextCycle)
{
    enable();
    drive.write(reg::SetpointAbsolute, 1900);
    drive.advanceCycles(30);
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(1);
    EXPECT_FALSE(has(StatusRun));
    drive.advanceCycles(25); // 10 ms: the current has died away
    EXPECT_EQ(drive.read(reg::OutputCurrent), 0);
}
