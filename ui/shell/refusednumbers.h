/// \file
/// Says why a number field has not taken what was typed.
#ifndef VELBRIN_UI_REFUSEDNUMBERS_H
#define VELBRIN_UI_REFUSEDNUMBERS_H

class QStatusBar;
class QWidget;

/// For every number field that is in the window by now: in the status bar, and at the field.
void showRefusedNumbers(QWidget *window, QStatusBar *status);

#endif
