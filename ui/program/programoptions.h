/// \file
/// The program's command line.
#ifndef PROGRAMOPTIONS_H
#define PROGRAMOPTIONS_H

#include <QString>
#include <QStringList>

struct ProgramOptions
{
    QString file;          ///< settings file to load at first, absolute; empty: none
    QString port;          ///< port to choose at first
    QString virtualDrives; ///< the built-in ones, MODEL[:LOAD][@ADDRESS],...; empty: none
    bool debugValues = false;
    QString tourFolder; ///< walk through the window by itself and leave screenshots here; empty: no tour
    QString error;      ///< what is wrong with the command line, empty when nothing is
    QString text;       ///< what to print instead of starting (help, version), empty otherwise
};

/// `arguments` begins with the program's name. Needs the application object for its name.
ProgramOptions parseProgramOptions(QStringList arguments);

#endif
