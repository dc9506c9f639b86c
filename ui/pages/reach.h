/// \file
/// How far the window reaches, and which controls that leaves usable.
#ifndef VELBRIN_UI_REACH_H
#define VELBRIN_UI_REACH_H

class Connection;
class QWidget;

enum class Reach {
    NoDrive,
    Bootloader, ///< a drive in firmware upgrade mode: it has no settings and moves nothing
    Firmware,
};
/// Of the session at this moment.
Reach reachOf(const Connection &session);

/// Greys a control that a bootloader has no use for, with a tool tip that says so; otherwise it is enabled, if
/// `needsDrive` only while a drive is connected. (Disabling is never greyed like this: it always gets through.)
void enableByReach(QWidget *control, Reach reach, bool needsDrive = true);

#endif
