#include "capturefigures.h"

#include "traces.h"

#include <algorithm>
#include <cmath>

namespace {

/// What a trace goes up and down in all.
struct Travel
{
    double up = 0.0;
    double down = 0.0;
};

Travel travelOf(const std::vector<double> &trace)
{
    Travel travel;
    for (std::size_t i = 1; i < trace.size(); ++i) {
        const double step = trace[i] - trace[i - 1];
        (step > 0.0 ? travel.up : travel.down) += std::abs(step);
    }
    return travel;
}

} // namespace

bool movesBackAndForth(const CaptureRecord &capture)
{
    constexpr double leastShare = 0.5; // of the way there; more than an axis overshoots and still can be used
    if (capture.motion.kind == CaptureMotion::Kind::SquareWave)
        return true;
    const std::size_t rows = rowsOf(capture);
    for (const char *key : {"posreference", "posmeas"}) {
        if (capture.channel(QLatin1String(key)) == nullptr)
            continue;
        const Travel travel = travelOf(unwrapped(traceOf(capture, QLatin1String(key), rows)));
        const double less = std::min(travel.up, travel.down);
        return less > 0.0 && less >= leastShare * std::max(travel.up, travel.down);
    }
    return false;
}

CaptureFigures captureFigures(const CaptureRecord &capture)
{
    constexpr double countsPerLine = 4.0;
    CaptureFigures figures{stepFigures(capture), std::nullopt,
                           countsPerLine * capture.setting(QStringLiteral("FBR"), 0.0)};
    if (movesBackAndForth(capture))
        figures.axis = axisSheet(capture);
    return figures;
}

QJsonObject toJson(const CaptureFigures &figures)
{
    QJsonObject object{{"figures", toJson(figures.step)}};
    if (figures.axis)
        object.insert(QStringLiteral("axisSheet"), toJson(*figures.axis));
    return object;
}

QList<FigureLine> figureLines(const CaptureFigures &figures, Reasons reasons)
{
    QList<FigureLine> lines = figureLines(figures.step, reasons);
    if (figures.axis)
        lines += axisLines(*figures.axis, figures.countsPerRevolution);
    return lines;
}
