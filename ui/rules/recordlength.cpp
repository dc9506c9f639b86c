#include "recordlength.h"

#include "scopechannels.h"

#include <QCoreApplication>
#include <cmath>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RecordLength)
};

QString timeText(double seconds)
{
    if (seconds < 1.0)
        return Text::tr("%1 ms").arg(std::floor(seconds * 1000.0));
    return Text::tr("%1 s").arg(QString::number(seconds, 'g', 3));
}

QString rateText(double hertz)
{
    return hertz < 1000.0 ? Text::tr("%1 Hz").arg(hertz) : Text::tr("%1 kHz").arg(hertz / 1000.0);
}

} // namespace

double recordSeconds(double rateHz, int channels)
{
    return channels < 1 || rateHz <= 0.0 ? 0.0 : scopeWordCount / channels / rateHz;
}

double moveSeconds(double setpointUnits, const MoveLimits &limits)
{
    const double way = std::abs(setpointUnits * limits.countsPerUnit);
    const double v = limits.countsPerCycle;
    const double a = limits.countsPerCycleSquared;
    if (!(v > 0.0) || !(a > 0.0) || !(limits.cyclesPerSecond > 0.0) || !std::isfinite(way))
        return 0.0;
    // Short of full speed the move is all acceleration, half of it backwards.
    const double cycles = way * a < v * v ? 2.0 * std::sqrt(way / a) : way / v + v / a;
    return cycles / limits.cyclesPerSecond;
}

QString recordText(double rateHz, int channels, double moveSeconds)
{
    if (channels < 1)
        return Text::tr("No channel is chosen: there is nothing to record");
    const double length = recordSeconds(rateHz, channels);
    const QString record =
        channels == 1
            ? Text::tr("%1 at %2 with 1 channel").arg(timeText(length), rateText(rateHz))
            : Text::tr("%1 at %2 with %3 channels").arg(timeText(length), rateText(rateHz), QString::number(channels));
    if (moveSeconds <= length)
        return record;
    return Text::tr("%1: a move of %2 will be cut off").arg(record, timeText(moveSeconds));
}
