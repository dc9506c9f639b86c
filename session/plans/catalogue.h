/// \file
/// The catalogue of drive settings: the one list of the parameters that the program knows.
#ifndef VELBRIN_SESSION_CATALOGUE_H
#define VELBRIN_SESSION_CATALOGUE_H

#include "parameters.h"

/// The 70 parameters, in the order of reading, writing, listing and saving; value, min and max are 0. To add a
/// parameter add a row to the table in catalogue.cpp: everything else finds it by its mnemonic.
Parameters driveParameterCatalogue();

/// Whether a write to this register moves, stops, restarts or erases a drive: no setting, and no override, does that.
bool isCommandToDrive(int address);

#endif
