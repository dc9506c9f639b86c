#include "recorder.h"

namespace sim {

namespace {

struct Source
{
    std::int32_t bit;
    std::int32_t AxisSignals::*signal;
    bool isUnsigned = false;
};

/// In the order in which they are stored.
constexpr Source sourceTable[] = {
    {0x2, &AxisSignals::torqueSetpoint},     {0x4, &AxisSignals::torque},
    {0x8, &AxisSignals::velocitySetpoint},   {0x10, &AxisSignals::velocity},
    {0x20, &AxisSignals::positionSetpoint},  {0x40, &AxisSignals::position},
    {0x80, &AxisSignals::trackingError},     {0x100, &AxisSignals::outputVoltage},
    {0x200, &AxisSignals::busVoltage, true}, {0x10000, &AxisSignals::pwm1},
    {0x20000, &AxisSignals::pwm2},           {0x40000, &AxisSignals::pwm3},
    {0x80000, &AxisSignals::debug1},         {0x100000, &AxisSignals::debug2},
    {0x800000, &AxisSignals::fluxCurrent},   {0x1000000, &AxisSignals::fluxVoltage},
};

std::int32_t toWord(std::int32_t value, bool isUnsigned)
{
    if (isUnsigned)
        return static_cast<std::uint16_t>(value);
    return static_cast<std::int16_t>(value);
}

} // namespace

bool Recorder::arm(std::int32_t trigger, const AxisSignals &now)
{
    if (trigger == Off) {
        m_state = Off;
        return true;
    }
    std::int32_t known = 0;
    for (const Source &source : sourceTable)
        known |= source.bit;
    if (trigger < SetpointRises || trigger > AtOnce || (m_nextSources & known) == 0)
        return false;
    m_sources = m_nextSources;
    m_divider = m_nextDivider;
    m_state = trigger;
    m_recording = false;
    m_lastSetpoint = now.setpoint;
    m_lastFaults = now.faults;
    m_stored = 0;
    m_periodsToSample = 0;
    return true;
}

void Recorder::tick(const AxisSignals &readings)
{
    if (m_state == Off)
        return;
    if (!m_recording)
        m_recording = triggered(readings);
    m_lastSetpoint = readings.setpoint;
    m_lastFaults = readings.faults;
    if (!m_recording || m_periodsToSample-- > 0)
        return;
    m_periodsToSample = m_divider;
    store(readings);
}

bool Recorder::triggered(const AxisSignals &readings) const
{
    if (m_state == AtOnce)
        return true;
    switch (m_state) {
    case SetpointRises:
        return readings.setpoint > m_lastSetpoint;
    case SetpointChanges:
        return readings.setpoint != m_lastSetpoint;
    default:
        return (readings.faults & ~m_lastFaults) != 0;
    }
}

void Recorder::store(const AxisSignals &readings)
{
    for (const Source &source : sourceTable) {
        if (!(m_sources & source.bit))
            continue;
        m_words[static_cast<std::size_t>(m_stored)] = toWord(readings.*source.signal, source.isUnsigned);
        if (++m_stored == words) {
            m_state = Off;
            return;
        }
    }
}

} // namespace sim
