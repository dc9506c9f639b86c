/// \file
/// The axis' settings in the units in which the loops calculate: counts, control cycles, amperes (peak of sine).
#ifndef VELBRIN_SIM_AXISSETTINGS_H
#define VELBRIN_SIM_AXISSETTINGS_H

#include <cstdint>

namespace sim {

class RegisterFile;

/// Bits of the FLAGS register that change how the axis behaves.
enum AxisFlag : std::int32_t {
    FlagNeedsSoftEnable = 0x0001,
    FlagInvertFeedback = 0x0008,
    FlagInvertAxis = 0x0010,
    FlagNeedsPulses = 0x0020,
    FlagSmoothSetpoint = 0x0800,
    FlagHall = 0x4000,
    FlagHallInverted = 0x2000,
};

struct AxisSettings
{
    enum Mode { Position = 1, Velocity = 2, Torque = 3 };
    enum LimitSwitch { StopAndHold = 1, StopWithFault = 2 }; ///< 0: the switches do nothing

    explicit AxisSettings(const RegisterFile &registers);

    std::int32_t flags;
    int mode;
    int setpointInput;     ///< 0 bus, 3 and 4 the analog inputs
    double setpointOffset; ///< setpoint units added to an analog setpoint
    double countsPerUnit;  ///< MUL/DIV

    // Loops; currents in 1/560 A here, as the gains are defined
    double positionGain, velocityGain, velocityIntegral;
    double positionForward, velocityForward, accelerationForward;
    double torqueBandwidth; ///< Hz

    // Counts per cycle, and per cycle squared
    double velocityLimit, accelerationLimit, stopDeceleration, recoveryVelocity;

    // Amperes, seconds
    double peakCurrent, continuousCurrent, homingCurrent, overCurrent;
    double thermalTime;

    // Fault thresholds: counts, counts per cycle, cycles, 0.01 V
    double positionErrorLimit, velocityErrorLimit, overSpeed;
    int trackingDelay;
    std::int32_t overVoltage, underVoltage;
    int limitSwitches;
    std::int32_t lowLimit, highLimit; ///< setpoint units; equal means off

    // Homing: counts per cycle, counts, setpoint units
    std::int32_t homingBits;
    double homingVelocity, homingAcceleration, hardStopThreshold;
    std::int32_t homingOffset;

    // Cycles
    int brakeRelease, brakeEngage, brakeStop;

    // What the motor is told to be
    int motorType, polePairs, feedbackDevice, velocityFeedbackDevice, feedbackLines;
    bool inputsNormallyOpen;

private:
    void takeControl(const RegisterFile &registers);
    void takeLimits(const RegisterFile &registers);
    void takeMachine(const RegisterFile &registers);
};

} // namespace sim

#endif
