/// \file
/// Which controls are shown, by what has been chosen. One table; the window only applies it.
#ifndef VELBRIN_UI_VISIBILITY_H
#define VELBRIN_UI_VISIBILITY_H

#include <QString>
#include <QVector>

class QWidget;

/// The choices that hide or show other controls: combo box indices, and what the window and the drive add.
struct VisibilityInputs
{
    int motorType = 0;        ///< MT
    int controlMode = 0;      ///< CM: 0 position, 1 velocity, 2 torque
    int homing = 0;           ///< HME
    int setpointInput = 0;    ///< CRI
    int velocityFeedback = 0; ///< FB2D
    bool showAdvanced = false;
    bool isKetaPro = false; ///< of the connected drive
};

/// One object and whether it is to be seen.
struct ObjectVisibility
{
    QString objectName;
    bool visible;
};
/// Every object that a rule names, in the order of the table.
QVector<ObjectVisibility> visibilityOf(const VisibilityInputs &in);
/// Shows and hides the objects among the descendants of `root`. Names that are not there are skipped.
void applyVisibility(QWidget *root, const VisibilityInputs &in);

/// Setpoint inputs with an analog zero that can be nulled (CAO); it is set to 0 for all others.
bool hasSetpointOffset(int setpointInput);

#endif
