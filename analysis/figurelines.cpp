#include "figurelines.h"

#include "analysistext.h"

#include <algorithm>
#include <cmath>

namespace {

QString text(double value)
{
    return QString::number(value, 'g', 4);
}

QString withUnit(double value, const QString &unit)
{
    return unit.isEmpty() ? text(value) : AnalysisText::tr("%1 %2").arg(text(value), unit);
}

/// As many decimals as the range has: what is beyond it means nothing.
QString decimals(double value, double plusMinus)
{
    constexpr double finest = 1e-4, coarsest = 1e3; // beyond these with an exponent
    if (!(plusMinus >= finest && plusMinus < coarsest))
        return text(value);
    return QString::number(value, 'f', std::max(0, 1 - static_cast<int>(std::floor(std::log10(plusMinus)))));
}

QString withRange(const Estimate &estimate, double scale, const QString &unit)
{
    const double value = estimate.value * scale, plusMinus = estimate.plusMinus * scale;
    const QString range =
        AnalysisText::tr("%1 ± %2").arg(decimals(value, plusMinus), QString::number(plusMinus, 'g', 2));
    return unit.isEmpty() ? range : AnalysisText::tr("%1 %2").arg(range, unit);
}

bool isTheSameRefusal(const QList<FigureLine> &lines)
{
    return std::all_of(lines.begin(), lines.end(),
                       [&](const FigureLine &line) { return !line.isDefined && line.value == lines.first().value; });
}

} // namespace

QList<FigureLine> figureLines(const StepFigures &figures, Reasons reasons)
{
    const bool isCounts = figures.unit == QLatin1String("cnts"); // the only unit of a channel that is a word
    const QString unit = isCounts ? AnalysisText::tr("counts") : figures.unit;
    const struct
    {
        const char *name;
        const char *caption;
        const Figure &figure;
        double scale;
        QString unit;
    } rows[] = {
        {"riseTime", QT_TRANSLATE_NOOP("Analysis", "Rise time, 10 to 90 %"), figures.riseTime, 1000.0,
         AnalysisText::tr("ms")},
        {"timeTo90", QT_TRANSLATE_NOOP("Analysis", "Time to 90 %"), figures.timeTo90, 1000.0, AnalysisText::tr("ms")},
        {"overshoot", QT_TRANSLATE_NOOP("Analysis", "Overshoot"), figures.overshoot, 1.0, QStringLiteral("%")},
        {"settlingTime", QT_TRANSLATE_NOOP("Analysis", "Settling time, within 2 %"), figures.settlingTime, 1000.0,
         AnalysisText::tr("ms")},
        {"peakError", QT_TRANSLATE_NOOP("Analysis", "Peak tracking error"), figures.peakError, 1.0, unit},
        {"rmsError", QT_TRANSLATE_NOOP("Analysis", "RMS tracking error"), figures.rmsError, 1.0, unit},
        {"timeInCurrentLimit", QT_TRANSLATE_NOOP("Analysis", "Limited by MMC for"), figures.timeInCurrentLimit, 1000.0,
         AnalysisText::tr("ms")},
        {"ringing", QT_TRANSLATE_NOOP("Analysis", "Ringing"), figures.ringing, 1.0, AnalysisText::tr("Hz")},
        {"ringingResolution", QT_TRANSLATE_NOOP("Analysis", "Resolution of the ringing"), figures.ringingResolution,
         1.0, AnalysisText::tr("Hz")},
    };
    QList<FigureLine> lines;
    for (const auto &row : rows) {
        const std::optional<double> &value = row.figure.value;
        const bool isError = &row.figure == &figures.peakError || &row.figure == &figures.rmsError;
        lines.append({QLatin1String(row.name), AnalysisText::tr(row.caption),
                      value ? withUnit(*value * row.scale, row.unit) : row.figure.reason, value.has_value(),
                      value.value_or(0.0), isError ? figures.unit : QString()});
    }
    if (reasons == Reasons::Once && isTheSameRefusal(lines))
        return {{QStringLiteral("stepFigures"), AnalysisText::tr("Step figures"), lines.first().value, false}};
    return lines;
}

QList<FigureLine> axisLines(const AxisSheet &sheet, double countsPerRevolution)
{
    if (!sheet.isUsable())
        return {{QStringLiteral("refusal"), AnalysisText::tr("Axis sheet"), sheet.refusal, false}};
    const bool inTurns = countsPerRevolution > 0.0;
    const double turns = inTurns ? 1.0 / countsPerRevolution : 1.0;
    const struct
    {
        const char *name;
        const char *caption;
        const Estimate &estimate;
        double scale;
        QString unit;
    } rows[] = {
        {"acceleration", QT_TRANSLATE_NOOP("Analysis", "Acceleration per torque"), sheet.acceleration, turns,
         inTurns ? AnalysisText::tr("rev/s² per A") : AnalysisText::tr("counts/s² per A")},
        {"dragForward", QT_TRANSLATE_NOOP("Analysis", "Slow motion forward takes"), sheet.dragForward, 1.0,
         AnalysisText::tr("A")},
        {"dragBackward", QT_TRANSLATE_NOOP("Analysis", "Slow motion backward takes"), sheet.dragBackward, 1.0,
         AnalysisText::tr("A")},
        {"dryFriction", QT_TRANSLATE_NOOP("Analysis", "Dry friction"), sheet.dryFriction, 1.0, AnalysisText::tr("A")},
        {"hangingLoad", QT_TRANSLATE_NOOP("Analysis", "Hanging load"), sheet.hangingLoad, 1.0, AnalysisText::tr("A")},
        {"viscousFriction", QT_TRANSLATE_NOOP("Analysis", "Viscous friction"), sheet.viscousFriction, 1.0 / turns,
         inTurns ? AnalysisText::tr("A per rev/s") : AnalysisText::tr("A per count/s")},
        {"AFF", QT_TRANSLATE_NOOP("Analysis", "Acceleration feed-forward that follows [AFF]"), sheet.aff, 1.0, {}},
        {"VFF", QT_TRANSLATE_NOOP("Analysis", "Velocity feed-forward that follows [VFF]"), sheet.vff, 1.0, {}},
    };
    QList<FigureLine> lines;
    for (const auto &row : rows)
        lines.append({QLatin1String(row.name), AnalysisText::tr(row.caption),
                      withRange(row.estimate, row.scale, row.unit), true});
    return lines;
}
