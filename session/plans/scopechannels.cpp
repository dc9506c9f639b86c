#include "scopechannels.h"

#include "sessionregisters.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {

constexpr double countsPerAmpere = 560.0;
constexpr double ampere = 1.0 / countsPerAmpere;
// A percent of the output voltage and a percent of the PWM range differ in the last digits, and must.
constexpr double voltagePercent = 100.0 / 16383.0;
constexpr double pwmPercent = 100.0f / 16384.0f;

struct ChannelRow
{
    const char *name;
    const char *key;
    const char *unit;
    double scale;
    const char *group; // channels of one group share an axis
    quint32 sourceBit;
    bool isUnsigned;
};

// clang-format off: one channel a line
constexpr ChannelRow channelRows[] = {
    {QT_TRANSLATE_NOOP("Connection", "Torque setpoint [A]"), "torqueref", "A", ampere, "Torque", 0x2, false},
    {QT_TRANSLATE_NOOP("Connection", "Torque achieved [A]"), "torquemeas", "A", ampere, "Torque", 0x4, false},
    {QT_TRANSLATE_NOOP("Connection", "Velocity setpoint"), "velreference", "vel", 1.0, "Velocity", 0x8, false},
    {QT_TRANSLATE_NOOP("Connection", "Velocity achieved"), "velmeas", "vel", 1.0, "Velocity", 0x10, false},
    {QT_TRANSLATE_NOOP("Connection", "Position setpoint"), "posreference", "cnts", 1.0, "Position", 0x20, false},
    {QT_TRANSLATE_NOOP("Connection", "Position achieved"), "posmeas", "cnts", 1.0, "Position", 0x40, false},
    {QT_TRANSLATE_NOOP("Connection", "Tracking error"), "posferror", "cnts", 1.0, "PositionFerror", 0x80, false},
    {QT_TRANSLATE_NOOP("Connection", "Output voltage [%]"), "outputvolt", "%", voltagePercent, "Other", 0x100, false},
    {QT_TRANSLATE_NOOP("Connection", "HV bus voltage [VDC]"), "hvbusvolt", "V", 0.01, "Other", 0x200, true},
    {QT_TRANSLATE_NOOP("Connection", "PWM1"), "pwm1", "a.u.", pwmPercent, "PWM", 0x10000, false},
    {QT_TRANSLATE_NOOP("Connection", "PWM2"), "pwm2", "a.u.", pwmPercent, "PWM", 0x20000, false},
    {QT_TRANSLATE_NOOP("Connection", "PWM3"), "pwm3", "a.u.", pwmPercent, "PWM", 0x40000, false},
    {QT_TRANSLATE_NOOP("Connection", "Debug 1"), "debug", "a.u.", 1.0, "Debug", 0x80000, false},
    {QT_TRANSLATE_NOOP("Connection", "Debug 2"), "debug2", "a.u.", 1.0, "Debug", 0x100000, false},
    {QT_TRANSLATE_NOOP("Connection", "Flux current"), "fluxcurrent", "A", ampere, "Torque", 0x800000, false},
    {QT_TRANSLATE_NOOP("Connection", "Flux voltage"), "fluxvoltage", "%", voltagePercent, "Other", 0x1000000, false},
};
// clang-format on

constexpr double maxDivider = (1 << 29) - 1; // what a write of 30 bits carries

} // namespace

const std::array<QueueItem, 5> scopeDownloadSetUp = {{
    {QueueItem::Address, reg::ReturnLength},
    {QueueItem::Value24, reg::Returns22Bits},
    {QueueItem::Address, reg::ReturnSelector},
    {QueueItem::Value24, reg::ScopeWord},
    {QueueItem::Address, reg::ScopeReadAddress},
}};

QList<CaptureData> scopeChannels()
{
    QList<CaptureData> channels;
    for (const ChannelRow &row : channelRows) {
        CaptureData channel;
        channel.name = QString::fromUtf8(row.name); // in every language: files are read back by it
        channel.key = QString::fromLatin1(row.key);
        channel.unit = QString::fromLatin1(row.unit);
        channel.scale = row.scale;
        channel.group = QString::fromLatin1(row.group);
        channel.sourceBit = row.sourceBit;
        channel.isUnsigned = row.isUnsigned;
        channels.append(channel);
    }
    return channels;
}

int selectScopeChannels(QList<CaptureData> &channels, const QList<bool> &selected)
{
    int enabledCount = 0;
    for (int i = 0; i < channels.size() && i < selected.size(); ++i) {
        channels[i].enabled = selected[i];
        enabledCount += selected[i] ? 1 : 0;
    }
    return enabledCount;
}

quint32 scopeSourceMask(const QList<CaptureData> &channels)
{
    quint32 mask = 0;
    for (const CaptureData &channel : channels) {
        if (channel.enabled)
            mask |= channel.sourceBit;
    }
    return mask;
}

int scopeDivider(double baseRate, double sampleRate)
{
    if (!(sampleRate > 0.0))
        return 0;
    return static_cast<int>(std::lround(std::clamp(baseRate / sampleRate - 1.0, 0.0, maxDivider)));
}

double scopeSamplePeriod(double baseRate, int divider)
{
    return (divider + 1) / baseRate;
}

void storeCaptureSample(QList<CaptureData> &channels, int index, qint16 raw, double samplePeriod)
{
    const auto isEnabled = [](const CaptureData &channel) { return channel.enabled; };
    const int enabledCount = std::count_if(channels.cbegin(), channels.cend(), isEnabled);
    if (enabledCount == 0 || index < 0)
        return;
    int skip = index % enabledCount;
    const auto channel = std::find_if(channels.begin(), channels.end(),
                                      [&skip](const CaptureData &c) { return c.enabled && skip-- == 0; });
    const double word = channel->isUnsigned ? static_cast<quint16>(raw) : raw;
    channel->samples.append({(index / enabledCount) * samplePeriod, word * channel->scale});
}
