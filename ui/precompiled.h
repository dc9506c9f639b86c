/// \file
/// What the window is compiled with, compiled once: the toolkit's headers. A source still names what it uses.
#ifndef VELBRIN_UI_PRECOMPILED_H
#define VELBRIN_UI_PRECOMPILED_H

#include <QtWidgets>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#endif
