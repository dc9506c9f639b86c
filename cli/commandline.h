/// \file
/// The command line of velbrin-cli, taken apart and checked before anything is opened.
#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QString>
#include <QStringList>

struct CommandLine
{
    QString port;          ///< serial port; empty with a virtual drive
    QString virtualDrives; ///< profiles, separated by commas; empty without a virtual drive
    int node = 0;          ///< bus address, 0 where none was given
    bool json = false;
    bool toFlash = false;
    QString command;
    QStringList arguments; ///< what follows the command

    QString problem; ///< why it cannot be carried out; empty when it can
    QString answer;  ///< text of --help or --version: print it and do nothing else
};

/// `arguments` begins with the program's name, as QCoreApplication::arguments() does.
CommandLine parseCommandLine(const QStringList &arguments);

#endif
