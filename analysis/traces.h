/// \file
/// A capture's channels as plain columns.
#ifndef VELBRIN_ANALYSIS_TRACES_H
#define VELBRIN_ANALYSIS_TRACES_H

#include "capture.h"

#include <vector>

/// Values of the enabled channel with this key; empty when it was not recorded. The recorder may hold one sample more
/// of the first channels: `rows` (see rowsOf) cuts them to one length.
std::vector<double> traceOf(const CaptureRecord &capture, const QString &key, std::size_t rows);

/// Samples that every enabled channel has.
std::size_t rowsOf(const CaptureRecord &capture);

/// Adds back what a 16-bit counter loses when it runs over: neighbours are never half its range apart.
std::vector<double> unwrapped(std::vector<double> counts);

/// The same for a setpoint and what follows it. A setpoint may really jump by more than half the range, what follows it
/// can not: unless it has run over, both stay.
void unwrapTogether(std::vector<double> &setpoint, std::vector<double> &measured);

#endif
