/// \file
/// A second mass behind the motor, on a spring with damping and play: what makes an axis ring.
///
/// Two masses J1 (motor) and J2 = ratio J1 swing against each other at w = sqrt(k (1/J1 + 1/J2)); with the motor held,
/// the load alone swings at w / sqrt(1 + ratio). Integrated semi-implicitly (first the speeds, then the angles with the
/// new speeds), which keeps an undamped swing from growing, in steps short against it.
#ifndef VELBRIN_SIM_SWINGINGLOAD_H
#define VELBRIN_SIM_SWINGINGLOAD_H

#include "machine.h"

namespace sim {

class SwingingLoad
{
public:
    explicit SwingingLoad(const Machine &machine);

    /// Steps into which this time has to be cut.
    int stepsFor(double seconds) const;
    /// Nm with which the spring pushes the load on and the motor back; angles and speed of the motor in rad, rad/s.
    double torque(double motorAngle, double motorSpeed) const;
    /// One short step under the spring's torque and an outside torque against the positive direction, Nm.
    void step(double seconds, double springTorque, double against);

    double angle() const { return m_angle; } ///< rad
    double speed() const { return m_speed; } ///< rad/s
    /// Comes to rest here, rad.
    void restAt(double angle);

private:
    double m_inertia;
    double m_swing; ///< rad/s
    double m_stiffness;
    double m_damping;
    double m_halfPlay; ///< rad
    double m_angle = 0.0;
    double m_speed = 0.0;
};

} // namespace sim

#endif
