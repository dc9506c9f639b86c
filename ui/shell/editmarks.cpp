#include "editmarks.h"

#include "elided.h"
#include "parameters.h"

#include <QGridLayout>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>

namespace {

/// The grid that a field stands in, with its place there; null when it is in none.
QGridLayout *gridOf(QWidget *field, int &row)
{
    auto *grid = field->parentWidget() ? qobject_cast<QGridLayout *>(field->parentWidget()->layout()) : nullptr;
    if (!grid || grid->indexOf(field) < 0)
        return nullptr;
    int column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(field), &row, &column, &rows, &columns);
    return grid;
}

constexpr int markColumn = 3; // behind caption, control and machine units
constexpr int noteMs = 15000;

} // namespace

EditMarks::EditMarks(const SettingFields &fields, QObject *parent) : QObject(parent), m_fields(fields)
{
    for (const SettingField &field : fields.all()) {
        if (field.isEditable && field.page >= 0)
            make(field);
    }
}

void EditMarks::make(const SettingField &field)
{
    int row = 0;
    QGridLayout *grid = gridOf(field.control, row);
    if (!grid)
        return;
    Mark mark;
    mark.button = new ElidedButton(field.control->parentWidget());
    mark.button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed); // a long choice makes no page wider
    mark.button->setObjectName(field.name + QLatin1String("drive"));
    mark.button->setToolTip(tr("The field was changed and not applied. A click brings the drive's value back."));
    mark.button->hide();
    // Beside the value in machine units where there is one.
    const bool isFree = !grid->itemAtPosition(row, markColumn - 1);
    grid->addWidget(mark.button, row, isFree ? markColumn - 1 : markColumn, Qt::AlignLeft | Qt::AlignVCenter);
    QWidget::setTabOrder(field.control, mark.button);
    const QString name = field.name;
    connect(mark.button, &QToolButton::clicked, this, [this, name] {
        const double value = m_marks.value(name).driveValue;
        emit takeBackAsked(name, value);
    });
    m_marks.insert(name, mark);
}

QList<SettingChange> EditMarks::show(const Parameters &drive, const Parameters &edited, const QStringList &names)
{
    QList<SettingChange> changes;
    for (const SettingField &field : m_fields.all()) {
        SettingChange change;
        const bool looked = names.contains(field.parameter);
        if (looked) {
            change = {field.name,
                      field.caption,
                      QString(),
                      QString(),
                      field.valueOf(drive.getParam(field.parameter).value),
                      field.valueOf(edited.getParam(field.parameter).value)};
            change.before = field.text(change.beforeNumber);
            change.after = field.text(change.afterNumber);
        }
        const bool differs = looked && !sameValue(change.beforeNumber, change.afterNumber);
        if (differs)
            changes << change;
        mark(field, differs ? &change : nullptr);
    }
    return changes;
}

void EditMarks::mark(const SettingField &field, const SettingChange *change)
{
    const auto found = m_marks.find(field.name);
    if (found == m_marks.end())
        return;
    QToolButton *button = found->button;
    if (!change) {
        if (!button->isHidden())
            button->hide();
        return;
    }
    found->driveValue = change->beforeNumber;
    const QString text = tr("drive: %1").arg(field.bareText(change->beforeNumber)); // the field has the unit
    if (button->text() != text) {
        button->setText(text);
        button->setAccessibleName(
            tr("%1 edited, the drive has %2: take the edit back").arg(field.name, change->before));
    }
    // With its field: a setting that a rule has hidden keeps its mark hidden, too.
    button->setVisible(!field.control->isHidden());
}

void EditMarks::note(const QString &name, const QString &text)
{
    const SettingField *field = m_fields.find(name);
    if (!field || !field->control)
        return;
    field->control->setAccessibleDescription(text);
    if (field->control->isVisible())
        QToolTip::showText(field->control->mapToGlobal(QPoint(field->control->width(), 0)), text.toHtmlEscaped(),
                           nullptr, QRect(), noteMs);
}

void EditMarks::clearNote(const QString &name)
{
    const SettingField *field = m_fields.find(name);
    if (field && field->control && !field->control->accessibleDescription().isEmpty())
        field->control->setAccessibleDescription(QString());
}
