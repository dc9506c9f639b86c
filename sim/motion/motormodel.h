/// \file
/// The motor and what it turns: current, friction, inertia, an encoder of 2500 lines, and the load behind it.
///
/// A 400 W, 3000 rpm, 8 pole AC servo motor. Angles and speeds are in counts (10000 a revolution) and counts per
/// control cycle, as the drive sees them.
#ifndef VELBRIN_SIM_MOTORMODEL_H
#define VELBRIN_SIM_MOTORMODEL_H

#include "driveprofile.h"
#include "machine.h"
#include "swingingload.h"

#include <cstdint>
#include <optional>

namespace sim {

class MotorModel
{
public:
    static constexpr int countsPerTurn = 10000;
    static constexpr int encoderLines = countsPerTurn / 4;

    explicit MotorModel(const Winding &winding, const Machine &machine = {});

    /// Outside forces of one step.
    struct Load
    {
        double torque = 0.0;      ///< Nm against the positive direction, at the far end of what the motor turns
        bool locked = false;      ///< brake closed, or held
        double brakeTorque = 0.0; ///< Nm that a slipping brake holds
        double commutation = 1.0; ///< share of the torque that is left when the drive mistakes the rotor angle
    };

    /// The current loop's target, A, its bandwidth, Hz, and the bus voltage, V, which bounds the current at speed.
    void drive(double targetAmperes, double bandwidthHz, double busVolts);
    /// Lets the current die away: the power stage is off.
    void switchOff();
    void step(double seconds, const Load &load);

    /// A hard stop: no turning beyond this count in this direction (+1, -1). 0 takes it away.
    void setHardStop(double counts, int direction);

    double angle() const { return m_angle; }
    /// Of the load, which is elsewhere than the motor when a spring or play is between them.
    double loadAngle() const;
    std::int64_t counts() const;
    double velocity() const { return m_velocity; } ///< counts per cycle
    double amperes() const { return m_current; }
    /// The bus voltage, not the target, decides the current.
    bool isVoltageLimited() const { return m_voltageLimited; }
    /// Share of the bus voltage that the winding takes, -1 to 1: along the torque, and across it.
    double torqueVoltage() const;
    double fluxVoltage() const;
    /// Torque times speed, W.
    double power() const;
    /// Electrical angle, radians.
    double electricalAngle() const;
    double polePairs() const { return m_machine.polePairs; }

private:
    double motorTorque(const Load &load) const;
    void turn(double seconds, double driving, double against, const Load &load);
    void swing(double seconds, double driving, double against, const Load &load);
    double backEmfVolts() const; ///< between two wires, peak
    double boundedTarget();

    Winding m_winding;
    Machine m_machine;
    std::optional<SwingingLoad> m_load; ///< when it is a mass of its own
    double m_inertia;                   ///< of what is stiff with the motor, kg m²
    bool m_isPropped = true;            ///< a hanging load is held up from below until the motor is powered first
    double m_angle = 0.0;
    double m_velocity = 0.0;
    double m_current = 0.0;
    double m_target = 0.0;
    double m_bandwidth = 1000.0;
    double m_busVolts = 0.0;
    double m_stopAt = 0.0;
    int m_stopDirection = 0;
    bool m_voltageLimited = false;
};

} // namespace sim

#endif
