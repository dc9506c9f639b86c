/// \file
/// What the strip along the window says about the drive: one word, one sentence, from the session's values.
#ifndef VELBRIN_UI_DRIVEHEADLINE_H
#define VELBRIN_UI_DRIVEHEADLINE_H

#include "drivestate.h"

#include <QString>

/// What the shape before the word stands for. Each has a form of its own, so that none is told by its colour.
enum class DriveLook {
    NotConnected,
    LastKnown, ///< what is said was true some time ago
    Disabled,
    Enabled,
    Fault,
    Homing,
    Upgrade,
};

/// Everything that the strip knows; a plain value.
struct DriveNews
{
    bool connected = false;
    bool polled = false;     ///< a poll of this drive, or of the last one, has come
    bool leftByUser = false; ///< the connection ended because the user wanted it
    double secondsOld = 0.0; ///< since the last poll
    DriveState state;        ///< of that poll
    int busAddress = 0;      ///< 0 when none is known
    int serialNumber = 0;    ///< likewise
};

/// A poll older than this is not the present any more, s: several in a row have not come.
constexpr double oldestPresent = 2.0;

struct DriveHeadline
{
    DriveLook look = DriveLook::NotConnected;
    QString word;     ///< large: "ENABLED"
    QString detail;   ///< beside it: "moving", the first fault's name, "last known, 3 s ago"
    int faultBit = 0; ///< the fault that `detail` names, for its help; 0 for none
    QString identity; ///< "KETA at address 1, serial number 240117"
    QString figures;  ///< "48.0 V, position 1234"; empty when nobody knows
    QString spoken;   ///< all of it in one line
};
DriveHeadline driveHeadline(const DriveNews &news);

#endif
