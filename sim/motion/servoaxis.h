/// \file
/// The drive's motion: enable conditions, control loops, limits, faults and homing of one axis.
///
/// Time is the caller's: tick() is one base period of the recorder, and every few of them make a control cycle of
/// 0.4 ms. Positions are counts (a quarter of an encoder line), velocities counts per control cycle.
#ifndef VELBRIN_SIM_SERVOAXIS_H
#define VELBRIN_SIM_SERVOAXIS_H

#include "axissettings.h"
#include "axisstate.h"
#include "controlloop.h"
#include "currentlimit.h"
#include "driveprofile.h"
#include "holdingbrake.h"
#include "homing.h"
#include "machine.h"
#include "motormodel.h"
#include "noise.h"

namespace sim {

class RegisterFile;

class ServoAxis
{
public:
    /// `machine`: what the motor turns and how it is wired; the plain axis where nothing is said.
    ServoAxis(const DriveProfile &profile, const RegisterFile &registers, const Machine &machine = {});

    /// Takes over settings. They act from the next control cycle on.
    void configure(const RegisterFile &registers);
    /// Power-up: everything at rest, faults and enable cleared, position zero.
    void powerUp();
    AxisInputs &inputs() { return m_inputs; }
    const AxisInputs &inputs() const { return m_inputs; }

    /// One base period.
    void tick();
    /// Base periods in a control cycle.
    int ticksPerCycle() const { return m_ticksPerCycle; }

    // --- Commands ---------------------------------------------------------------------------------------------

    void setSoftEnable(bool enable);
    /// Enables also where the enable input would have to pulse.
    void forceEnable();
    bool softEnable() const { return m_enabling.soft; }
    void setSetpoint(std::int32_t setpoint) { m_setpoint = setpoint; }
    std::int32_t setpoint() const { return m_setpoint; }
    /// Position feedback and setpoint to zero, where the axis stands.
    void zero();
    /// False when the motor does not run in position control, or homing is switched off in the settings.
    bool startHoming();
    void abortHoming();
    /// Stops the motor. `location` goes to the fault location register.
    void raiseFaults(std::int32_t bits, int location = 0);
    void clearFaults();
    /// A setting changed that only a restart makes safe again.
    void stopPermanently() { m_enabling.permanentStop = true; }

    // --- State ------------------------------------------------------------------------------------------------

    std::int32_t faults() const { return m_faults; }
    std::int32_t faultLocation() const { return m_faultLocation; }
    std::int32_t status() const;
    /// All enable conditions are met; the motor may still be stopped by a fault.
    bool isEnabled() const;
    const AxisSignals &readings() const { return m_signals; }
    std::int32_t currentLimitMilliamperes() const;
    LimitReason limitReason() const { return m_limitReason; }
    std::int32_t controlInputs() const;
    std::int32_t digitalInputs() const;
    const MotorModel &motor() const { return m_motor; }

private:
    // servoaxis.cpp: one control cycle
    void cycle();
    void begin();
    void measure();
    void control();
    double wantedVelocity();
    void followSetpoint(double &error, double &change);
    void runHoming();
    double blockedBySwitches(double velocity) const;
    double torqueSetpoint() const;
    void readAnalogSetpoint();
    void readClearInput();
    std::int64_t setpointInCounts() const;
    double currentLimitAmperes() const;
    void noteLimit(bool isHeld);

    // axiscommands.cpp
    bool mayRun() const;
    bool isTargetReached() const;
    void updateSignals();

    // axiswiring.cpp
    int axisSign() const;
    int feedbackSign() const;
    std::int64_t readEncoder();
    double supplyVolts() const;
    void sagSupply();
    double commutation() const;
    MotorModel::Load load() const;

    // axisfaults.cpp
    bool voltagesGood() const;
    double velocityError() const;
    bool isTrackingNearFault() const;
    void checkSupply();
    void checkSettings();
    void checkOverCurrent();
    void checkMotion();
    void checkTracking();

    int m_ticksPerCycle;
    double m_tickSeconds;
    AxisSettings m_settings;
    AxisInputs m_inputs;
    AxisSignals m_signals;
    Machine m_machine;
    MotorModel m_motor;
    Noise m_noise;
    ControlLoop m_loop;
    CurrentLimit m_limit;
    HoldingBrake m_brake;
    Homing m_homing;

    struct Enabling
    {
        bool soft = false;          ///< asked for on the bus
        bool forced = false;        ///< also where the enable input would have to pulse
        bool permanentStop = false; ///< until the next power-up
    };
    /// Where the position loop is led. Recovering, blocked and just zeroed may all be true at once.
    struct Path
    {
        double setpoint = 0.0;     ///< that the loops follow, counts
        double error = 0.0;        ///< of the setpoint as it arrives, counts
        bool isRecovering = false; ///< on the way to the setpoint at recovery velocity
        bool isBlocked = false;    ///< by a limit switch
        bool justZeroed = false;   ///< its next change is no motion
    };

    Enabling m_enabling;
    Path m_path;
    bool m_wasRunning = false;
    bool m_homed = false;
    bool m_clearInputWasClosed = false;
    std::int32_t m_faults = 0;
    int m_faultLocation = 0;
    LimitReason m_limitReason = LimitReason::None;

    std::int32_t m_setpoint = 0; ///< setpoint units
    std::int64_t m_position = 0; ///< as fed back
    std::int64_t m_lastEncoder = 0;
    std::int64_t m_velocity = 0;    ///< counts moved in the last cycle
    double m_nextCurrent = 0.0;     ///< commanded in this cycle, acts from the next one on, 1/560 A
    double m_supplyVolts = 0.0;     ///< in this cycle
    double m_sagged = 0.0;          ///< share of the supply that is gone
    double m_commutationFrom = 0.0; ///< where the rotor angle was known
    int m_trackingCycles = 0;
    int m_tick = 0; ///< base periods into the cycle
};

} // namespace sim

#endif
