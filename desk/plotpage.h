/// \file
/// The plot page as a file of its own, for any browser.
#ifndef VELBRIN_DESK_PLOTPAGE_H
#define VELBRIN_DESK_PLOTPAGE_H

#include <QString>

/// `page` (CapturePlotter::generatePlotPage) with everything that it refers to inside it, so that the one file can be
/// moved and sent. `flotFolder` has the scripts and the style sheet (see findDataFolder). Links that only the window
/// understands are left out. Empty when a script cannot be read; `problem` then says which.
QString standalonePage(const QString &page, const QString &flotFolder, QString &problem);

#endif
