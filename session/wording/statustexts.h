/// \file
/// The wording of the status, fault and input panels: HTML fragments from a DriveState. Pure functions, any thread.
///
/// A flag that keeps the drive from running is marked "!" while the drive does not run. Each function sets
/// `inactivityReason` when it has placed a mark and never clears it: clear it before a refresh, then word the inputs,
/// the status and the faults in this order, since the fault panel ends with the legend for the marks of all three.
#ifndef VELBRIN_SESSION_STATUSTEXTS_H
#define VELBRIN_SESSION_STATUSTEXTS_H

#include "drivestate.h"

#include <QList>

/// A flag of one of the panels, as a value.
struct DriveFlag
{
    QString label; ///< translated, as in the panel
    bool isSet = false;
    bool isReason = false; ///< keeps the drive from running: marked "!" in the panel
    int mask = 0;          ///< its bit in its register
};

/// The flags of the panels, in their order. A bootloader has faults only.
QList<DriveFlag> statusFlagsOf(const DriveState &state);
QList<DriveFlag> faultFlagsOf(const DriveState &state);
QList<DriveFlag> inputFlagsOf(const DriveState &state);

/// One line for the flag `value & mask`. `isReason`: whether the flag can keep the drive from running; `expected`: the
/// state that the flag has on a drive that is ready.
QString formatDigitalStateAsString(const DriveState &state, const QString &label, qint32 value, int mask, bool isReason,
                                   bool expected, bool &inactivityReason);

/// Flags of the status register and the measured values.
QString getStatusRegString(const DriveState &state, bool &inactivityReason);
/// Flags of the fault register, fault locations, debug values and watched register where wanted, legend of the marks.
QString getFaultRegString(const DriveState &state, bool &inactivityReason);
/// Input pins, control inputs and analog inputs.
QString getDigitalInsString(const DriveState &state, bool &inactivityReason);

#endif
