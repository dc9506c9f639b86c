/// \file
/// Words for what a drive's state says, as messages and scripts need them.
#ifndef VELBRIN_CLI_DRIVEWORDS_H
#define VELBRIN_CLI_DRIVEWORDS_H

#include "drivestate.h"

#include <QStringList>

/// Names of the faults that are active.
QStringList activeFaults(const DriveState &drive);
/// What keeps it from running, with its state: "Phys enable (off)".
QStringList inactivityReasons(const DriveState &drive);
/// "Reason for inactivity: ..." or an empty text when there is none.
QString inactivityText(const DriveState &drive);
/// "fault", "homing", "running", "waiting" or "disabled".
QString stateWord(const DriveState &drive);

#endif
