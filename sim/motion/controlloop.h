/// \file
/// The cascade: position P with feed-forward, velocity PI with feed-forward, and their limits. One call a cycle.
#ifndef VELBRIN_SIM_CONTROLLOOP_H
#define VELBRIN_SIM_CONTROLLOOP_H

#include "axissettings.h"

namespace sim {

class ControlLoop
{
public:
    /// Begins at this velocity, with nothing accumulated.
    void reset(double velocity = 0.0);

    /// Commanded velocity from position error (counts) and the setpoint's change in this cycle (counts).
    double positionControl(const AxisSettings &settings, double error, double setpointChange) const;

    /// One cycle of the velocity loop. Wanted and measured velocity in counts per cycle, limits positive; gives the
    /// commanded current in 1/560 A.
    double velocityControl(const AxisSettings &settings, double wanted, double measured, double velocityLimit,
                           double accelerationLimit, double currentLimit);

    /// After its limits.
    double commandedVelocity() const { return m_velocity; }
    /// The current limit holds.
    bool isHeld() const { return m_held; }
    /// The integral part, 1/560 A.
    double integral(const AxisSettings &settings) const { return settings.velocityIntegral * m_sum; }

private:
    double m_velocity = 0.0;
    double m_sum = 0.0;
    bool m_held = false;
};

} // namespace sim

#endif
