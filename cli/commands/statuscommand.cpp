// The drive's state in words, once or again and again.
#include "commandgroups.h"

#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "livescreen.h"
#include "statusreport.h"

namespace {

Outcome unreadable()
{
    return failed({tr("The drive's state could not be read.")});
}

/// Every poll's state, until somebody ends it.
Outcome watch(DriveClient &client, const CommandLine &line, const Parameters &list)
{
    client.setOnInterrupt(DriveClient::OnInterrupt::EndQuietly);
    client.progress().hush();
    LiveScreen screen;
    while (const auto live = client.nextLiveState()) {
        const StatusReport report = statusReport(client, list, *live);
        const bool isWritten = screen.isTerminal() && !line.json ? screen.draw(report)
                                                                 : writeOut(printedBlock(toResults(report), line.json));
        if (!isWritten)
            return failed({tr("The results could not be written.")});
    }
    return client.wasInterrupted() ? Outcome() : unreadable();
}

Outcome status(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToDrive(client, line, Use::Look, messages))
        return failed(messages);
    const auto list = client.read();
    if (!list)
        return unreadable();
    if (line.has("watch"))
        return watch(client, line, *list);
    const auto live = client.liveState();
    return live ? Outcome{ExitDone, toResults(statusReport(client, *list, *live)), {}} : unreadable();
}

} // namespace

QList<Command> statusCommands()
{
    return {
        Command("status", status)
            .takes("[--watch]")
            .says("connection, model, versions, and the registers in words", R"(
Who is connected, then the drive's inputs, status and faults, each flag on or off, with a "!" at whatever keeps a drive
that does not run from running. Voltages in V, currents in A, velocity in revolutions a second, positions in counts.)")
            .flag("watch",
                  "Again and again, three times a second, until Ctrl+C: in place on a terminal; elsewhere block "
                  "after block, a blank line behind each and none inside; with --json one object a line."),
    };
}
