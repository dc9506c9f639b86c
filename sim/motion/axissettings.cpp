#include "axissettings.h"

#include "registerfile.h"
#include "registers.h"

#include <algorithm>

namespace sim {

namespace {

constexpr double bandwidthHz[] = {100, 200, 300, 400, 500, 700, 1000, 1500, 2000, 3000};
constexpr double overCurrentUnit = 0.06; ///< A
constexpr int cyclesPerMillisecondTimesTen = 25;

int cycles(std::int32_t milliseconds)
{
    return milliseconds * cyclesPerMillisecondTimesTen / 10;
}

/// Values forced from outside may be impossible ones: nothing here may divide by them or index with them.
struct Values
{
    const RegisterFile &registers;

    int operator()(int address) const { return registers.value(address); }
    double amperes(int address) const { return registers.value(address) / 1000.0; }
    double divider() const { return std::max(registers.value(reg::Divider), 1); }
};

} // namespace

AxisSettings::AxisSettings(const RegisterFile &registers)
{
    takeControl(registers);
    takeLimits(registers);
    takeMachine(registers);
}

void AxisSettings::takeControl(const RegisterFile &registers)
{
    const Values value{registers};
    flags = value(reg::Flags);
    mode = value(reg::ControlMode);
    setpointInput = value(reg::SetpointInput);
    setpointOffset = value(reg::SetpointOffset);
    countsPerUnit = std::max(value(reg::Multiplier), 1) / value.divider();

    positionGain = value(reg::PositionP) / 4096.0;
    velocityGain = value(reg::VelocityP);
    velocityIntegral = value(reg::VelocityI) / 64.0;
    positionForward = value(reg::PositionFeedForward) / 1024.0;
    velocityForward = value(reg::VelocityFeedForward) / 16.0;
    accelerationForward = value(reg::AccelerationFeedForward);
    torqueBandwidth = bandwidthHz[std::clamp(value(reg::TorqueBandwidth), 0, 9)];

    velocityLimit = value(reg::VelocityLimit) / value.divider();
    accelerationLimit = value(reg::AccelerationLimit) / value.divider();
    stopDeceleration =
        value(reg::StopDeceleration) > 0 ? value(reg::StopDeceleration) / value.divider() : accelerationLimit;
    recoveryVelocity = value(reg::RecoveryVelocity) / value.divider();
}

void AxisSettings::takeLimits(const RegisterFile &registers)
{
    const Values value{registers};
    peakCurrent = value.amperes(reg::PeakCurrent);
    continuousCurrent = value.amperes(reg::ContinuousCurrent);
    homingCurrent = value.amperes(reg::HomingCurrent);
    overCurrent = value(reg::OverCurrentLimit) * overCurrentUnit;
    thermalTime = std::max(value(reg::ThermalTime), 1);

    positionErrorLimit = value(reg::PositionErrorLimit);
    velocityErrorLimit = value(reg::VelocityErrorLimit);
    overSpeed = value(reg::OverSpeedLimit);
    trackingDelay = value(reg::TrackingDelay);
    overVoltage = value(reg::OverVoltageLimit);
    underVoltage = value(reg::UnderVoltageLimit);
    limitSwitches = value(reg::LimitSwitches);
    lowLimit = value(reg::LowLimit);
    highLimit = value(reg::HighLimit);
}

void AxisSettings::takeMachine(const RegisterFile &registers)
{
    const Values value{registers};
    homingBits = value(reg::Homing);
    homingVelocity = value(reg::HomingVelocity) / value.divider();
    homingAcceleration = value(reg::HomingAcceleration) / value.divider();
    hardStopThreshold = value(reg::HomingStopThreshold);
    homingOffset = value(reg::HomingOffset);

    brakeRelease = cycles(value(reg::BrakeReleaseDelay));
    brakeEngage = cycles(value(reg::BrakeEngageDelay));
    brakeStop = cycles(value(reg::BrakeStopDelay));

    motorType = value(reg::MotorType);
    polePairs = value(reg::PolePairs);
    feedbackDevice = value(reg::FeedbackDevice);
    velocityFeedbackDevice = value(reg::VelocityFeedbackDevice);
    feedbackLines = std::max(value(reg::FeedbackLines), 1);
    inputsNormallyOpen = value(reg::InputLogic) == 1;
}

} // namespace sim
