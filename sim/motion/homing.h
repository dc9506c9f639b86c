/// \file
/// The search for the home position: home switch or hard stop, then index pulse, then the offset move.
///
/// The simulated machine always has something to find: while homing runs, a switch closes at the next even revolution
/// in the direction of the search and a stop pin stands one revolution behind it. Both are gone afterwards, so that
/// the axis turns freely.
#ifndef VELBRIN_SIM_HOMING_H
#define VELBRIN_SIM_HOMING_H

#include "axissettings.h"
#include "motormodel.h"

namespace sim {

class Homing
{
public:
    enum Bit : std::int32_t {
        IndexPositive = 0x02,
        SwitchPositive = 0x04,
        SwitchSearch = 0x08,
        IndexSearch = 0x10,
        AtPowerOn = 0x20,
        FullSpeedOffset = 0x40,
        Enabled = 0x80,
    };

    /// `position`: as fed back now. The machine's switch and stop are set up on the motor.
    void start(const AxisSettings &settings, std::int64_t position, MotorModel &motor);
    /// Ends the search and clears the machine away.
    void end(MotorModel &motor);
    bool isActive() const { return m_phase != Idle; }

    /// One control cycle. Gives true when it is complete: the position then becomes zero at target().
    bool advance(const AxisSettings &settings, std::int64_t position, MotorModel &motor, bool switchInput);
    /// Where the axis is to be now, in counts of the position feedback.
    double target() const { return m_target; }
    /// The machine's home switch is closed.
    bool isSwitchClosed(const MotorModel &motor) const;

private:
    enum Phase { Idle, Search, Index, Offset };

    void moveTowards(double velocity, double acceleration);
    void enter(Phase phase, std::int64_t position);
    void leaveSearch(const AxisSettings &settings, std::int64_t position, const MotorModel &motor);
    bool moveOffset(const AxisSettings &settings);

    Phase m_phase = Idle;
    double m_target = 0.0;
    double m_velocity = 0.0;
    double m_end = 0.0;
    double m_switchAt = 0.0;
    int m_direction = 0; ///< of the motor, while the machine's switch and pin are out
    std::int64_t m_turn = 0;
};

} // namespace sim

#endif
