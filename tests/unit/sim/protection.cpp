// Faults, limits, recovery, brake and homing.
#include "drivebench.h"

#include <algorithm>
#include <cmath>

using namespace sim;

namespace {

class Protection : public DriveBench
{
protected:
    void enable()
    {
        drive.write(reg::SoftEnable, 1);
        drive.advanceCycles(5);
    }
    bool has(std::int32_t statusBit) const { return drive.read(reg::Status) & statusBit; }
    std::int32_t faults() const { return drive.read(reg::Faults); }
    int position() const { return drive.read(reg::PositionFeedback); }

    /// Runs until the status bit is as wanted; cycles that took, -1 when it never was.
    int cyclesUntil(std::int32_t statusBit, bool isSet, int limit = 10000)
    {
        for (int cycle = 0; cycle < limit; ++cycle) {
            if (has(statusBit) == isSet)
                return cycle;
            drive.advanceCycles(1);
        }
        return -1;
    }
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

namespace {

class HomingSearch : public Protection
{
protected:
    /// Seconds that homing took; -1 when it did not end.
    double home(std::int32_t bits)
    {
        drive.write(reg::Homing, bits);
        enable();
        if (drive.write(reg::HomingCommand, 1) != Outcome::Done)
            return -1.0;
        const int cycles = cyclesUntil(StatusHoming, false, 25000);
        return cycles < 0 ? -1.0 : cycles / 2500.0;
    }
};

} // namespace

TEST_F(HomingSearch, EveryKindOfSearchEndsAtZero)
{
    const struct
    {
        const char *name;
        std::int32_t bits;
    } searches[] = {
        {"hard stop", 0x80},
        {"home switch", 0x80 | 0x08 | 0x04},
        {"hard stop, then index", 0x80 | 0x10}, // away from the stop, see below
        {"home switch, then index forwards", 0x80 | 0x08 | 0x04 | 0x10 | 0x02},
    };
    for (const auto &search : searches) {
        for (const int direction : {1, -1}) {
            SCOPED_TRACE(std::string(search.name) + (direction > 0 ? ", forwards" : ", backwards"));
            drive.powerUp(drive.flash());
            drive.write(reg::HomingVelocity, 2000 * direction);
            const std::int32_t away = search.bits == (0x80 | 0x10) && direction < 0 ? 0x02 : 0;
            const double seconds = home(search.bits | away);
            EXPECT_GT(seconds, 0.1);
            EXPECT_LT(seconds, 4.0);
            EXPECT_EQ(faults(), 0);
            drive.advanceCycles(500);
            EXPECT_NEAR(position(), 0, 1);
            EXPECT_EQ(drive.read(reg::SetpointInUse), 0);
            EXPECT_TRUE(has(StatusTargetReached));
        }
    }
}

TEST_F(HomingSearch, SearchingTheIndexThroughTheStopFaults)
{
    drive.write(reg::HomingVelocity, -2000);
    home(0x80 | 0x10);
    EXPECT_EQ(faults(), FaultTracking);
    EXPECT_FALSE(has(StatusHoming));
}

TEST_F(HomingSearch, OffsetMoveComesBeforeTheZero)
{
    home(0x80 | 0x08 | 0x04);
    const double plain = drive.axis().motor().angle();
    drive.write(reg::HomingOffset, -3000);
    // From behind the switch: away first, so that it is found at the same place again.
    drive.write(reg::SetpointAbsolute, -1900);
    drive.advanceCycles(500);
    ASSERT_EQ(drive.write(reg::HomingCommand, 1), Outcome::Done);
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    drive.advanceCycles(500);
    const double distance = drive.axis().motor().angle() - plain;
    EXPECT_NEAR(std::remainder(distance, 20000.0), -3000.0, 30.0);
}

TEST_F(HomingSearch, CurrentLimitHoldsAtTheStop)
{
    drive.write(reg::Homing, 0x80);
    enable();
    drive.write(reg::HomingCommand, 1);
    int highest = 0;
    while (has(StatusHoming)) {
        drive.advanceCycles(1);
        highest = std::max(highest, std::abs(drive.read(reg::OutputCurrent)));
    }
    EXPECT_LE(highest, 6.5 * 560 + 1);
    EXPECT_GT(highest, 1.0 * 560) << "it did lean on the stop";
}

TEST_F(HomingSearch, AbortStaysWhereItIs)
{
    drive.write(reg::Homing, 0x80);
    enable();
    drive.write(reg::HomingCommand, 1);
    drive.advanceCycles(300);
    drive.write(reg::HomingCommand, 0);
    EXPECT_FALSE(has(StatusHoming));
    const int stopped = position();
    drive.advanceCycles(1000);
    EXPECT_NEAR(position(), stopped, 100);
    EXPECT_EQ(faults(), 0);
    EXPECT_TRUE(has(StatusTargetReached));
}

TEST_F(HomingSearch, RefusedWhenSwitchedOffOrNotRunning)
{
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    enable();
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    drive.write(reg::Homing, 0x80);
    drive.advanceCycles(1);
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), 0);
}

TEST_F(HomingSearch, RunsAtTheFirstEnableWhenAskedFor)
{
    drive.write(reg::Homing, 0xA0);
    enable();
    EXPECT_TRUE(has(StatusHoming));
    EXPECT_FALSE(has(StatusReady));
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    EXPECT_TRUE(has(StatusReady));
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(5);
    enable();
    EXPECT_FALSE(has(StatusHoming)) << "once is enough";
}

TEST_F(HomingSearch, SoftLimitsHoldAfterHomingOnly)
{
    drive.write(reg::LowLimit, -500);
    drive.write(reg::HighLimit, 500);
    enable();
    drive.write(reg::SetpointAbsolute, 1000);
    drive.advanceCycles(300);
    EXPECT_EQ(faults(), 0);
    ASSERT_GT(home(0x80), 0.0);
    drive.write(reg::SetpointAbsolute, -400);
    drive.advanceCycles(300);
    EXPECT_EQ(faults(), 0);
    drive.write(reg::SetpointAbsolute, 501);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultMotionRange);
}
