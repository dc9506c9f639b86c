// The motor's answers, in figures: what a step, a ramp and a disturbance look like with good and with bad gains.
#include "drivebench.h"

#include <algorithm>
#include <cmath>

using namespace sim;

namespace {

constexpr double millisecondsPerCycle = 0.4;

/// Position after each cycle of 0.6 s.
std::vector<int> step(BenchDrive &drive, int target)
{
    drive.enable();
    drive.write(reg::SetpointAbsolute, target);
    std::vector<int> positions(1500);
    for (int &position : positions) {
        drive.advanceCycles(1);
        position = drive.read(reg::PositionFeedback);
    }
    return positions;
}

// --- Figures. Steps: ms to 90 %, ms until it stays within 2 %, percent, counts in the last 100 ms, fault bits

double riseTime(BenchDrive &drive, int target)
{
    const std::vector<int> positions = step(drive, target);
    const auto there = std::find_if(positions.begin(), positions.end(), [=](int p) { return p >= 0.9 * target; });
    return there == positions.end() ? -1.0 : double(there - positions.begin() + 1) * millisecondsPerCycle;
}

double settlingTime(BenchDrive &drive, int target)
{
    const std::vector<int> positions = step(drive, target);
    const double band = std::max(0.02 * target, 1.0);
    const auto last = std::find_if(positions.rbegin(), positions.rend(),
                                   [=](int position) { return std::abs(position - target) > band; });
    return double(positions.rend() - last) * millisecondsPerCycle;
}

double overshoot(BenchDrive &drive, int target)
{
    const std::vector<int> positions = step(drive, target);
    return 100.0 * (*std::max_element(positions.begin(), positions.end()) - target) / target;
}

double lastSwing(BenchDrive &drive, int target)
{
    const std::vector<int> positions = step(drive, target);
    const auto [low, high] = std::minmax_element(positions.end() - 250, positions.end());
    return *high - *low;
}

double faultsOfStep(BenchDrive &drive, int target)
{
    step(drive, target);
    return drive.read(reg::Faults);
}

/// Sum of all changes of the commanded torque over 100 ms after a step, A: what rings is heard here.
double torqueUnrest(BenchDrive &drive, int target)
{
    drive.enable();
    drive.write(reg::SetpointAbsolute, target);
    double sum = 0.0;
    int last = 0;
    for (int cycle = 0; cycle < 250; ++cycle) {
        drive.advanceCycles(1);
        const int torque = drive.axis().readings().torqueSetpoint;
        sum += std::abs(torque - last) / 560.0;
        last = torque;
    }
    return sum * drive.profile().winding.torquePerAmpere / 0.1; // as with the low-voltage winding
}

/// Furthest that a sudden load of 0.5 Nm pushes the axis away, counts.
double yielding(BenchDrive &drive, int)
{
    drive.enable();
    drive.axis().inputs().loadTorque = 0.5;
    int furthest = 0;
    for (int cycle = 0; cycle < 500; ++cycle) {
        drive.advanceCycles(1);
        furthest = std::max(furthest, std::abs(drive.read(reg::PositionFeedback)));
    }
    return furthest;
}

/// Largest tracking error on the way to 3000 rpm at the acceleration limit, with the setpoint renewed every cycle.
double rampError(BenchDrive &drive, int)
{
    drive.enable();
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

double faultsOfRamp(BenchDrive &drive, int)
{
    rampError(drive, 0);
    return drive.read(reg::Faults);
}

/// Of the wanted velocity: the fastest, and where it ends.
double velocityPeak(BenchDrive &drive, int setpoint)
{
    drive.enable();
    drive.write(reg::SetpointAbsolute, setpoint);
    int fastest = 0;
    for (int cycle = 0; cycle < 800; ++cycle) {
        drive.advanceCycles(1);
        fastest = std::max(fastest, drive.read(reg::VelocityFeedback));
    }
    return drive.read(reg::Faults) ? -1.0 : fastest / (200.0 * setpoint / 16384);
}

double velocityError(BenchDrive &drive, int setpoint)
{
    velocityPeak(drive, setpoint);
    return drive.read(reg::VelocityFeedback) - 200.0 * setpoint / 16384;
}

/// Amperes with a locked shaft, as with the low-voltage winding.
double lockedCurrent(BenchDrive &drive, int setpoint)
{
    drive.axis().inputs().locked = true;
    drive.enable();
    drive.moved(setpoint, 50);
    return drive.read(reg::OutputCurrent) / 560.0 * drive.profile().winding.torquePerAmpere / 0.1;
}

struct Row
{
    const char *what;
    Writes gains; ///< of the low-voltage winding
    double (*figure)(BenchDrive &, int setpoint);
    int setpoint;
    double low, high;
};

constexpr int KVP = reg::VelocityP, KVI = reg::VelocityI, KPP = reg::PositionP;
constexpr int VFF = reg::VelocityFeedForward, AFF = reg::AccelerationFeedForward, PFF = reg::PositionFeedForward;

const Row rows[] = {
    {"a small step rises as quickly as a large one", {}, riseTime, 100, 29, 35},
    {"and settles", {}, settlingTime, 100, 0, 70},
    {"without overshoot", {}, overshoot, 100, 0, 0},
    {"default", {}, settlingTime, 1000, 0, 70},
    {"default", {}, lastSwing, 1000, 0, 0},
    {"a large step", {}, riseTime, 1990, 29, 35},
    {"a large step", {}, overshoot, 1990, 0, 0},
    {"the largest step", {}, faultsOfStep, 2000, 0, 0},
    {"past the tracking threshold", {}, faultsOfStep, 2001, FaultTracking, FaultTracking},
    {"a fault stops the motor", {}, riseTime, 2001, -1, -1},
    {"too much position gain overshoots", {{KPP, 240}}, overshoot, 1000, 3, 7},
    {"four times the position gain", {{KPP, 480}}, overshoot, 1000, 55, 65},
    {"too little position gain lags", {{KPP, 30}}, riseTime, 1000, 125, 135},
    {"velocity gain, the last quiet one", {{KVP, 360 * 4}}, lastSwing, 1000, 0, 0},
    {"velocity gain oscillates", {{KVP, 360 * 5}}, lastSwing, 1000, 20, 1000},
    {"velocity integral oscillates", {{KVI, 360 * 40}}, lastSwing, 1000, 100, 2000},
    {"too little of both swings", {{KVP, 45}, {KVI, 45}}, overshoot, 1000, 33, 39},
    {"too little velocity gain faults", {{KVP, 45}}, faultsOfStep, 1000, FaultTracking, FaultTracking},
    {"quiet torque", {}, torqueUnrest, 1000, 80, 90},
    {"three times the velocity gain rings in torque", {{KVP, 1080}}, torqueUnrest, 1000, 255, 300},
    {"a load pushes", {}, yielding, 0, 130, 145},
    {"a third of the velocity gain is soft", {{KVP, 120}}, yielding, 0, 305, 335},
    {"a ramp lags while it accelerates", {}, rampError, 0, 600, 680},
    {"feed-forward takes that out", {{AFF, 2200}, {VFF, 14}}, rampError, 0, 0, 100},
    {"no position feed-forward", {{PFF, 0}, {reg::PositionErrorLimit, 1000000}}, rampError, 0, 6750, 6850},
    {"which faults", {{PFF, 0}}, faultsOfRamp, 0, FaultTracking, FaultTracking},
    // Full acceleration takes a quarter of the peak current; an eighth of it takes longer over the same way.
    {"a torque limit slows down", {{reg::PeakCurrent, 3000}}, riseTime, 1990, 40, 60},
    {"and is no fault", {{reg::PeakCurrent, 3000}}, faultsOfStep, 1990, 0, 0},
    {"slow velocity overshoots a little", {{reg::ControlMode, 2}}, velocityPeak, 1638, 1.03, 1.105},
    {"full velocity", {{reg::ControlMode, 2}}, velocityPeak, 16384, 1.03, 1.105},
    {"and is met", {{reg::ControlMode, 2}}, velocityError, 16384, -1, 1},
    {"a quarter of the peak torque", {{reg::ControlMode, 3}}, lockedCurrent, -4096, -8.01, -7.99},
};

/// Both windings give the same motion; a Torva's gains and currents are a quarter of a Keta's.
std::int32_t forProfile(const VirtualDrive &drive, int address, std::int32_t value)
{
    const bool isScaled =
        address == KVP || address == KVI || address == VFF || address == AFF || address == reg::PeakCurrent;
    const double scale = isScaled ? 0.1 / drive.profile().winding.torquePerAmpere : 1.0;
    return static_cast<std::int32_t>(std::lround(value * scale));
}

} // namespace

TEST(Motion, EveryFigureIsWithinItsBoundsOnBothFamilies)
{
    for (const char *profile : {"keta", "torva"}) {
        for (const Row &row : rows) {
            SCOPED_TRACE(std::string(profile) + ": " + row.what);
            BenchDrive drive(profile);
            for (const auto &[address, value] : row.gains)
                EXPECT_EQ(drive.write(address, forProfile(drive, address, value)), Outcome::Done);
            const double figure = row.figure(drive, row.setpoint);
            EXPECT_GE(figure, row.low);
            EXPECT_LE(figure, row.high);
        }
    }
}
