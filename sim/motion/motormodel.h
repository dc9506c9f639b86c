/// \file
/// The motor and what it turns: current, friction, inertia, an encoder of 2500 lines.
///
/// A 400 W, 3000 rpm, 8 pole AC servo motor. Angles and speeds are in counts (10000 a revolution) and counts per
/// control cycle, as the drive sees them.
#ifndef SIM_MOTORMODEL_H
#define SIM_MOTORMODEL_H

#include "driveprofile.h"

#include <cstdint>

namespace sim {

class MotorModel
{
public:
    static constexpr int CountsPerTurn = 10000;
    static constexpr int EncoderLines = CountsPerTurn / 4;
    static constexpr int PolePairs = 4;

    explicit MotorModel(const Winding &winding) : m_winding(winding) {}

    /// Outside forces of one step.
    struct Load
    {
        double torque = 0.0;      ///< Nm against the positive direction
        bool locked = false;      ///< brake closed, or held
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

private:
    double backEmfVolts() const; ///< between two wires, peak
    double boundedTarget();

    Winding m_winding;
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
