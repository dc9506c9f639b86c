/// \file
/// The wording of bus and drive errors. Pure functions without side effects, any thread.
#ifndef VELBRIN_SESSION_ERRORTEXTS_H
#define VELBRIN_SESSION_ERRORTEXTS_H

#include "disableoutcome.h"
#include "singleparam.h"

#include <QString>

/// Text for an accumulated bus status (OR of the bus library's ZB_ bits) and the drive's error bits (register 13), as
/// HTML with a link to the troubleshooting page. `param` names the setting that was being written, if any. Empty when
/// nothing went wrong (status 0 or 1 and no error bits) or no drive is connected.
QString busErrorText(bool connected, quint32 busStatus, quint32 deviceErrors, const SingleParam *param = nullptr);

/// What an exchange without a good reply means in plain words: nobody answered, or the answer came damaged.
QString lineTroubleText(bool silent);
/// The same when nothing has been connected yet.
QString noConnectionText(bool silent, int nodeAddress);
/// Why a port could not be opened, in plain words, by the errno of the attempt.
QString openErrorText(const QString &portName, int error);

/// A write that the drive refused: reasons (register 13), the record with the value that was sent, where known, and the
/// limits that the drive has for it (none when they are equal).
QString refusedWriteText(quint32 deviceErrors, const SingleParam *param);
/// The reasons alone, one a line; empty for no bits.
QString refusalReasons(quint32 deviceErrors);
/// Part of a set was written; `last` is the name of the last record that surely was, empty when none was.
QString brokenOffWriteText(const QString &last);

/// Enabling was not acknowledged, so that a disable was sent, with this outcome.
QString undoneEnableText(DisableOutcome outcome);
/// A disable that was sent without a connection.
QString disabledWithoutConnectionText(DisableOutcome outcome, const QString &portName, int nodeAddress);

/// A record named "undefined", scaling 1, offset 0: for the text about a register that the catalogue does not know.
SingleParam undefinedParam(int addr, int value);

#endif
