// Commands that let a drive move, and those that stop it.
#include "commandgroups.h"

#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivemotion.h"
#include "drivesteps.h"
#include "drivewords.h"
#include "numbers.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

constexpr int answerLimitMs = 2000; // for a register that the drive has just been told to change
constexpr double defaultHomingSeconds = 60.0;
constexpr double longestWaitSeconds = 3600.0;

Outcome done(const DriveState &drive)
{
    Results results;
    results.lines.append(QStringLiteral("%1\t%2\t%3").arg(stateWord(drive)).arg(drive.setpoint).arg(drive.position));
    results.json = QJsonObject{{"state", stateWord(drive)},
                               {"setpoint", drive.setpoint},
                               {"position", drive.position},
                               {"faults", QJsonArray::fromStringList(activeFaults(drive))},
                               {"reasons", QJsonArray::fromStringList(inactivityReasons(drive))}};
    return {ExitDone, results, {}};
}

/// Refused, with what keeps the drive from running where that is why.
Outcome refused(const QString &what, const DriveState &drive)
{
    const QString reason = inactivityText(drive);
    return failed(reason.isEmpty() ? QStringList(what) : QStringList{what, reason});
}

QString listed(const QStringList &names)
{
    return names.join(QLatin1String(", "));
}

// --- Commands -----------------------------------------------------------------------------------------------------

Outcome enable(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToMove(client, line, Use::Act, messages) || !enableDrive(client, messages))
        return failed(messages);
    Outcome outcome = done(client.drive());
    if (client.drive().isRecovering())
        outcome.messages.append(tr("The axis is on its way to the setpoint in use."));
    return outcome;
}

/// Where no drive is named, none may be left running: neither for want of the option nor because another one answered.
/// The second search finds the drive whose reply to the first was lost.
Outcome disableAll(DriveClient &client)
{
    Table table{{"address", "model", "state"}, {}};
    QList<int> addresses;
    bool areDisabled = true;
    for (int search = 0; search < 2; ++search) {
        const auto nodes = client.scan();
        areDisabled = areDisabled && nodes.has_value();
        for (const NodeType &node : nodes.value_or(QList<NodeType>())) {
            if (addresses.contains(node.address))
                continue;
            addresses.append(node.address);
            QString state = modeName(true); // in which nothing moves
            if (!node.firmwareUpgradeMode || node.unreadable) {
                client.session().setDisableTarget(client.port(), node.address);
                const bool isDisabled = disableDrive(client);
                state = isDisabled ? QStringLiteral("disabled") : QStringLiteral("unconfirmed");
                areDisabled = areDisabled && isDisabled;
            }
            table.rows.append({node.address, nodeName(node), state});
        }
    }
    if (addresses.isEmpty() && areDisabled)
        return failed({tr("No drive answers on %1, so none was disabled.").arg(client.port())});
    if (addresses.isEmpty())
        return failed({tr("The search for drives on %1 failed, so none was disabled.").arg(client.port())});
    return {areDisabled ? ExitDone : ExitFailed,
            toResults(table),
            {tr("Without --node, only the drives that answered on %1 were told to disable.").arg(client.port())}};
}

/// The disable goes out first, before anything that a bad line could keep from succeeding.
Outcome disable(DriveClient &client, const CommandLine &line)
{
    client.received().notes = false;
    if (line.node == 0)
        return disableAll(client);
    client.session().setDisableTarget(client.port(), line.node);
    const bool isDisabled = disableDrive(client);
    if (!client.connectTo(line.node) || !client.liveState()) {
        if (!isDisabled)
            return failed();
        client.close();
        client.forgetMessages(); // what keeps it from being identified is not what was asked for
        return {ExitDone, {{QStringLiteral("disabled")}, QJsonObject{{"state", "disabled"}}}, {}};
    }
    if (client.isInUpgradeMode())
        return failed({tr("The drive is in firmware-upgrade mode and cannot move there.")});
    // Once more, and with the reasons for what it shows.
    if (!disableDrive(client))
        return failed();
    client.close();
    client.forgetMessages();
    return done(client.drive());
}

Outcome clearFaults(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToMove(client, line, Use::Act, messages))
        return failed(messages);
    client.session().clearDriveFaults();
    const auto areCleared = [](const DriveState &drive) { return activeFaults(drive).isEmpty(); };
    client.waitForDrive(tr("Clearing faults"), areCleared, answerLimitMs);
    // A cause that is still there raises its fault again at once.
    if (!client.nextLiveState())
        return failed();
    const DriveState drive = client.drive();
    if (!activeFaults(drive).isEmpty())
        return failed({tr("Still active: %1.").arg(listed(activeFaults(drive)))});
    if (drive.isPermanentStop())
        return failed({tr("The faults are cleared, but the drive is in permanent stop until its next restart.")});
    return done(drive);
}

/// True when the drive has left homing for whatever reason.
bool abortHoming(DriveClient &client)
{
    if (!client.isUp())
        client.connectTo(client.address(), DriveClient::Until::Done);
    client.session().command(Connection::TaskAbortHoming);
    client.session().command(Connection::TaskUpdateStatus);
    client.received().polls = 0;
    const auto hasEnded = [&client] { return client.received().polls > 0 && !client.drive().isHoming(); };
    const auto isDecided = [&client, &hasEnded] { return client.isLost() || hasEnded(); };
    client.waitFor(tr("Aborting homing"), isDecided, answerLimitMs, DriveClient::Until::Done);
    return client.isUp() && hasEnded();
}

Outcome home(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToMove(client, line, Use::Act, messages))
        return failed(messages);
    if (!client.drive().isRunning())
        return refused(tr("The drive is not enabled, so it was not asked to home."), client.drive());

    const auto seconds = number(line.value("time-out"), 0.0, longestWaitSeconds).value_or(defaultHomingSeconds);
    const auto isHoming = [](const DriveState &drive) { return drive.isHoming(); };
    const auto hasEnded = [](const DriveState &drive) { return !drive.isHoming(); };
    client.beCareful();
    client.session().command(Connection::TaskStartHoming);
    const bool hasBegun = client.waitForDrive(tr("Starting to home"), isHoming, answerLimitMs);
    if (hasBegun && client.waitForDrive(tr("Homing"), hasEnded, int(seconds * 1000.0))) {
        const DriveState drive = client.drive();
        return drive.isRunning() ? done(drive) : refused(tr("Homing was broken off by the drive."), drive);
    }
    if (!abortHoming(client))
        return failed({tr("The drive has not confirmed that homing is aborted. It may still be moving: use the "
                          "machine's own stop.")});
    if (!hasBegun && !client.wasInterrupted())
        return failed({tr("The drive did not start homing. It homes in position control only, and when homing is "
                          "switched on in its settings.")});
    return failed({tr("Homing was aborted before it was done.")});
}

Outcome setpoint(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToMove(client, line, Use::Act, messages))
        return failed(messages);
    const bool isIncremental = line.has("incremental");
    const int value = line.arguments.first().toInt();
    const qint64 target = isIncremental ? qint64(client.drive().setpoint) + value : value;
    if (target < lowestSetpoint || target > highestSetpoint)
        return failed({tr("The setpoint would be %1, beyond the 30 bits of the drive's.").arg(target)});

    client.session().setTargetSetpoint(value);
    client.session().command(isIncremental ? Connection::TaskSetIncrementalSetpoint
                                           : Connection::TaskSetAbsoluteSetpoint);
    const auto isTaken = [target](const DriveState &drive) { return drive.setpoint == target; };
    if (!client.waitForDrive(tr("Setting the setpoint"), isTaken, answerLimitMs))
        return failed(client.isUp() && !client.wasInterrupted()
                          ? QStringList(tr("The drive did not take it: its setpoint in use is %1. Does it take its "
                                           "setpoint from the bus?")
                                            .arg(client.drive().setpoint))
                          : QStringList());
    Outcome outcome = done(client.drive());
    if (!client.drive().isRunning())
        outcome.messages.append(tr("The drive is not running; the axis goes there when it does."));
    return outcome;
}

// --- Arguments that can be judged without a drive -----------------------------------------------------------------

QString checkSetpoint(const CommandLine &line)
{
    if (wholeNumber(line.arguments.first(), lowestSetpoint, highestSetpoint))
        return QString();
    return tr("\"%1\" is no whole number from %2 to %3.")
        .arg(line.arguments.first())
        .arg(lowestSetpoint)
        .arg(highestSetpoint);
}

QString checkTimeOut(const CommandLine &line)
{
    if (!line.has("time-out") || number(line.value("time-out"), 0.01, longestWaitSeconds))
        return QString();
    return tr("--time-out takes seconds, 0.01 to 3600.");
}

} // namespace

QList<Command> motionCommands()
{
    return {
        Command("enable", enable).says("enable the drive, and wait until its motor is powered", R"(
THE MOTOR IS POWERED FROM HERE ON, and the axis moves to the setpoint in use if it stands elsewhere. The drive stays
enabled when the command has ended: nothing watches it then. "disable" ends it.

Prints state, setpoint in use (setpoint units) and position feedback (counts), tab separated. When the motor is not
powered within 3 s, or the drive does not confirm it, the enable is taken back and the reason told. Ctrl+C disables.)"),
        Command("disable", disable).says("disable the drive, and wait until its state shows it", R"(
Goes out before anything else is asked. Give --node: without it the bus is searched, which takes 2.5 s, and every drive
that answers is disabled; then it is searched once more, for a drive whose answer was lost. Exit status 1 when a drive
has not confirmed that it is disabled; it may then still be running. This is no emergency stop.

Prints state, setpoint in use (setpoint units) and position feedback (counts), tab separated; only the state when the
drive could be disabled but not identified. Without --node, a line a drive: address, model and what became of it
("disabled", "unconfirmed", or "upgrade" in firmware-upgrade mode, where nothing moves), tab separated.)"),
        Command("clear-faults", clearFaults).says("clear the drive's faults", R"(
A drive that is still enabled runs again when its faults are gone; "disable" it first if it must not. Exit status 1 when
a fault is still there or comes back at once.

Prints state, setpoint in use (setpoint units) and position feedback (counts), tab separated.)"),
        Command("home", home)
            .takes("[--time-out S]")
            .says("run the homing that the drive's settings describe, and wait for its end", R"(
THE AXIS MOVES. The drive must be enabled. Homing is aborted on Ctrl+C and after the time-out.

Prints state, setpoint in use (setpoint units) and position feedback (counts), tab separated.)")
            .value("time-out", "S", "Longest time in seconds, 60 if not given.")
            .checks(checkTimeOut),
        Command("setpoint", setpoint)
            .takes("VALUE [--incremental]", 1, 1)
            .says("give the drive a setpoint", R"(
THE AXIS MOVES if the drive is enabled, and otherwise when it is enabled next. VALUE is a whole number in setpoint
units, -536870912 to 536870911; what it means (position, velocity, torque) is up to the control mode. Waits until the
drive shows it as its setpoint in use, not until the axis is there.

Prints state, setpoint in use (setpoint units) and position feedback (counts), tab separated.)")
            .flag("incremental", "VALUE is added to the setpoint in use.")
            .checks(checkSetpoint),
    };
}
