// Recording what the drive does, and letting it do something while it is recorded.
#include "commands.h"

#include "capturefiles.h"
#include "captureorder.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivewords.h"

#include <QCoreApplication>

#include <cmath>

namespace {

constexpr int readyLimitMs = 30000; // after enabling: the way to the setpoint, and homing where it is asked for
constexpr int downloadLimitMs = 60000;
constexpr double defaultExtraSeconds = 10.0; // for the trigger to come

QString tr(const char *text)
{
    return QCoreApplication::translate("CaptureCommand", text);
}

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

void arm(DriveClient &client, const CaptureOrder &order, double rate)
{
    client.received().plot.reset();
    client.received().captureState = CaptureState::Idle;
    client.session().setupCapture(rate, order.trigger, order.channels);
    client.session().command(Connection::TaskInitScope);
}

/// Behind the arming in the session's queue, so that nothing moves where arming failed.
void step(DriveClient &client, const CaptureOrder &order)
{
    client.session().setTargetSetpoint(*order.step);
    client.session().command(order.isIncremental ? Connection::TaskSetIncrementalSetpoint
                                                 : Connection::TaskSetAbsoluteSetpoint);
}

bool waitForRecorder(DriveClient &client, double seconds, QStringList &messages)
{
    const auto isFull = [&client] {
        return client.received().captureState == CaptureState::Downloading || client.received().plot;
    };
    const auto done = [&client, &isFull] { return client.isLost() || isFull(); };
    if (client.waitFor(tr("Scope waiting"), done, int(std::ceil(seconds * 1000.0))) && !client.isLost())
        return true;
    if (client.isUp() && !client.wasInterrupted())
        messages.append(
            tr("The recorder was not triggered and filled within %1 s. Nothing was captured.").arg(seconds));
    return false;
}

std::optional<QList<CaptureData>> download(DriveClient &client)
{
    const auto done = [&client] {
        return client.isLost() || client.received().plot || client.received().captureState == CaptureState::Idle;
    };
    client.waitFor(tr("Downloading"), done, downloadLimitMs);
    return client.wasInterrupted() ? std::nullopt : client.received().plot;
}

/// Arms, excites, waits and downloads. Whatever was set going is stopped when this returns.
std::optional<QList<CaptureData>> record(DriveClient &client, const CaptureOrder &order, double rate,
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
    arm(client, order, rate);
    if (order.step)
        step(client, order);
    std::optional<QList<CaptureData>> channels;
    {
        std::optional<RunningStimulus> stimulus;
        if (order.stimulus)
            stimulus.emplace(client, *order.stimulus);
        const double seconds =
            order.timeOut.value_or(recordingTime(order, client.session().maxScopeSampleRate()) + defaultExtraSeconds);
        if (waitForRecorder(client, seconds, messages))
            channels = download(client);
    }
    if (disableAtEnd && !disableAtEnd->now())
        messages.append(tr("The drive is not known to be disabled."));
    return channels;
}

// --- The command --------------------------------------------------------------------------------------------------

Outcome capture(DriveClient &client, const CommandLine &line)
{
    QString problem;
    const CaptureOrder order = captureOrder(line, problem);
    CaptureFiles files(line.value("csv"), line.value("html"));
    problem = files.open();
    if (!problem.isEmpty())
        return failed({problem});
    QStringList messages;
    const bool acts = order.excites() || order.enables;
    if (!connectToMove(client, line, acts ? Use::Act : Use::Look, messages))
        return failed(messages);
    const double base = client.session().maxScopeSampleRate();
    problem = rateProblem(order, base);
    if (!problem.isEmpty())
        return failed({problem});

    Capture capture;
    capture.model = Connection::deviceModelName(client.deviceType(), true);
    capture.rate = effectiveRate(order, base);
    if (files.hasPage()) {
        const auto list = client.read();
        if (!list)
            return failed({tr("The drive's settings could not be read.")});
        capture.settings = *list;
    }
    const auto channels = record(client, order, order.rate.value_or(base), messages);
    if (!channels)
        return failed(messages);
    capture.channels = *channels;
    client.close(); // a pipe may be read slowly, or not at all
    const QStringList problems = messages + files.save(capture);
    return {problems.isEmpty() ? ExitDone : ExitFailed, summary(capture), problems};
}

QString checkCapture(const CommandLine &line)
{
    QString problem;
    captureOrder(line, problem);
    return problem;
}

} // namespace

QList<Command> captureCommands()
{
#define TEXT(text) QT_TRANSLATE_NOOP("CommandHelp", text)
    return {
        {"capture",
         "--channels KEY,... [OPTION...] (--csv FILE | --html FILE)...",
         TEXT("record the drive's signals, with or without a motion, to CSV and plot page"),
         TEXT(
             "Arms the drive's recorder, moves the axis if --step or --stimulus say so, waits until the recorder has\n"
             "2000 words, which the channels share, and saves them. Time in the files begins at the first sample.\n"
             "\n"
             "THE AXIS MOVES with --step, --stimulus and --enable, and not otherwise; the first two need a drive that\n"
             "is enabled. The drive stays where --step has sent it. A stimulus is stopped at the end and on every\n"
             "failure; Ctrl+C stops it, too, and disables a drive that --enable has enabled.\n"
             "\n"
             "Channels: torqueref, torquemeas, fluxcurrent (A); velreference, velmeas (counts a control cycle of 0.4 "
             "ms);\n"
             "posreference, posmeas, posferror (counts); outputvolt, fluxvoltage (%); hvbusvolt (V); pwm1, pwm2, "
             "pwm3,\n"
             "debug, debug2 (no unit).\n"
             "\n"
             "Prints one line a channel, tab separated: key, unit, number of samples, first, lowest, highest and last\n"
             "value."),
         0,
         0,
         capture,
         {{"channels", "KEY,...", TEXT("What to record, one to sixteen of the channels above.")},
          {"rate", "HZ",
           TEXT("Samples a second of each channel; the drive takes the nearest that it has. Its highest if not given: "
                "20000 (Keta), 17500 (Torva).")},
          {"trigger", "WHEN",
           TEXT("What starts the recording: rise (the setpoint rises), change (it changes), fault (a fault comes up), "
                "now. If not given: change with --step or --stimulus, otherwise now.")},
          {"step", "SETPOINT", TEXT("When armed, give the drive this setpoint, in setpoint units.")},
          {"incremental", nullptr, TEXT("--step is added to the setpoint in use.")},
          {"stimulus", "T1,D1,T2,D2",
           TEXT("When armed, switch between two setpoints, each held for its time in s, 0.02 to 100.")},
          {"enable", nullptr, TEXT("Enable the drive before, and disable it at the end, whatever happens in between.")},
          {"time-out", "S",
           TEXT("Longest time in seconds from arming until the recorder is full; if not given, 10 s more than the "
                "recording takes.")},
          {"csv", "FILE",
           TEXT("Save the samples, semicolon separated: a line of names, then time in s and a value a channel."), true},
          {"html", "FILE",
           TEXT("Save the plot page. Scripts and style are put into the file, which can so be opened in any browser, "
                "moved and sent; drag in a chart to zoom."),
           true}},
         false,
         checkCapture},
    };
#undef TEXT
}
