/// \file
/// Where the window stood and how large it was, kept for the next start.
#ifndef VELBRIN_UI_WINDOWLAYOUT_H
#define VELBRIN_UI_WINDOWLAYOUT_H

class QMainWindow;

/// A window that was never open before gets a size in which every page fits.
void restoreLayout(QMainWindow &window);
void saveLayout(const QMainWindow &window);

#endif
