#include "commandparser.h"

#include "clitext.h"
#include "commandhelp.h"
#include "commands.h"
#include "version.h"
#include "virtualport.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>

namespace {

const QList<Option> commonOptions = {
    {"port", "NAME", "Serial port of the bus, such as /dev/ttyUSB0."},
    {"virtual-drive", "[=PROFILES]",
     "Without hardware: virtual drives such as keta,torva; keta alone if none are named; keta:flexible=45+noise "
     "on an axis that misbehaves (velbrin-sim --help lists how). They live as long as the command; velbrin-sim "
     "keeps them."},
    {"node", "N",
     "Bus address, 1 to 255. Needed by every command that writes to a drive or moves it; the others find the only "
     "drive by themselves."},
    {"json", nullptr, "Print results as JSON."},
    // Not in the help: a real drive that is not waited for is lost in the middle of a restart or an erase.
    {"pause-scale", "FACTOR", nullptr},
    {"help", nullptr, "This text; behind a command, all about the command. Also -h."},
    {"version", nullptr, "The program's version. Also -v."},
};

const char *const operandsName = "operands";

/// An option as the parser takes it. How often it was given is judged behind it, where the text can be ours.
void addOption(CLI::App &app, const Option &option)
{
    std::string name = std::string("--") + option.name;
    if (name == "--help" || name == "--version")
        name = std::string("-") + option.name[0] + "," + name;
    if (option.value == nullptr)
        app.add_flag(name)->take_all();
    else if (option.value[0] == '[') // a value behind "=" only, the first model without one
        app.add_flag(name + "{keta}")->take_all();
    else
        app.add_option(name)->type_name(option.value)->option_text(option.value)->take_all()->allow_extra_args(false);
}

/// The parser's grammar, of the same rows as the help.
void build(CLI::App &app)
{
    app.set_help_flag();
    app.allow_extras();
    app.require_subcommand(0, 1); // a file may be called as a command is
    for (const Option &option : commonOptions)
        addOption(app, option);
    for (const Command &command : commandTable()) {
        CLI::App *each = app.add_subcommand(command.name);
        each->fallthrough()->allow_extras();
        each->add_option(operandsName)->expected(-1)->take_all();
        for (const Option &option : command.options)
            addOption(*each, option);
    }
}

/// What was given for an option, an empty word for each time that a switch was; or what is wrong with it.
QStringList given(const CLI::App &app, const Option &option, QString &problem)
{
    const CLI::Option *found = app.get_option(std::string("--") + option.name);
    QStringList values;
    for (const std::string &value : found->results()) {
        if (option.value == nullptr && value != "true")
            problem = tr("--%1 takes no value.").arg(QLatin1String(option.name));
        values.append(option.value ? QString::fromStdString(value) : QString());
    }
    for (const QString &value : values) {
        // Another option in the place of a value: the value was forgotten.
        if (option.value != nullptr && (value.isEmpty() || value.startsWith(QLatin1String("--"))))
            problem = tr("--%1 needs a value.").arg(QLatin1String(option.name));
    }
    if (values.size() > 1 && !option.mayRepeat())
        problem = tr("--%1 is given twice.").arg(QLatin1String(option.name));
    return values;
}

void takeCommonOption(const QString &name, const QString &value, CommandLine &line)
{
    bool isNumber = true;
    if (name == QLatin1String("port")) {
        line.port = value;
    } else if (name == QLatin1String("virtual-drive")) {
        line.virtualDrives = value;
    } else if (name == QLatin1String("json")) {
        line.json = true;
    } else if (name == QLatin1String("node")) {
        line.node = value.toInt(&isNumber);
        if (!isNumber || line.node < 1 || line.node > 255)
            line.problem = tr("--node takes a bus address from 1 to 255.");
    } else if (name == QLatin1String("pause-scale")) {
        line.pauseScale = value.toDouble(&isNumber);
        if (!isNumber || !(line.pauseScale >= 0.0 && line.pauseScale <= 1.0))
            line.problem = tr("--pause-scale takes a factor from 0 to 1.");
    }
}

void takeCommonOptions(const CLI::App &app, CommandLine &line)
{
    for (const Option &option : commonOptions) {
        const QStringList values = given(app, option, line.problem);
        if (!values.isEmpty() && line.problem.isEmpty())
            takeCommonOption(QLatin1String(option.name), values.first(), line);
        if (!line.problem.isEmpty())
            return;
    }
}

/// The words that nothing takes.
QString extrasProblem(const CLI::App &app, const CommandLine &line)
{
    for (const std::string &each : app.remaining(true)) {
        const QString word = QString::fromStdString(each);
        if (!word.startsWith(QLatin1Char('-')))
            return tr("There is no command \"%1\".").arg(word);
        return line.command.isEmpty() ? tr("Unknown option %1.").arg(word)
                                      : tr("\"%1\" does not take %2.").arg(line.command, word);
    }
    return QString();
}

/// The command's arguments and options, or what is wrong with them.
void takeCommand(const CLI::App &app, const Command &command, CommandLine &line)
{
    // A virtual drive has a working directory of its own.
    const auto absolute = [](const QString &name) { return QFileInfo(name).absoluteFilePath(); };
    for (const std::string &word : app.get_option(operandsName)->results())
        line.arguments.append(QString::fromStdString(word));
    for (const Option &option : command.options) {
        QStringList values = given(app, option, line.problem);
        if (option.isFile())
            std::transform(values.begin(), values.end(), values.begin(), absolute);
        if (!values.isEmpty())
            line.options.insert(QLatin1String(option.name), values);
    }
    if (line.arguments.size() < command.minArguments || line.arguments.size() > command.maxArguments)
        line.problem = tr("Usage: velbrin-cli ... %1").arg(commandUsage(command));
    else if (command.argumentIsFile && !line.arguments.isEmpty())
        line.arguments.first() = absolute(line.arguments.first());
}

QString portProblem(const CommandLine &line)
{
    if (line.port.isEmpty() == line.virtualDrives.isEmpty())
        return tr("Either --port NAME or --virtual-drive is needed.");
    return line.port.isEmpty() ? checkVirtualDrives(line.virtualDrives) : QString();
}

/// Everything that can be told without a drive.
void check(const CLI::App &app, const Command *command, CommandLine &line)
{
    takeCommonOptions(app, line);
    if (line.problem.isEmpty())
        line.problem = extrasProblem(app, line);
    if (line.problem.isEmpty() && command != nullptr)
        takeCommand(*app.get_subcommand(command->name), *command, line);
    if (line.problem.isEmpty() && (command == nullptr || command->needsDrive(line)))
        line.problem = portProblem(line);
    if (line.problem.isEmpty() && command == nullptr)
        line.problem = tr("There is no command.");
    if (line.problem.isEmpty() && command->check != nullptr)
        line.problem = command->check(line);
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    CommandLine line;
    CLI::App app;
    build(app);
    std::vector<std::string> words; // last one first, as the parser wants them
    for (qsizetype i = arguments.size() - 1; i > 0; --i) {
        const QString &word = arguments.at(i);
        // The parser would take the next word for the value.
        if (word.startsWith(QLatin1String("--")) && word.indexOf(QLatin1Char('=')) == word.size() - 1)
            line.problem = tr("%1 needs a value.").arg(word.chopped(1));
        words.push_back(word.toStdString());
    }
    if (!line.problem.isEmpty())
        return line;
    try {
        app.parse(std::move(words));
    } catch (const CLI::ParseError &error) {
        line.problem = QString::fromUtf8(error.what());
        return line;
    }
    if (!app.get_subcommands().empty())
        line.command = QString::fromStdString(app.get_subcommands().front()->get_name());
    const Command *command = findCommand(line.command);
    if (app.count("--help") > 0)
        line.answer = command ? commandHelp(*command) : programHelp(commonOptions);
    else if (app.count("--version") > 0)
        line.answer = QStringLiteral("velbrin-cli %1\n").arg(QLatin1String(VELBRIN_VERSION));
    else
        check(app, command, line);
    return line;
}
