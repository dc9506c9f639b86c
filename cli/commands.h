/// \file
/// The commands of velbrin-cli. To add one: a function and a row of the table in commands.cpp.
#ifndef COMMANDS_H
#define COMMANDS_H

#include "outcome.h"

class DriveClient;
struct CommandLine;

struct Command
{
    const char *name;
    const char *arguments;   ///< as the help shows them
    const char *description; ///< as the help shows it
    int minArguments;
    int maxArguments; ///< -1 for any number
    bool takesToFlash;
    bool takesFile; ///< the first argument is a file name
    Outcome (*run)(DriveClient &client, const CommandLine &line);
    /// What is wrong with the arguments, found without a drive; empty when nothing is. May be null.
    QString (*check)(const QStringList &arguments);
};

const QList<Command> &commandTable();
/// Null for a name that is no command.
const Command *findCommand(const QString &name);

#endif
