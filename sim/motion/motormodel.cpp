#include "motormodel.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double twoPi = 6.283185307179586;
/// Counts per control cycle that are one rad/s.
constexpr double countsPerRadian = MotorModel::countsPerTurn / twoPi;
constexpr double countsPerCycle = countsPerRadian / cycleRate;
/// Sine-commutated three-phase motor: line voltage per speed over torque per phase ampere, and the resistance that a
/// phase current meets between two wires.
constexpr double emfPerTorque = 1.1547005383792515; // 2 / sqrt 3
constexpr double wirePerPhase = 0.8660254037844386; // sqrt 3 / 2
constexpr double ripplesPerElectricalTurn = 6.0;    // a ripple each time the current passes from wire to wire
constexpr double cogsPerTurn = 24.0;
constexpr double slippingDrag = 0.02; // Nm s/rad: a slipping brake lets the load sink, not fall
/// Where a hanging load meets the ground.
constexpr double groundCounts = -5.0 * MotorModel::countsPerTurn;

} // namespace

MotorModel::MotorModel(const Winding &winding, const Machine &machine)
    : m_winding(winding), m_machine(machine), m_inertia(machine.inertia)
{
    if (!machine.isTwoMasses())
        return;
    m_load.emplace(machine);
    m_inertia = machine.inertia / (1.0 + machine.inertiaRatio);
}

void MotorModel::drive(double targetAmperes, double bandwidthHz, double busVolts)
{
    m_target = targetAmperes;
    m_bandwidth = bandwidthHz;
    m_busVolts = busVolts;
    m_isPropped = false;
}

void MotorModel::switchOff()
{
    m_target = 0.0;
    m_voltageLimited = false;
}

double MotorModel::backEmfVolts() const
{
    return emfPerTorque * m_winding.torquePerAmpere * m_velocity / countsPerCycle;
}

/// What the bus voltage leaves of the target: against the back-EMF there must be enough to push the current.
double MotorModel::boundedTarget()
{
    const double ohms = wirePerPhase * m_winding.milliOhms / 1000.0;
    const double highest = std::max((m_busVolts - backEmfVolts()) / ohms, 0.0);
    const double lowest = std::min((-m_busVolts - backEmfVolts()) / ohms, 0.0);
    const double bounded = std::clamp(m_target, lowest, highest);
    m_voltageLimited = bounded != m_target;
    return bounded;
}

/// What the current makes, and what the magnets make without any: they hold the rotor in the nearest of their places.
double MotorModel::motorTorque(const Load &load) const
{
    double torque = m_winding.torquePerAmpere * m_current * load.commutation;
    if (m_machine.ripple > 0.0)
        torque *= 1.0 + m_machine.ripple * std::sin(ripplesPerElectricalTurn * electricalAngle());
    if (m_machine.cogging > 0.0)
        torque -= m_machine.cogging * std::sin(cogsPerTurn * m_angle / countsPerRadian);
    return torque;
}

void MotorModel::step(double seconds, const Load &load)
{
    const double settled = 1.0 - std::exp(-twoPi * m_bandwidth * seconds);
    m_current += (boundedTarget() - m_current) * settled;
    const double driving = motorTorque(load);
    const double against = load.torque + (m_isPropped ? 0.0 : m_machine.hanging);
    if (m_load) {
        swing(seconds, driving, against, load);
        return;
    }
    turn(seconds, driving, against, load);
    if (m_machine.hanging > 0.0 && m_angle < groundCounts) {
        m_angle = groundCounts;
        m_velocity = 0.0;
    }
}

/// Motor and load, each under the spring between them.
void MotorModel::swing(double seconds, double driving, double against, const Load &load)
{
    const int steps = m_load->stepsFor(seconds);
    const double part = seconds / steps;
    for (int i = 0; i < steps; ++i) {
        const double spring = m_load->torque(m_angle / countsPerRadian, m_velocity / countsPerCycle);
        turn(part, driving, spring, load);
        m_load->step(part, spring, against);
        if (m_machine.hanging > 0.0 && loadAngle() < groundCounts)
            m_load->restAt(groundCounts / countsPerRadian);
    }
}

/// What is stiff with the motor, under a driving torque and one against it.
void MotorModel::turn(double seconds, double driving, double against, const Load &load)
{
    if (load.locked) {
        m_velocity = 0.0;
        return;
    }
    const double speed = m_velocity / countsPerCycle; // rad/s
    const double dry = m_machine.dryFriction + load.brakeTorque;
    const double viscous = m_machine.viscousFriction + (load.brakeTorque > 0.0 ? slippingDrag : 0.0);
    const double pushing = driving - against - viscous * speed;
    double changed = 0.0;
    if (m_velocity == 0.0) {
        if (std::abs(pushing) > dry)
            changed = speed + (pushing - std::copysign(dry, pushing)) / m_inertia * seconds;
    } else {
        changed = speed + (pushing - std::copysign(dry, speed)) / m_inertia * seconds;
        // Friction stops, it never turns round.
        if (changed * speed < 0.0 && std::abs(pushing) <= dry)
            changed = 0.0;
    }
    m_velocity = changed * countsPerCycle;
    m_angle += m_velocity * seconds * cycleRate;
    if (m_stopDirection != 0 && (m_angle - m_stopAt) * m_stopDirection > 0.0) {
        m_angle = m_stopAt;
        m_velocity = 0.0;
    }
}

double MotorModel::loadAngle() const
{
    return m_load ? m_load->angle() * countsPerRadian : m_angle;
}

void MotorModel::setHardStop(double counts, int direction)
{
    m_stopAt = counts;
    m_stopDirection = direction;
}

std::int64_t MotorModel::counts() const
{
    return static_cast<std::int64_t>(std::floor(m_angle));
}

double MotorModel::torqueVoltage() const
{
    if (m_busVolts <= 0.0)
        return 0.0;
    const double volts = backEmfVolts() + wirePerPhase * m_winding.milliOhms / 1000.0 * m_current;
    return std::clamp(volts / m_busVolts, -1.0, 1.0);
}

double MotorModel::fluxVoltage() const
{
    if (m_busVolts <= 0.0)
        return 0.0;
    const double electricalSpeed = polePairs() * m_velocity / countsPerCycle;
    const double volts = -electricalSpeed * wirePerPhase * m_winding.microHenries * 1e-6 * m_current;
    return std::clamp(volts / m_busVolts, -1.0, 1.0);
}

double MotorModel::power() const
{
    return m_winding.torquePerAmpere * m_current * m_velocity / countsPerCycle;
}

double MotorModel::electricalAngle() const
{
    return std::fmod(polePairs() * m_angle / countsPerRadian, twoPi);
}

} // namespace sim
