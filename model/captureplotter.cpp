#include "captureplotter.h"

#include "outputfile.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QStringList>

#include <algorithm>

// Off unless asked for (QT_LOGGING_RULES="velbrin.plot.debug=true"): a page has some hundred kilobytes.
Q_LOGGING_CATEGORY(plotLog, "velbrin.plot", QtInfoMsg)

// In the global namespace, as the macro wants it; without it a static library's resources are left out.
static void registerTemplates()
{
    Q_INIT_RESOURCE(htmlParts);
}

namespace {

QString pageTemplate(const char *name)
{
    registerTemplates();
    QFile file(QStringLiteral(":/resourceSource/") + QLatin1String(name));
    // A missing fragment leaves a hole in the page, which still shows the rest.
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QList<CaptureData> enabledChannels(const QList<CaptureData> &captures)
{
    QList<CaptureData> enabled;
    std::copy_if(captures.begin(), captures.end(), std::back_inserter(enabled),
                 [](const CaptureData &channel) { return channel.enabled; });
    return enabled;
}

qsizetype rowCount(const QList<CaptureData> &enabled)
{
    auto rows = enabled.isEmpty() ? 0 : enabled.last().samples.size();
    for (const CaptureData &channel : enabled)
        rows = std::min(rows, channel.samples.size());
    return rows;
}

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

} // namespace

QString CapturePlotter::getPlotPlaceholderString(const QString &group) const
{
    return QStringLiteral("<div id=\"%1\" style=\"width:100%;height:400px;\"></div>\n").arg(group);
}

QString CapturePlotter::generateDataString(const QList<CaptureData> &captures, const QString &key) const
{
    const QList<CaptureData> enabled = enabledChannels(captures);
    const int rows = rowCount(enabled);
    QStringList points;
    for (const CaptureData &channel : enabled) {
        if (channel.key != key)
            continue;
        for (int row = 0; row < rows; ++row) {
            const QPair<double, double> &sample = channel.samples.at(row);
            points.append(QLatin1Char('[') + number(sample.first) + QLatin1Char(',') + number(sample.second) +
                          QLatin1Char(']'));
        }
    }
    return QStringLiteral("var ") + key + QLatin1String("=[") + points.join(QLatin1Char(',')) + QLatin1String("];\n");
}

QString CapturePlotter::getPlottingScript(const QList<CaptureData> &captures, const QString &group) const
{
    QStringList entries;
    for (const CaptureData &channel : enabledChannels(captures)) {
        if (channel.group == group)
            entries.append(QStringLiteral("{ data: %1, label: \"%2\"} ").arg(channel.key, channel.name));
    }
    const QString series = QLatin1Char('[') + entries.join(QLatin1String(", ")) + QLatin1Char(']');
    return QStringLiteral("var %1=$.plot($(\"#%1\"),%2, options);\n").arg(group, series) +
           pageTemplate("zoomfunction.html").arg(group, series);
}

QString CapturePlotter::generatePlotPage(const QList<CaptureData> &captures, const QString &paramsHtml,
                                         const QString &driveModel) const
{
    const QList<CaptureData> enabled = enabledChannels(captures);
    QString page = pageTemplate("begin.html");
    QStringList groups;
    for (const CaptureData &channel : enabled) {
        if (groups.contains(channel.group))
            continue;
        groups.append(channel.group);
        page += getPlotPlaceholderString(channel.group);
    }
    page += pageTemplate("middle.html");
    for (const CaptureData &channel : enabled)
        page += generateDataString(captures, channel.key);
    // Only compared with the group before: one that comes up again is drawn again.
    QString last;
    for (const CaptureData &channel : enabled) {
        if (channel.group == last)
            continue;
        last = channel.group;
        page += getPlottingScript(captures, last);
    }
    page += pageTemplate("end.html").arg(paramsHtml);
    page.replace(QLatin1String("%DRIVEMODEL%"), driveModel);
    page.replace(QLatin1String("%DATETIME%"),
                 QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("dd.MM.yyyy hh:mm:ss")));
    qCDebug(plotLog).noquote() << page;
    return page;
}

QByteArray CapturePlotter::captureDataCSV(const QList<CaptureData> &captures) const
{
    const QList<CaptureData> enabled = enabledChannels(captures);
    const int rows = rowCount(enabled);
    QString text = QStringLiteral("Time");
    for (const CaptureData &channel : enabled)
        text += QLatin1Char(';') + channel.name;
    text += QLatin1Char('\n');
    for (int row = 0; row < rows; ++row) {
        text += number(enabled.first().samples.at(row).first);
        for (const CaptureData &channel : enabled)
            text += QLatin1Char(';') + number(channel.samples.at(row).second);
        text += QLatin1Char('\n');
    }
    return text.toLocal8Bit();
}

bool CapturePlotter::saveCaptureDataCSV(const QList<CaptureData> &captures, const QString &fileName) const
{
    OutputFile file(fileName);
    return !fileName.isEmpty() && file.open().isEmpty() && file.write(captureDataCSV(captures)).isEmpty();
}
