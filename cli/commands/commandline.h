/// \file
/// The command line of velbrin-cli, taken apart and checked before anything is opened.
#ifndef VELBRIN_CLI_COMMANDLINE_H
#define VELBRIN_CLI_COMMANDLINE_H

#include <QHash>
#include <QString>
#include <QStringList>

struct CommandLine
{
    QString port;          ///< serial port; empty with a virtual drive, and where the command needs no drive
    QString virtualDrives; ///< profiles, separated by commas; empty without a virtual drive
    int node = 0;          ///< bus address, 0 where none was given
    bool json = false;
    double pauseScale = 1.0; ///< of the session's pauses, for tests on the virtual drive
    QString command;
    QStringList arguments;               ///< what follows the command; file names are absolute
    QHash<QString, QStringList> options; ///< the command's own, by name without dashes; a switch has an empty value

    bool has(const char *option) const { return options.contains(QLatin1String(option)); }
    QStringList values(const char *option) const { return options.value(QLatin1String(option)); }
    QString value(const char *option) const { return values(option).value(0); }

    QString problem; ///< why it cannot be carried out; empty when it can
    QString answer;  ///< text of --help or --version: print it and do nothing else
};

#endif
