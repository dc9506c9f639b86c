/// \file
/// What is bolted and wired to the motor: the plain axis, or one that misbehaves.
///
/// Torques in Nm at the shaft, angles in counts (10000 a revolution). The whole inertia stays the same when a part of
/// it hangs on a spring, so that gains mean the same on every axis.
#ifndef VELBRIN_SIM_MACHINE_H
#define VELBRIN_SIM_MACHINE_H

#include <string>

namespace sim {

struct Machine
{
    // Mechanics
    double inertia = 1.0e-4;         ///< of everything that turns, kg m²
    double dryFriction = 0.02;       ///< at the motor, either way
    double viscousFriction = 1.0e-4; ///< at the motor, Nm s/rad
    double springHz = 0.0;           ///< where motor and load swing against each other; 0: one stiff piece
    double springDamping = 0.02;     ///< of that swing, 1 = critical
    double inertiaRatio = 2.0;       ///< load over motor, where they are two
    double backlash = 0.0;           ///< between them, counts; without a spring the coupling is a stiff one
    double hanging = 0.0;            ///< pulls against the positive direction, from the first power to the motor on

    // Motor and encoder
    double ripple = 0.0;       ///< share of the torque, six times an electrical turn
    double cogging = 0.0;      ///< Nm, 24 times a revolution, powered or not
    double encoderNoise = 0.0; ///< counts, root mean square
    double seed = 1.0;         ///< of the noise: the same seed makes the same noise

    // Supply
    double sag = 0.0; ///< percent of the nominal voltage lost a second while the motor is powered

    // Wiring faults. A flag is 0 or 1.
    double feedbackReversed = 0.0;
    double phasesSwapped = 0.0;
    double polePairs = 4.0;     ///< of the motor that is really there
    double positiveStuck = 0.0; ///< no current through the positive limit switch
    double negativeStuck = 0.0;
    double brakeSlip = 0.0; ///< the closed brake holds no more than this; 0: it holds anything

    /// Motor and load are two masses.
    bool isTwoMasses() const { return springHz > 0.0 || backlash > 0.0; }
};

/// Reads NAME[=NUMBER], several of them joined by "+", as in "flexible", "flexible=45+damping=0.01+noise". Empty on
/// success, else what is wrong; `machine` is then unchanged.
std::string parseMachine(const std::string &text, Machine &machine);

/// One line a name, for --help.
std::string machineHelp();

} // namespace sim

#endif
