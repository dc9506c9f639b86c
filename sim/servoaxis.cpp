#include "servoaxis.h"

#include "registerfile.h"
#include "registers.h"

namespace sim {

ServoAxis::ServoAxis(const DriveProfile &profile) : m_profile(profile)
{
    m_inputs.supplyCentivolts = profile.winding.busCentivolts;
}

void ServoAxis::configure(const RegisterFile &registers)
{
    m_flags = registers.value(reg::Flags);
    m_peak = registers.value(reg::PeakCurrent);
}

void ServoAxis::powerUp()
{
    m_softEnable = false;
    m_forced = false;
    m_permanentStop = false;
    m_faults = 0;
    m_setpoint = 0;
}

void ServoAxis::tick()
{
    m_signals.setpoint = m_setpoint;
    m_signals.faults = m_faults;
    m_signals.busVoltage = m_inputs.supplyCentivolts;
}

void ServoAxis::setSoftEnable(bool enable)
{
    m_softEnable = enable;
    if (!enable)
        m_forced = false;
}

void ServoAxis::forceEnable()
{
    m_softEnable = true;
    m_forced = true;
}

void ServoAxis::zero()
{
    m_setpoint = 0;
    m_signals.setpoint = 0;
}

void ServoAxis::raiseFaults(std::int32_t bits)
{
    m_faults |= bits;
}

void ServoAxis::clearFaults()
{
    m_faults = 0;
}

bool ServoAxis::isEnabled() const
{
    const bool softEnabled = m_softEnable || !(m_flags & 1);
    return softEnabled && (controlInputs() & InputEnable) && !m_inputs.safeTorqueOff;
}

std::int32_t ServoAxis::status() const
{
    std::int32_t bits = StatusInitialized | StatusVoltagesGood;
    if (isEnabled())
        bits |= StatusEnabled;
    if (isEnabled() && !m_faults && !m_permanentStop)
        bits |= StatusRun | StatusReady | StatusTargetReached;
    if (m_faults)
        bits |= StatusFaultStopped;
    if (m_permanentStop)
        bits |= StatusPermanentStop;
    if (m_inputs.safeTorqueOff)
        bits |= StatusSto;
    return bits;
}

std::int32_t ServoAxis::currentLimitMilliamperes() const
{
    return m_peak;
}

std::int32_t ServoAxis::controlInputs() const
{
    return m_inputs.controls;
}

} // namespace sim
