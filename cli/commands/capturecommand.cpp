// Recording what the drive does, and letting it do something while it is recorded.
#include "commandgroups.h"

#include "capturefiles.h"
#include "captureorder.h"
#include "capturerecord.h"
#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivewords.h"
#include "recorder.h"

namespace {

constexpr int readyLimitMs = 30000; // after enabling: the way to the setpoint, and homing where it is asked for
constexpr double defaultExtraSeconds = 10.0; // for the trigger to come

// --- The parts of a capture, in their order -----------------------------------------------------------------------

QString rateProblem(const CaptureOrder &order, double highest)
{
    if (order.rate.value_or(0.0) <= highest)
        return QString();
    return tr("--rate is at most %1 Hz on this drive.").arg(highest);
}

/// After --enable: waits until the drive stands at its setpoint.
bool waitUntilReady(DriveClient &client, QStringList &messages)
{
    const auto isReady = [](const DriveState &drive) { return drive.isReady() && !drive.isRecovering(); };
    const auto isDecided = [&isReady](const DriveState &drive) { return isReady(drive) || !drive.isRunning(); };
    client.waitForDrive(tr("Waiting until the drive is ready"), isDecided, readyLimitMs);
    if (client.isUp() && !client.wasInterrupted() && isReady(client.drive()))
        return true;
    messages +=
        QStringList{tr("The drive was enabled but did not become ready for use."), inactivityText(client.drive())};
    return false;
}

/// An excitation needs a drive that somebody has enabled.
bool canExcite(const DriveClient &client, const CaptureOrder &order, QStringList &messages)
{
    if (!order.excites() || client.drive().isRunning())
        return true;
    messages += QStringList{tr("The drive is not enabled, so nothing would move: enable it first, or give --enable."),
                            inactivityText(client.drive())};
    return false;
}

/// Behind the arming in the session's queue, so that nothing moves where arming failed.
void step(DriveClient &client, const CaptureOrder &order)
{
    client.session().setTargetSetpoint(*order.step);
    client.session().command(order.isIncremental ? Connection::TaskSetIncrementalSetpoint
                                                 : Connection::TaskSetAbsoluteSetpoint);
}

CaptureMotion motionOf(const DriveClient &client, const CaptureOrder &order)
{
    using Kind = CaptureMotion::Kind;
    if (order.stimulus)
        return {Kind::SquareWave, double(order.stimulus->target1), double(order.stimulus->target2),
                order.stimulus->delay1, order.stimulus->delay2};
    if (!order.step)
        return {};
    const double from = client.drive().setpoint;
    return {Kind::Step, from, order.isIncremental ? from + *order.step : *order.step, 0.0, 0.0};
}

/// Arms, excites, waits and downloads. Whatever was set going is stopped when this returns.
std::optional<CaptureRecord> record(DriveClient &client, const CaptureOrder &order, const QString &note,
                                    QStringList &messages)
{
    std::optional<DisableAtEnd> disableAtEnd;
    if (order.enables) {
        if (!enableDrive(client, messages))
            return std::nullopt;
        disableAtEnd.emplace(client);
        if (!waitUntilReady(client, messages))
            return std::nullopt;
    }
    if (!canExcite(client, order, messages))
        return std::nullopt;
    const double base = client.session().maxScopeSampleRate();
    const CaptureRequest request{order.rate.value_or(base), order.trigger, motionOf(client, order), note};
    armRecorder(client, request.rate, request.trigger, order.channels);
    if (order.step)
        step(client, order);
    std::optional<QList<CaptureData>> channels;
    {
        std::optional<RunningStimulus> stimulus;
        if (order.stimulus)
            stimulus.emplace(client, *order.stimulus);
        const double seconds = order.timeOut.value_or(recordingTime(order, base) + defaultExtraSeconds);
        if (waitForRecorder(client, tr("Scope waiting"), seconds, messages))
            channels = downloadRecorder(client);
    }
    std::optional<CaptureRecord> capture;
    if (channels)
        capture = captureRecord(client.session(), client.address(), request, *channels);
    if (disableAtEnd && !disableAtEnd->now())
        messages.append(tr("The drive is not known to be disabled."));
    return capture;
}

// --- The command --------------------------------------------------------------------------------------------------

Outcome capture(DriveClient &client, const CommandLine &line)
{
    QString problem;
    const CaptureOrder order = captureOrder(line, problem);
    CaptureFiles files(line.value("csv"), order.columns, line.value("html"));
    problem = files.open();
    if (!problem.isEmpty())
        return failed({problem});
    QStringList messages;
    const bool acts = order.excites() || order.enables;
    if (!connectToMove(client, line, acts ? Use::Act : Use::Look, messages))
        return failed(messages);
    problem = rateProblem(order, client.session().maxScopeSampleRate());
    if (!problem.isEmpty())
        return failed({problem});
    if ((files.hasPage() || line.json) && !client.read())
        return failed({tr("The drive's settings could not be read.")});
    const auto capture = record(client, order, line.value("note"), messages);
    if (!capture)
        return failed(messages);
    client.close(); // a pipe may be read slowly, or not at all
    const QStringList problems = messages + files.save(*capture);
    return {problems.isEmpty() ? ExitDone : ExitFailed, summary(*capture), problems};
}

QString checkCapture(const CommandLine &line)
{
    QString problem;
    captureOrder(line, problem);
    return problem;
}

const char *const captureHelp = R"(
Arms the drive's recorder, moves the axis if --step or --stimulus say so, waits until the recorder has 2000 words, which
the channels share, and saves them. Time in the files begins at the first sample.

THE AXIS MOVES with --step, --stimulus and --enable, and not otherwise; the first two need a drive that is enabled. The
drive stays where --step has sent it. A stimulus is stopped at the end and on every failure; Ctrl+C stops it, too, and
disables a drive that --enable has enabled. Exit status 1 when the drive has not confirmed that it is disabled.

Channels: torqueref, torquemeas, fluxcurrent (A); velreference, velmeas (counts a control cycle of 0.4 ms);
posreference, posmeas, posferror (counts); outputvolt, fluxvoltage (%); hvbusvolt (V); pwm1, pwm2, pwm3, debug, debug2
(no unit).

Prints one line a channel, tab separated: key, unit, number of samples, first, lowest, highest and last value. With
--json the whole capture, with settings, drive, motion and time, and its figures (see "figures").)";

} // namespace

QList<Command> captureCommands()
{
    return {
        Command("capture", capture)
            .takes("--channels KEY,... [OPTION...] (--csv FILE | --html FILE | --json)...")
            .says("record the drive's signals, with or without a motion, to CSV and plot page", captureHelp)
            .value("channels", "KEY,...", "What to record, one to sixteen of the channels above.")
            .value("rate", "HZ",
                   "Samples a second of each channel; the drive takes the nearest that it has. Its highest if not "
                   "given: 20000 (Keta), 17500 (Torva).")
            .value("trigger", "WHEN",
                   "What starts the recording: rise (the setpoint rises), change (it changes), fault (a fault "
                   "comes up), now. If not given: change with --step or --stimulus, otherwise now.")
            .value("step", "SETPOINT", "When armed, give the drive this setpoint, in setpoint units.")
            .flag("incremental", "--step is added to the setpoint in use.")
            .value("stimulus", "T1,D1,T2,D2",
                   "When armed, switch between two setpoints, each held for its time in s, 0.02 to 100.")
            .flag("enable", "Enable the drive before, and disable it at the end, whatever happens in between.")
            .value("time-out", "S",
                   "Longest time in seconds from arming until the recorder is full; if not given, 10 s more than "
                   "the recording takes.")
            .value("csv", "FILE", "Save the samples as columns: a line of names, then time in s and a value a channel.",
                   Option::Kind::File)
            .value("format", "KIND",
                   "How --csv writes them: semicolon (if not given), or comma, with a line of units below the "
                   "names and fixed decimals, for spreadsheets and plotters in any language.")
            .value("html", "FILE",
                   "Save the plot page. Scripts, style, settings and figures are put into the file, which can so "
                   "be opened in any browser and by Velbrin, moved and sent; drag in a chart to zoom.",
                   Option::Kind::File)
            .value("note", "TEXT", "Your own words, kept with the capture.")
            .checks(checkCapture),
    };
}
