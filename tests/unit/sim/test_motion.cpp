// The motor's answers, in figures: what a step, a ramp and a disturbance look like with good and with bad gains.
#include "drivebench.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace sim;

namespace {

constexpr double MillisecondsPerCycle = 0.4;

struct Response
{
    double riseTime = -1.0;    ///< ms to 90 %
    double settlingTime = 0.0; ///< ms until it stays within 2 %
    double overshoot = 0.0;    ///< percent
    int lastSwing = 0;         ///< counts between the extremes of the last 100 ms
    std::int32_t faults = 0;
};

using Gains = std::vector<std::pair<int, std::int32_t>>;

void enable(VirtualDrive &drive)
{
    drive.write(reg::SoftEnable, 1);
    drive.advanceCycles(5);
}

Response step(VirtualDrive &drive, std::int32_t target, int cycles = 1500)
{
    enable(drive);
    drive.write(reg::SetpointAbsolute, target);
    Response response;
    int highest = 0, lateHigh = RegisterMinimum, lateLow = RegisterMaximum;
    for (int cycle = 1; cycle <= cycles; ++cycle) {
        drive.advanceCycles(1);
        const int position = drive.read(reg::PositionFeedback);
        const double time = cycle * MillisecondsPerCycle;
        highest = std::max(highest, position);
        if (response.riseTime < 0 && position >= 0.9 * target)
            response.riseTime = time;
        if (std::abs(position - target) > std::max(0.02 * target, 1.0))
            response.settlingTime = time;
        if (cycle > cycles - 250) {
            lateHigh = std::max(lateHigh, position);
            lateLow = std::min(lateLow, position);
        }
    }
    response.overshoot = 100.0 * (highest - target) / target;
    response.lastSwing = lateHigh - lateLow;
    response.faults = drive.read(reg::Faults);
    return response;
}

Response step(const char *profile, std::int32_t target, const Gains &gains = {})
{
    VirtualDrive drive(*findProfile(profile));
    for (const auto &[address, value] : gains)
        EXPECT_EQ(drive.write(address, value), Outcome::Done);
    return step(drive, target);
}

/// Both windings give the same motion; the gains of Torva are a quarter of Keta's, as its current is.
class Motion : public testing::TestWithParam<const char *>
{
protected:
    std::int32_t gain(double keta) const
    {
        return static_cast<std::int32_t>(std::lround(std::string(GetParam()) == "torva" ? keta / 4 : keta));
    }
    const char *profile() const { return GetParam(); }
    VirtualDrive drive{*findProfile(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(Families, Motion, testing::Values("keta", "torva"),
                         [](const auto &info) { return std::string(info.param); });

/// Sum of all changes of the commanded torque over 100 ms after a step of 1000 counts, A: what rings is heard here.
double torqueUnrest(VirtualDrive &drive)
{
    enable(drive);
    drive.write(reg::SetpointAbsolute, 1000);
    double sum = 0.0;
    int last = 0;
    for (int cycle = 0; cycle < 250; ++cycle) {
        drive.advanceCycles(1);
        const int torque = drive.axis().readings().torqueSetpoint;
        sum += std::abs(torque - last) / 560.0;
        last = torque;
    }
    return sum;
}

/// Furthest that a sudden load of 0.5 Nm pushes the axis away, counts.
int yielding(VirtualDrive &drive)
{
    enable(drive);
    drive.axis().inputs().loadTorque = 0.5;
    int furthest = 0;
    for (int cycle = 0; cycle < 500; ++cycle) {
        drive.advanceCycles(1);
        furthest = std::max(furthest, std::abs(drive.read(reg::PositionFeedback)));
    }
    return furthest;
}

/// Largest tracking error on the way to 3000 rpm at the acceleration limit, with the setpoint renewed every cycle.
int rampError(VirtualDrive &drive)
{
    enable(drive);
    double velocity = 0.0, setpoint = 0.0;
    int largest = 0;
    for (int cycle = 0; cycle < 600 && drive.read(reg::Faults) == 0; ++cycle) {
        velocity = std::min(velocity + 1.6, 200.0);
        setpoint += velocity;
        drive.write(reg::SetpointAbsolute, static_cast<std::int32_t>(setpoint));
        drive.advanceCycles(1);
        largest = std::max(largest, std::abs(drive.axis().readings().trackingError));
    }
    return largest;
}

} // namespace

TEST_P(Motion, DefaultStepsRiseCleanlyAndSettle)
{
    for (const int size : {100, 500, 1000, 1990}) {
        SCOPED_TRACE(size);
        const Response response = step(profile(), size);
        EXPECT_NEAR(response.riseTime, 32.0, 3.0);
        EXPECT_LT(response.settlingTime, 70.0);
        EXPECT_EQ(response.overshoot, 0.0);
        EXPECT_EQ(response.lastSwing, 0);
        EXPECT_EQ(response.faults, 0);
    }
}

TEST_P(Motion, StepPastTheTrackingThresholdFaults)
{
    EXPECT_EQ(step(profile(), 2000).faults, 0);
    const Response response = step(profile(), 2001);
    EXPECT_EQ(response.faults, FaultTracking);
    EXPECT_EQ(response.riseTime, -1.0) << "a fault stops the motor";
}

TEST_P(Motion, TooMuchPositionGainOvershoots)
{
    EXPECT_NEAR(step(profile(), 1000, {{reg::PositionP, 240}}).overshoot, 5.0, 2.0);
    EXPECT_NEAR(step(profile(), 1000, {{reg::PositionP, 480}}).overshoot, 60.0, 5.0);
}

TEST_P(Motion, TooLittlePositionGainLags)
{
    EXPECT_NEAR(step(profile(), 1000, {{reg::PositionP, 30}}).riseTime, 130.0, 5.0);
}

TEST_P(Motion, VelocityGainOscillatesFromFiveTimesItsDefault)
{
    EXPECT_EQ(step(profile(), 1000, {{reg::VelocityP, gain(360 * 4)}}).lastSwing, 0);
    EXPECT_GT(step(profile(), 1000, {{reg::VelocityP, gain(360 * 5)}}).lastSwing, 20);
    EXPECT_GT(step(profile(), 1000, {{reg::VelocityI, gain(360 * 40)}}).lastSwing, 100);
}

TEST_P(Motion, TooLittleVelocityGainSwings)
{
    const Response both = step(profile(), 1000, {{reg::VelocityP, gain(45)}, {reg::VelocityI, gain(45)}});
    EXPECT_NEAR(both.overshoot, 36.0, 3.0);
    EXPECT_EQ(step(profile(), 1000, {{reg::VelocityP, gain(45)}}).faults & FaultTracking, FaultTracking);
}

TEST_P(Motion, TriplingVelocityGainRingsInTorqueAndAThirdIsSoft)
{
    VirtualDrive normal(*findProfile(profile())), tripled(*findProfile(profile())), third(*findProfile(profile()));
    tripled.write(reg::VelocityP, gain(1080));
    third.write(reg::VelocityP, gain(120));
    EXPECT_GT(torqueUnrest(tripled), 3.0 * torqueUnrest(normal) * (profile() == std::string("torva") ? 0.9 : 1.0));
    VirtualDrive stiff(*findProfile(profile())), soft(*findProfile(profile()));
    soft.write(reg::VelocityP, gain(120));
    EXPECT_GT(yielding(soft), 2 * yielding(stiff));
}

TEST_P(Motion, VelocityStepsOvershootALittle)
{
    for (const int setpoint : {1638, 8192, 16384}) {
        SCOPED_TRACE(setpoint);
        VirtualDrive turning(*findProfile(profile()));
        turning.write(reg::ControlMode, 2);
        enable(turning);
        turning.write(reg::SetpointAbsolute, setpoint);
        const double wanted = 200.0 * setpoint / 16384;
        int fastest = 0;
        for (int cycle = 0; cycle < 800; ++cycle) {
            turning.advanceCycles(1);
            fastest = std::max(fastest, turning.read(reg::VelocityFeedback));
        }
        EXPECT_GE(fastest / wanted, 1.03);
        EXPECT_LE(fastest / wanted, 1.105);
        EXPECT_NEAR(turning.read(reg::VelocityFeedback), wanted, 1.0);
        EXPECT_EQ(turning.read(reg::Faults), 0);
    }
}

TEST_P(Motion, FeedForwardTakesTheLagOutOfARamp)
{
    EXPECT_NEAR(rampError(drive), 640, 40);
    VirtualDrive forward(*findProfile(profile()));
    forward.write(reg::AccelerationFeedForward, gain(2200));
    forward.write(reg::VelocityFeedForward, gain(14));
    EXPECT_LT(rampError(forward), 100);
}

TEST_P(Motion, WithoutPositionFeedForwardTheRampLagsAndFaults)
{
    drive.write(reg::PositionFeedForward, 0);
    drive.write(reg::PositionErrorLimit, 1000000);
    EXPECT_NEAR(rampError(drive), 6800, 50);
    VirtualDrive guarded(*findProfile(profile()));
    guarded.write(reg::PositionFeedForward, 0);
    rampError(guarded);
    EXPECT_EQ(guarded.read(reg::Faults), FaultTracking);
}

TEST_P(Motion, TorqueLimitSlowsTheAcceleration)
{
    // Full acceleration takes a quarter of the peak current; an eighth of it takes longer over the same way.
    const Response free = step(profile(), 1990);
    const Response limited = step(profile(), 1990, {{reg::PeakCurrent, gain(3000)}});
    EXPECT_GT(limited.riseTime, free.riseTime + 5.0);
    EXPECT_EQ(limited.faults, 0);
}

TEST_P(Motion, TorqueModePushesWithTheCommandedCurrent)
{
    drive.write(reg::ControlMode, 3);
    drive.axis().inputs().locked = true;
    enable(drive);
    drive.write(reg::SetpointAbsolute, -4096); // a quarter of the peak current
    drive.advanceCycles(50);
    EXPECT_NEAR(drive.read(reg::OutputCurrent), -gain(32.0 / 4 * 560), 2);
    EXPECT_EQ(drive.read(reg::PositionFeedback), 0);
}
