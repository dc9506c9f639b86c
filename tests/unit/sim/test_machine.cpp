// Axes that misbehave: each does so by the figure that it was given. Springs and play have a file of their own.
#include "machinebench.h"

using namespace machinebench;

TEST(Machine, NamesJoinAndWrongOnesAreTold)
{
    const Machine parsed = machine("flexible=45+damping=0.01+noise+stuck-negative");
    EXPECT_EQ(parsed.springHz, 45.0);
    EXPECT_EQ(parsed.springDamping, 0.01);
    EXPECT_EQ(parsed.encoderNoise, 2.0);
    EXPECT_EQ(parsed.negativeStuck, 1.0);
    EXPECT_EQ(parsed.dryFriction, Machine().dryFriction);
    for (const char *wrong : {"", "rubber", "flexible=", "flexible=x", "flexible=60Hz", "flexible=0", "flexible=9999",
                              "noise=nan", "noise=0,5", "noise+", "damping", "ratio=3"}) {
        Machine untouched;
        EXPECT_NE(parseMachine(wrong, untouched), "") << wrong;
        EXPECT_EQ(untouched.springHz, 0.0) << wrong;
    }
}

TEST(Machine, HangingLoadFallsUnlessMotorOrBrakeHoldIt)
{
    const Writes brake = {{reg::BrakeReleaseDelay, 50}, {reg::BrakeEngageDelay, 50}};
    const struct
    {
        const char *load;
        Writes settings;
        int lowest, highest; ///< 0.2 s after the disable
    } rows[] = {
        {"hanging", {}, -60000, -40000}, // to the ground, five turns down
        {"hanging+flexible", {}, -60000, -40000},
        {"hanging", brake, -2, 2},
        {"hanging+slipping=0.6", brake, -2, 2},
        {"hanging+slipping=0.3", brake, -3500, -1500}, // sinks: 0.2 - 0.02 Nm against a drag of 0.02 Nm s
        {"hanging=0.01", {}, -2, 2},                   // friction holds that
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.load << (row.settings.empty() ? "" : " with brake"));
        Axis axis(row.load, row.settings);
        axis.advanceCycles(2500);
        EXPECT_EQ(axis.read(reg::PositionFeedback), 0) << "propped up until the motor is powered";
        axis.enable();
        axis.moved(0, 2500);
        EXPECT_NEAR(axis.read(reg::PositionFeedback), 0, 2);
        EXPECT_NEAR(axis.amperes(), machine(row.load).hanging / 0.1, 0.25) << "0.1 Nm an ampere, and friction";
        axis.write(reg::SoftEnable, 0);
        axis.advanceCycles(125); // until the brake has closed
        axis.advanceCycles(500);
        EXPECT_GE(axis.read(reg::PositionFeedback), row.lowest);
        EXPECT_LE(axis.read(reg::PositionFeedback), row.highest);
        EXPECT_EQ(axis.read(reg::Faults), 0);
    }
}

TEST(Machine, FrictionAndInertiaTakeTheirTorque)
{
    const struct
    {
        const char *load;
        double dry, viscous, inertia;
    } rows[] = {{"dry=0.02", 0.02, 1e-4, 1e-4},
                {"dry=0.15", 0.15, 1e-4, 1e-4},
                {"viscous=0.002", 0.02, 2e-3, 1e-4},
                {"inertia=0.0003+dry=0.1", 0.1, 1e-4, 3e-4},
                {"flexible=200+damping=0.1", 0.02, 1e-4, 1e-4}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.load);
        // At a steady speed the current is friction alone: 100 and 200 counts a cycle, 0.1 Nm an ampere.
        double torque[2];
        for (const int fast : {0, 1}) {
            Axis axis(row.load,
                      {{reg::ControlMode, 2}, {reg::VelocityErrorLimit, 32767}, {reg::AccelerationLimit, 32}});
            axis.enable();
            axis.moved(fast ? 16384 : 8192, 10000);
            torque[fast] = 0.1 * mean(record(axis, 2500, [&] { return axis.axis().motor().amperes(); }));
        }
        const double speed = 100.0 * cycleRate / countsPerRadian;
        EXPECT_NEAR((torque[1] - torque[0]) / speed, row.viscous, 0.01 * row.viscous);
        EXPECT_NEAR(2.0 * torque[0] - torque[1], row.dry, 0.02 * row.dry + 0.0005);
        // And what a torque of 0.4 Nm leaves over speeds the inertia up.
        Axis axis(row.load, {{reg::ControlMode, 3}});
        axis.enable();
        axis.moved(2048, 20);
        const auto driving = accelerationTorque(axis, 50, row.inertia);
        const double turning = axis.axis().motor().velocity() * cycleRate / countsPerRadian;
        EXPECT_NEAR(mean(driving), 0.4 - row.dry - row.viscous * turning / 1.5, 0.02);
    }
}

TEST(Machine, RippleAndCoggingComeAsOftenAndAsStrongAsSaid)
{
    const struct
    {
        const char *load;
        double swing; ///< Nm from lowest to highest
        bool comesOften;
    } rows[] = {{"dry=0.02", 0.0, false}, {"ripple=0.1", 2 * 0.1 * 0.4, true}, {"cogging=0.05", 2 * 0.05, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.load);
        // 4 A speed it up; from tick to tick, what makes it faster is its torque less friction, which grows a little.
        Axis axis(row.load, {{reg::ControlMode, 3}, {reg::OverSpeedLimit, 32767}});
        axis.enable();
        axis.moved(2048, 15);
        const double from = axis.axis().motor().angle();
        std::vector<double> torques;
        for (int tick = 0; tick < 1000; ++tick) {
            const double before = axis.axis().motor().velocity();
            axis.advance(std::chrono::microseconds(50));
            torques.push_back((axis.axis().motor().velocity() - before) / countsPerRadian * cycleRate * 20000.0 * 1e-4);
        }
        const auto [low, high] = std::minmax_element(torques.begin(), torques.end());
        EXPECT_NEAR(*high - *low, row.swing, 0.025);
        int rises = 0;
        for (std::size_t i = 1; i < torques.size(); ++i)
            rises += torques[i - 1] < mean(torques) && torques[i] >= mean(torques);
        const double turns = (axis.axis().motor().angle() - from) / 10000.0;
        EXPECT_NEAR(rises, row.comesOften ? 24.0 * turns : 0.0, 1.0) << turns << " turns";
    }

    // Unpowered, a cog holds the shaft against what friction alone would not: within a 24th of a turn.
    for (const double torque : {0.045, 0.08}) {
        Axis axis("cogging=0.05");
        axis.axis().inputs().loadTorque = torque;
        axis.advanceCycles(2500);
        EXPECT_EQ(axis.axis().motor().angle() < -10000.0 / 24, torque > 0.05 + 0.02) << torque;
    }
}

TEST(Machine, NoiseHasItsSizeAndIsTheSameEachTime)
{
    const auto positions = [](const char *load) {
        Axis axis(load);
        return record(axis, 5000, [&] { return double(axis.read(reg::PositionFeedback)); });
    };
    EXPECT_EQ(rms(positions("dry=0.02")), 0.0);
    const std::vector<double> noise = positions("noise=5");
    EXPECT_NEAR(rms(noise), 5.0, 0.15);
    EXPECT_NEAR(mean(noise), 0.0, 0.5 + 0.3) << "a count is rounded downwards, and no drift";
    EXPECT_EQ(noise, positions("noise=5"));
    EXPECT_NE(noise, positions("noise=5+seed=3"));
}

TEST(Machine, SupplySagsWhilePoweredAndComesBack)
{
    Axis axis("sag=2"); // of 48 V a second
    axis.advanceCycles(2500);
    EXPECT_EQ(axis.read(reg::BusVoltage), 4800);
    axis.enable();
    axis.advanceCycles(2500 * 5);
    EXPECT_NEAR(axis.read(reg::BusVoltage), 4800 * 0.9, 2);
    axis.advanceCycles(2500 * 8);
    EXPECT_EQ(axis.read(reg::Faults), FaultUnderVoltage);
    axis.write(reg::SoftEnable, 0);
    axis.advanceCycles(2500 * 15);
    EXPECT_EQ(axis.read(reg::BusVoltage), 4800);
}

TEST(Machine, WiringFaultsShowTheirSignsAndCanBeSetRight)
{
    const struct
    {
        const char *load;
        Writes settings;
        std::int32_t faults;
        int setpoint, lowest, highest; ///< where it comes to
    } rows[] = {
        {"reversed", {}, FaultTracking, 1000, registerMinimum, 0}, // it runs away
        {"reversed", {{reg::Flags, 0x0009}}, 0, 1000, 1000, 1000},
        {"poles=3", {}, FaultInit, 1000, 0, 0},
        {"poles=3", {{reg::PolePairs, 3}}, 0, 1000, 1000, 1000},
        // The field turns backwards: any torque ends at an eighth of an electrical turn (312 counts), give or take
        // friction.
        {"swapped", {{reg::ControlMode, 3}}, 0, 1024, 290, 335},
        {"swapped", {{reg::ControlMode, 3}}, 0, -2048, -335, -290},
        {"swapped", {}, FaultTracking, 1990, registerMinimum, registerMaximum},
        {"stuck-positive", {}, 0, 1000, 1000, 1000},
        {"stuck-positive", {{reg::LimitSwitches, 1}}, 0, 1000, 0, 0},
        {"stuck-positive", {{reg::LimitSwitches, 1}}, 0, -1000, -1000, -1000},
        {"stuck-negative", {{reg::LimitSwitches, 1}}, 0, -1000, 0, 0},
        {"stuck-negative", {{reg::LimitSwitches, 1}}, 0, 1000, 1000, 1000},
        {"stuck-negative", {{reg::LimitSwitches, 2}}, FaultMotionRange, 1000, 0, 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.load << " to " << row.setpoint << ", settings: " << row.settings.size());
        Axis axis(row.load, row.settings);
        axis.enable();
        const int position = axis.moved(row.setpoint);
        EXPECT_EQ(axis.read(reg::Faults), row.faults);
        EXPECT_GE(position, row.lowest);
        EXPECT_LE(position, row.highest);
    }
}
