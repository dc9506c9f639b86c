#include "commandline.h"

#include "commands.h"
#include "version.h"
#include "virtualport.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

const QLatin1String virtualDriveOption("--virtual-drive");
const QLatin1String defaultProfile("keta");

QString commandsHelp()
{
    QString text = tr("Commands:") + QLatin1Char('\n');
    for (const Command &command : commandTable()) {
        const QString call = QLatin1String(command.name) + QLatin1Char(' ') + QLatin1String(command.arguments);
        text += QStringLiteral("  %1 %2\n").arg(call, -33).arg(tr(command.description));
    }
    return text + tr("\nExit status: 0 done, 1 refused or failed, 2 wrong usage, 3 \"compare\" found a difference.\n");
}

/// The command and its arguments, or what is wrong with them.
void takeCommand(const QStringList &words, CommandLine &line)
{
    if (words.isEmpty()) {
        line.problem = tr("There is no command.");
        return;
    }
    line.command = words.first();
    line.arguments = words.mid(1);
    const Command *command = findCommand(line.command);
    const int count = line.arguments.size();
    if (command == nullptr)
        line.problem = tr("There is no command \"%1\".").arg(line.command);
    else if (count < command->minArguments || (command->maxArguments >= 0 && count > command->maxArguments))
        line.problem =
            tr("Usage: velbrin-cli ... %1 %2").arg(QLatin1String(command->name), QLatin1String(command->arguments));
    else if (line.toFlash && !command->takesToFlash)
        line.problem = tr("\"%1\" does not take --to-flash.").arg(line.command);
    else if (command->check != nullptr)
        line.problem = command->check(line.arguments);
    // A virtual drive has a working directory of its own.
    if (command != nullptr && command->takesFile && line.problem.isEmpty())
        line.arguments.first() = QFileInfo(line.arguments.first()).absoluteFilePath();
}

void takeNode(const QString &text, CommandLine &line)
{
    bool isNumber = false;
    line.node = text.toInt(&isNumber);
    if (!isNumber || line.node < 1 || line.node > 255)
        line.problem = tr("--node takes a bus address from 1 to 255.");
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Reads, writes and compares the settings of a drive on the Zetabus.\n"
                                        "Values are in display units, as in settings files."));
    const QCommandLineOption port("port", tr("Serial port of the bus, such as /dev/ttyUSB0."), "NAME");
    const QCommandLineOption virtualDrive("virtual-drive",
                                          tr("Without hardware: virtual drives, such as keta,torva; keta alone if none "
                                             "are named."),
                                          "PROFILES");
    const QCommandLineOption node("node", tr("Bus address; not needed where there is only one drive."), "N");
    const QCommandLineOption json("json", tr("Print results as JSON."));
    const QCommandLineOption toFlash("to-flash", tr("Save to the drive's flash what was applied."));
    parser.addOptions({port, virtualDrive, node, json, toFlash});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument("command", tr("What to do, see below."), "COMMAND");

    // The profiles may be left out, which the parser has no notion of.
    QStringList words = arguments;
    for (QString &word : words) {
        if (word == virtualDriveOption)
            word += QLatin1Char('=') + defaultProfile;
    }

    CommandLine line;
    if (!parser.parse(words))
        line.problem = parser.errorText();
    else if (parser.isSet(help))
        line.answer = parser.helpText() + QLatin1Char('\n') + commandsHelp();
    else if (parser.isSet(version))
        line.answer = QStringLiteral("velbrin-cli %1\n").arg(QLatin1String(VELBRIN_VERSION));
    if (!line.problem.isEmpty() || !line.answer.isEmpty())
        return line;

    line.port = parser.value(port);
    line.virtualDrives = parser.value(virtualDrive);
    line.json = parser.isSet(json);
    line.toFlash = parser.isSet(toFlash);
    if (parser.isSet(node))
        takeNode(parser.value(node), line);
    if (line.port.isEmpty() == line.virtualDrives.isEmpty())
        line.problem = tr("Either --port NAME or --virtual-drive is needed.");
    else if (line.port.isEmpty())
        line.problem = checkProfiles(line.virtualDrives);
    if (line.problem.isEmpty())
        takeCommand(parser.positionalArguments(), line);
    return line;
}
