/// \file
/// Where the plot page's scripts ("flot") and the offline help ("help") are. The window addresses both through the
/// working directory, so it works in a folder that has them.
#ifndef VELBRIN_DESK_DATAFOLDER_H
#define VELBRIN_DESK_DATAFOLDER_H

#include <QString>

/// Whether the plot page finds its scripts under this folder.
bool hasPlotScripts(const QString &folder);

/// The first that has the plot scripts of: VELBRIN_DATA, the data folder beside an installed program, that of the
/// build, the working directory. That one comes last: a folder of downloads must not put its scripts into the page.
/// Empty when none has them.
QString findDataFolder();

/// Changes into the data folder. Returns whether there is one; without, plots and offline help stay empty and
/// everything else works.
bool enterDataFolder();

/// Links what the data folder holds into `folder`, as far as it is found.
void linkDataInto(const QString &folder);

#endif
