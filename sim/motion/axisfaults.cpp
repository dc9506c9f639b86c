// What stops the axis, and how it is told.
#include "servoaxis.h"

#include <cmath>

namespace sim {

namespace {

/// Fault location numbers, one a check.
enum Location {
    LocationPositionError = 201,
    LocationVelocityError = 202,
    LocationOverSpeed = 203,
    LocationSoftLimit = 204,
    LocationLimitSwitch = 205,
    LocationOverCurrent = 301,
    LocationUnderVoltage = 302,
    LocationOverVoltage = 303,
    LocationOverTemperature = 304,
    LocationMotorSettings = 401,
    LocationHallSettings = 402,
    LocationFeedbackSettings = 403,
};

constexpr int motorWired = 3;   ///< three-phase AC
constexpr int encoderWired = 1; ///< quadrature

} // namespace

bool ServoAxis::voltagesGood() const
{
    const double centivolts = supplyVolts() * 100.0;
    return centivolts >= m_settings.underVoltage && centivolts <= m_settings.overVoltage;
}

/// Low voltage is a fault only of a drive that is enabled: one that waits for its supply just says so.
void ServoAxis::checkSupply()
{
    m_supplyVolts = supplyVolts();
    const double centivolts = m_supplyVolts * 100.0;
    if (centivolts > m_settings.overVoltage)
        raiseFaults(FaultOverVoltage, LocationOverVoltage);
    if (centivolts < m_settings.underVoltage && isEnabled())
        raiseFaults(FaultUnderVoltage, LocationUnderVoltage);
    if (m_inputs.temperature >= hottestDrive)
        raiseFaults(FaultOverTemperature, LocationOverTemperature);
    if (m_inputs.safeTorqueOff && m_wasRunning)
        raiseFaults(FaultPowerStageOff);
}

/// At the first power to the motor: what is set must be what is wired.
void ServoAxis::checkSettings()
{
    if (m_settings.motorType != motorWired || m_settings.polePairs != static_cast<int>(m_motor.polePairs()))
        raiseFaults(FaultInit, LocationMotorSettings);
    if ((m_settings.flags & FlagHall) && (m_settings.flags & FlagHallInverted))
        raiseFaults(FaultInit, LocationHallSettings);
    if (m_settings.feedbackDevice != encoderWired || m_settings.velocityFeedbackDevice > encoderWired)
        raiseFaults(FaultFeedback, LocationFeedbackSettings);
}

void ServoAxis::checkOverCurrent()
{
    if (std::abs(m_motor.amperes()) > m_settings.overCurrent && m_brake.isPowered())
        raiseFaults(FaultOverCurrent, LocationOverCurrent);
}

void ServoAxis::checkMotion()
{
    if (std::abs(m_velocity) > m_settings.overSpeed)
        raiseFaults(FaultOverVelocity, LocationOverSpeed);
    const bool hasSoftLimits = m_homed && m_settings.lowLimit != m_settings.highLimit;
    if (hasSoftLimits && m_settings.mode == AxisSettings::Position &&
        (m_setpoint < m_settings.lowLimit || m_setpoint > m_settings.highLimit))
        raiseFaults(FaultMotionRange, LocationSoftLimit);
    constexpr std::int32_t bothFeeds = InputPositiveFeed | InputNegativeFeed;
    if (m_settings.limitSwitches == AxisSettings::StopWithFault && !m_homing.isActive() &&
        (controlInputs() & bothFeeds) != bothFeeds)
        raiseFaults(FaultMotionRange, LocationLimitSwitch);
    checkTracking();
}

double ServoAxis::velocityError() const
{
    if (m_settings.mode == AxisSettings::Torque)
        return 0.0;
    return m_loop.commandedVelocity() - static_cast<double>(m_velocity);
}

bool ServoAxis::isTrackingNearFault() const
{
    return std::abs(m_path.error) > m_settings.positionErrorLimit / 2 ||
           std::abs(velocityError()) > m_settings.velocityErrorLimit / 2;
}

void ServoAxis::checkTracking()
{
    // An axis that a limit switch holds is not expected to follow.
    const bool isFar = std::abs(m_path.error) > m_settings.positionErrorLimit && !m_path.isBlocked;
    const bool isOff = std::abs(velocityError()) > m_settings.velocityErrorLimit;
    m_trackingCycles = isFar || isOff ? m_trackingCycles + 1 : 0;
    if (m_trackingCycles > m_settings.trackingDelay)
        raiseFaults(FaultTracking, isFar ? LocationPositionError : LocationVelocityError);
}

} // namespace sim
