#include "holdingbrake.h"

namespace sim {

void HoldingBrake::enter(State state, int cycles)
{
    m_state = state;
    m_left = cycles;
}

void HoldingBrake::advance(const AxisSettings &settings, bool wanted, bool fault)
{
    m_exists = settings.brakeRelease > 0 || settings.brakeEngage > 0 || settings.brakeStop > 0;
    if (fault) {
        enter(Off, 0);
        return;
    }
    if (wanted && (m_state == Off || m_state == Stopping || m_state == Closing))
        enter(Opening, settings.brakeRelease);
    else if (!wanted && (m_state == Opening || m_state == Running))
        enter(Stopping, settings.brakeStop);

    if (m_left-- > 0)
        return;
    // Without delays the steps follow each other in one cycle.
    if (m_state == Opening)
        enter(Running, 0);
    if (m_state == Stopping)
        enter(Closing, settings.brakeEngage);
    if (m_state == Closing && m_left-- <= 0)
        enter(Off, 0);
}

} // namespace sim
