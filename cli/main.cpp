// velbrin-cli: the drive session without a window, for scripts and for benches with many machines.
#include "clitext.h"
#include "commandparser.h"
#include "commands.h"
#include "driveclient.h"
#include "interruption.h"
#include "utf8locale.h"
#include "virtualport.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <cstdio>
#include <memory>

namespace {

void complain(const QStringList &messages)
{
    for (const QString &message : messages)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

Outcome runCommand(const CommandLine &line, Interruption &interruption)
{
    const Command &command = *findCommand(line.command);
    if (!command.needsDrive(line))
        return command.runOffline(line);
    DriveClient client(line.port, line.pauseScale);
    interruption.callWhenAsked([&client] { client.interrupt(); });
    Outcome outcome = command.run(client, line);
    client.close();
    outcome.messages = client.messages() + outcome.messages;
    return outcome;
}

} // namespace

int main(int argc, char **argv)
{
    useUtf8();
    QCoreApplication app(argc, argv);
    // The session's log is for those who ask for it, with QT_LOGGING_RULES="*.debug=true".
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    Interruption interruption;

    CommandLine line = parseCommandLine(app.arguments());
    if (!line.answer.isEmpty())
        return writeOut(line.answer.toUtf8()) ? ExitDone : ExitFailed;
    if (!line.problem.isEmpty()) {
        complain({line.problem, tr("velbrin-cli --help tells more.")});
        return ExitUsage;
    }

    std::unique_ptr<VirtualPort> virtualPort;
    if (!line.virtualDrives.isEmpty()) {
        virtualPort = std::make_unique<VirtualPort>(line.virtualDrives, VirtualPort::Pace::AsItGoes);
        if (!virtualPort->error().isEmpty()) {
            complain({virtualPort->error()});
            return ExitFailed;
        }
        line.port = VirtualPort::portName();
    }

    const Outcome outcome = runCommand(line, interruption);
    complain(outcome.messages);
    if (!writeOut(printed(outcome.results, line.json))) {
        complain({tr("The results could not be written.")});
        return ExitFailed;
    }
    return outcome.status;
}
