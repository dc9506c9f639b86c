/// \file
/// What goes into an axis and what can be seen of it: inputs, signals, and the bits of the status and fault registers.
#ifndef VELBRIN_SIM_AXISSTATE_H
#define VELBRIN_SIM_AXISSTATE_H

#include <cstdint>

namespace sim {

enum FaultBit : std::int32_t {
    FaultTracking = 2,
    FaultOverCurrent = 4,
    FaultFeedback = 16,
    FaultOverTemperature = 32,
    FaultUnderVoltage = 64,
    FaultOverVoltage = 128,
    FaultHardware = 512,
    FaultOverVelocity = 1024,
    FaultInit = 2048,
    FaultMotionRange = 8192,
    FaultPowerStageOff = 16384,
};

enum StatusBit : std::int32_t {
    StatusTargetReached = 2,
    StatusRecovering = 4,
    StatusRun = 8,
    StatusEnabled = 16,
    StatusFaultStopped = 32,
    StatusTrackingWarning = 64,
    StatusSto = 128,
    StatusReady = 256,
    StatusBraking = 1024,
    StatusHoming = 2048,
    StatusInitialized = 4096,
    StatusVoltagesGood = 8192,
    StatusPermanentStop = 32768,
};

enum ControlInput : std::int32_t {
    InputEnable = 1,
    InputPositiveFeed = 2,
    InputNegativeFeed = 4,
    InputHomeSwitch = 8,
    InputClearFaults = 16,
};

/// What is wired to the drive. Live registers held from outside end up here.
struct AxisInputs
{
    std::int32_t supplyCentivolts = 0;                                           ///< bus voltage without load, 0.01 V
    std::int32_t temperature = 34;                                               ///< degrees Celsius
    std::int32_t controls = InputEnable | InputPositiveFeed | InputNegativeFeed; ///< inputs with current in them
    std::int32_t analog[2] = {0, 0};                                             ///< millivolts
    bool safeTorqueOff = false;
    double loadTorque = 0.0; ///< Nm against the motor's positive direction
    bool locked = false;     ///< the shaft is held
};

/// What the recorder and the live registers see. Currents in 1/560 A, voltages as 16383 = the whole bus voltage.
struct AxisSignals
{
    std::int32_t setpoint = 0; ///< in use, setpoint units
    std::int32_t faults = 0;
    std::int32_t torqueSetpoint = 0, torque = 0;
    std::int32_t velocitySetpoint = 0, velocity = 0;
    std::int32_t positionSetpoint = 0, position = 0, trackingError = 0;
    std::int32_t outputVoltage = 0, busVoltage = 0; ///< bus voltage in 0.01 V
    std::int32_t pwm1 = 0, pwm2 = 0, pwm3 = 0;      ///< 16384 = 100 %
    std::int32_t debug1 = 0;                        ///< integral part of the velocity loop, 1/560 A
    std::int32_t debug2 = 0;                        ///< motor heat, 1000 = what continuous current leads to
    std::int32_t fluxCurrent = 0, fluxVoltage = 0;
};

} // namespace sim

#endif
