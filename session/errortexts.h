/// \file
/// The wording of bus and drive errors. Pure functions without side effects, any thread.
#ifndef ERRORTEXTS_H
#define ERRORTEXTS_H

#include "singleparam.h"

#include <QString>

/// Text for an accumulated bus status (OR of the bus library's ZB_ bits) and the drive's error bits (register 13), as
/// HTML with a link to the troubleshooting page. `param` names the setting that was being written, if any. Empty when
/// nothing went wrong (status 0 or 1 and no error bits) or no drive is connected.
QString busErrorText(bool connected, quint32 busStatus, quint32 deviceErrors, const SingleParam *param = nullptr);

/// A record named "undefined", scaling 1, offset 0: for the text about a register that the catalogue does not know.
SingleParam undefinedParam(int addr, int value);

#endif
