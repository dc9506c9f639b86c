/// \file
/// How a disable ended.
#ifndef VELBRIN_SESSION_DISABLEOUTCOME_H
#define VELBRIN_SESSION_DISABLEOUTCOME_H

#include <QMetaType>

enum class DisableOutcome {
    Disabled,     ///< the drive shows it
    StillEnabled, ///< the drive answers and shows that it is enabled, by its inputs for example
    NoAnswer,     ///< not confirmed: it may still be powered
    NoPort,       ///< not sent: the port could not be opened
};
Q_DECLARE_METATYPE(DisableOutcome)

#endif
