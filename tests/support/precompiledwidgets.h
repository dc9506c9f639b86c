/// \file
/// Beside what every test program is compiled with: the widgets that tests of the window look at.
#ifndef PRECOMPILEDWIDGETS_H
#define PRECOMPILEDWIDGETS_H

#include "precompiled.h"

#include <QtWidgets>

#endif
