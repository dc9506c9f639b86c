#include "traces.h"

#include <algorithm>
#include <cmath>

std::vector<double> traceOf(const CaptureRecord &capture, const QString &key, std::size_t rows)
{
    std::vector<double> values;
    const CaptureData *const channel = capture.channel(key);
    if (channel == nullptr)
        return values;
    for (qsizetype i = 0; i < channel->samples.size() && values.size() < rows; ++i)
        values.push_back(channel->samples.at(i).second);
    return values;
}

std::size_t rowsOf(const CaptureRecord &capture)
{
    qsizetype rows = -1;
    for (const CaptureData &channel : capture.channels) {
        if (channel.enabled)
            rows = rows < 0 ? channel.samples.size() : std::min(rows, channel.samples.size());
    }
    return static_cast<std::size_t>(std::max<qsizetype>(rows, 0));
}

std::vector<double> unwrapped(std::vector<double> counts)
{
    constexpr double range = 65536.0;
    double turns = 0.0;
    for (std::size_t i = 1; i < counts.size(); ++i) {
        turns -= std::round((counts[i] + turns * range - counts[i - 1]) / range);
        counts[i] += turns * range;
    }
    return counts;
}

void unwrapTogether(std::vector<double> &setpoint, std::vector<double> &measured)
{
    const std::vector<double> whole = unwrapped(measured);
    if (whole == measured)
        return;
    measured = whole;
    setpoint = unwrapped(setpoint);
}
