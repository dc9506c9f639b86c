/// \file
/// Taking the command line apart.
#ifndef VELBRIN_CLI_COMMANDPARSER_H
#define VELBRIN_CLI_COMMANDPARSER_H

#include "commandline.h"

/// `arguments` begins with the program's name, as QCoreApplication::arguments() does. The common options may stand
/// before and after the command, its own behind it, with "=" or a space before their value; a word that begins like a
/// negative number is no option.
CommandLine parseCommandLine(const QStringList &arguments);

#endif
