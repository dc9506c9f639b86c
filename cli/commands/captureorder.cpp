#include "captureorder.h"

#include "clitext.h"
#include "commandline.h"
#include "numbers.h"
#include "scopechannels.h"

namespace {

const char *const triggerNames[] = {"rise", "change", "fault", "now"};
constexpr int triggerChange = 1;
constexpr int triggerNow = 3;

// What a stream's item carries, and the window's own limits for the delays.
constexpr int lowestTarget = -2097152;
constexpr int highestTarget = 2097151;
constexpr double shortestDelay = 0.02;
constexpr double longestDelay = 100.0;

constexpr double longestTimeOut = 86400.0;
constexpr double lowestRate = 0.1;
constexpr double highestRate = 1000000.0; // the drive's own is checked when it is known

QString takeChannels(const QString &text, CaptureOrder &order)
{
    const QList<CaptureData> channels = scopeChannels();
    for (int i = 0; i < channels.size(); ++i)
        order.channels.append(false);
    for (const QString &key : text.split(QLatin1Char(','))) {
        int found = -1;
        for (int i = 0; i < channels.size(); ++i) {
            if (channels.at(i).key == key)
                found = i;
        }
        if (found < 0)
            return tr("There is no channel \"%1\". The channels are: %2.").arg(key, channelKeys());
        order.channelCount += order.channels.at(found) ? 0 : 1;
        order.channels[found] = true;
    }
    return QString();
}

QString takeTrigger(const QString &text, CaptureOrder &order)
{
    order.trigger = -1;
    for (int i = 0; i <= triggerNow; ++i) {
        if (text == QLatin1String(triggerNames[i]))
            order.trigger = i;
    }
    return order.trigger < 0 ? tr("--trigger takes rise, change, fault or now.") : QString();
}

QString takeStimulus(const QString &text, CaptureOrder &order)
{
    const QStringList parts = text.split(QLatin1Char(','));
    const auto target = [&parts](int i) { return wholeNumber(parts.value(i), lowestTarget, highestTarget); };
    const auto delay = [&parts](int i) { return number(parts.value(i), shortestDelay, longestDelay); };
    if (parts.size() != 4 || !target(0) || !delay(1) || !target(2) || !delay(3))
        return tr(
            "--stimulus takes T1,D1,T2,D2: setpoints as whole numbers from -2097152 to 2097151, and how long each "
            "is held in s, 0.02 to 100.");
    order.stimulus = RunningStimulus::Wave{*target(0), *delay(1), *target(2), *delay(3)};
    return QString();
}

QString takeStep(const QString &text, CaptureOrder &order)
{
    order.step = wholeNumber(text, lowestSetpoint, highestSetpoint);
    return order.step ? QString() : tr("--step takes a whole number from -536870912 to 536870911.");
}

QString takeRate(const QString &text, CaptureOrder &order)
{
    order.rate = number(text, lowestRate, highestRate);
    return order.rate ? QString() : tr("--rate takes Hz, 0.1 or more.");
}

QString takeTimeOut(const QString &text, CaptureOrder &order)
{
    order.timeOut = number(text, 0.01, longestTimeOut);
    return order.timeOut ? QString() : tr("--time-out takes seconds, 0.01 to 86400.");
}

QString takeFormat(const QString &text, CaptureOrder &order)
{
    const bool isComma = text == QLatin1String("comma");
    order.columns = isComma ? CaptureFiles::Columns::Commas : CaptureFiles::Columns::Semicolons;
    return isComma || text == QLatin1String("semicolon") ? QString() : tr("--format takes semicolon or comma.");
}

struct OptionRow
{
    const char *name;
    QString (*take)(const QString &text, CaptureOrder &order);
};

constexpr OptionRow optionRows[] = {
    {"channels", takeChannels}, {"rate", takeRate},        {"trigger", takeTrigger}, {"step", takeStep},
    {"stimulus", takeStimulus}, {"time-out", takeTimeOut}, {"format", takeFormat},
};

/// What is wrong with options that are right one by one.
QString combinationProblem(const CommandLine &line)
{
    if (!line.has("channels"))
        return tr("--channels is needed. The channels are: %1.").arg(channelKeys());
    if (!line.has("csv") && !line.has("html") && !line.json)
        return tr("--csv FILE, --html FILE or --json is needed.");
    if (line.has("format") && !line.has("csv"))
        return tr("--format goes with --csv.");
    if (line.has("step") && line.has("stimulus"))
        return tr("Either --step or --stimulus, not both.");
    if (line.has("incremental") && !line.has("step"))
        return tr("--incremental goes with --step.");
    if (line.has("csv") && line.value("csv") == line.value("html"))
        return tr("--csv and --html name the same file.");
    return QString();
}

} // namespace

CaptureOrder captureOrder(const CommandLine &line, QString &problem)
{
    CaptureOrder order;
    problem = combinationProblem(line);
    for (const OptionRow &row : optionRows) {
        if (problem.isEmpty() && line.has(row.name))
            problem = row.take(line.value(row.name), order);
    }
    order.isIncremental = line.has("incremental");
    order.enables = line.has("enable");
    if (!line.has("trigger"))
        order.trigger = order.excites() ? triggerChange : triggerNow;
    return order;
}

QString channelKeys()
{
    QStringList keys;
    for (const CaptureData &channel : scopeChannels())
        keys.append(channel.key);
    return keys.join(QLatin1String(", "));
}

double effectiveRate(const CaptureOrder &order, double baseRate)
{
    return 1.0 / scopeSamplePeriod(baseRate, scopeDivider(baseRate, order.rate.value_or(baseRate)));
}

double recordingTime(const CaptureOrder &order, double baseRate)
{
    return double(scopeWordCount) / order.channelCount / effectiveRate(order, baseRate);
}
