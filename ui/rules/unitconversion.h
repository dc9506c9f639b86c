/// \file
/// Drive units to machine units, as shown beside the controls. Plain values; nothing here knows a window.
#ifndef VELBRIN_UI_UNITCONVERSION_H
#define VELBRIN_UI_UNITCONVERSION_H

#include <QString>

/// What a position is measured in, and how it is called.
struct AxisUnits
{
    QString singular;
    QString plural;
};
/// Names by the index of the axis type (AXT 0..4); any other index gives "error".
AxisUnits axisUnits(int axisType);

/// The drive's own values that setpoint labels are scaled by, as last read from it (not as typed).
struct ActiveScale
{
    int controlMode = 0; ///< 0 position, 1 velocity, 2 torque
    double cvl = 0.0;    ///< velocity limit: velocity at full-scale setpoint
    double mmc = 0.0;    ///< peak current, A: current at full-scale setpoint
};

/// The settings that conversions depend on. All arithmetic is in double precision; a resolution, scale or divider of 0
/// divides by zero on purpose, and the labels then show inf or nan instead of a number that looks right.
struct UnitConversion
{
    double pif = 2500.0; ///< control cycles a second, Hz
    double fbr = 1.0;    ///< feedback resolution, lines per revolution; four counts a line
    double axs = 1.0;    ///< machine units per motor revolution
    double mul = 1.0;    ///< setpoint multiplier
    double div = 1.0;    ///< setpoint divider, also the resolution of velocities and accelerations
    QString unit;        ///< plural name of the machine unit

    /// What a number of the drive counts in.
    enum class Scale {
        Setpoint,    ///< setpoint units: MUL and DIV apply, on top of the DIV of a velocity
        Value,       ///< a setting or a live value: velocities and accelerations are divided by DIV
        Raw,         ///< encoder counts, undivided
        RawSetpoint, ///< multiplied by MUL only
    };
    /// Velocity in machine units a second.
    double velocity(double hwunits, Scale scale = Scale::Value) const;
    /// Position in machine units; of Raw, counts, and of anything else setpoint units.
    double position(double hwunits, Scale scale = Scale::Setpoint) const;
    /// Acceleration in machine units per square second.
    double acceleration(double hwunits) const;

    /// The same as texts: "= 6.25 mm/s" and the like, six significant digits.
    QString velocityLabel(double hwunits, Scale scale = Scale::Value) const;
    QString positionLabel(double hwunits, Scale scale = Scale::Setpoint) const;
    QString accelerationLabel(double hwunits) const;
    /// The conversion that the last four letters of a label's object name choose; "ERROR" for any other name.
    QString labelBySuffix(double hwunits, const QString &labelName) const;
    /// A setpoint (full scale 16384) in what it commands: velocity, current or position; "no mode" for other modes.
    QString setpointLabel(double ref, const ActiveScale &active) const;
    /// Text of the label beside the setpoint multiplier and divider.
    QString scalingText() const;

private:
    double countsPerUnit() const { return 4.0 * fbr / axs; }
};

/// Whether a label's object name ends in one of the suffixes that make it show its control's value in machine units.
bool isUnitLabelName(const QString &labelName);
/// Object name of the control that such a label belongs to.
QString controlOfUnitLabel(const QString &labelName);

#endif
