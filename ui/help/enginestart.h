/// \file
/// What the web engine needs before it can start, and whether it can.
#ifndef VELBRIN_UI_ENGINESTART_H
#define VELBRIN_UI_ENGINESTART_H

#include <QString>

/// To be called once, before the application object is made: registers the plot page's address scheme and sets what the
/// engine takes from the environment.
void prepareEngine();

/// A look at what would end the whole program if the engine were started all the same: its process is missing, or the
/// system refuses its sandbox. Empty when it can start.
QString whyEngineCannotStart();

#endif
