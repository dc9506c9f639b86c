/// \file
/// The test stimulus: a square wave between two setpoints. No lock of its own: the session's mutex guards it.
#ifndef VELBRIN_SESSION_SQUAREWAVE_H
#define VELBRIN_SESSION_SQUAREWAVE_H

class SquareWave
{
public:
    /// Targets in setpoint units, delays in s (how long each target is held). Switching off restarts the clock, so that
    /// the next start begins at target 1. Returns true when an active stimulus has just been switched off: its stream
    /// must then be stopped on the drive.
    bool set(double target1, double delay1, double target2, double delay2, bool active);

    /// Switches off and restarts the clock; targets and delays stay.
    void stop();

    bool isActive() const { return m_active; }

    /// Advances the clock by one period of the stream rate (Hz) and returns the target that holds then. The sample on
    /// the boundary still belongs to target 1.
    double next(double streamRate);

private:
    double m_target1 = 0.0;
    double m_delay1 = 1.0;
    double m_target2 = 0.0;
    double m_delay2 = 1.0;
    double m_clock = 0.0; ///< s
    bool m_active = false;
};

#endif
