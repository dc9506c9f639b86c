/// \file
/// How much of a move the drive's recorder holds.
#ifndef VELBRIN_UI_RECORDLENGTH_H
#define VELBRIN_UI_RECORDLENGTH_H

#include <QString>

/// Length of a record in s: the recorder's words are shared by the channels. 0 without a channel or a rate.
double recordSeconds(double rateHz, int channels);

/// What a step of the setpoint makes the drive do, as it holds the limits.
struct MoveLimits
{
    double countsPerUnit = 1.0;       ///< MUL / DIV
    double countsPerCycle = 0.0;      ///< velocity limit, CVL / DIV
    double countsPerCycleSquared = 0; ///< acceleration limit, CAL / DIV
    double cyclesPerSecond = 2500.0;  ///< PIF
};
/// Least time of a move over so many setpoint units, from stand to stand, s; 0 when the limits are not known.
double moveSeconds(double setpointUnits, const MoveLimits &limits);

/// "28 ms at 10 kHz with 7 channels: a move of 70 ms will be cut off".
QString recordText(double rateHz, int channels, double moveSeconds);

#endif
