// Which channels of a capture a step is measured on.
#include "steprecord.h"

#include "traces.h"

#include <algorithm>

namespace {

struct Pair
{
    int controlMode; ///< choice of CM
    const char *setpoint;
    const char *measured;
};

constexpr int positionControl = 0;

constexpr Pair pairs[] = {
    {0, "posreference", "posmeas"},
    {1, "velreference", "velmeas"},
    {2, "torqueref", "torquemeas"},
};

constexpr int setpointRises = 1, setpointChanges = 2; // trigger codes

bool changes(const std::vector<double> &samples)
{
    return std::any_of(samples.begin(), samples.end(), [&](double value) { return value != samples.front(); });
}

std::vector<double> measuredOf(const CaptureRecord &capture, const Pair &pair, const std::vector<double> &setpoint)
{
    std::vector<double> measured = traceOf(capture, QLatin1String(pair.measured), setpoint.size());
    if (!measured.empty() || pair.controlMode != positionControl)
        return measured;
    measured = traceOf(capture, QStringLiteral("posferror"), setpoint.size());
    for (std::size_t i = 0; i < measured.size(); ++i)
        measured[i] = setpoint[i] - measured[i];
    return measured;
}

std::optional<StepRecord> recordOf(const CaptureRecord &capture, const Pair &pair)
{
    const std::size_t rows = rowsOf(capture);
    StepRecord record;
    record.setpoint = traceOf(capture, QLatin1String(pair.setpoint), rows);
    record.measured = measuredOf(capture, pair, record.setpoint);
    if (record.setpoint.empty() || record.measured.empty())
        return std::nullopt;
    if (pair.controlMode == positionControl)
        unwrapTogether(record.setpoint, record.measured);
    const CaptureData *const setpoint = capture.channel(QLatin1String(pair.setpoint));
    record.unit = setpoint->unit;
    record.resolution = setpoint->scale;
    record.channel = QLatin1String(pair.measured);
    return record;
}

/// Counts before the step that started the recorder, when the first sample is already behind it.
std::optional<double> knownBefore(const CaptureRecord &capture, const StepRecord &record)
{
    const bool startedByChange = capture.trigger == setpointRises || capture.trigger == setpointChanges;
    if (!startedByChange || capture.motion.kind == CaptureMotion::Kind::None ||
        record.channel != QLatin1String("posmeas"))
        return std::nullopt;
    const double countsPerUnit =
        capture.setting(QStringLiteral("MUL"), 1.0) / capture.setting(QStringLiteral("DIV"), 1.0);
    const double from = capture.motion.from * countsPerUnit, to = capture.motion.to * countsPerUnit;
    // Also on the way back of a square wave.
    if (record.setpoint.front() == to)
        return from;
    if (record.setpoint.front() == from && capture.motion.kind == CaptureMotion::Kind::SquareWave &&
        !changes(record.setpoint))
        return to;
    return std::nullopt;
}

} // namespace

StepRecord stepRecordOf(const CaptureRecord &capture)
{
    const int mode = static_cast<int>(capture.setting(QStringLiteral("CM"), positionControl));
    std::vector<StepRecord> found;
    for (const Pair &pair : pairs) {
        std::optional<StepRecord> record = recordOf(capture, pair);
        if (record)
            record->before = knownBefore(capture, *record);
        if (record)
            found.insert(pair.controlMode == mode ? found.begin() : found.end(), std::move(*record));
    }
    // A step that started the recorder may lie before the first sample: the setpoint then only follows as if at rest.
    const auto moving = std::find_if(found.begin(), found.end(), [](const StepRecord &record) {
        return changes(record.setpoint) || (record.before && *record.before != record.setpoint.front());
    });
    StepRecord record = moving != found.end() ? *moving : found.empty() ? StepRecord() : found.front();
    record.period = capture.samplePeriod;
    record.torqueSetpoint = traceOf(capture, QStringLiteral("torqueref"), record.setpoint.size());
    if (const CaptureData *const torque = capture.channel(QStringLiteral("torqueref")))
        record.currentResolution = torque->scale;
    const double limit = capture.setting(QStringLiteral("MMC"), 0.0);
    if (limit > 0.0)
        record.currentLimit = limit;
    return record;
}
