/// \file
/// Everything that is told about a capture: what it shows, in JSON and as lines, is the same wherever it is shown.
#ifndef VELBRIN_ANALYSIS_CAPTUREFIGURES_H
#define VELBRIN_ANALYSIS_CAPTUREFIGURES_H

#include "figurelines.h"

struct CaptureFigures
{
    StepFigures step;
    std::optional<AxisSheet> axis; ///< of a back-and-forth move only; it may still be a refusal
    double countsPerRevolution = 0.0;
};

/// Whether the axis was sent in both directions: by a square wave, or by a setpoint (a position where none was
/// recorded) that goes up and down. An overshoot is no way back.
bool movesBackAndForth(const CaptureRecord &capture);

/// Some milliseconds, any thread.
CaptureFigures captureFigures(const CaptureRecord &capture);

/// "figures", and "axisSheet" where there is one.
QJsonObject toJson(const CaptureFigures &figures);

/// The figures, then the sheet's lines where there is one.
QList<FigureLine> figureLines(const CaptureFigures &figures, Reasons reasons = Reasons::EachLine);

#endif
