// The pictures of the tuning guide.
#include "chart.h"
#include "registers.h"
#include "trial.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>
#include <utility>

namespace {

using sim::AxisSignals;
using Signals = std::vector<AxisSignals>;
namespace reg = sim::reg;

constexpr const char *Wanted = "#888888";
constexpr const char *Blue = "#0057ae";
constexpr const char *Orange = "#d55e00";
constexpr const char *Green = "#009e73";

// The virtual drive's own gains.
constexpr std::int32_t Kvp = 360;
constexpr std::int32_t Kvi = 360;
constexpr std::int32_t Kpp = 120;

constexpr double RpmPerCount = 2500.0 * 60.0 / 10000.0; ///< from counts per cycle
constexpr double AmperesPerCount = 1.0 / 560.0;
constexpr std::int32_t PositionStep = 1000;
constexpr int VelocityMode = 2;
constexpr std::int32_t VelocityStep = 16384 / 3; ///< of full scale 3000 rpm
constexpr double VelocityStepCounts = VelocityStep / 16384.0 * 200.0;

struct Row
{
    const char *name;
    const char *colour;
    std::vector<Trial::Change> changes;
};

Signals step(std::vector<Trial::Change> changes, std::int32_t target, int cycles)
{
    Trial trial;
    trial.changes = std::move(changes);
    trial.cycles = cycles;
    trial.setpoint = [target](int) { return target; };
    return run(trial);
}

Chart positionSteps(const std::vector<Row> &rows, int cycles)
{
    Chart chart("time, ms", "position, counts", CycleMs);
    chart.add({"setpoint", Wanted, std::vector<double>(static_cast<std::size_t>(cycles) + 1, PositionStep), true});
    for (const Row &row : rows) {
        const Signals signals = step(row.changes, PositionStep, cycles);
        chart.add({row.name, row.colour, valuesOf(signals, &AxisSignals::position)});
        std::printf("  %-14s %s\n", row.name, describeStep(signals, &AxisSignals::position, PositionStep).c_str());
    }
    return chart;
}

Chart velocitySteps(const std::vector<Row> &rows, int cycles)
{
    Chart chart("time, ms", "velocity, rpm", CycleMs);
    bool first = true;
    for (Row row : rows) {
        row.changes.push_back({reg::ControlMode, VelocityMode});
        const Signals signals = step(row.changes, VelocityStep, cycles);
        if (first)
            chart.add({"setpoint", Wanted, valuesOf(signals, &AxisSignals::velocitySetpoint, RpmPerCount), true});
        first = false;
        chart.add({row.name, row.colour, valuesOf(signals, &AxisSignals::velocity, RpmPerCount)});
        std::printf("  %-14s %s\n", row.name,
                    describeStep(signals, &AxisSignals::velocity, VelocityStepCounts).c_str());
    }
    return chart;
}

Chart velocityDefault()
{
    return velocitySteps({{"achieved", Blue, {}}}, 200);
}

Chart velocitySoft()
{
    return velocitySteps({{"default", Blue, {}},
                          {"KVP / 8", Orange, {{reg::VelocityP, Kvp / 8}}},
                          {"KVP and KVI / 8", Green, {{reg::VelocityP, Kvp / 8}, {reg::VelocityI, Kvi / 8}}}},
                         375);
}

Chart velocityBuzz()
{
    return velocitySteps(
        {{"KVP x 3", Blue, {{reg::VelocityP, Kvp * 3}}}, {"KVP x 5", Orange, {{reg::VelocityP, Kvp * 5}}}}, 150);
}

/// Held at one place, then a load comes on.
Chart integralUnderLoad()
{
    Chart chart("time, ms", "position error, counts", CycleMs);
    const Row rows[] = {{"KVI 0", Orange, {{reg::VelocityI, 0}}},
                        {"KVI / 8", Green, {{reg::VelocityI, Kvi / 8}}},
                        {"default", Blue, {}},
                        {"KVI x 8", "#000000", {{reg::VelocityI, Kvi * 8}}}};
    for (const Row &row : rows) {
        Trial trial;
        trial.changes = row.changes;
        trial.cycles = 500;
        trial.setpoint = [](int) { return 0; };
        trial.load = [](int cycle) { return cycle < 25 ? 0.0 : 0.6; };
        const Signals signals = run(trial);
        const std::vector<double> error = valuesOf(signals, &AxisSignals::trackingError);
        chart.add({row.name, row.colour, error});
        std::printf("  %-14s largest %.0f, at the end %.0f, faults %d\n", row.name,
                    *std::max_element(error.begin(), error.end()), error.back(), signals.back().faults);
    }
    return chart;
}

Chart positionDefault()
{
    return positionSteps({{"achieved", Blue, {}}}, 375);
}

Chart positionHigh()
{
    return positionSteps({{"default", Blue, {}},
                          {"KPP x 2", Green, {{reg::PositionP, Kpp * 2}}},
                          {"KPP x 4", Orange, {{reg::PositionP, Kpp * 4}}}},
                         375);
}

Chart positionLow()
{
    return positionSteps({{"default", Blue, {}}, {"KPP / 4", Orange, {{reg::PositionP, Kpp / 4}}}}, 625);
}

/// A move with enough current, and with too little.
Chart limitedMove(const char *caption, std::int32_t AxisSignals::*signal, double scale)
{
    constexpr std::int32_t Target = 1900;
    constexpr int Cycles = 250;
    const Row rows[] = {{"MMC 32 A", Blue, {}},
                        {"MMC 1.5 A", Orange, {{reg::PeakCurrent, 1500}, {reg::ContinuousCurrent, 1500}}}};
    Chart chart("time, ms", caption, CycleMs);
    for (const Row &row : rows) {
        const Signals signals = step(row.changes, Target, Cycles);
        chart.add({row.name, row.colour, valuesOf(signals, signal, scale)});
        std::printf("  %-14s %s\n", row.name, describeStep(signals, &AxisSignals::position, Target).c_str());
    }
    return chart;
}

Chart limitedPosition()
{
    return limitedMove("position, counts", &AxisSignals::position, 1.0);
}

Chart limitedTorque()
{
    return limitedMove("torque current, A", &AxisSignals::torque, AmperesPerCount);
}

/// Position of a ramp to some speed (counts per cycle) at the acceleration limit, and on at that speed.
std::function<std::int32_t(int)> ramp(double speed)
{
    return [speed](int cycle) {
        constexpr double Acceleration = 1.6; // counts per cycle and cycle
        const double rampEnd = speed / Acceleration;
        const double t = std::min<double>(cycle, rampEnd);
        return static_cast<std::int32_t>(std::lround(Acceleration * t * t / 2 + speed * (cycle - t)));
    };
}

Chart trackingErrors(const std::vector<Row> &rows, double speed, int cycles)
{
    Chart chart("time, ms", "tracking error, counts", CycleMs);
    for (const Row &row : rows) {
        Trial trial;
        trial.changes = row.changes;
        trial.cycles = cycles;
        trial.setpoint = ramp(speed);
        const Signals signals = run(trial);
        const std::vector<double> error = valuesOf(signals, &AxisSignals::trackingError);
        chart.add({row.name, row.colour, error});
        std::printf("  %-18s largest %.0f, at the end %.0f, faults %d\n", row.name,
                    *std::max_element(error.begin(), error.end()), error.back(), signals.back().faults);
    }
    return chart;
}

Chart accelerationForward()
{
    constexpr double Speed = 200.0; // 3000 rpm
    return trackingErrors(
        {{"AFF 0, VFF 0", Orange, {}},
         {"AFF 2200", Green, {{reg::AccelerationFeedForward, 2200}}},
         {"AFF 2200, VFF 14", Blue, {{reg::AccelerationFeedForward, 2200}, {reg::VelocityFeedForward, 14}}}},
        Speed, 250);
}

Chart positionForward()
{
    constexpr double Speed = 40.0; // 600 rpm
    return trackingErrors({{"PFF 100 %", Blue, {}},
                           {"PFF 50 %", Green, {{reg::PositionFeedForward, 512}}},
                           {"PFF 0 %", Orange, {{reg::PositionFeedForward, 0}}}},
                          Speed, 375);
}

/// The three tries of the guide's session on a springy axis, as springy-session.sh has captured them.
struct Try
{
    const char *file, *name, *colour;
};
constexpr Try springyTries[] = {
    {"springy-1.csv", "try 1: 720, 360, 240", Orange},
    {"springy-2.csv", "try 2: 480, 360, 240", Green},
    {"springy-3.csv", "try 3: 420, 180, 140", Blue},
};
constexpr int SpringySamples = 375; // one a control cycle
enum SpringyColumn { TorqueColumn = 1, PositionSetpointColumn, PositionColumn };

/// One column of a capture, less what the setpoint was before the step where `isPosition`.
std::vector<double> captured(const Try &attempt, int column, bool isPosition)
{
    std::ifstream file(std::string(VELBRIN_HELP_CAPTURES "/") + attempt.file);
    std::string line;
    std::getline(file, line); // names
    std::getline(file, line); // units
    std::vector<double> values;
    double start = 0.0;
    while (values.size() < SpringySamples && std::getline(file, line)) {
        std::istringstream fields(line);
        std::vector<double> row;
        for (std::string field; std::getline(fields, field, ',');)
            row.push_back(std::atof(field.c_str()));
        if (values.empty() && isPosition)
            start = row.at(PositionSetpointColumn);
        values.push_back(row.at(std::size_t(column)) - start);
    }
    if (values.size() < SpringySamples)
        std::fprintf(stderr, "%s is no capture of %d samples\n", attempt.file, SpringySamples);
    return values;
}

Chart springyPosition()
{
    Chart chart("time, ms", "position, counts", CycleMs);
    chart.add({"setpoint", Wanted, captured(springyTries[0], PositionSetpointColumn, true), true});
    for (const Try &attempt : springyTries)
        chart.add({attempt.name, attempt.colour, captured(attempt, PositionColumn, true)});
    return chart;
}

Chart springyTorque()
{
    Chart chart("time, ms", "torque setpoint, A", CycleMs);
    for (const Try &attempt : {springyTries[0], springyTries[2]})
        chart.add({attempt.name, attempt.colour, captured(attempt, TorqueColumn, false)});
    return chart;
}

struct Picture
{
    const char *file;
    Chart (*draw)();
};

constexpr Picture pictures[] = {
    {"velocity-default.svg", velocityDefault}, {"velocity-soft.svg", velocitySoft},
    {"velocity-buzz.svg", velocityBuzz},       {"integral-load.svg", integralUnderLoad},
    {"position-default.svg", positionDefault}, {"position-high.svg", positionHigh},
    {"position-low.svg", positionLow},         {"current-position.svg", limitedPosition},
    {"current-torque.svg", limitedTorque},     {"feed-forward.svg", accelerationForward},
    {"position-forward.svg", positionForward}, {"springy-position.svg", springyPosition},
    {"springy-torque.svg", springyTorque},
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: make_help_plots FOLDER\n");
        return 2;
    }
    for (const Picture &picture : pictures) {
        std::printf("%s\n", picture.file);
        if (!picture.draw().save(std::string(argv[1]) + '/' + picture.file)) {
            std::fprintf(stderr, "Cannot write %s in %s\n", picture.file, argv[1]);
            return 1;
        }
    }
    return 0;
}
