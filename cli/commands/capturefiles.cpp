#include "capturefiles.h"

#include "captureplotter.h"
#include "datafolder.h"
#include "plotpage.h"

#include <QCoreApplication>
#include <QJsonObject>

#include <algorithm>
#include <functional>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("CaptureFiles", text);
}

QByteArray pageOf(const Capture &capture, const QString &flotFolder, QString &problem)
{
    const QString page =
        CapturePlotter().generatePlotPage(capture.channels, capture.settings.getParamsHTMLList(), capture.model);
    return standalonePage(page, flotFolder, problem).toUtf8();
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

QStringList CaptureFiles::save(const Capture &capture)
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
    write(m_csv, [&](QString &) { return CapturePlotter().captureDataCSV(capture.channels); });
    write(m_page, [&](QString &problem) { return pageOf(capture, m_flotFolder, problem); });
    return problems;
}

Results summary(const Capture &capture)
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
    return {tabSeparated(table), QJsonObject{{"sampleRate", capture.rate}, {"channels", toJson(table)}}};
}
