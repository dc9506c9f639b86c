/// \file
/// Scrolling a page must not change the settings that happen to pass under the pointer.
#ifndef VELBRIN_UI_WHEELGUARD_H
#define VELBRIN_UI_WHEELGUARD_H

#include <QObject>

/// Hands the wheel of every spin box and combo box without focus on to the page around it.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards all controls that `root` has at this moment.
    explicit WheelGuard(QWidget *root);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif
