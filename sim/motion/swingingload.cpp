#include "swingingload.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double twoPi = 6.283185307179586;
constexpr double radiansPerCount = twoPi / 10000.0;
constexpr double stiffHz = 300.0;      ///< of a coupling that has play but was not said to be soft
constexpr double longestStep = 0.0625; ///< of the swing, rad: its frequency comes out within 0.02 %

} // namespace

SwingingLoad::SwingingLoad(const Machine &machine)
    : m_inertia(machine.inertia * machine.inertiaRatio / (1.0 + machine.inertiaRatio)),
      m_swing(twoPi * (machine.springHz > 0.0 ? machine.springHz : stiffHz)),
      m_halfPlay(machine.backlash / 2.0 * radiansPerCount)
{
    // What swings is the reduced mass J1 J2 / (J1 + J2).
    const double reduced = m_inertia / (1.0 + machine.inertiaRatio);
    m_stiffness = m_swing * m_swing * reduced;
    m_damping = 2.0 * machine.springDamping * m_swing * reduced;
}

int SwingingLoad::stepsFor(double seconds) const
{
    return std::max(1, static_cast<int>(std::ceil(m_swing * seconds / longestStep)));
}

double SwingingLoad::torque(double motorAngle, double motorSpeed) const
{
    const double twist = motorAngle - m_angle;
    const double beyond = std::max(std::abs(twist) - m_halfPlay, 0.0);
    if (m_halfPlay > 0.0 && beyond == 0.0)
        return 0.0;
    const double torque = std::copysign(m_stiffness * beyond, twist) + m_damping * (motorSpeed - m_speed);
    // Flanks with play between them push, they never pull.
    return m_halfPlay > 0.0 && torque * twist < 0.0 ? 0.0 : torque;
}

void SwingingLoad::step(double seconds, double springTorque, double against)
{
    m_speed += (springTorque - against) / m_inertia * seconds;
    m_angle += m_speed * seconds;
}

void SwingingLoad::restAt(double angle)
{
    m_angle = angle;
    m_speed = 0.0;
}

} // namespace sim
