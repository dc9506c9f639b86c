// Commands to the axis, and what its registers show.
#include "servoaxis.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double currentScale = 560.0;  // counts per ampere
constexpr double fullVoltage = 16383.0; // the whole bus voltage
constexpr double fullDuty = 16384.0;    // 100 %
constexpr double thirdOfTurn = 2.0943951023931953;
constexpr double quarterTurn = 1.5707963267948966;
constexpr double nearTarget = 5.0; ///< counts

std::int32_t rounded(double value)
{
    return static_cast<std::int32_t>(std::lround(std::clamp(value, double(registerMinimum), double(registerMaximum))));
}

} // namespace

void ServoAxis::setSoftEnable(bool enable)
{
    m_enabling.soft = enable;
    if (!enable)
        m_enabling.forced = false;
}

void ServoAxis::forceEnable()
{
    m_enabling.soft = true;
    m_enabling.forced = true;
}

void ServoAxis::zero()
{
    m_setpoint = 0;
    m_position = 0;
    m_path.setpoint = 0.0;
    m_path.isRecovering = false;
    m_path.justZeroed = true;
    updateSignals();
}

bool ServoAxis::startHoming()
{
    const bool mayHome = m_brake.isFree() && m_settings.mode == AxisSettings::Position;
    if (!mayHome || !(m_settings.homingBits & Homing::Enabled))
        return false;
    m_homed = false;
    m_path.isRecovering = false;
    m_homing.start(m_settings, m_position, m_motor);
    return true;
}

void ServoAxis::abortHoming()
{
    if (!m_homing.isActive())
        return;
    m_homing.end(m_motor);
    // Stays where it is: what the setpoint was before has no meaning any more.
    m_setpoint = static_cast<std::int32_t>(std::lround(double(m_position) / m_settings.countsPerUnit));
    m_path.setpoint = static_cast<double>(m_position);
    m_path.isRecovering = true;
}

void ServoAxis::raiseFaults(std::int32_t bits, int location)
{
    if ((bits & ~m_faults) && location)
        m_faultLocation = location;
    m_faults |= bits;
    m_signals.faults = m_faults;
}

void ServoAxis::clearFaults()
{
    m_faults = 0;
    m_faultLocation = 0;
    m_signals.faults = 0;
}

std::int32_t ServoAxis::currentLimitMilliamperes() const
{
    return rounded(currentLimitAmperes() * 1000.0);
}

bool ServoAxis::isEnabled() const
{
    const bool softEnabled = m_enabling.soft || !(m_settings.flags & FlagNeedsSoftEnable);
    // Nothing here pulses the enable input.
    const bool pulsed = m_enabling.forced || !(m_settings.flags & FlagNeedsPulses);
    return softEnabled && pulsed && (controlInputs() & InputEnable);
}

bool ServoAxis::mayRun() const
{
    return isEnabled() && m_faults == 0 && !m_enabling.permanentStop && !m_inputs.safeTorqueOff && voltagesGood();
}

bool ServoAxis::isTargetReached() const
{
    return m_settings.mode == AxisSettings::Position && !m_homing.isActive() && !m_path.isRecovering &&
           std::abs(m_path.error) <= nearTarget && std::abs(m_velocity) <= 1;
}

std::int32_t ServoAxis::status() const
{
    const bool isRunning = m_brake.isPowered() && m_faults == 0;
    const bool isHomedAsAsked = m_homed || !(m_settings.homingBits & Homing::AtPowerOn);
    const struct
    {
        bool isSet;
        std::int32_t bit;
    } bits[] = {
        {true, StatusInitialized},
        {voltagesGood(), StatusVoltagesGood},
        {isEnabled(), StatusEnabled},
        {isRunning, StatusRun},
        {isRunning && m_brake.isFree() && !m_homing.isActive() && isHomedAsAsked, StatusReady},
        {isRunning && isTargetReached(), StatusTargetReached},
        {isRunning && m_path.isRecovering, StatusRecovering},
        {isRunning && isTrackingNearFault(), StatusTrackingWarning},
        {m_homing.isActive(), StatusHoming},
        {m_brake.isBraking(), StatusBraking},
        {m_faults != 0, StatusFaultStopped},
        {m_enabling.permanentStop, StatusPermanentStop},
        {m_inputs.safeTorqueOff, StatusSto},
    };
    std::int32_t status = 0;
    for (const auto &bit : bits)
        status |= bit.isSet ? bit.bit : 0;
    return status;
}

void ServoAxis::updateSignals()
{
    const int sign = axisSign();
    const double voltage = m_brake.isPowered() ? m_motor.torqueVoltage() : 0.0;
    m_signals.setpoint = m_setpoint;
    m_signals.faults = m_faults;
    m_signals.torqueSetpoint = rounded(m_nextCurrent);
    m_signals.torque = rounded(m_motor.amperes() * currentScale * sign);
    m_signals.velocitySetpoint = rounded(m_loop.commandedVelocity());
    m_signals.velocity = rounded(static_cast<double>(m_velocity));
    m_signals.position = rounded(static_cast<double>(m_position));
    m_signals.positionSetpoint = m_brake.isPowered() ? rounded(m_path.setpoint) : rounded(double(setpointInCounts()));
    m_signals.trackingError = rounded(m_path.error);
    m_signals.outputVoltage = rounded(voltage * fullVoltage * sign);
    m_signals.busVoltage = rounded(supplyVolts() * 100.0);
    m_signals.fluxVoltage = m_brake.isPowered() ? rounded(m_motor.fluxVoltage() * fullVoltage) : 0;
    m_signals.debug1 = rounded(m_loop.integral(m_settings));
    m_signals.debug2 = rounded(m_limit.heat() * 1000.0);
    std::int32_t *const duties[] = {&m_signals.pwm1, &m_signals.pwm2, &m_signals.pwm3};
    for (int phase = 0; phase < 3; ++phase) {
        const double angle = m_motor.electricalAngle() + quarterTurn - phase * thirdOfTurn;
        *duties[phase] = m_brake.isPowered() ? rounded(fullDuty / 2 * (1.0 + voltage * std::sin(angle))) : 0;
    }
}

} // namespace sim
