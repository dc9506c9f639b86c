#include "currentlimit.h"

#include "driveprofile.h"

#include <algorithm>

namespace sim {

namespace {

constexpr double fadeFrom = 0.95; ///< heat at which the peak current begins to give way to the continuous one
constexpr std::int32_t warmDrive = 70;
constexpr double leastAmperes = 0.001;

double temperatureShare(std::int32_t temperature)
{
    // Down to half the current at the temperature where the drive gives up.
    const double over = double(temperature - warmDrive) / (hottestDrive - warmDrive);
    return 1.0 - 0.5 * std::clamp(over, 0.0, 1.0);
}

} // namespace

void CurrentLimit::advance(const AxisSettings &settings, double amperes)
{
    const double ratio = amperes / std::max(settings.continuousCurrent, leastAmperes);
    m_heat += (std::min(ratio * ratio, 1e6) - m_heat) / (settings.thermalTime * cycleRate);
}

/// 1 while the motor is cool, 0 when only continuous current is left.
double CurrentLimit::thermalShare() const
{
    return std::clamp((1.0 - m_heat) / (1.0 - fadeFrom), 0.0, 1.0);
}

double CurrentLimit::amperes(const AxisSettings &settings, std::int32_t temperature, bool homing) const
{
    const double continuous = std::min(settings.continuousCurrent, settings.peakCurrent);
    double limit = continuous + thermalShare() * (settings.peakCurrent - continuous);
    limit *= temperatureShare(temperature);
    return homing ? std::min(limit, settings.homingCurrent) : limit;
}

LimitReason CurrentLimit::reason(const AxisSettings &settings, std::int32_t temperature) const
{
    if (temperatureShare(temperature) < 1.0)
        return LimitReason::Temperature;
    if (thermalShare() >= 1.0 || settings.continuousCurrent >= settings.peakCurrent)
        return LimitReason::PeakCurrent;
    return thermalShare() > 0.0 ? LimitReason::ThermalModel : LimitReason::ContinuousCurrent;
}

} // namespace sim
