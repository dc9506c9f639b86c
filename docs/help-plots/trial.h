/// \file
/// One run of the virtual motor with some settings changed, cycle by cycle.
#ifndef VELBRIN_DOCS_TRIAL_H
#define VELBRIN_DOCS_TRIAL_H

#include "axisstate.h"

#include <functional>
#include <string>
#include <vector>

/// A control cycle, in milliseconds.
constexpr double CycleMs = 0.4;

struct Trial
{
    /// A register and the raw value that it is to have instead of its default.
    struct Change
    {
        int address;
        std::int32_t value;
    };
    std::vector<Change> changes;
    int cycles = 375;
    std::function<std::int32_t(int cycle)> setpoint; ///< in setpoint units, from the first cycle on
    std::function<double(int cycle)> load;           ///< Nm against the positive direction; may be empty
};

/// The signals of the axis enabled and at rest, then at the end of each cycle: one more than there are cycles. A trial
/// that faults goes on with the motor off, as it would.
std::vector<sim::AxisSignals> run(const Trial &trial);

/// One signal of a run, scaled.
std::vector<double> valuesOf(const std::vector<sim::AxisSignals> &run, std::int32_t sim::AxisSignals::*signal,
                             double scale = 1.0);

/// "90 % after .. ms, overshoot .. %, within 2 % after .. ms" of a step to `target`, and the fault bits if any.
std::string describeStep(const std::vector<sim::AxisSignals> &run, std::int32_t sim::AxisSignals::*signal,
                         double target);

#endif
