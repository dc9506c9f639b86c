/// \file
/// Beside what every test program is compiled with: the widgets that tests of the window look at.
#ifndef VELBRIN_TESTS_PRECOMPILEDWIDGETS_H
#define VELBRIN_TESTS_PRECOMPILEDWIDGETS_H

#include "precompiled.h"

#include <QtWidgets>

#endif
