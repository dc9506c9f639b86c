#include "drivemotion.h"

#include "driveclient.h"
#include "drivesteps.h"

#include <QCoreApplication>

#include <utility>

namespace {

constexpr int enableLimitMs = 3000;
constexpr int disableLimitMs = 5000; // a controlled stop takes its time
constexpr int pollsForAnswer = 3;    // after so many the enable itself has to be seen gone

QString tr(const char *text)
{
    return QCoreApplication::translate("DriveMotion", text);
}

/// States in which an enable cannot help, however long one waits.
bool isBlocked(const DriveReading &drive)
{
    return drive.faultStopped || drive.permanentStop || drive.torqueOff;
}

} // namespace

bool connectToMove(DriveClient &client, const CommandLine &line, Use use, QStringList &messages)
{
    if (!connectToDrive(client, line, use, messages))
        return false;
    if (client.isInUpgradeMode()) {
        messages = QStringList(tr("The drive is in firmware-upgrade mode and cannot move there."));
        return false;
    }
    return client.liveState().has_value();
}

bool enableDrive(DriveClient &client, QStringList &messages)
{
    if (client.drive().running)
        return true;
    DisableAtEnd notYet(client);
    client.session().setDriveEnableStatus(true);
    client.session().command(Connection::TaskApplyEnableState);
    const auto isDecided = [](const DriveReading &drive) {
        return drive.running || (drive.softEnabled && isBlocked(drive));
    };
    client.waitForDrive(tr("Enabling"), isDecided, enableLimitMs);
    if (client.isUp() && !client.wasInterrupted() && client.drive().running) {
        notYet.release();
        return true;
    }
    messages.append(tr("The drive did not enable."));
    const QString reason = inactivityText(client.drive());
    if (client.isUp() && !reason.isEmpty())
        messages.append(reason);
    return false;
}

bool disableDrive(DriveClient &client)
{
    const QString warning = tr("It may still be running or start to: use the machine's own stop.");
    if (!client.isUp()) {
        client.say(tr("The line to the drive is lost, so it could not be told to disable.") + QLatin1Char(' ') +
                   warning);
        return false;
    }
    client.beCareful();
    const Received &received = client.received();
    client.received().disableAnswered.reset();
    client.session().setDriveEnableStatus(false);
    client.session().command(Connection::TaskApplyEnableState);
    // Only a state that was read after the drive's answer says anything.
    const auto isKnown = [&] { return client.isUp() && received.disableAnswered.has_value() && received.polls > 0; };
    const auto isDecided = [&] {
        const DriveReading drive = client.drive();
        return client.isLost() || (isKnown() && !drive.enabled && !drive.running) ||
               (isKnown() && drive.enabled && received.polls >= pollsForAnswer);
    };
    client.waitFor(tr("Disabling"), isDecided, disableLimitMs, DriveClient::Until::Done);
    const DriveReading drive = client.drive();
    if (!isKnown() || drive.softEnabled)
        client.say(tr("The drive has not confirmed that it is disabled.") + QLatin1Char(' ') + warning);
    else if (drive.enabled)
        client.say(tr("The drive took the disable command but stays enabled: by its settings, its enable input alone "
                      "decides."));
    else if (drive.running)
        client.say(tr("The drive is disabled, but its motor is still being stopped."));
    else
        return true;
    return false;
}

DisableAtEnd::DisableAtEnd(DriveClient &client) : m_client(&client)
{
    client.beCareful();
}

bool DisableAtEnd::now()
{
    DriveClient *client = std::exchange(m_client, nullptr);
    return client == nullptr || disableDrive(*client);
}

RunningStimulus::RunningStimulus(DriveClient &client, const Wave &wave) : m_client(client)
{
    client.beCareful();
    client.session().setStimulus(wave.target1, wave.delay1, wave.target2, wave.delay2, true);
}

RunningStimulus::~RunningStimulus()
{
    // Queues the stop, which a disconnect does not overtake.
    m_client.session().setStimulus(0.0, 1.0, 0.0, 1.0, false);
}
