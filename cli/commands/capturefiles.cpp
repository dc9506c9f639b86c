#include "capturefiles.h"

#include "capturefigures.h"
#include "capturejson.h"
#include "captureplotter.h"
#include "capturetext.h"
#include "clitext.h"
#include "datafolder.h"
#include "plotpage.h"
#include "savedpage.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <functional>

namespace {

QByteArray pageOf(const CaptureRecord &capture, const QString &flotFolder, QString &problem)
{
    return standalonePage(savedCapturePage(capture, captureFigures(capture)), flotFolder, problem).toUtf8();
}

Table channelTable(const CaptureRecord &capture)
{
    const auto isLess = [](const QPair<double, double> &a, const QPair<double, double> &b) {
        return a.second < b.second;
    };
    Table table{{"key", "unit", "samples", "first", "minimum", "maximum", "last"}, {}};
    for (const CaptureData &channel : capture.channels) {
        if (channel.samples.isEmpty())
            continue;
        const auto range = std::minmax_element(channel.samples.cbegin(), channel.samples.cend(), isLess);
        table.rows.append({channel.key, channel.unit, channel.samples.size(), channel.samples.first().second,
                           range.first->second, range.second->second, channel.samples.last().second});
    }
    return table;
}

} // namespace

QString CaptureFiles::open()
{
    const QString data = hasPage() ? findDataFolder() : QString();
    m_flotFolder = data + QLatin1String("/flot");
    if (hasPage() && data.isEmpty())
        return tr(
            "The scripts of the plot page (\"flot\" folder) are not found; set VELBRIN_DATA to the folder that holds "
            "them, or leave --html away.");
    const QString problem = m_csv.open();
    return problem.isEmpty() ? m_page.open() : problem;
}

QStringList CaptureFiles::save(const CaptureRecord &capture)
{
    QStringList problems;
    const auto write = [&problems](OutputFile &file, const std::function<QByteArray(QString &)> &contents) {
        if (!file.isWanted())
            return;
        QString problem;
        const QByteArray bytes = contents(problem);
        problem = problem.isEmpty() ? file.write(bytes) : problem;
        if (!problem.isEmpty())
            problems.append(problem);
    };
    write(m_csv, [&](QString &) {
        return m_columns == Columns::Commas ? captureToText(capture.channels)
                                            : CapturePlotter().captureDataCSV(capture.channels);
    });
    write(m_page, [&](QString &problem) { return pageOf(capture, m_flotFolder, problem); });
    return problems;
}

Results summary(const CaptureRecord &capture)
{
    const Table table = channelTable(capture);
    QJsonObject extra = toJson(captureFigures(capture));
    extra.insert(QStringLiteral("sampleRate"), capture.samplePeriod > 0.0 ? 1.0 / capture.samplePeriod : 0.0);
    QJsonObject json = captureToJson(capture, extra);
    const QJsonArray numbers = toJson(table).toArray();
    QJsonArray channels = json["channels"].toArray();
    for (qsizetype i = 0; i < channels.size() && i < numbers.size(); ++i) {
        QJsonObject channel = channels[i].toObject();
        const QJsonObject more = numbers[i].toObject();
        for (auto each = more.begin(); each != more.end(); ++each)
            channel.insert(each.key(), each.value());
        channels[i] = channel;
    }
    json["channels"] = channels;
    return {tabSeparated(table), json};
}
