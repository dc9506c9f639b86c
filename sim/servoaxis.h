/// \file
/// The drive's motion: enable conditions, control loops, limits, faults and homing of one axis.
///
/// Time is the caller's: tick() is one base period of the recorder, and every few of them make a control cycle of
/// 0.4 ms. Positions are counts (a quarter of an encoder line), velocities counts per control cycle.
#ifndef SIM_SERVOAXIS_H
#define SIM_SERVOAXIS_H

#include "driveprofile.h"

namespace sim {

class RegisterFile;

enum FaultBit : std::int32_t {
    FaultTracking = 2,
    FaultOverCurrent = 4,
    FaultBus = 8,
    FaultFeedback = 16,
    FaultOverTemperature = 32,
    FaultUnderVoltage = 64,
    FaultOverVoltage = 128,
    FaultFirmware = 256,
    FaultHardware = 512,
    FaultOverVelocity = 1024,
    FaultInit = 2048,
    FaultMotion = 4096,
    FaultMotionRange = 8192,
    FaultPowerStageOff = 16384,
    FaultInternalComm = 32768,
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

/// What is wired to the drive. Live registers held from outside end up here.
struct AxisInputs
{
    std::int32_t supplyCentivolts = 0; ///< nominal bus voltage, 0.01 V
    std::int32_t temperature = 34;     ///< degrees Celsius
    std::int32_t controls = 7;         ///< bits of register 963, true while current flows in the input
    std::int32_t analog[2] = {0, 0};   ///< millivolts
    bool safeTorqueOff = false;
    double loadTorque = 0.0; ///< Nm against the positive direction
    bool locked = false;     ///< the shaft is held
};

enum ControlInput : std::int32_t {
    InputEnable = 1,
    InputPositiveFeed = 2,
    InputNegativeFeed = 4,
    InputHomeSwitch = 8,
    InputClearFaults = 16,
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
    std::int32_t debug1 = 0, debug2 = 0;
    std::int32_t fluxCurrent = 0, fluxVoltage = 0;
};

enum class LimitReason : std::int32_t {
    None = 0,
    PeakCurrent = 1,
    ContinuousCurrent = 2,
    ThermalModel = 3,
    Temperature = 4,
    SupplyVoltage = 5,
};

class ServoAxis
{
public:
    explicit ServoAxis(const DriveProfile &profile);

    /// Takes over settings. They act from the next control cycle on.
    void configure(const RegisterFile &registers);
    /// Power-up: everything at rest, faults and enable cleared, position zero.
    void powerUp();
    AxisInputs &inputs() { return m_inputs; }
    const AxisInputs &inputs() const { return m_inputs; }

    /// One base period.
    void tick();
    /// Base periods in a control cycle.
    int ticksPerCycle() const { return m_profile.recorderRate / CycleRate; }

    // --- Commands ---------------------------------------------------------------------------------------------

    void setSoftEnable(bool enable);
    /// Enables also where the enable input would have to pulse.
    void forceEnable();
    bool softEnable() const { return m_softEnable; }
    void setSetpoint(std::int32_t setpoint) { m_setpoint = setpoint; }
    std::int32_t setpoint() const { return m_setpoint; }
    /// Position feedback and setpoint to zero, where the axis stands.
    void zero();
    void raiseFaults(std::int32_t bits);
    void clearFaults();
    /// A setting changed that only a restart makes safe again.
    void stopPermanently() { m_permanentStop = true; }

    // --- State ------------------------------------------------------------------------------------------------

    std::int32_t faults() const { return m_faults; }
    std::int32_t status() const;
    /// All enable conditions are met; the motor may still be stopped by a fault.
    bool isEnabled() const;
    const AxisSignals &signals() const { return m_signals; }
    std::int32_t currentLimitMilliamperes() const;
    LimitReason limitReason() const { return m_limitReason; }
    std::int32_t controlInputs() const;
    std::int32_t digitalInputs() const { return 0; }
    std::int32_t faultLocation() const { return 0; }

private:
    DriveProfile m_profile;
    AxisInputs m_inputs;
    AxisSignals m_signals;
    bool m_softEnable = false;
    bool m_forced = false;
    bool m_permanentStop = false;
    std::int32_t m_setpoint = 0;
    std::int32_t m_faults = 0;
    LimitReason m_limitReason = LimitReason::None;
    std::int32_t m_flags = 1;
    std::int32_t m_peak = 0;
};

} // namespace sim

#endif
