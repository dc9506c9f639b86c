/// \file
/// All commands of velbrin-cli, in the order of its help.
#ifndef VELBRIN_CLI_COMMANDS_H
#define VELBRIN_CLI_COMMANDS_H

#include "command.h"

const QList<Command> &commandTable();
/// Null for a name that is no command.
const Command *findCommand(const QString &name);

#endif
