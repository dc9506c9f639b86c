/// \file
/// The holding brake's timing: it opens a while after the motor is powered and closes before the power goes. With all
/// delays at 0 there is no brake.
#ifndef VELBRIN_SIM_HOLDINGBRAKE_H
#define VELBRIN_SIM_HOLDINGBRAKE_H

#include "axissettings.h"

namespace sim {

class HoldingBrake
{
public:
    /// One control cycle. `wanted`: the motor is to run; `fault`: power must go at once.
    void advance(const AxisSettings &settings, bool wanted, bool fault);
    void reset() { *this = HoldingBrake(); }

    /// The motor has power.
    bool isPowered() const { return m_state != Off; }
    /// The shaft is held.
    bool isClosed() const { return m_exists && (m_state == Off || m_state == Opening || m_state == Closing); }
    /// The axis is brought to a standstill before the brake closes.
    bool isStopping() const { return m_state == Stopping; }
    /// Setpoints are followed.
    bool isFree() const { return m_state == Running; }
    bool isBraking() const { return isClosed() || isStopping(); }

private:
    enum State { Off, Opening, Running, Stopping, Closing };
    void enter(State state, int cycles);

    State m_state = Off;
    int m_left = 0;
    bool m_exists = false;
};

} // namespace sim

#endif
