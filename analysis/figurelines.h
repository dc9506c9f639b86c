/// \file
/// Figures and axis sheet as lines to show: in a table beside the charts, on a terminal, in a report.
#ifndef VELBRIN_ANALYSIS_FIGURELINES_H
#define VELBRIN_ANALYSIS_FIGURELINES_H

#include "axissheet.h"
#include "stepfigures.h"

struct FigureLine
{
    QString name;    ///< as in JSON, e.g. "riseTime"
    QString caption; ///< e.g. "Rise time, 10 to 90 %"
    QString value;   ///< with its unit, e.g. "12.4 ms"; the reason where there is none
    bool isDefined = false;
    double number = 0.0;   ///< where the value has a channel's unit: in that, so that it can be shown in another one
    QString channelUnit{}; ///< such as "vel"; empty where the value is in ms, % or another unit of its own
};

enum class Reasons {
    EachLine, ///< for programs, which look for a line
    Once,     ///< for people: one line where no figure is defined, for the same reason
};

/// All figures, in the order of the header. Texts without markup.
QList<FigureLine> figureLines(const StepFigures &figures, Reasons reasons = Reasons::EachLine);

/// The sheet with every ±, or one line with the refusal. Encoder counts a revolution (four times FBR) turn counts into
/// revolutions; 0 when not known, then counts are shown.
QList<FigureLine> axisLines(const AxisSheet &sheet, double countsPerRevolution = 0.0);

#endif
