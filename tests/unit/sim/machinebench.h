/// \file
/// An axis that misbehaves on the bench, and figures of what it does.
#ifndef VELBRIN_TESTS_MACHINEBENCH_H
#define VELBRIN_TESTS_MACHINEBENCH_H

#include "drivebench.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace machinebench {

using namespace sim;

constexpr double pi = 3.14159265358979;
constexpr double countsPerRadian = 10000.0 / (2.0 * pi);

inline Machine machine(const std::string &text)
{
    Machine made;
    EXPECT_EQ(parseMachine(text, made), "");
    return made;
}

struct Axis : BenchDrive
{
    explicit Axis(const std::string &load, const Writes &settings = {}) : BenchDrive("keta", settings, machine(load)) {}
    double amperes() { return read(reg::OutputCurrent) / 560.0; }
};

/// One value a control cycle.
template <typename Value> std::vector<double> record(Axis &axis, int cycles, Value value)
{
    std::vector<double> values;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        axis.advanceCycles(1);
        values.push_back(value());
    }
    return values;
}

inline double mean(const std::vector<double> &values)
{
    double sum = 0.0;
    for (const double value : values)
        sum += value;
    return sum / double(values.size());
}

inline double rms(const std::vector<double> &values)
{
    const double middle = mean(values);
    double sum = 0.0;
    for (const double value : values)
        sum += (value - middle) * (value - middle);
    return std::sqrt(sum / double(values.size()));
}

/// Amplitude at a frequency, Hz, under a Hann window.
inline double amplitude(const std::vector<double> &values, double frequency)
{
    const double middle = mean(values), count = double(values.size());
    double sine = 0.0, cosine = 0.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double window = 1.0 - std::cos(2.0 * pi * double(i) / count);
        sine += window * (values[i] - middle) * std::sin(2.0 * pi * frequency * double(i) / cycleRate);
        cosine += window * (values[i] - middle) * std::cos(2.0 * pi * frequency * double(i) / cycleRate);
    }
    return 2.0 / count * std::hypot(sine, cosine);
}

/// The strongest frequency near this one, Hz.
inline double strongest(const std::vector<double> &values, double near)
{
    double best = near, highest = 0.0;
    for (double share = 0.9; share < 1.1; share += 0.001) {
        const double here = amplitude(values, near * share);
        if (here > highest) {
            highest = here;
            best = near * share;
        }
    }
    return best;
}

/// Change of speed in each cycle as torque, Nm.
inline std::vector<double> accelerationTorque(Axis &axis, int cycles, double inertia)
{
    double before = axis.axis().motor().velocity();
    return record(axis, cycles, [&, inertia] {
        const double now = axis.axis().motor().velocity();
        const double torque = (now - before) / countsPerRadian * cycleRate * cycleRate * inertia;
        before = now;
        return torque;
    });
}

} // namespace machinebench

#endif
