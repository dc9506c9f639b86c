/// \file
/// Whether a fitted axis model, driven by the recorded current, moves as the axis did.
#ifndef VELBRIN_ANALYSIS_RESIMULATION_H
#define VELBRIN_ANALYSIS_RESIMULATION_H

#include "axisfit.h"

/// The model goes through all runs, each from a start speed that fits best: RMS of the difference to the measured
/// speed, both smoothed alike, as share of the highest speed. 1 when there is nothing to compare.
double resimulatedSpeedError(const AxisRecord &record, const std::vector<Run> &runs, const std::vector<double> &speed,
                             const AxisFit &fit);

/// RMS of what the encoder adds to the position, counts: its steps and its noise. At least that of the steps.
double encoderNoise(const AxisRecord &record);

#endif
