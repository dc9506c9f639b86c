#include "commandline.h"

#include "commandhelp.h"
#include "commands.h"
#include "version.h"
#include "virtualport.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

#define TEXT(text) QT_TRANSLATE_NOOP("CommandHelp", text)
const QList<Option> commonOptions = {
    {"port", "NAME", TEXT("Serial port of the bus, such as /dev/ttyUSB0.")},
    {"virtual-drive", "[=PROFILES]",
     TEXT(
         "Without hardware: virtual drives such as keta,torva; keta alone if none are named; keta:flexible=45+noise on "
         "an axis that misbehaves (velbrin-sim --help lists how). They live as long as the command; velbrin-sim keeps "
         "them.")},
    {"node", "N",
     TEXT("Bus address, 1 to 255. Needed by every command that writes to a drive or moves it; the others find the only "
          "drive by themselves.")},
    {"json", nullptr, TEXT("Print results as JSON.")},
    // Not in the help: a real drive that is not waited for is lost in the middle of a restart or an erase.
    {"pause-scale", "FACTOR", nullptr},
    {"help", nullptr, TEXT("This text; behind a command, all about the command. Also -h.")},
    {"version", nullptr, TEXT("The program's version. Also -v.")},
};
#undef TEXT

const QString virtualDriveOption = QStringLiteral("virtual-drive");
const QString defaultProfile = QStringLiteral("keta");

struct GivenOption
{
    QString name;
    QString value;
};

/// The words of a command line, sorted.
struct Words
{
    QList<GivenOption> options;
    QStringList others; ///< the command and its arguments
    QString problem;

    bool has(const QString &name) const
    {
        return std::any_of(options.cbegin(), options.cend(), [&name](const GivenOption &o) { return o.name == name; });
    }
};

const Option *findCommonOption(const QString &name)
{
    const auto found = std::find_if(commonOptions.cbegin(), commonOptions.cend(),
                                    [&name](const Option &option) { return name == QLatin1String(option.name); });
    return found == commonOptions.cend() ? nullptr : &*found;
}

/// The option of this name, whoever takes it: they agree on whether it has a value.
const Option *findAnyOption(const QString &name)
{
    const Option *option = findCommonOption(name);
    for (const Command &command : commandTable())
        option = option ? option : findOption(command, name);
    return option;
}

/// Takes the option at `words[at]` and its value. Returns the number of words that it took.
int takeOption(const QStringList &words, int at, Words &sorted)
{
    const QString word = words.at(at);
    const QString name = word == QLatin1String("-h")   ? QStringLiteral("help")
                         : word == QLatin1String("-v") ? QStringLiteral("version")
                                                       : word.section(QLatin1Char('='), 0, 0).mid(2);
    const bool hasValue = word.contains(QLatin1Char('='));
    const bool isLast = at + 1 >= words.size();
    const Option *option = findAnyOption(name);
    const auto fail = [&sorted](const QString &problem) {
        sorted.problem = problem;
        return 1;
    };
    if (option == nullptr)
        return fail(
            tr("Unknown option '%1'.").arg(word.section(QLatin1Char('='), 0, 0).remove(QRegularExpression("^-+"))));
    if (sorted.has(name))
        return fail(tr("--%1 is given twice.").arg(name));
    if (option->value == nullptr && hasValue)
        return fail(tr("--%1 takes no value.").arg(name));
    QString value = word.section(QLatin1Char('='), 1);
    int taken = 1;
    if (name == virtualDriveOption && !hasValue) {
        value = defaultProfile;
    } else if (option->value != nullptr && !hasValue) {
        if (isLast || words.at(at + 1).startsWith(QLatin1String("--")))
            return fail(tr("--%1 needs a value.").arg(name));
        value = words.at(at + 1);
        taken = 2;
    }
    if (option->value != nullptr && value.isEmpty())
        return fail(tr("--%1 needs a value.").arg(name));
    sorted.options.append({name, value});
    return taken;
}

Words sortWords(const QStringList &words)
{
    static const QRegularExpression negativeNumber(QStringLiteral("^-[0-9.]"));
    Words sorted;
    for (int at = 0; at < words.size() && sorted.problem.isEmpty();) {
        const QString &word = words.at(at);
        const bool isOption =
            word.size() > 1 && word.startsWith(QLatin1Char('-')) && !negativeNumber.match(word).hasMatch();
        if (isOption) {
            at += takeOption(words, at, sorted);
        } else {
            sorted.others.append(word);
            ++at;
        }
    }
    return sorted;
}

void takeCommonOption(const GivenOption &option, CommandLine &line)
{
    bool isNumber = true;
    if (option.name == QLatin1String("port")) {
        line.port = option.value;
    } else if (option.name == virtualDriveOption) {
        line.virtualDrives = option.value;
    } else if (option.name == QLatin1String("json")) {
        line.json = true;
    } else if (option.name == QLatin1String("node")) {
        line.node = option.value.toInt(&isNumber);
        if (!isNumber || line.node < 1 || line.node > 255)
            line.problem = tr("--node takes a bus address from 1 to 255.");
    } else if (option.name == QLatin1String("pause-scale")) {
        line.pauseScale = option.value.toDouble(&isNumber);
        if (!isNumber || !(line.pauseScale >= 0.0 && line.pauseScale <= 1.0))
            line.problem = tr("--pause-scale takes a factor from 0 to 1.");
    }
}

/// The command, its arguments and its options, or what is wrong with them.
void takeCommand(const Words &words, const Command &command, CommandLine &line)
{
    line.arguments = words.others.mid(1);
    const int count = line.arguments.size();
    if (count < command.minArguments || (command.maxArguments >= 0 && count > command.maxArguments)) {
        line.problem = tr("Usage: velbrin-cli ... %1").arg(commandUsage(command));
        return;
    }
    // A virtual drive has a working directory of its own.
    const auto absolute = [](const QString &name) { return QFileInfo(name).absoluteFilePath(); };
    if (command.takesFile)
        line.arguments.first() = absolute(line.arguments.first());
    for (const GivenOption &given : words.options) {
        const Option *option = findOption(command, given.name);
        if (option != nullptr)
            line.options.insert(given.name, option->isFile ? absolute(given.value) : given.value);
        else if (findCommonOption(given.name) == nullptr)
            line.problem = tr("\"%1\" does not take --%2.").arg(line.command, given.name);
    }
    if (line.problem.isEmpty() && command.check != nullptr)
        line.problem = command.check(line);
}

QString portProblem(const CommandLine &line)
{
    if (line.port.isEmpty() == line.virtualDrives.isEmpty())
        return tr("Either --port NAME or --virtual-drive is needed.");
    return line.port.isEmpty() ? checkVirtualDrives(line.virtualDrives) : QString();
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    const Words words = sortWords(arguments.mid(1));
    CommandLine line;
    line.problem = words.problem;
    line.command = words.others.value(0);
    const Command *command = findCommand(line.command);
    if (!line.problem.isEmpty())
        return line;
    if (words.has(QStringLiteral("help")))
        line.answer = command ? commandHelp(*command) : programHelp(commonOptions);
    else if (words.has(QStringLiteral("version")))
        line.answer = QStringLiteral("velbrin-cli %1\n").arg(QLatin1String(VELBRIN_VERSION));
    if (!line.answer.isEmpty())
        return line;

    for (const GivenOption &option : words.options) {
        if (line.problem.isEmpty())
            takeCommonOption(option, line);
    }
    const bool needsDrive = command == nullptr || command->run != nullptr;
    if (line.problem.isEmpty() && needsDrive)
        line.problem = portProblem(line);
    if (!line.problem.isEmpty())
        return line;
    if (line.command.isEmpty())
        line.problem = tr("There is no command.");
    else if (command == nullptr)
        line.problem = tr("There is no command \"%1\".").arg(line.command);
    else
        takeCommand(words, *command, line);
    return line;
}
