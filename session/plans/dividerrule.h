/// \file
/// The rule for the divider setting DIV. Pure functions, any thread.
#ifndef VELBRIN_SESSION_DIVIDERRULE_H
#define VELBRIN_SESSION_DIVIDERRULE_H

class Parameters;

/// Divider that keeps the velocity of a motor with this feedback resolution (lines, 4 counts each) at this speed (rpm)
/// within the drive's 16 bits, at 2500 control cycles a second: 25, 50, 200, 400 or 800. Resolution or speed 0 give
/// 800.
int dividerValue(int resolution, int speed);

/// Sets DIV by this rule from FBR and MMS (each truncated). Returns whether DIV changed; false without a change when
/// one of the three is missing.
bool autoSetDIVvalue(Parameters &list);

#endif
