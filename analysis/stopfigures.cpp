#include "stopfigures.h"

#include "analysistext.h"
#include "traces.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double stillCounts = 2.0;     // what an encoder's last bit and the controller make of a standstill
constexpr double leastStillShare = 0.1; // of the record
constexpr double leastMotion = 10.0;    // counts

StopFigures undefined(const QString &reason)
{
    const Figure none{std::nullopt, reason};
    return {none, none, none};
}

QJsonValue json(const std::optional<double> &value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

} // namespace

StopFigures stopFigures(const CaptureRecord &capture)
{
    const CaptureData *channel = capture.channel(QStringLiteral("posmeas"));
    if (channel == nullptr || channel->samples.size() < 20)
        return undefined(AnalysisText::tr("The position achieved was not recorded."));
    const std::size_t rows = rowsOf(capture);
    const std::vector<double> position = unwrapped(traceOf(capture, channel->key, rows));
    double farthest = 0.0;
    for (const double each : position)
        farthest = std::max(farthest, std::abs(each - position.front()));
    if (farthest < leastMotion)
        return undefined(AnalysisText::tr("The axis did not move when the stop was pressed."));
    std::size_t still = position.size() - 1;
    while (still > 0 && std::abs(position[still - 1] - position.back()) <= stillCounts)
        --still;
    StopFigures figures;
    figures.farthest.value = farthest;
    if (double(position.size() - still) < leastStillShare * double(position.size())) {
        figures.time.reason = figures.distance.reason =
            AnalysisText::tr("It was still moving at the end of the record.");
        return figures;
    }
    figures.time.value = double(still) * capture.samplePeriod;
    figures.distance.value = std::abs(position[still] - position.front());
    return figures;
}

QJsonObject toJson(const StopFigures &figures)
{
    QJsonObject reasons;
    const auto add = [&reasons](const char *name, const Figure &figure) {
        if (!figure.value)
            reasons.insert(QLatin1String(name), figure.reason);
        return json(figure.value);
    };
    QJsonObject object{{"time", add("time", figures.time)},
                       {"distance", add("distance", figures.distance)},
                       {"farthest", add("farthest", figures.farthest)}};
    object.insert(QStringLiteral("reason"), reasons);
    return object;
}
