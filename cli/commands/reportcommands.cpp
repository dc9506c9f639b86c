// Figures of saved captures, and the commissioning report.
#include "commandgroups.h"

#include "capturefigures.h"
#include "capturefile.h"
#include "capturerecord.h"
#include "catalogue.h"
#include "checksum.h"
#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "numbers.h"
#include "outputfile.h"
#include "recorder.h"
#include "report.h"
#include "scopechannels.h"
#include "version.h"

#include <QFileInfo>
#include <QJsonObject>

namespace {

constexpr int triggerFault = 2; // row of the trigger list
constexpr double defaultStopSeconds = 2.0;
constexpr double longestStopSeconds = 60.0;
constexpr double defaultWaitSeconds = 120.0;
constexpr double longestWaitSeconds = 3600.0;

// --- figures ------------------------------------------------------------------------------------------------------

Outcome figures(const CommandLine &line)
{
    CaptureRecord capture;
    const QString problem = readCaptureFile(line.arguments.first(), scopeChannels(), &capture);
    if (!problem.isEmpty())
        return failed({problem});
    const CaptureFigures found = captureFigures(capture);
    Table table;
    for (const FigureLine &each : figureLines(found))
        table.rows.append({each.caption, each.value});
    return {ExitDone, {tabSeparated(table), toJson(found)}, {}};
}

// --- report -------------------------------------------------------------------------------------------------------

/// The files named with --capture, or what is wrong with one of them.
QString openCaptures(const CommandLine &line, QList<ReportedCapture> &captures)
{
    for (const QString &fileName : line.values("capture")) {
        ReportedCapture capture{QFileInfo(fileName).fileName(), {}};
        const QString problem = readCaptureFile(fileName, scopeChannels(), &capture.record);
        if (!problem.isEmpty())
            return tr("%1: %2").arg(fileName, problem);
        captures.append(capture);
    }
    return QString();
}

QMap<QString, QString> notesOf(const CommandLine &line)
{
    QMap<QString, QString> notes;
    for (const QString &note : line.values("note"))
        notes.insert(note.section(QLatin1Char('='), 0, 0), note.section(QLatin1Char('='), 1));
    return notes;
}

/// Listens until the machine's own stop raises a fault. Nothing is moved and nothing stopped from here.
std::optional<CaptureRecord> recordStop(DriveClient &client, const CommandLine &line, QStringList &messages)
{
    QList<bool> selection;
    for (const CaptureData &channel : scopeChannels())
        selection.append(channel.key == QLatin1String("posmeas") || channel.key == QLatin1String("velmeas"));
    const double seconds = number(line.value("stop-seconds"), 0.0, longestStopSeconds).value_or(defaultStopSeconds);
    const double wait = number(line.value("time-out"), 0.0, longestWaitSeconds).value_or(defaultWaitSeconds);
    const CaptureRequest request{scopeWordCount / double(selection.count(true)) / seconds, triggerFault, {}, {}};
    armRecorder(client, request.rate, request.trigger, selection);
    client.progress().note(tr("Stop test: let the axis move, then press the machine's stop."));
    if (!waitForRecorder(client, tr("Waiting for the stop"), wait + seconds, messages))
        return std::nullopt;
    const auto channels = downloadRecorder(client);
    if (!channels)
        return std::nullopt;
    return captureRecord(client.session(), client.address(), request, *channels);
}

Outcome writeReport(const Report &report, OutputFile &file)
{
    const QString problem = file.write(reportPage(report));
    if (!problem.isEmpty())
        return failed({problem});
    const PrintedSettings settings = printedSettings(report);
    const QString checksum = settingsChecksum(settings);
    return {ExitDone,
            {{QStringLiteral("checksum\t%1").arg(checksum)},
             QJsonObject{{"file", file.name()},
                         {"checksum", checksum},
                         {"settings", settings.size()},
                         {"captures", report.captures.size()},
                         {"stopTest", report.stopTest ? toJson(stopFigures(*report.stopTest)) : QJsonValue()}}},
            {}};
}

Outcome makeReport(DriveClient &client, const CommandLine &line)
{
    Report report;
    QString problem = openCaptures(line, report.captures);
    OutputFile file(line.arguments.first());
    if (problem.isEmpty())
        problem = file.open();
    if (!problem.isEmpty())
        return failed({problem});
    QStringList messages;
    const auto settings = readDrive(client, line, Use::Look, messages);
    if (!settings)
        return failed(messages);
    report.machine = line.value("machine");
    report.settings = *settings;
    report.drive = driveIdentity(*settings, client.deviceType(), client.address());
    report.program = QLatin1String(VELBRIN_VERSION);
    report.notes = notesOf(line);
    if (line.has("stop-test")) {
        report.stopTest = recordStop(client, line, messages);
        if (!report.stopTest)
            return failed(messages);
    }
    report.time = QDateTime::currentDateTime();
    client.close();
    return writeReport(report, file);
}

Outcome verifyReport(const CommandLine &line)
{
    const ReportCheck check = checkReportFile(line.value("verify"));
    const Results results{check.checksum.isEmpty() ? QStringList()
                                                   : QStringList(QStringLiteral("checksum\t%1").arg(check.checksum)),
                          QJsonObject{{"valid", check.problem.isEmpty()},
                                      {"checksum", check.checksum},
                                      {"settings", check.settings},
                                      {"problem", check.problem}}};
    return check.problem.isEmpty() ? Outcome{ExitDone, results, {}} : Outcome{ExitFailed, results, {check.problem}};
}

QString noteProblem(const CommandLine &line)
{
    const Parameters catalogue = driveParameterCatalogue();
    for (const QString &note : line.values("note")) {
        const QString name = note.section(QLatin1Char('='), 0, 0);
        if (!note.contains(QLatin1Char('=')))
            return tr("--note takes NAME=TEXT.");
        if (catalogue.getParam(name).name != name)
            return tr("There is no setting named \"%1\".").arg(name);
    }
    return QString();
}

QString checkReportLine(const CommandLine &line)
{
    if (line.has("verify") == !line.arguments.isEmpty() || (line.has("verify") && line.options.size() > 1))
        return tr("Either a report is written to FILE.html, or one is checked with --verify alone.");
    if ((line.has("stop-seconds") || line.has("time-out")) && !line.has("stop-test"))
        return tr("--stop-seconds and --time-out go with --stop-test.");
    if (line.has("stop-seconds") && !number(line.value("stop-seconds"), 0.1, longestStopSeconds))
        return tr("--stop-seconds takes seconds, 0.1 to 60.");
    if (line.has("time-out") && !number(line.value("time-out"), 0.01, longestWaitSeconds))
        return tr("--time-out takes seconds, 0.01 to 3600.");
    return noteProblem(line);
}

} // namespace

QList<Command> reportCommands()
{
    return {
        Command("figures", figures)
            .takesFile("FILE")
            .says("figures and axis sheet of a saved capture; needs no drive", R"(
FILE is a plot page or the JSON of "capture", or a file of columns. Prints each figure of the step and its value, tab
separated: rise time 10 to 90 %, time to 90 %, overshoot, settling to 2 %, peak and RMS tracking error, time in the
current limit, ringing and its resolution; or why there is no number. They are taken from the first change of the setpoint
to the end of the record. A move there and back adds the axis sheet: acceleration per torque, friction, hanging load, each
with its range, and the feed-forward that follows; or why there is none. Nothing of it is written to a drive.

With --json they stand under "figures" (s, %, Hz; null where not defined, with the "reason") and "axisSheet".)"),
        Command("report", makeReport)
            .takesFile("(FILE.html [OPTION...] | --verify FILE)", 0)
            .says("write the commissioning report of a drive, or check one", R"(
Reads the drive's settings and writes one HTML page to show, to print and to keep: identity and firmware, all settings with
unit, limits and default, the captures that are named with their figures, a stop test, a checklist, lines to sign, and a
checksum of the settings, which is printed, too. Nothing is written to the drive, and nothing moves.

--stop-test waits for a fault, which the machine's own stop has to raise while the axis moves, and measures time and
distance to standstill. It only listens: moving the axis, and stopping it, is yours.

--verify needs no drive: exit status 1 when the settings in the report are not those of its checksum.)")
            .value("machine", "TEXT", "What the report calls the machine or axis.")
            .value("note", "NAME=TEXT", "Your words on a setting; may be repeated.", Option::Kind::Repeated)
            .value("capture", "FILE", "A saved capture to show, as for \"figures\"; may be repeated.",
                   Option::Kind::RepeatedFile)
            .flag("stop-test", "Record how the axis comes to a standstill.")
            .value("stop-seconds", "S", "How long the stop is recorded, 2 if not given.")
            .value("time-out", "S", "Longest time in seconds to wait for the stop, 120 if not given.")
            .value("verify", "FILE", "Check a report instead.", Option::Kind::File)
            .checks(checkReportLine)
            .offlineWith("verify", verifyReport),
    };
}
