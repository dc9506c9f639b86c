/// \file
/// What an axis is made of, told from one back-and-forth move: acceleration per torque, friction, hanging load, and the
/// feed-forward gains that follow.
///
/// The model is one stiff inertia,  a = A (i(t - d) - D(v) - V v),  with the acceleration a, the torque current i, a
/// dead time d between the recorded current and the recorded position, the drag D+ where it moves forward and -D- where
/// it moves backward, and the viscous friction V. It is fitted in the weak form: multiplied by smooth bumps of a few
/// milliseconds and integrated by parts, so that nothing is differentiated and the encoder's steps do not matter
/// (M. Shinbrot, "On the analysis of linear and nonlinear systems", Trans. ASME 79, 1957; S. L. Brunton, D. A.
/// Messenger and D. M. Bortz, "Weak SINDy", 2021). Only stretches in which it keeps moving in one direction count: at
/// rest dry friction can be anything.
///
/// What one move cannot tell apart: an axis that drags more forward than backward, and one that is pulled backward by a
/// load. Half the sum of the drags is called dry friction, half the difference hanging load.
///
/// Every value is the mean of two fits, one that explains the acceleration and one that explains the current; every +-
/// holds two standard deviations of their residuals, and how far these two and fits with shorter and longer bumps are
/// apart. A sheet is refused when they are too far apart, when the acceleration becomes another one as soon as the fit
/// may use what only a springy axis has, when a load that swings slowly explains the record better, and when the speed
/// that the fitted model makes of the recorded current is not the measured one. How well the regression fits its own
/// data is not asked. A resonance just above what the record shows can stay hidden: see the README of this room.
#ifndef VELBRIN_ANALYSIS_AXISSHEET_H
#define VELBRIN_ANALYSIS_AXISSHEET_H

#include "capture.h"

#include <QJsonObject>

#include <optional>
#include <vector>

/// `value` is within `plusMinus` of the truth in about 95 of 100 records.
struct Estimate
{
    double value = 0.0;
    double plusMinus = 0.0;
};

/// The columns a sheet is made of; equally long, one sample every `period` seconds.
struct AxisRecord
{
    double period = 0.0;                ///< s
    std::vector<double> position;       ///< counts, without jumps
    std::vector<double> torque;         ///< achieved, A
    std::vector<double> torqueSetpoint; ///< A; empty when it was not recorded
    std::optional<double> currentLimit; ///< A, MMC; nothing when it is not known
    double cycleRate = 2500.0;          ///< control cycles a second (PIF), in which the gains count
};

struct AxisSheet
{
    QString refusal; ///< why there is no sheet, one sentence to show; then nothing below counts

    Estimate acceleration;    ///< counts/s^2 per A
    Estimate dragForward;     ///< A that moving forward slowly takes, load included
    Estimate dragBackward;    ///< A that moving backward slowly takes, load included
    Estimate dryFriction;     ///< A, (forward + backward) / 2
    Estimate hangingLoad;     ///< A that holds it, (forward - backward) / 2: positive when it pulls backward
    Estimate viscousFriction; ///< A per count/s
    double speedError = 0.0;  ///< RMS of re-simulated against measured speed, share of the highest speed

    /// Feed-forward gains that follow: AFF = 560 f^2 / acceleration, VFF = 16 * 560 f * viscous friction, with 1/560 A
    /// the unit of the current and f the cycle rate (from the drive's law: current = VFF/16 v* + AFF dv* in 1/560 A,
    /// with v* in counts a cycle). A proposal: nothing here writes it anywhere.
    Estimate aff;
    Estimate vff; ///< 0 +- something when viscous friction could not be told from nothing

    bool isUsable() const { return refusal.isEmpty(); }
};

/// Plain computing, some milliseconds, any thread. Any record, also an empty one: that is refused.
AxisSheet axisSheet(const AxisRecord &record);

/// Needs the channels "Torque achieved" and "Position achieved"; velocity achieved, added up, stands in for position.
AxisRecord axisRecordOf(const CaptureRecord &capture);

inline AxisSheet axisSheet(const CaptureRecord &capture)
{
    return axisSheet(axisRecordOf(capture));
}

/// The object that stands under "axisSheet": "refusal" (null when there is none), and every estimate as an object of
/// "value", "plusMinus" and "unit", or null when refused.
QJsonObject toJson(const AxisSheet &sheet);

#endif
