/// \file
/// The one move of a capture that step figures are worked out of.
#ifndef VELBRIN_ANALYSIS_STEPRECORD_H
#define VELBRIN_ANALYSIS_STEPRECORD_H

#include "capture.h"

#include <optional>
#include <vector>

/// What the figures are made of. `setpoint` and `measured` are equally long.
struct StepRecord
{
    double period = 0.0; ///< s
    std::vector<double> setpoint;
    std::vector<double> measured;
    std::vector<double> torqueSetpoint; ///< A; empty when it was not recorded
    std::optional<double> currentLimit; ///< A, MMC; nothing when it is not known
    /// Setpoint before the first sample, where it is known: a recorder that a change starts may have missed the sample
    /// before it.
    std::optional<double> before;
    double resolution = 1.0;                ///< smallest difference between two measured values
    double currentResolution = 1.0 / 560.0; ///< A
    QString unit;                           ///< of setpoint and measured, e.g. "cnts"
    QString channel;                        ///< key of the measured channel, e.g. "posmeas"
};

/// The setpoint and the measured channel that belong together: position, velocity or torque, the one first that the
/// control mode (CM) names, and one whose setpoint changes before one whose does not. The tracking error stands in for
/// a position that was not recorded. The current limit is MMC of the settings.
StepRecord stepRecordOf(const CaptureRecord &capture);

#endif
