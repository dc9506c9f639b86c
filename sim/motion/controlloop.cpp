#include "controlloop.h"

#include <algorithm>

namespace sim {

void ControlLoop::reset(double velocity)
{
    m_velocity = velocity;
    m_sum = 0.0;
    m_held = false;
}

double ControlLoop::positionControl(const AxisSettings &settings, double error, double setpointChange) const
{
    return settings.positionGain * error + settings.positionForward * setpointChange;
}

double ControlLoop::velocityControl(const AxisSettings &settings, double wanted, double measured, double velocityLimit,
                                    double accelerationLimit, double currentLimit)
{
    const double limited = std::clamp(wanted, -velocityLimit, velocityLimit);
    const double change = std::clamp(limited - m_velocity, -accelerationLimit, accelerationLimit);
    m_velocity += change;

    const double error = m_velocity - measured;
    const double current = settings.velocityGain * error + settings.velocityIntegral * (m_sum + error) +
                           settings.velocityForward * m_velocity + settings.accelerationForward * change;
    m_held = current > currentLimit || current < -currentLimit;
    // The sum rests while the current is held, or it would have to be unwound afterwards.
    if (!m_held)
        m_sum += error;
    return std::clamp(current, -currentLimit, currentLimit);
}

} // namespace sim
