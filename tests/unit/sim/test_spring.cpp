// A load on a spring, with damping and play: it swings where it should.
#include "machinebench.h"

using namespace machinebench;

TEST(Spring, ResonanceDampingAndInertiaRatioAreWhereTheyWereSet)
{
    const struct
    {
        const char *load;
        double hertz, damping, ratio;
    } rows[] = {
        {"flexible=20", 20, 0.02, 2},
        {"flexible", 60, 0.02, 2},
        {"flexible=60+damping=0.005+ratio=0.5", 60, 0.005, 0.5},
        {"flexible=150+damping=0.01+ratio=10", 150, 0.01, 10},
        {"flexible=400+damping=0.002", 400, 0.002, 2},
        {"flexible=1000+damping=0.001", 1000, 0.001, 2},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.load);
        // Turning freely after a jolt of torque, the motor's speed rings at the resonance.
        // Without viscous friction, which would damp the swing, too.
        Axis axis(std::string(row.load) + "+viscous=0", {{reg::ControlMode, 3}});
        axis.enable();
        axis.moved(4000, 50);
        axis.moved(102, 25); // what friction takes, so that the speed stays
        const auto speed = record(axis, 2000, [&] { return axis.axis().motor().velocity(); });
        EXPECT_NEAR(strongest(speed, row.hertz), row.hertz, 0.002 * row.hertz);
        // The swing decays by exp(-2 pi f d t).
        const std::vector<double> early(speed.begin(), speed.begin() + 1000), late(speed.begin() + 1000, speed.end());
        const double decay = std::log(amplitude(early, row.hertz) / amplitude(late, row.hertz)) / (1000.0 / cycleRate);
        EXPECT_NEAR(decay / (2.0 * pi * row.hertz), row.damping, 0.1 * row.damping + 0.0005);

        // With the motor held, the load swings alone: slower by the root of 1 + ratio.
        Axis held(row.load);
        held.axis().inputs().locked = true;
        held.axis().inputs().loadTorque = 0.5;
        const std::vector<double> swing = record(held, 2500, [&] { return held.axis().motor().loadAngle(); });
        const double alone = row.hertz / std::sqrt(1.0 + row.ratio);
        EXPECT_NEAR(strongest(swing, alone), alone, 0.002 * alone);
    }
}

TEST(Spring, TheStiffestSpringStaysStableForMinutes)
{
    Axis axis("flexible=1000+damping=0+ratio=20+hanging");
    axis.enable();
    axis.advanceCycles(2500 * 60);
    EXPECT_NEAR(axis.axis().motor().loadAngle(), axis.axis().motor().angle(), 50.0);
}

TEST(Spring, SpringMakesAGainUnstableThatThePlainAxisTakes)
{
    const auto lateSwing = [](const char *load, int gain) {
        Axis axis(load, {{reg::VelocityP, gain}});
        axis.enable();
        axis.moved(1000);
        const auto positions = record(axis, 500, [&] { return double(axis.read(reg::PositionFeedback)); });
        const auto [low, high] = std::minmax_element(positions.begin(), positions.end());
        return *high - *low;
    };
    EXPECT_EQ(lateSwing("dry=0.02", 1200), 0);
    EXPECT_EQ(lateSwing("flexible", 360), 0) << "quiet at the default gain";
    EXPECT_GT(lateSwing("flexible", 650), 50);
}

TEST(Spring, BacklashIsThePlayBetweenBothFlanks)
{
    const auto playUnder = [](const char *load, double torque) {
        Axis axis(load);
        axis.axis().inputs().locked = true;
        double sides[2];
        for (const int side : {0, 1}) {
            axis.axis().inputs().loadTorque = side ? -torque : torque;
            axis.advanceCycles(20000); // until it has come to rest
            sides[side] = axis.axis().motor().loadAngle();
        }
        return sides[1] - sides[0];
    };
    // The spring gives way by itself: k = w² J r / (1 + r)², here 300 Hz, or 60 Hz where it is said.
    const auto wound = [](double hertz, double torque) {
        return 2.0 * torque / (4.0 * pi * pi * hertz * hertz * 1e-4 * 2.0 / 9.0) * countsPerRadian;
    };
    EXPECT_NEAR(playUnder("backlash=100", 0.1), 100.0 + wound(300, 0.1), 0.5);
    EXPECT_NEAR(playUnder("backlash=1000", 0.1), 1000.0 + wound(300, 0.1), 0.5);
    EXPECT_NEAR(playUnder("flexible=60", 0.1), wound(60, 0.1), 0.5);
    EXPECT_NEAR(playUnder("flexible=60+backlash=100", 0.1), 100.0 + wound(60, 0.1), 0.5);
}

TEST(Spring, FlanksWithPlayPushAndNeverPull)
{
    const SwingingLoad stiff(machine("backlash=100+damping=0.7")), joined(machine("flexible=300+damping=0.7"));
    const double touching = 60.0 / countsPerRadian, away = -1000.0; // beyond the play of 50 each way, and fleeing
    EXPECT_EQ(stiff.torque(touching, away), 0.0);
    EXPECT_LT(joined.torque(touching, away), 0.0) << "what is joined does";
    EXPECT_GT(stiff.torque(touching, 0.0), 0.0);
    EXPECT_LT(stiff.torque(-touching, 0.0), 0.0);
}
