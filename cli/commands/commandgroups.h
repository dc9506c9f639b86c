/// \file
/// The groups of commands. Each stands in a file of its own (settingscommands.cpp, ...), functions and rows together.
/// To add a command: a function and a row there. To add a group: its list here and in commands.cpp.
#ifndef VELBRIN_CLI_COMMANDGROUPS_H
#define VELBRIN_CLI_COMMANDGROUPS_H

#include "command.h"

QList<Command> settingsCommands(); ///< scan, read, write, save, load, compare
QList<Command> statusCommands();   ///< status
QList<Command> motionCommands();   ///< enable, disable, clear-faults, home, setpoint
QList<Command> captureCommands();  ///< capture
QList<Command> reportCommands();   ///< figures, report
QList<Command> firmwareCommands(); ///< flash, restart, firmware-info

#endif
