#include "servoaxis.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double currentScale = 560.0; ///< counts per ampere
constexpr double fullScale = 16384.0;  ///< setpoint of full velocity or torque
constexpr int smoothingCycles = 8;
constexpr double millivoltsFullScale = 10000.0;

} // namespace

ServoAxis::ServoAxis(const DriveProfile &profile, const RegisterFile &registers, const Machine &machine)
    : m_ticksPerCycle(profile.recorderRate / cycleRate), m_tickSeconds(1.0 / profile.recorderRate),
      m_settings(registers), m_machine(machine), m_motor(profile.winding, machine), m_noise(std::uint32_t(machine.seed))
{
    m_inputs.supplyCentivolts = profile.winding.busCentivolts;
    updateSignals();
}

void ServoAxis::configure(const RegisterFile &registers)
{
    m_settings = AxisSettings(registers);
}

void ServoAxis::powerUp()
{
    m_enabling = {};
    m_path = {};
    m_wasRunning = m_homed = false;
    m_faults = 0;
    m_faultLocation = 0;
    m_limitReason = LimitReason::None;
    m_homing.end(m_motor);
    m_brake.reset();
    m_limit.reset();
    m_loop.reset();
    m_motor.switchOff();
    m_nextCurrent = 0.0;
    m_trackingCycles = 0;
    m_velocity = 0;
    m_lastEncoder = m_motor.counts();
    zero();
}

void ServoAxis::tick()
{
    if (m_tick == 0)
        cycle();
    m_tick = (m_tick + 1) % m_ticksPerCycle;

    m_motor.step(m_tickSeconds, load());
    updateSignals();
    checkOverCurrent();
}

/// Everything that happens once in 0.4 ms.
void ServoAxis::cycle()
{
    readAnalogSetpoint();
    measure();
    m_limit.advance(m_settings, m_motor.amperes());
    sagSupply();
    checkSupply();
    readClearInput();
    m_brake.advance(m_settings, mayRun(), m_faults != 0 || m_inputs.safeTorqueOff || m_enabling.permanentStop);
    const bool isRunning = m_brake.isPowered();
    if (isRunning && !m_wasRunning)
        begin();
    m_wasRunning = isRunning;
    if (!isRunning) {
        m_homing.end(m_motor);
        m_path.isRecovering = false;
        m_nextCurrent = 0.0;
        m_loop.reset();
        m_motor.switchOff();
        m_path.error = 0.0;
        return;
    }
    // What was commanded in the last cycle acts in this one.
    m_motor.drive(m_nextCurrent / currentScale * axisSign(), m_settings.torqueBandwidth, m_supplyVolts);
    control();
    checkMotion();
}

/// The motor has just been powered: start from where it is.
void ServoAxis::begin()
{
    checkSettings();
    m_loop.reset(static_cast<double>(m_velocity));
    m_path.setpoint = static_cast<double>(m_position);
    m_path.isRecovering = m_settings.mode == AxisSettings::Position && setpointInCounts() != m_position;
    m_trackingCycles = 0;
    m_limitReason = LimitReason::None;
    m_commutationFrom = m_motor.angle();
    if ((m_settings.homingBits & Homing::AtPowerOn) && !m_homed)
        startHoming();
}

/// Position feedback: what the encoder moved since the last cycle, with the signs that the settings give it.
void ServoAxis::measure()
{
    const std::int64_t encoder = readEncoder();
    m_velocity = (encoder - m_lastEncoder) * feedbackSign();
    m_lastEncoder = encoder;
    m_position += m_velocity;
}

void ServoAxis::control()
{
    const double limit = currentLimitAmperes();
    if (m_settings.mode == AxisSettings::Torque && m_brake.isFree()) {
        const double wanted = torqueSetpoint();
        m_path.setpoint = static_cast<double>(m_position);
        m_path.error = 0.0;
        m_loop.reset(static_cast<double>(m_velocity));
        m_nextCurrent = std::clamp(wanted, -limit, limit) * currentScale;
        noteLimit(std::abs(wanted) > limit);
        return;
    }
    const double free = wantedVelocity();
    const double wanted = blockedBySwitches(free);
    m_path.isBlocked = wanted != free;
    const bool isStop = m_brake.isStopping() || m_path.isBlocked;
    m_nextCurrent = m_loop.velocityControl(m_settings, wanted, static_cast<double>(m_velocity),
                                           m_path.isRecovering ? m_settings.recoveryVelocity : m_settings.velocityLimit,
                                           isStop ? m_settings.stopDeceleration : m_settings.accelerationLimit,
                                           limit * currentScale);
    noteLimit(m_loop.isHeld());
}

double ServoAxis::wantedVelocity()
{
    m_path.error = 0.0;
    if (m_settings.mode != AxisSettings::Position || m_brake.isStopping())
        m_path.setpoint = static_cast<double>(m_position);
    if (m_brake.isStopping())
        return 0.0;
    if (m_settings.mode == AxisSettings::Velocity)
        return m_setpoint / fullScale * m_settings.velocityLimit * m_settings.countsPerUnit;
    double error = 0.0, change = 0.0;
    followSetpoint(error, change);
    return m_loop.positionControl(m_settings, error, change);
}

/// Moves the setpoint that the position loop follows, and tells its distance and its change in this cycle.
void ServoAxis::followSetpoint(double &error, double &change)
{
    const double before = m_path.setpoint;
    const double arrived = static_cast<double>(setpointInCounts());
    if (m_homing.isActive()) {
        runHoming();
    } else if (m_path.isRecovering) {
        const double step = m_settings.recoveryVelocity;
        m_path.setpoint += std::clamp(arrived - m_path.setpoint, -step, step);
        m_path.isRecovering = m_path.setpoint != arrived;
    } else if (m_brake.isFree()) {
        m_path.setpoint = m_settings.flags & FlagSmoothSetpoint
                              ? m_path.setpoint + (arrived - m_path.setpoint) / smoothingCycles
                              : arrived;
    }
    const double position = static_cast<double>(m_position);
    const bool ownPath = m_homing.isActive() || m_path.isRecovering || !m_brake.isFree();
    m_path.error = (ownPath ? m_path.setpoint : arrived) - position;
    error = m_path.setpoint - position;
    // The jump to zero at the end of homing is none of the axis.
    change = m_path.justZeroed ? 0.0 : m_path.setpoint - before;
    m_path.justZeroed = false;
}

void ServoAxis::runHoming()
{
    const bool isDone = m_homing.advance(m_settings, m_position, m_motor, controlInputs() & InputHomeSwitch);
    m_path.setpoint = m_homing.target();
    if (!isDone)
        return;
    m_homing.end(m_motor);
    m_position -= std::llround(m_path.setpoint);
    m_path.setpoint = 0.0;
    m_setpoint = 0;
    m_homed = true;
    m_path.justZeroed = true;
}

/// A feed input without current stops motion in its direction.
double ServoAxis::blockedBySwitches(double velocity) const
{
    if (m_settings.limitSwitches != AxisSettings::StopAndHold || m_homing.isActive())
        return velocity;
    if (velocity > 0.0 && !(controlInputs() & InputPositiveFeed))
        return 0.0;
    if (velocity < 0.0 && !(controlInputs() & InputNegativeFeed))
        return 0.0;
    return velocity;
}

double ServoAxis::torqueSetpoint() const
{
    return m_setpoint / fullScale * m_settings.peakCurrent * m_settings.countsPerUnit;
}

void ServoAxis::readAnalogSetpoint()
{
    constexpr int firstAnalog = 3;
    const int input = m_settings.setpointInput - firstAnalog;
    if (input == 0 || input == 1)
        m_setpoint = static_cast<std::int32_t>(
            std::lround(m_inputs.analog[input] / millivoltsFullScale * fullScale + m_settings.setpointOffset));
}

/// Closing the input clears; holding it closed does not keep the axis clear.
void ServoAxis::readClearInput()
{
    const bool isClosed = controlInputs() & InputClearFaults;
    if (isClosed && !m_clearInputWasClosed)
        clearFaults();
    m_clearInputWasClosed = isClosed;
}

std::int64_t ServoAxis::setpointInCounts() const
{
    return static_cast<std::int64_t>(std::floor(m_setpoint * m_settings.countsPerUnit));
}

double ServoAxis::currentLimitAmperes() const
{
    return m_limit.amperes(m_settings, m_inputs.temperature, m_homing.isActive());
}

void ServoAxis::noteLimit(bool isHeld)
{
    if (m_motor.isVoltageLimited())
        m_limitReason = LimitReason::SupplyVoltage;
    else if (isHeld)
        m_limitReason = m_limit.reason(m_settings, m_inputs.temperature);
}

} // namespace sim
