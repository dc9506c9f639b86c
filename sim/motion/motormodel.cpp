#include "motormodel.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double Inertia = 1.0e-4;         // kg m², with load
constexpr double DryFriction = 0.02;       // Nm
constexpr double ViscousFriction = 1.0e-4; // Nm s/rad
constexpr double TwoPi = 6.283185307179586;
/// Counts per control cycle that are one rad/s.
constexpr double CountsPerRadian = MotorModel::CountsPerTurn / TwoPi;
constexpr double CountsPerCycle = CountsPerRadian / CycleRate;
/// Sine-commutated three-phase motor: line voltage per speed over torque per phase ampere, and the resistance that a
/// phase current meets between two wires.
constexpr double EmfPerTorque = 1.1547005383792515; // 2 / sqrt 3
constexpr double WirePerPhase = 0.8660254037844386; // sqrt 3 / 2

} // namespace

void MotorModel::drive(double targetAmperes, double bandwidthHz, double busVolts)
{
    m_target = targetAmperes;
    m_bandwidth = bandwidthHz;
    m_busVolts = busVolts;
}

void MotorModel::switchOff()
{
    m_target = 0.0;
    m_voltageLimited = false;
}

double MotorModel::backEmfVolts() const
{
    return EmfPerTorque * m_winding.torquePerAmpere * m_velocity / CountsPerCycle;
}

/// What the bus voltage leaves of the target: against the back-EMF there must be enough to push the current.
double MotorModel::boundedTarget()
{
    const double ohms = WirePerPhase * m_winding.milliOhms / 1000.0;
    const double highest = std::max((m_busVolts - backEmfVolts()) / ohms, 0.0);
    const double lowest = std::min((-m_busVolts - backEmfVolts()) / ohms, 0.0);
    const double bounded = std::clamp(m_target, lowest, highest);
    m_voltageLimited = bounded != m_target;
    return bounded;
}

void MotorModel::step(double seconds, const Load &load)
{
    const double settled = 1.0 - std::exp(-TwoPi * m_bandwidth * seconds);
    m_current += (boundedTarget() - m_current) * settled;
    if (load.locked) {
        m_velocity = 0.0;
        return;
    }
    const double speed = m_velocity / CountsPerCycle; // rad/s
    const double pushing =
        m_winding.torquePerAmpere * m_current * load.commutation - load.torque - ViscousFriction * speed;
    double changed = 0.0;
    if (m_velocity == 0.0) {
        if (std::abs(pushing) > DryFriction)
            changed = speed + (pushing - std::copysign(DryFriction, pushing)) / Inertia * seconds;
    } else {
        changed = speed + (pushing - std::copysign(DryFriction, speed)) / Inertia * seconds;
        // Friction stops, it never turns round.
        if (changed * speed < 0.0 && std::abs(pushing) <= DryFriction)
            changed = 0.0;
    }
    m_velocity = changed * CountsPerCycle;
    m_angle += m_velocity * seconds * CycleRate;
    if (m_stopDirection != 0 && (m_angle - m_stopAt) * m_stopDirection > 0.0) {
        m_angle = m_stopAt;
        m_velocity = 0.0;
    }
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
    const double volts = backEmfVolts() + WirePerPhase * m_winding.milliOhms / 1000.0 * m_current;
    return std::clamp(volts / m_busVolts, -1.0, 1.0);
}

double MotorModel::fluxVoltage() const
{
    if (m_busVolts <= 0.0)
        return 0.0;
    const double electricalSpeed = PolePairs * m_velocity / CountsPerCycle;
    const double volts = -electricalSpeed * WirePerPhase * m_winding.microHenries * 1e-6 * m_current;
    return std::clamp(volts / m_busVolts, -1.0, 1.0);
}

double MotorModel::power() const
{
    return m_winding.torquePerAmpere * m_current * m_velocity / CountsPerCycle;
}

double MotorModel::electricalAngle() const
{
    return std::fmod(PolePairs * m_angle / CountsPerRadian, TwoPi);
}

} // namespace sim
