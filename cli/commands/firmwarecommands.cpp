// Restarting a drive, replacing its firmware, and looking into firmware files.
#include "commandgroups.h"

#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "firmwareinfo.h"
#include "plaintext.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int upgradeAddress = 255;
constexpr int oneTimeAddress = 16;      // of a freshly upgraded drive, until its next restart
constexpr int upgradeLimitMs = 3600000; // far beyond any image over any line

// --- flash --------------------------------------------------------------------------------------------------------

/// What an upgrade has told so far. Its lines are printed as they come: it takes long enough for somebody to watch.
struct UpgradeLog
{
    bool printsLines = true;
    QStringList lines;
    bool isDone = false;
    bool hasFailed = false;

    void take(DriveClient &client, const QString &html, bool done, bool failed)
    {
        isDone |= done;
        hasFailed |= failed;
        lines.append(plainText(html));
        // A closed pipe is no reason to break off an upgrade.
        if (printsLines && !failed)
            client.progress().aside([&] { writeOut(lines.last().toUtf8() + '\n'); });
    }
};

bool connectToUpgrade(DriveClient &client, const CommandLine &line, QStringList &messages)
{
    const int address = line.node != 0 ? line.node : upgradeAddress;
    if (!client.connectTo(address)) {
        messages.append(
            tr("No drive in firmware-upgrade mode was found at address %1. \"restart --upgrade-mode\" brings "
               "a drive there, if its model can be.")
                .arg(address));
        return false;
    }
    if (!client.isInUpgradeMode()) {
        messages.append(tr("The drive at address %1 is not in firmware-upgrade mode; see \"restart --upgrade-mode\".")
                            .arg(address));
        return false;
    }
    // Behind the session's words of welcome, which are not part of the upgrade.
    return client.liveState().has_value();
}

/// Until the drive has its firmware, or somebody has insisted on breaking it off.
void upgrade(DriveClient &client, const QString &fileName, bool resetsSettings, UpgradeLog &log)
{
    const QString upgrading = tr("Upgrading");
    client.received().upgradeMessage = [&](const QString &html, bool done, bool failed) {
        log.take(client, html, done, failed);
    };
    client.received().uploadProgress = [&client, upgrading](int sentBytes, int totalBytes) {
        const QString uploading = tr("Uploading %1 of %2 KiB").arg(sentBytes / 1024).arg((totalBytes + 1023) / 1024);
        client.progress().update(sentBytes < totalBytes ? uploading : upgrading);
    };
    client.setOnInterrupt(
        DriveClient::OnInterrupt::AskOnceMore,
        tr("An upgrade is running. Breaking it off leaves the drive without a firmware until the next "
           "upgrade. Ask once more to break it off."));
    client.beCareful();
    client.session().setFirmwareFileName(fileName, resetsSettings);
    client.session().command(Connection::TaskFlashFirmware);
    client.waitFor(
        upgrading, [&log] { return log.isDone; }, upgradeLimitMs);
    if (client.wasInterrupted())
        client.close(); // ends the upload; what it still has to say belongs to the log
    client.received().upgradeMessage = nullptr;
    client.received().uploadProgress = nullptr;
}

Outcome flash(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToUpgrade(client, line, messages))
        return failed(messages);
    const bool resetsSettings = line.has("reset-to-factory");
    if (resetsSettings && !client.session().deviceHasCapability(Connection::CapResetToFactory))
        return failed({tr("A %1 cannot reset its settings in an upgrade.").arg(modelName(client))});

    UpgradeLog log;
    log.printsLines = !line.json;
    upgrade(client, line.arguments.first(), resetsSettings, log);
    Outcome outcome;
    outcome.status = log.isDone && !log.hasFailed ? ExitDone : ExitFailed;
    if (log.hasFailed)
        outcome.messages.append(log.lines.last());
    outcome.results.json =
        QJsonObject{{"done", outcome.status == ExitDone}, {"messages", QJsonArray::fromStringList(log.lines)}};
    return outcome;
}

// --- restart ------------------------------------------------------------------------------------------------------

/// After a restart: back at its address, or where the only drive on the bus answers now.
bool reconnect(DriveClient &client, int address, QStringList &messages)
{
    if (address != 0)
        return client.connectTo(address);
    CommandLine anyDrive;
    return connectToDrive(client, anyDrive, Use::Look, messages);
}

Outcome restart(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToDrive(client, line, Use::Act, messages))
        return failed(messages);
    const bool toUpgradeMode = line.has("upgrade-mode");
    const bool wasInUpgradeMode = client.isInUpgradeMode();
    if (toUpgradeMode && wasInUpgradeMode)
        return failed({tr("The drive is in firmware-upgrade mode already.")});
    if (toUpgradeMode && !client.session().deviceHasCapability(Connection::CapRestartToDFU))
        return failed({tr("A %1 cannot be restarted into firmware-upgrade mode by the program; it is started in that "
                          "mode by its own switches.")
                           .arg(modelName(client))});

    // Where it is going to answer: these two give way to the drive's own address, which only a search can tell.
    const bool isMoving = wasInUpgradeMode || client.address() == oneTimeAddress;
    const int address = toUpgradeMode ? upgradeAddress : isMoving ? 0 : client.address();
    const int errors = client.received().errors;
    client.session().command(toUpgradeMode ? Connection::TaskRestartToDFU : Connection::TaskRestartDrive);
    if (!client.disconnectDrive() || client.received().errors != errors)
        return failed({tr("It is not known whether the drive has restarted.")});
    if (!reconnect(client, address, messages))
        return failed(messages + QStringList(tr("The drive was told to restart but was not found again; \"scan\" shows "
                                                "what answers.")));
    if (client.isInUpgradeMode() != toUpgradeMode)
        return failed({tr("The drive answers again, but in mode \"%1\".").arg(modeName(client.isInUpgradeMode()))});
    const Table table{{"address", "model", "typeId", "mode"},
                      {{client.address(), modelName(client), client.deviceType(), modeName(client.isInUpgradeMode())}}};
    return {ExitDone, {tabSeparated(table), toJson(table).toArray().first()}, {}};
}

// --- firmware-info ------------------------------------------------------------------------------------------------

Outcome firmwareInfo(const CommandLine &line)
{
    const FirmwareInfo info = readFirmwareInfo(line.arguments.first());
    Outcome outcome{info.problem.isEmpty() ? ExitDone : ExitFailed, toResults(info), {}};
    if (!info.problem.isEmpty())
        outcome.messages.append(info.problem);
    return outcome;
}

} // namespace

QList<Command> firmwareCommands()
{
    return {
        Command("flash", flash)
            .takesFile("FILE.tdf [--reset-to-factory]")
            .says("replace the firmware of a drive in firmware-upgrade mode", R"(
The file is checked before anything is erased. ALL SETTINGS ARE LOST: "save" them before. Takes the time of the upload
and at least 3.5 s, 25 s more on a drive with two processors (Torva).

Prints what happens, line by line; the reason of a failure goes to standard error. Afterwards the drive answers at
address 16 until it is switched off and on. A failed or interrupted upgrade leaves a drive without firmware, which the
next upgrade repairs: after Ctrl+C it goes on, the second one breaks it off.

Drives in this mode answer at address 255 whatever their own, so have only one of them on the bus.)")
            .flag("reset-to-factory", "Reset the drive's settings with the erase (Keta)."),
        Command("restart", restart)
            .takes("[--upgrade-mode]")
            .says("restart the drive, and see that it is back", R"(
An enabled drive lets go of its motor. Settings that were not saved to flash are lost, faults cleared. Waits 3.5 s, then
connects again and prints address, model, type id and mode, tab separated. A drive in firmware-upgrade mode comes back in
normal mode if it has a firmware.)")
            .flag("upgrade-mode", "Restart into firmware-upgrade mode, at address 255, for \"flash\" (Keta only)."),
        Command("firmware-info", firmwareInfo)
            .takesFile("FILE.tdf")
            .says("what a firmware file holds; needs no drive", R"(
Format version, device type and family, sizes of the images, and whether the checksum is right; name and value tab
separated. Exit status 1 when no drive would take the file.)"),
    };
}
