/// \file
/// A colour between text and ground, for what must be seen but stay back.
#ifndef VELBRIN_UI_INK_H
#define VELBRIN_UI_INK_H

#include <QColor>

/// So much of the text's colour (0 to 1), the rest of the ground's.
inline QColor mixedInk(const QColor &text, const QColor &ground, double share)
{
    const auto channel = [share](int a, int b) { return int(share * a + (1.0 - share) * b); };
    return QColor(channel(text.red(), ground.red()), channel(text.green(), ground.green()),
                  channel(text.blue(), ground.blue()));
}

#endif
