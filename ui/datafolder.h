/// \file
/// Where the plot page's scripts ("flot") and the offline help ("help") are. Both are addressed through the working
/// directory, so the program works in a folder that has them.
#ifndef DATAFOLDER_H
#define DATAFOLDER_H

#include "workfolder.h"

#include <QString>

/// Whether the plot page finds its scripts under this folder.
bool hasPlotScripts(const QString &folder);

/// The first of: VELBRIN_DATA, the data folder beside an installed program, that of the build. Empty when none has
/// the plot scripts.
QString findDataFolder();

/// Changes into the program's own data folder. Only a program without one makes do with a working directory that has
/// what is needed: somebody else's "flot" folder would put its scripts into the page. Returns whether there are scripts
/// in the end; without, plots and offline help stay empty and everything else works.
bool enterDataFolder();

/// A private working directory with "flot" and "help" linked into it and "COM1" linked to a pseudo terminal: a bus
/// port's name must begin with "COM" or "/dev/tty", and nothing here needs root. Removed with this object; those of
/// programs that were killed are removed by the next.
class VirtualDriveFolder
{
public:
    /// Makes the folder and changes into it; error() tells what failed.
    explicit VirtualDriveFolder(const QString &terminal);
    ~VirtualDriveFolder();
    VirtualDriveFolder(const VirtualDriveFolder &) = delete;
    VirtualDriveFolder &operator=(const VirtualDriveFolder &) = delete;

    QString error() const { return m_error; }
    static QString portName() { return QStringLiteral("COM1"); }

private:
    WorkFolder m_folder;
    QString m_previous;
    QString m_error;
};

#endif
