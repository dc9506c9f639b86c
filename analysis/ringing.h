/// \file
/// The frequency at which the tail of a record swings.
#ifndef VELBRIN_ANALYSIS_RINGING_H
#define VELBRIN_ANALYSIS_RINGING_H

#include <optional>
#include <vector>

struct Ringing
{
    double frequency = 0.0;  ///< Hz
    double resolution = 0.0; ///< Hz, 1 / duration of the tail (Rayleigh's criterion)
};

/// Takes the straight line out of `tail` (one value every `period` seconds), weights it with a Hann window and looks
/// for the largest line of its spectrum, which is then refined with a parabola through its neighbours (J. O. Smith,
/// "Spectral Audio Signal Processing", "Quadratic interpolation of spectral peaks"). Nothing when the tail does not
/// ring: see stepfigures.h for what counts. `resolution` is the smallest difference between two values.
std::optional<Ringing> findRinging(const std::vector<double> &tail, double period, double resolution);

#endif
