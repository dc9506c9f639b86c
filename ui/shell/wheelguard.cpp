#include "wheelguard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

WheelGuard::WheelGuard(QWidget *root) : QObject(root)
{
    const auto widgets = root->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!qobject_cast<QAbstractSpinBox *>(widget) && !qobject_cast<QComboBox *>(widget))
            continue;
        // The default policy of a spin box takes focus from the wheel itself.
        widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::Wheel && widget && !widget->hasFocus()) {
        event->ignore(); // goes on to the scroll area
        return true;
    }
    return QObject::eventFilter(watched, event);
}
