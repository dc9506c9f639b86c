/// \file
/// The regression behind the axis sheet. See axissheet.h for the model.
#ifndef AXISFIT_H
#define AXISFIT_H

#include "axissheet.h"

/// A stretch of samples [begin, end) that keeps moving in one direction.
struct Run
{
    std::size_t begin = 0;
    std::size_t end = 0;
    int direction = 0; ///< +1, -1
};

/// Speed of every sample, counts/s, over some milliseconds around it; 0 for the first and last samples.
std::vector<double> speedOf(const std::vector<double> &position, double period);

/// Samples on either side that speedOf takes.
std::size_t speedReach(double period);

/// Stretches faster than a few percent of the highest speed. Empty when it hardly moves at all.
std::vector<Run> runsOf(const std::vector<double> &speed, double period);

/// Parameters of the model, in this order, all but the first in A: acceleration (counts/s^2 per A), drag forward, drag
/// backward, viscous friction (A per count/s), dead time (s). `error` are their standard deviations.
struct AxisFit
{
    enum Parameter { Acceleration, DragForward, DragBackward, Viscous, DeadTime, Count };
    double value[Count] = {};
    double error[Count] = {};
    /// Covariance of the drags, for their sum and difference, A^2.
    double dragCovariance = 0.0;
};

/// Something that a stiff axis does not have. Fitting it as well shows whether it is there.
enum class Beside {
    Nothing,
    Compliance, ///< a push with the current's curvature: below its resonance a springy axis looks lighter or heavier
    Place,      ///< a push that grows with the distance from where the run began: a spring
};

/// Fits with bumps of `length` samples. Nothing when there are not enough of them in both directions, or when they do
/// not determine the parameters.
std::optional<AxisFit> fitAxis(const AxisRecord &record, const std::vector<Run> &runs, std::size_t length,
                               Beside beside = Beside::Nothing);

/// The fitted model driven by the recorded current through all runs, each from a start speed that fits best: RMS of the
/// difference to the measured speed, both smoothed alike, as share of the highest speed.
double resimulatedSpeedError(const AxisRecord &record, const std::vector<Run> &runs, const std::vector<double> &speed,
                             const AxisFit &fit);

#endif
