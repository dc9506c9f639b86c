#include "drivemotion.h"

#include "clitext.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "drivewords.h"

#include <utility>

namespace {

constexpr int enableLimitMs = 3000;
constexpr int disableLimitMs = 20000; // on a line that answers nothing: the session gives up before
constexpr int stopLimitMs = 5000;     // a controlled stop takes its time

/// States in which an enable cannot help, however long one waits.
bool isBlocked(const DriveState &drive)
{
    return drive.isFaultStopped() || drive.isPermanentStop() || drive.isTorqueOff();
}

/// Powered, and not on its way to a stop.
bool isOn(const DriveState &drive)
{
    return drive.isRunning() && drive.isEnabled();
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
    if (isOn(client.drive()))
        return true;
    DisableAtEnd unlessEnabled(client);
    client.session().setDriveEnableStatus(true);
    client.session().command(Connection::TaskApplyEnableState);
    client.received().disableOutcome.reset();
    const auto wasTakenBack = [&client] { return client.received().disableOutcome.has_value(); };
    const auto isDecided = [&wasTakenBack](const DriveState &drive) {
        return wasTakenBack() || isOn(drive) || (drive.isSoftEnabled() && isBlocked(drive));
    };
    client.waitForDrive(tr("Enabling"), isDecided, enableLimitMs);
    if (client.isUp() && !client.wasInterrupted() && !wasTakenBack() && isOn(client.drive())) {
        unlessEnabled.release();
        return true;
    }
    messages.append(tr("The drive did not enable."));
    const QString reason = inactivityText(client.drive());
    if (client.isUp() && !reason.isEmpty())
        messages.append(reason);
    return false;
}

namespace {

/// One attempt, over the connection or, without one, through a new opening of the port.
std::optional<DisableOutcome> askToDisable(DriveClient &client)
{
    client.received().disableOutcome.reset();
    client.session().setDriveEnableStatus(false);
    client.session().command(Connection::TaskApplyEnableState);
    const auto isDecided = [&client] { return client.received().disableOutcome.has_value(); };
    client.waitFor(tr("Disabling"), isDecided, disableLimitMs, DriveClient::Until::Done);
    return client.received().disableOutcome;
}

bool mayStillBePowered(const std::optional<DisableOutcome> &outcome)
{
    return !outcome || *outcome == DisableOutcome::NoAnswer || *outcome == DisableOutcome::NoPort;
}

/// The motor is let go of at the end of a controlled stop.
bool waitUntilStopped(DriveClient &client)
{
    const auto hasStopped = [&client] { return client.received().polls > 0 && !client.drive().isRunning(); };
    client.received().polls = 0;
    client.waitFor(
        tr("Disabling"), [&] { return !client.isUp() || hasStopped(); }, stopLimitMs, DriveClient::Until::Done);
    return hasStopped() || !client.isUp(); // then it has shown at least that it is not enabled
}

} // namespace

bool disableDrive(DriveClient &client)
{
    client.beCareful();
    const bool wasUp = client.isUp();
    std::optional<DisableOutcome> outcome = askToDisable(client);
    // A line that was lost meanwhile may be well again.
    if (mayStillBePowered(outcome) && wasUp) {
        client.session().command(Connection::TaskDisconnect);
        outcome = askToDisable(client);
    }
    if (mayStillBePowered(outcome))
        client.say(tr("The drive has not confirmed that it is disabled. It may still be running or start to: use the "
                      "machine's own stop."));
    else if (*outcome == DisableOutcome::StillEnabled && (!client.isUp() || client.drive().isSoftEnabled()))
        client.say(
            tr("The drive shows that it is still enabled. It may still be running or start to: use the machine's "
               "own stop."));
    else if (*outcome == DisableOutcome::StillEnabled)
        client.say(tr("The drive took the disable command but stays enabled: by its settings, its enable input alone "
                      "decides."));
    else if (client.isUp() && !waitUntilStopped(client))
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
