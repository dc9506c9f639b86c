#include "editedfield.h"

#include "numberbox.h"

#include <QApplication>

bool commitEditedField(QWidget *window)
{
    QWidget *field = window->focusWidget();
    if (!field || !field->hasFocus())
        return true;
    field->clearFocus();
    field->setFocus();
    return !anyNumberRefused({field});
}

bool anyNumberRefused(std::initializer_list<const QWidget *> boxes)
{
    bool refused = false;
    for (const QWidget *box : boxes) {
        NumberField *field = NumberField::of(box);
        const QString why = field ? field->takeRefusal() : QString();
        refused = refused || !why.isEmpty();
    }
    return refused;
}

bool isNewNumberTyped()
{
    const NumberField *typing = NumberField::of(QApplication::focusWidget());
    return typing && typing->holdsNewNumber();
}
