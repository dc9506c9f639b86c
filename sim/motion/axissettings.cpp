#include "axissettings.h"

#include "registerfile.h"
#include "registers.h"

#include <algorithm>

namespace sim {

namespace {

constexpr double BandwidthHz[] = {100, 200, 300, 400, 500, 700, 1000, 1500, 2000, 3000};
constexpr double OverCurrentUnit = 0.06; ///< A
constexpr int CyclesPerMillisecondTimesTen = 25;

int cycles(std::int32_t milliseconds)
{
    return milliseconds * CyclesPerMillisecondTimesTen / 10;
}

} // namespace

AxisSettings::AxisSettings(const RegisterFile &registers)
{
    const auto value = [&](int address) { return registers.value(address); };
    // Values forced from outside may be impossible ones: nothing here may divide by them or index with them.
    const double divider = std::max(value(reg::Divider), 1);
    const auto amperes = [&](int address) { return value(address) / 1000.0; };

    flags = value(reg::Flags);
    mode = value(reg::ControlMode);
    setpointInput = value(reg::SetpointInput);
    setpointOffset = value(reg::SetpointOffset);
    countsPerUnit = std::max(value(reg::Multiplier), 1) / divider;

    positionGain = value(reg::PositionP) / 4096.0;
    velocityGain = value(reg::VelocityP);
    velocityIntegral = value(reg::VelocityI) / 64.0;
    positionForward = value(reg::PositionFeedForward) / 1024.0;
    velocityForward = value(reg::VelocityFeedForward) / 16.0;
    accelerationForward = value(reg::AccelerationFeedForward);
    torqueBandwidth = BandwidthHz[std::clamp(value(reg::TorqueBandwidth), 0, 9)];

    velocityLimit = value(reg::VelocityLimit) / divider;
    accelerationLimit = value(reg::AccelerationLimit) / divider;
    stopDeceleration = value(reg::StopDeceleration) > 0 ? value(reg::StopDeceleration) / divider : accelerationLimit;
    recoveryVelocity = value(reg::RecoveryVelocity) / divider;

    peakCurrent = amperes(reg::PeakCurrent);
    continuousCurrent = amperes(reg::ContinuousCurrent);
    homingCurrent = amperes(reg::HomingCurrent);
    overCurrent = value(reg::OverCurrentLimit) * OverCurrentUnit;
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

    homingBits = value(reg::Homing);
    homingVelocity = value(reg::HomingVelocity) / divider;
    homingAcceleration = value(reg::HomingAcceleration) / divider;
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
