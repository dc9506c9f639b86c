#include "squarewave.h"

#include <cmath>

bool SquareWave::set(double target1, double delay1, double target2, double delay2, bool active)
{
    m_target1 = target1;
    m_delay1 = delay1;
    m_target2 = target2;
    m_delay2 = delay2;
    const bool switchedOff = m_active && !active;
    if (switchedOff)
        m_clock = 0.0;
    m_active = active;
    return switchedOff;
}

void SquareWave::stop()
{
    m_clock = 0.0;
    m_active = false;
}

double SquareWave::next(double streamRate)
{
    m_clock += 1.0 / streamRate;
    const double phase = std::fmod(m_clock, m_delay1 + m_delay2);
    return phase <= m_delay1 ? m_target1 : m_target2;
}
