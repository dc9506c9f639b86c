/// \file
/// Diagnostic lines of the bus library: one stream and one threshold for the whole process, set with zbSetDebugOutput.
#ifndef VELBRIN_BUSLIB_DEBUG_H
#define VELBRIN_BUSLIB_DEBUG_H

#include "zetabus.h"

/// Writes "<port name>: <message>", if the handle is open, a stream is set and `verbosity` is not above the threshold.
/// Verbosity 2 marks packets, 3 marks bytes. A message is cut at 1023 characters.
void zbDebug(ZbHandle handle, int verbosity, const char *format, ...) __attribute__((format(printf, 3, 4)));

#endif
