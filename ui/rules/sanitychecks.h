/// \file
/// What the window says about settings that do not go together, and the rules that keep pairs of settings in order.
#ifndef VELBRIN_UI_SANITYCHECKS_H
#define VELBRIN_UI_SANITYCHECKS_H

#include <QString>
#include <utility>

/// The settings that the checks before an apply look at.
struct SanityInputs
{
    int homing = 0;             ///< HME index; 0 is off
    int homingThreshold = 0;    ///< HMH, counts
    int trackingThreshold = 0;  ///< FPT, counts
    int controlMode = 0;        ///< CM index; 2 is torque control
    double limitVelocity = 0.0; ///< CVL in machine units a second
    double faultVelocity = 0.0; ///< FEV in machine units a second
};
/// The warnings as one HTML text, or an empty one. They only warn; nothing is changed.
QString sanityWarnings(const SanityInputs &in);

/// Poles come in pairs: odd counts are rounded towards zero.
constexpr int evenPoleCount(int poles)
{
    return poles / 2 * 2;
}
/// Puts a (low, high) pair in order after one of them was edited: the other one follows. Equal values stay.
template <typename T> constexpr std::pair<T, T> orderedAfterLow(T low, T high)
{
    return {low, low > high ? low : high};
}
template <typename T> constexpr std::pair<T, T> orderedAfterHigh(T low, T high)
{
    return {low > high ? high : low, high};
}

/// The note under the under-voltage threshold.
struct SupplyWarning
{
    QString text; ///< empty for a family without such a limit: text and visibility of the label then stay as they are
    bool visible = false;
};
/// `modelText` is the model's name as shown (with or without the maker's prefix, any case), `volts` the threshold.
SupplyWarning underVoltageWarning(const QString &modelText, double volts);

#endif
