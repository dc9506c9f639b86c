/// \file
/// How much current the motor may have now, and why not more.
#ifndef VELBRIN_SIM_CURRENTLIMIT_H
#define VELBRIN_SIM_CURRENTLIMIT_H

#include "axissettings.h"

namespace sim {

enum class LimitReason : std::int32_t {
    None = 0,
    PeakCurrent = 1,
    ContinuousCurrent = 2,
    ThermalModel = 3,
    Temperature = 4,
    SupplyVoltage = 5,
};

class CurrentLimit
{
public:
    /// One control cycle of the motor's warming by this current, A.
    void advance(const AxisSettings &settings, double amperes);
    void reset() { m_heat = 0.0; }

    /// A, peak of sine. `temperature` is the drive's, degrees Celsius.
    double amperes(const AxisSettings &settings, std::int32_t temperature, bool homing) const;
    /// What sets that limit.
    LimitReason reason(const AxisSettings &settings, std::int32_t temperature) const;
    /// 1.0 is the temperature that continuous current would reach.
    double heat() const { return m_heat; }

private:
    double thermalShare() const;

    double m_heat = 0.0;
};

/// Temperature at which the drive stops, degrees Celsius.
constexpr std::int32_t hottestDrive = 85;

} // namespace sim

#endif
