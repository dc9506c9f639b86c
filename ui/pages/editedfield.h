/// \file
/// The number that is just being typed, before something is done with what the fields hold.
#ifndef VELBRIN_UI_EDITEDFIELD_H
#define VELBRIN_UI_EDITEDFIELD_H

#include <initializer_list>

class QWidget;

/// What is being typed in `window` counts as soon as its field loses the keyboard; a shortcut does not take it away by
/// itself, this does. Returns whether it could be taken.
bool commitEditedField(QWidget *window);
/// Says why the number that was typed last into one of these fields was refused, once: whoever is about to move a
/// drive by them asks first.
bool anyNumberRefused(std::initializer_list<const QWidget *> boxes);
/// Whether a number is being typed anywhere that its field does not have yet.
bool isNewNumberTyped();

#endif
