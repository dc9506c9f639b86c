/// \file
/// What the window is compiled with, compiled once: the toolkit's headers. A source still names what it uses.
#ifndef UI_PRECOMPILED_H
#define UI_PRECOMPILED_H

#include <QtWidgets>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#endif
