#include "report.h"

#include "capturefigures.h"
#include "chart.h"
#include "checksum.h"
#include "devicemodel.h"
#include "html.h"
#include "settingfacts.h"

#include <QCoreApplication>

namespace {

using html::known;
using html::number;
using html::paragraph;
using html::section;
using html::table;
using html::when;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

const char *const checklist[] = {
    QT_TRANSLATE_NOOP("Report", "The machine's own emergency stop works, and does not depend on the program."),
    QT_TRANSLATE_NOOP("Report", "Directions of motor, feedback and axis are right."),
    QT_TRANSLATE_NOOP("Report", "Limit switches and soft limits stop the axis before its ends."),
    QT_TRANSLATE_NOOP("Report", "The brake holds the axis when the drive is off."),
    QT_TRANSLATE_NOOP("Report", "Homing finds its place, again and again."),
    QT_TRANSLATE_NOOP("Report", "Current limits suit motor, wiring and machine."),
    QT_TRANSLATE_NOOP("Report", "Fault limits were tried: over current, tracking error, over speed."),
    QT_TRANSLATE_NOOP("Report", "Guards and covers are in place."),
    QT_TRANSLATE_NOOP("Report", "The settings are saved to the drive and to a file."),
};

const char *const style = R"(
body { font: 11pt sans-serif; color: #000; background: #fff; max-width: 62em; margin: 1.5em auto; padding: 0 1em; }
h1 { font-size: 1.6em; } h2 { font-size: 1.2em; border-bottom: 1px solid #999; margin-top: 1.6em; }
table { border-collapse: collapse; width: 100%; margin: .5em 0; }
th, td { text-align: left; padding: .15em .5em; border-bottom: 1px solid #ddd; vertical-align: top; }
td.value { text-align: right; white-space: nowrap; } td + td + td + td + td + td { width: 32%; }
tbody td:nth-child(4) { white-space: nowrap; } .facts { width: auto; } .facts th { padding-right: 2em; }
tr.differs { font-weight: bold; background: #f3f3e0; } .note { font-weight: normal; font-style: italic; }
.warning { font-weight: bold; } code { word-break: break-all; } svg { max-width: 100%; height: auto; }
.sign td { height: 3em; border: 1px solid #999; }
@media print {
  body { margin: 0; max-width: none; font-size: 9pt; } h2, thead { break-after: avoid; }
  tr, svg, section.capture table, .together { break-inside: avoid; } thead { display: table-header-group; }
}
)";

QString driveSection(const Report &report)
{
    html::Facts rows = html::identity(report.drive);
    rows += {{Text::tr("Report made"), when(report.time)}, {Text::tr("Velbrin version"), report.program}};
    return section(Text::tr("Drive"), table(rows));
}

QString settingRow(const SingleParam &setting, const Report &report)
{
    const std::optional<SettingFacts> about = settingFacts(setting.name, isTorvaModel(report.drive.type));
    const bool differs = about && differsFromStandard(setting, *about);
    const QString note = report.notes.value(setting.name);
    QString caption = about ? settingCaption(setting, *about).toHtmlEscaped() : QString();
    if (!note.isEmpty())
        caption += QLatin1String("<br><span class=\"note\">") + note.toHtmlEscaped() + QLatin1String("</span>");
    const QString cells[] = {about ? about->unit.toHtmlEscaped() : QString(),
                             Text::tr("%1 to %2").arg(number(setting.min), number(setting.max)),
                             about ? number(about->standard) : Text::tr("not known"),
                             differs ? Text::tr("differs") : QString(), caption};
    QString row = differs ? QStringLiteral("<tr class=\"differs\">") : QStringLiteral("<tr>");
    row += QLatin1String("<th scope=\"row\">") + setting.name.toHtmlEscaped() +
           QLatin1String("</th><td class=\"value\">") + number(setting.value) + QLatin1String("</td>");
    for (const QString &cell : cells)
        row += QLatin1String("<td>") + cell + QLatin1String("</td>");
    return row + QLatin1String("</tr>\n");
}

QString settings(const Report &report)
{
    QString text = QStringLiteral("<table>\n<thead><tr>");
    for (const QString &head :
         {Text::tr("Setting"), Text::tr("Value"), Text::tr("Unit"), Text::tr("The drive's limits"), Text::tr("Default"),
          Text::tr("Differs"), Text::tr("What it is")})
        text += QLatin1String("<th>") + head.toHtmlEscaped() + QLatin1String("</th>");
    text += QLatin1String("</tr></thead>\n<tbody>\n");
    for (const SingleParam &setting : settingsOfDrive(report.settings, report.drive.type))
        text += settingRow(setting, report);
    text += QLatin1String("</tbody></table>\n");
    text +=
        paragraph(Text::tr("Checksum of the settings (SHA-256), which \"velbrin-cli report --verify FILE\" checks:"));
    text += QStringLiteral("<p><code id=\"settings-checksum\">%1</code></p>\n")
                .arg(settingsChecksum(printedSettings(report)));
    return section(Text::tr("Settings"), text);
}

/// What keeps a capture from being one of this drive as it is now.
QString whatIsOther(const CaptureRecord &capture, const Report &report)
{
    if (capture.settings.getParamCount() == 0)
        return paragraph(Text::tr("The file does not say with which drive and settings it was recorded."));
    QString text;
    if (capture.drive.serial != report.drive.serial)
        text +=
            QLatin1String("<p class=\"warning\">") +
            Text::tr("Recorded on another drive: serial number %1.").arg(known(capture.drive.serial)).toHtmlEscaped() +
            QLatin1String("</p>\n");
    QStringList others;
    for (const SingleParam &now : settingsOfDrive(report.settings, report.drive.type)) {
        const SingleParam then = capture.settings.getParam(now.name);
        if (then.name == now.name && now.convertToDeviceScale(then.value) != now.convertToDeviceScale(now.value))
            others.append(now.name + QLatin1Char('=') + number(then.value));
    }
    if (!others.isEmpty())
        text += paragraph(Text::tr("Recorded with other settings: %1.").arg(others.join(QLatin1String(", "))));
    return text;
}

QString captured(const ReportedCapture &capture, const Report &report)
{
    QString text = QStringLiteral("<h3>%1</h3>\n").arg(capture.title.toHtmlEscaped()) +
                   paragraph(Text::tr("Recorded: %1").arg(when(capture.record.time)));
    if (!capture.record.note.isEmpty())
        text += paragraph(Text::tr("Note: %1").arg(capture.record.note));
    text += whatIsOther(capture.record, report) + captureChart(capture.record);
    html::Facts rows;
    for (const FigureLine &line : figureLines(captureFigures(capture.record), Reasons::Once))
        rows.append({line.caption, line.value});
    return QLatin1String("<section class=\"capture\">\n") + text + table(rows) + QLatin1String("</section>\n");
}

QString captures(const Report &report)
{
    QString text;
    for (const ReportedCapture &capture : report.captures)
        text += captured(capture, report);
    return section(Text::tr("Captures"), text.isEmpty() ? paragraph(Text::tr("None were chosen.")) : text);
}

QString figure(const Figure &figure, double scale, const QString &unit)
{
    return figure.value ? Text::tr("%1 %2").arg(QString::number(*figure.value * scale, 'g', 4), unit) : figure.reason;
}

QString counts(const Figure &figure)
{
    return figure.value ? Text::tr("%1 %2").arg(QString::number(*figure.value, 'f', 0), Text::tr("counts"))
                        : figure.reason;
}

QString stopTest(const Report &report)
{
    if (!report.stopTest)
        return section(Text::tr("Stop test"), paragraph(Text::tr("Not done.")));
    const StopFigures figures = stopFigures(*report.stopTest);
    const double countsPerRevolution = 4.0 * report.settings.getParam(QStringLiteral("FBR")).value;
    html::Facts rows = {
        {Text::tr("Time to standstill"), figure(figures.time, 1000.0, Text::tr("ms"))},
        {Text::tr("Distance to standstill"), counts(figures.distance)},
        {Text::tr("Farthest point on the way"), counts(figures.farthest)},
    };
    if (countsPerRevolution > 0.0 && figures.distance.value)
        rows.insert(2, {Text::tr("Distance in revolutions"),
                        figure(figures.distance, 1.0 / countsPerRevolution, Text::tr("rev"))});
    const QString what = Text::tr("Measured from the fault that the machine's stop raised, %1.");
    const QString text = section(Text::tr("Stop test"), paragraph(what.arg(when(report.stopTest->time))) +
                                                            captureChart(*report.stopTest) + table(rows));
    return QLatin1String("<div class=\"together\">\n") + text + QLatin1String("</div>\n");
}

QString whatToSign()
{
    QString text = QStringLiteral("<table>\n");
    for (const char *question : checklist)
        text += QLatin1String("<tr><td>&#9744;</td><td>") + Text::tr(question).toHtmlEscaped() +
                QLatin1String("</td></tr>\n");
    QString names = QStringLiteral("<table class=\"sign\">\n<tr>");
    for (const QString &head : {QString(), Text::tr("Name"), Text::tr("Date"), Text::tr("Signature")})
        names += QLatin1String("<th>") + head.toHtmlEscaped() + QLatin1String("</th>");
    names += QLatin1String("</tr>\n");
    for (const QString &who : {Text::tr("Commissioned by:"), Text::tr("Accepted by:")})
        names +=
            QLatin1String("<tr><td>") + who.toHtmlEscaped() + QLatin1String("</td><td></td><td></td><td></td></tr>\n");
    return section(Text::tr("Checklist"), text + QLatin1String("</table>\n")) +
           section(Text::tr("Signatures"), names + QLatin1String("</table>\n"));
}

} // namespace

QList<QPair<QString, QString>> printedSettings(const Report &report)
{
    QList<QPair<QString, QString>> printed;
    for (const SingleParam &setting : settingsOfDrive(report.settings, report.drive.type))
        printed.append({setting.name, number(setting.value)});
    return printed;
}

QByteArray reportPage(const Report &report)
{
    const QString title = report.machine.isEmpty() ? Text::tr("Commissioning report")
                                                   : Text::tr("Commissioning report: %1").arg(report.machine);
    const QString escaped = title.toHtmlEscaped();
    //: The language of the report, two letters as in HTML.
    const QString language = Text::tr("en");
    const QString page = QLatin1String("<!DOCTYPE html>\n<html lang=\"") + language +
                         QLatin1String("\">\n<head>\n<meta charset=\"utf-8\">\n<title>") + escaped +
                         QLatin1String("</title>\n<style>") + QLatin1String(style) +
                         QLatin1String("</style>\n</head>\n<body>\n<h1>") + escaped + QLatin1String("</h1>\n") +
                         driveSection(report) + settings(report) + captures(report) + stopTest(report) + whatToSign() +
                         QLatin1String("</body>\n</html>\n");
    return page.toUtf8();
}
