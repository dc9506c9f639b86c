#include "trial.h"

#include "driveprofile.h"
#include "registerfile.h"
#include "servoaxis.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr int SettleCycles = 50; // until the enabled axis is at rest

void cycle(sim::ServoAxis &axis)
{
    for (int tick = 0; tick < axis.ticksPerCycle(); ++tick)
        axis.tick();
}

} // namespace

std::vector<sim::AxisSignals> run(const Trial &trial)
{
    const sim::DriveProfile &profile = sim::driveProfiles().front();
    sim::RegisterFile registers(profile);
    for (const Trial::Change &change : trial.changes)
        registers.setValue(change.address, change.value);
    sim::ServoAxis axis(profile, registers);
    axis.powerUp();
    axis.setSoftEnable(true);
    for (int i = 0; i < SettleCycles; ++i)
        cycle(axis);

    std::vector<sim::AxisSignals> signals = {axis.readings()};
    for (int i = 0; i < trial.cycles; ++i) {
        axis.setSetpoint(trial.setpoint(i));
        if (trial.load)
            axis.inputs().loadTorque = trial.load(i);
        cycle(axis);
        signals.push_back(axis.readings());
    }
    return signals;
}

std::vector<double> valuesOf(const std::vector<sim::AxisSignals> &run, std::int32_t sim::AxisSignals::*signal,
                             double scale)
{
    std::vector<double> values;
    for (const sim::AxisSignals &signals : run)
        values.push_back(signals.*signal * scale);
    return values;
}

std::string describeStep(const std::vector<sim::AxisSignals> &run, std::int32_t sim::AxisSignals::*signal,
                         double target)
{
    double rise = -1.0, settled = 0.0, peak = 0.0;
    for (std::size_t i = 0; i < run.size(); ++i) {
        const double value = run[i].*signal / target;
        const double time = i * CycleMs;
        if (rise < 0.0 && value >= 0.9)
            rise = time;
        if (std::abs(value - 1.0) > 0.02)
            settled = time;
        peak = std::max(peak, value);
    }
    char text[160];
    std::snprintf(text, sizeof text, "90 %% after %.1f ms, overshoot %.1f %%, within 2 %% after %.1f ms, faults %d",
                  rise, std::max(0.0, (peak - 1.0) * 100.0), settled, run.back().faults);
    return text;
}
