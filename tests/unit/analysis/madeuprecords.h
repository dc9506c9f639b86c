/// \file
/// Steps that never happened: second-order answers with all that can be wrong with a record.
#ifndef VELBRIN_TESTS_MADEUPRECORDS_H
#define VELBRIN_TESTS_MADEUPRECORDS_H

#include "stepfigures.h"

#include <cmath>
#include <random>

enum class Made { Clean, Noisy, Unsettled, Reversed, Saturated, CutOff };
constexpr Made everyKind[] = {Made::Clean, Made::Noisy, Made::Unsettled, Made::Reversed, Made::Saturated, Made::CutOff};

struct MadeUp
{
    StepRecord record;
    double damping = 1.0;
    double hertz = 0.0; ///< of the swing that damping leaves
};

/// y of a second-order system t seconds after a step of 1 (G. Franklin et al., "Feedback Control of Dynamic Systems").
inline double secondOrder(double t, double damping, double omega)
{
    if (t <= 0.0)
        return 0.0;
    if (damping >= 1.0)
        return 1.0 - (1.0 + omega * t) * std::exp(-omega * t);
    const double swing = omega * std::sqrt(1.0 - damping * damping);
    return 1.0 - std::exp(-damping * omega * t) * (std::cos(swing * t) + damping * omega / swing * std::sin(swing * t));
}

inline MadeUp makeUp(Made kind, unsigned seed)
{
    std::mt19937 random(seed * 6 + unsigned(kind));
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    MadeUp made;
    StepRecord &record = made.record;
    made.damping = kind == Made::Unsettled ? between(-0.02, 0.02) : between(0.0, 1.0) < 0.5 ? between(0.05, 0.3) : 1.0;
    const double omega = between(60.0, 500.0);
    made.hertz = omega * std::sqrt(1.0 - made.damping * made.damping) / 6.283185307179586;
    record.period = 1.0 / between(1000.0, 5000.0);
    const int count = kind == Made::CutOff ? int(between(60, 250)) : int(between(400, 1000));
    const int start = int(between(1, 50));
    const int from = int(between(-3000, 3000)), height = int(between(100, 5000)) * (kind == Made::Reversed ? -1 : 1);
    const double direction = kind == Made::Reversed && seed % 4 == 0 ? -1.0 : 1.0; // a wrongly connected encoder
    const double noise = kind == Made::Noisy ? between(0.5, 3.0) : 0.0;
    record.currentLimit = 5.0;
    std::normal_distribution<double> normal(0.0, 1.0);
    for (int k = 0; k < count; ++k) {
        const double t = (k - start) * record.period;
        double y = secondOrder(t, made.damping, omega);
        if (kind == Made::Saturated) // as fast as the current allows, no faster
            y = std::min(std::max(t, 0.0) * omega / 10.0, 1.0);
        record.setpoint.push_back(k < start ? from : from + height);
        record.measured.push_back(std::round(from + direction * y * height + noise * normal(random)));
        record.torqueSetpoint.push_back(kind == Made::Saturated && t > 0.0 && y < 1.0 ? 5.0 - 0.001 * (seed % 2) : 1.5);
    }
    return made;
}

#endif
