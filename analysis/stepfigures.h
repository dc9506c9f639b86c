/// \file
/// Figures of a step: how fast, how far over, how well it follows, and whether it rings.
///
/// All figures are taken from the first change of the setpoint to the end of the record. With
///   s(k), m(k)   setpoint and measured value of sample k, every `period` seconds,
///   k0           the first sample whose setpoint differs from the one before,
///   from, to     the setpoint before k0 and the setpoint of the last sample,
///   y(k) = (m(k) - from) / (to - from)     so that 0 is where it began and 1 where it should end,
/// they are (levels and durations after IEEE Std 181-2011; overshoot, settling time and error after K. Ogata, "Modern
/// Control Engineering", 5th edition, 5-3):
///
///   riseTime         time from the first crossing of y = 0.1 to the first crossing of y = 0.9, s
///   timeTo90         time from k0 to the first crossing of y = 0.9, s
///   overshoot        100 (max y - 1), 0 when y never exceeds 1, %
///   settlingTime     time from k0 to the first sample from which on |y - 1| <= 0.02 holds to the end, s
///   peakError        max |s - m|, in the channel's unit
///   rmsError         sqrt(mean (s - m)^2), in the channel's unit
///   timeInCurrentLimit   number of samples with |torque setpoint| at the current limit, times the period, s
///   ringing          frequency of the oscillation that is left after y = 0.9, Hz
///   ringingResolution    1 / (length of that tail): two frequencies nearer than this look like one, Hz
///
/// A crossing lies between two samples, on the straight line that joins them. What cannot be told has a reason in the
/// place of a number:
///   - overshoot: y neither reaches 1 nor settles; or it is highest at the very end of the record, still outside 2 %;
///   - settling: outside 2 % at the end, or inside for less than a tenth of the time that it took to get there (a swing
///     that is cut off in the middle is inside, too);
///   - ringing: fewer than four half waves larger than two steps of the encoder and a tenth of the tail's largest, or
///     no frequency that holds half of the tail's power, or fewer than three periods of it.
#ifndef VELBRIN_ANALYSIS_STEPFIGURES_H
#define VELBRIN_ANALYSIS_STEPFIGURES_H

#include "figure.h"
#include "steprecord.h"

#include <QJsonObject>

struct StepFigures
{
    Figure riseTime, timeTo90, overshoot, settlingTime, peakError, rmsError, timeInCurrentLimit, ringing,
        ringingResolution;
    QString unit;
    QString channel;
};

/// Any record, also an empty one: then no figure has a number. Plain computing, some milliseconds, any thread.
StepFigures stepFigures(const StepRecord &record);

inline StepFigures stepFigures(const CaptureRecord &capture)
{
    return stepFigures(stepRecordOf(capture));
}

/// The object that stands under "figures": every figure by its name, null where it is not defined, the reasons by the
/// same names under "reason", and the "unit" of the errors with the "channel" they were taken from.
QJsonObject toJson(const StepFigures &figures);

#endif
