#include "scopecontext.h"

#include "figurelines.h"
#include "scopetexts.h"
#include "unitconversion.h"

#include <cmath>

namespace {

constexpr double cyclesPerSecond = 2500.0; // where a file does not tell (PIF)
constexpr int longestShownNote = 2000;     // characters, in the plot view

QJsonObject unitSystem(const QString &name, double velocity, const QString &velocityUnit, double position,
                       const QString &positionUnit)
{
    const auto unit = [](double factor, const QString &text) {
        return QJsonObject{{QStringLiteral("factor"), factor}, {QStringLiteral("unit"), text}};
    };
    return {{QStringLiteral("name"), name},
            {QStringLiteral("units"), QJsonObject{{QStringLiteral("vel"), unit(velocity, velocityUnit)},
                                                  {QStringLiteral("cnts"), unit(position, positionUnit)}}}};
}

double countsPerRevolution(const CaptureRecord &capture)
{
    const double lines = capture.setting(QStringLiteral("FBR"), 0.0);
    return lines >= 1.0 ? 4.0 * lines : 0.0; // less than one is no encoder
}

QJsonArray channels(const CaptureRecord &capture)
{
    QJsonArray list;
    for (const CaptureData &channel : capture.channels) {
        if (channel.enabled)
            list.append(QJsonObject{{QStringLiteral("key"), channel.key},
                                    {QStringLiteral("name"), shownName(channel)},
                                    {QStringLiteral("unit"), channel.unit},
                                    {QStringLiteral("group"), channel.group},
                                    {QStringLiteral("scale"), channel.scale}});
    }
    return list;
}

QJsonArray captureList(const CaptureHistory &history)
{
    const QList<KeptCapture> last =
        history.all().mid(qMax<qsizetype>(0, history.all().size() - CaptureHistory::listed));
    const QStringList varying = settingsThatVary(last);
    QJsonArray list;
    for (auto capture = last.crbegin(); capture != last.crend(); ++capture) {
        QStringList settings;
        for (const QString &name : varying)
            settings.append(name + QLatin1Char(' ') + settingText(capture->record.setting(name, std::nan(""))));
        list.append(QJsonObject{{QStringLiteral("id"), capture->id},
                                {QStringLiteral("title"), captureTitle(*capture)},
                                {QStringLiteral("settings"), settings.join(QStringLiteral(", "))},
                                {QStringLiteral("isShown"), history.shown() && capture->id == history.shown()->id},
                                {QStringLiteral("isUnder"), history.under() && capture->id == history.under()->id}});
    }
    return list;
}

QJsonValue overlay(const KeptCapture *under, const KeptCapture &shown)
{
    if (!under)
        return QJsonValue();
    QJsonObject values;
    for (const CaptureData &channel : under->record.channels) {
        if (!channel.enabled)
            continue;
        QJsonArray samples;
        for (const auto &sample : channel.samples)
            samples.append(sample.second);
        values.insert(channel.key, samples);
    }
    QJsonArray differences;
    for (const SettingDifference &line : settingDifferences(under->record.settings, shown.record.settings))
        differences.append(QJsonObject{{QStringLiteral("name"), line.name},
                                       {QStringLiteral("older"), settingText(line.older)},
                                       {QStringLiteral("present"), settingText(line.present)}});
    return QJsonObject{{QStringLiteral("title"), captureTitle(*under)},
                       {QStringLiteral("period"), under->record.samplePeriod},
                       {QStringLiteral("channels"), values},
                       {QStringLiteral("differences"), differences}};
}

QJsonArray lines(const QList<FigureLine> &figures)
{
    QJsonArray list;
    for (const FigureLine &line : figures) {
        // The one line of a refusal stands under a heading that says the same as its caption.
        const bool isRefusal = line.name == QLatin1String("stepFigures");
        list.append(QJsonObject{{QStringLiteral("caption"), isRefusal ? QString() : line.caption},
                                {QStringLiteral("value"), line.value},
                                {QStringLiteral("isDefined"), line.isDefined},
                                {QStringLiteral("number"), line.number},
                                {QStringLiteral("unit"), line.channelUnit},
                                {QStringLiteral("brief"), briefCaption(line.name)}});
    }
    return list;
}

} // namespace

QJsonArray unitSystems(const CaptureRecord &capture)
{
    const double counts = countsPerRevolution(capture);
    const double rate = capture.setting(QStringLiteral("PIF"), cyclesPerSecond);
    const double scale = capture.setting(QStringLiteral("AXS"), 0.0);
    const int axis = truncateToInt32(capture.setting(QStringLiteral("AXT"), -1.0));
    QJsonArray systems;
    if (counts > 0.0 && rate > 0.0)
        systems.append(unitSystem(ScopeText::tr("rev/s, degrees"), rate / counts, ScopeText::tr("rev/s"),
                                  360.0 / counts, ScopeText::tr("degrees")));
    constexpr int lengths = 3; // mm, µm, inch; the others are rotations, of the axis
    if (counts > 0.0 && rate > 0.0 && scale > 0.0 && axis >= 0 && axis < lengths) {
        const QString unit = axisUnits(axis).plural;
        systems.append(unitSystem(unit, scale * rate / counts, ScopeText::tr("%1/s").arg(unit), scale / counts, unit));
    }
    if (systems.isEmpty())
        systems.append(QJsonObject{{QStringLiteral("name"), ScopeText::tr("As recorded")}});
    return systems;
}

QString captureTitle(const KeptCapture &capture)
{
    const QString time =
        capture.record.time.isValid()
            ? capture.record.time.toLocalTime().toString(capture.file.isEmpty() ? QStringLiteral("hh:mm:ss")
                                                                                : QStringLiteral("yyyy-MM-dd hh:mm:ss"))
            : QString();
    if (capture.file.isEmpty())
        return time;
    return time.isEmpty() ? capture.file : ScopeText::tr("%1 (%2)").arg(capture.file, time);
}

QJsonObject figuresContext(const KeptCapture &capture)
{
    if (!capture.figures)
        return {{QStringLiteral("figures"), QJsonValue()}, {QStringLiteral("axisSheet"), QJsonValue()}};
    const std::optional<AxisSheet> &sheet = capture.figures->axis;
    return {{QStringLiteral("figures"), lines(figureLines(capture.figures->step, Reasons::Once))},
            {QStringLiteral("axisSheet"),
             sheet ? lines(axisLines(*sheet, countsPerRevolution(capture.record))) : QJsonArray()},
            {QStringLiteral("canTakeFeedForward"), sheet && sheet->isUsable()}};
}

QJsonObject scopeContext(const CaptureHistory &history)
{
    const KeptCapture *shown = history.shown();
    if (!shown)
        return {};
    QJsonObject context = figuresContext(*shown);
    context.insert(QStringLiteral("channels"), channels(shown->record));
    context.insert(QStringLiteral("units"), unitSystems(shown->record));
    context.insert(QStringLiteral("captures"), captureList(history));
    context.insert(QStringLiteral("overlay"), overlay(history.under(), *shown));
    context.insert(QStringLiteral("title"), captureTitle(*shown));
    context.insert(QStringLiteral("note"), shown->record.note.left(longestShownNote));
    context.insert(QStringLiteral("canOpenOut"), true);
    context.insert(QStringLiteral("canOpenFiles"), true);
    context.insert(QStringLiteral("texts"), scopeTexts());
    return context;
}
