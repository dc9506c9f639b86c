#include "homing.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double switchSpacing = 2.0 * MotorModel::countsPerTurn;
constexpr double nearestSwitch = 0.5 * MotorModel::countsPerTurn;
constexpr double pinBehindSwitch = MotorModel::countsPerTurn;

int signOf(double value)
{
    return value < 0.0 ? -1 : 1;
}

std::int64_t turnOf(const MotorModel &motor)
{
    return static_cast<std::int64_t>(std::floor(motor.angle() / MotorModel::countsPerTurn));
}

} // namespace

void Homing::start(const AxisSettings &settings, std::int64_t position, MotorModel &motor)
{
    const bool inverted = settings.flags & FlagInvertAxis;
    m_direction = signOf(settings.homingVelocity) * (inverted ? -1 : 1);
    const double from = motor.angle() * m_direction + nearestSwitch;
    m_switchAt = std::ceil(from / switchSpacing) * switchSpacing * m_direction;
    motor.setHardStop(m_switchAt + pinBehindSwitch * m_direction, m_direction);

    const bool searches = settings.hardStopThreshold > 0 || settings.homingBits & SwitchSearch;
    enter(Search, position);
    if (!searches)
        leaveSearch(settings, position, motor);
}

void Homing::end(MotorModel &motor)
{
    motor.setHardStop(0.0, 0);
    m_phase = Idle;
    m_direction = 0;
}

bool Homing::isSwitchClosed(const MotorModel &motor) const
{
    return m_direction != 0 && (motor.angle() - m_switchAt) * m_direction >= 0.0;
}

void Homing::enter(Phase phase, std::int64_t position)
{
    m_phase = phase;
    m_target = static_cast<double>(position);
    m_velocity = 0.0;
}

void Homing::leaveSearch(const AxisSettings &settings, std::int64_t position, const MotorModel &motor)
{
    m_turn = turnOf(motor);
    enter(settings.homingBits & IndexSearch ? Index : Offset, position);
    m_end = m_target + settings.homingOffset * settings.countsPerUnit;
}

void Homing::moveTowards(double velocity, double acceleration)
{
    m_velocity += std::clamp(velocity - m_velocity, -acceleration, acceleration);
    m_target += m_velocity;
}

bool Homing::advance(const AxisSettings &settings, std::int64_t position, MotorModel &motor, bool switchInput)
{
    const bool isClosed = switchInput || isSwitchClosed(motor);
    const bool wantsClosed = settings.homingBits & SwitchPositive;
    switch (m_phase) {
    case Idle:
        return false;
    case Search: {
        const bool switchFound = settings.homingBits & SwitchSearch && isClosed == wantsClosed;
        const bool stopFound =
            settings.hardStopThreshold > 0 && std::abs(m_target - double(position)) >= settings.hardStopThreshold;
        if (switchFound || stopFound)
            leaveSearch(settings, position, motor);
        else
            moveTowards(settings.homingVelocity, settings.homingAcceleration);
        return false;
    }
    case Index: {
        const int direction = settings.homingBits & IndexPositive ? 1 : -1;
        if (turnOf(motor) != m_turn) {
            enter(Offset, position);
            m_end = m_target + settings.homingOffset * settings.countsPerUnit;
        } else {
            moveTowards(direction * std::abs(settings.homingVelocity), settings.homingAcceleration);
        }
        return false;
    }
    case Offset:
        return moveOffset(settings);
    }
    return false;
}

/// True when the end of the offset move is reached.
bool Homing::moveOffset(const AxisSettings &settings)
{
    const bool fast = settings.homingBits & FullSpeedOffset;
    const double acceleration = fast ? settings.accelerationLimit : settings.homingAcceleration;
    const double speed = fast ? settings.velocityLimit : std::abs(settings.homingVelocity);
    const double left = m_end - m_target;
    // The speed from which it can still stop at the end, with a cycle in hand.
    const double stoppable = std::max(std::sqrt(2.0 * acceleration * std::abs(left)) - acceleration, 0.0);
    const double wanted = std::min({speed, stoppable, std::abs(left)});
    moveTowards(std::copysign(wanted, left), acceleration);
    if (std::abs(m_end - m_target) > acceleration || std::abs(m_velocity) > acceleration)
        return false;
    m_target = m_end;
    return true;
}

} // namespace sim
