/// \file
/// Where the window stood and how large it was, kept for the next start.
#ifndef WINDOWLAYOUT_H
#define WINDOWLAYOUT_H

class QMainWindow;

/// A window that was never open before gets a size in which every page fits.
void restoreLayout(QMainWindow &window);
void saveLayout(const QMainWindow &window);

#endif
