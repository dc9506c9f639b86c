/// \file
/// The texts of --help: of the program, and of each command.
#ifndef VELBRIN_CLI_COMMANDHELP_H
#define VELBRIN_CLI_COMMANDHELP_H

#include "command.h"

#include <QString>

/// What the program is, its common options, one line a command.
QString programHelp(const QList<Option> &commonOptions);
/// Everything about one command.
QString commandHelp(const Command &command);
/// "NAME ARGUMENTS".
QString commandUsage(const Command &command);

#endif
