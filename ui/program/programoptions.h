/// \file
/// The program's command line.
#ifndef VELBRIN_UI_PROGRAMOPTIONS_H
#define VELBRIN_UI_PROGRAMOPTIONS_H

#include <QString>
#include <QStringList>

struct ProgramOptions
{
    QString file;          ///< settings file to load at first, absolute; empty: none
    QString port;          ///< port to choose at first
    QString virtualDrives; ///< the built-in ones, MODEL[:LOAD][@ADDRESS],...; empty: none
    QString language;      ///< that the window is to speak, as two letters; empty: the user's own
    bool debugValues = false;
    QString tourFolder; ///< walk through the window by itself and leave screenshots here; empty: no tour
    QString error;      ///< what is wrong with the command line, empty when nothing is
    QString text;       ///< what to print instead of starting (help, version), empty otherwise
};

/// `arguments` begins with the program's name. Needs the application object for its name.
ProgramOptions parseProgramOptions(QStringList arguments);

#endif
