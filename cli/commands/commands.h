/// \file
/// The commands of velbrin-cli. Each group of them stands in a file of its own (settingscommands.cpp, ...), functions
/// and rows together. To add a command: a function and a row there. To add a group: its list in commands.cpp.
#ifndef COMMANDS_H
#define COMMANDS_H

#include "outcome.h"

class DriveClient;
struct CommandLine;

/// An option of the command line, --NAME or --NAME VALUE.
struct Option
{
    const char *name;  ///< without dashes
    const char *value; ///< what the help calls its value; null for a switch
    const char *help;  ///< null: not in the help
    bool isFile = false;
};

struct Command
{
    const char *name;
    const char *arguments; ///< as the help shows them
    const char *summary;   ///< one line, for the list of commands
    const char *details;   ///< for the help of this command: what it does, units, what it leaves behind
    int minArguments;
    int maxArguments;                                             ///< -1 for any number
    Outcome (*run)(DriveClient &client, const CommandLine &line); ///< null for a command that needs no drive
    QList<Option> options = {};
    bool takesFile = false; ///< the first argument is a file name
    /// What is wrong with arguments and options, found without a drive; empty when nothing is. May be null.
    QString (*check)(const CommandLine &line) = nullptr;
    Outcome (*runWithoutDrive)(const CommandLine &line) = nullptr;
};

QList<Command> settingsCommands(); ///< scan, read, write, save, load, compare
QList<Command> statusCommands();   ///< status
QList<Command> motionCommands();   ///< enable, disable, clear-faults, home, setpoint
QList<Command> captureCommands();  ///< capture
QList<Command> firmwareCommands(); ///< flash, restart, firmware-info

const QList<Command> &commandTable();
/// Null for a name that is no command.
const Command *findCommand(const QString &name);
/// Null for a name that is none of its options.
const Option *findOption(const Command &command, const QString &name);

#endif
