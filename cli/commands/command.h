/// \file
/// What a command of velbrin-cli is made of.
#ifndef VELBRIN_CLI_COMMAND_H
#define VELBRIN_CLI_COMMAND_H

#include "outcome.h"

class DriveClient;
struct CommandLine;

/// An option of the command line, --NAME or --NAME VALUE.
struct Option
{
    const char *name;  ///< without dashes
    const char *value; ///< what the help calls its value; null for a switch
    const char *help;  ///< null: not in the help
    enum class Kind { Text, File, Repeated, RepeatedFile } kind = Kind::Text;

    bool isFile() const { return kind == Kind::File || kind == Kind::RepeatedFile; }
    bool mayRepeat() const { return kind == Kind::Repeated || kind == Kind::RepeatedFile; }
};

/// One command, written as Command("name", function).says(...).takes(...).flag(...) and so on. In its texts, line
/// breaks count as spaces and an empty line begins a new paragraph.
class Command
{
public:
    using OnDrive = Outcome (*)(DriveClient &client, const CommandLine &line);
    using Offline = Outcome (*)(const CommandLine &line);
    using Check = QString (*)(const CommandLine &line);
    static constexpr int anyNumber = 1000;

    Command(const char *name, OnDrive run) : name(name), run(run) {}
    Command(const char *name, Offline run) : name(name), runOffline(run) {}

    /// One line for the list of commands; and what it does, units, what it leaves behind.
    Command &says(const char *summary, const char *details);
    /// Its arguments as the help shows them, and how many there may be.
    Command &takes(const char *usage, int minimum = 0, int maximum = 0);
    /// The same for a single argument that is a file; it may be left away where `minimum` is 0.
    Command &takesFile(const char *usage, int minimum = 1);
    Command &flag(const char *option, const char *help);
    Command &value(const char *option, const char *value, const char *help, Option::Kind kind = Option::Kind::Text);
    /// What is wrong with arguments and options, found without a drive; empty when nothing is.
    Command &checks(Check check);
    /// With this option it needs no drive and runs as `run`.
    Command &offlineWith(const char *option, Offline run);

    bool needsDrive(const CommandLine &line) const;

    const char *name;
    const char *summary = "";
    const char *details = "";
    const char *usage = "";
    int minArguments = 0;
    int maxArguments = 0;
    bool argumentIsFile = false;
    QList<Option> options;
    OnDrive run = nullptr; ///< null for a command that never needs a drive
    Offline runOffline = nullptr;
    const char *offlineOption = nullptr;
    Check check = nullptr;
};

#endif
