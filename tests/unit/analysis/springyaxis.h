/// \file
/// Two masses with a spring between them behind the drive's control law: an axis that must not be taken for a stiff one.
#ifndef SPRINGYAXIS_H
#define SPRINGYAXIS_H

#include "axissheet.h"

#include <algorithm>
#include <cmath>

struct SpringyAxis
{
    double hertz = 0.0;   ///< resonance; 0 is stiff
    double ratio = 1.0;   ///< inertia of the load over that of the motor
    double damping = 0.02;
    double gain = 1.0;    ///< share of the gains KPP 120, KVP 360, KVI 360
    double counts = 1900;

    static constexpr double gainOfCurrent = 1000.0 * 10000.0 / 6.283185307179586; ///< counts/s^2 per A, both masses
    static constexpr double dryFriction = 0.2, viscous = 6.283e-7;                ///< A, A per count/s

    AxisRecord record() const;
};

inline AxisRecord SpringyAxis::record() const
{
    constexpr double cycle = 1.0 / 2500;
    constexpr int steps = 40;
    constexpr double h = cycle / steps;
    const double motor = 1.0 / (1.0 + ratio), load = ratio / (1.0 + ratio); // shares of the whole inertia
    const double omega = 6.283185307179586 * hertz, reduced = motor * load;
    double x = 0, v = 0, xLoad = 0, vLoad = 0, current = 0, wanted = 0, followed = 0, sum = 0, last = 0;
    AxisRecord record;
    record.period = cycle;
    for (int k = 0; k < 1000; ++k) {
        const double place = std::floor(x), speed = place - last;
        last = place;
        const double setpoint = k % 500 < 250 ? counts : 0.0;
        const double reach = std::clamp(120.0 / 4096 * gain * (setpoint - place), -200.0, 200.0);
        followed += std::clamp(reach - followed, -1.6, 1.6);
        const double target = wanted;
        sum += followed - speed;
        wanted = std::clamp((360 * gain * (followed - speed) + 360.0 / 64 * gain * sum) / 560, -32.0, 32.0);
        record.torqueSetpoint.push_back(wanted);
        record.position.push_back(place);
        for (int step = 0; step < steps; ++step) {
            current += (target - current) * (1.0 - std::exp(-6283.0 * h));
            const double spring = hertz > 0 ? reduced * (omega * omega * (x - xLoad) + 2 * damping * omega * (v - vLoad)) : 0;
            const double push = gainOfCurrent * (current - viscous * v) - spring, hold = gainOfCurrent * dryFriction;
            const double mass = hertz > 0 ? motor : 1.0;
            const double before = v;
            if (v != 0.0 || std::abs(push) > hold)
                v += (push - std::copysign(hold, v != 0.0 ? v : push)) / mass * h;
            if (before * v < 0.0)
                v = 0.0;
            x += v * h;
            vLoad += hertz > 0 ? spring / load * h : 0.0;
            xLoad += vLoad * h;
        }
        record.torque.push_back(std::round(current * 560) / 560);
    }
    return record;
}

#endif
