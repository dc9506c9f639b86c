/// \file
/// The regression behind the axis sheet. See axissheet.h for the model.
#ifndef VELBRIN_ANALYSIS_AXISFIT_H
#define VELBRIN_ANALYSIS_AXISFIT_H

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
    /// Coefficient of what was fitted beside the model, as an acceleration for each unit of it, when acceleration was
    /// explained.
    double beside = 0.0;
    double besideError = 0.0;
};

/// Which side of the equation the residuals are on. Errors of the other side's columns pull the acceleration per torque
/// down when acceleration is explained (sampled current is not all of the current), up when current is (encoder steps):
/// the truth lies between the two (R. Frisch, "Statistical Confluence Analysis", 1934).
enum class Explains { Acceleration, Current };

/// A push that a stiff axis does not have. Fitting it as well shows whether it is there.
struct Beside
{
    std::vector<double> values; ///< one a sample; empty: nothing is fitted beside the model
    int order = 0;              ///< which derivative of them pushes
};

/// Below its resonance a springy axis is pushed with the current's curvature, too.
Beside compliance(const AxisRecord &record);
/// A spring to where each run began.
Beside place(const AxisRecord &record, const std::vector<Run> &runs);
/// A load on a spring, swinging at this frequency while the motor is held: how far it lags behind the measured motion,
/// from rest at the first sample, times the angular frequency squared. Its coefficient is -1 times load over motor
/// inertia.
Beside swingingLoad(const AxisRecord &record, double hertz);

/// Fits with bumps of `length` samples. Nothing when there are not enough of them in both directions, or when they do
/// not determine the parameters.
std::optional<AxisFit> fitAxis(const AxisRecord &record, const std::vector<Run> &runs, std::size_t length,
                               Explains explains, const Beside &beside = {});

#endif
