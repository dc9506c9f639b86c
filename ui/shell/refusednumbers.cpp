#include "refusednumbers.h"

#include "numberbox.h"

#include <QStatusBar>
#include <QToolTip>

namespace {

constexpr int shownForMs = 15000;

// Where the user looks; a box would take the keyboard away from the next field.
void showAtField(const QObject *field, const QString &why)
{
    const auto *box = qobject_cast<const QWidget *>(field->parent());
    if (box && box->isVisible())
        QToolTip::showText(box->mapToGlobal(QPoint(box->width(), 0)), why.toHtmlEscaped(), nullptr, QRect(),
                           shownForMs);
}

} // namespace

void showRefusedNumbers(QWidget *window, QStatusBar *status)
{
    const auto fields = window->findChildren<NumberField *>();
    for (const NumberField *field : fields) {
        QObject::connect(field, &NumberField::refused, status, [status, field](const QString &why) {
            status->showMessage(why, shownForMs);
            showAtField(field, why);
        });
    }
}
