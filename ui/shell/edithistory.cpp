#include "edithistory.h"

#include "numberbox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QSpinBox>
#include <QTimer>

namespace {

struct FieldChange
{
    const SettingField *field;
    double before;
    double after;
};

} // namespace

/// The first change is the user's and gives the name; the others came in its wake.
class EditStep : public QUndoCommand
{
public:
    EditStep(EditHistory *history, QVector<FieldChange> changes, const QString &name)
        : m_history(history), m_changes(std::move(changes)), m_name(name)
    {
        rename();
    }

    void undo() override
    {
        for (int i = m_changes.size(); i-- > 0;)
            set(m_changes[i].field, m_changes[i].before);
    }
    void redo() override
    {
        if (m_done) { // the first time it has happened already
            for (const FieldChange &change : m_changes)
                set(change.field, change.after);
        }
        m_done = true;
    }
    void take(const SettingField &field, double before, double after)
    {
        for (FieldChange &change : m_changes) {
            if (change.field == &field) {
                change.after = after;
                return rename();
            }
        }
        m_changes.append({&field, before, after});
        rename();
    }

private:
    void rename()
    {
        if (!m_name.isEmpty())
            return setText(m_name);
        const FieldChange &first = m_changes.first();
        setText(QStringLiteral("%1 %2 -> %3")
                    .arg(first.field->name, first.field->text(first.before), first.field->text(first.after)));
    }
    void set(const SettingField *field, double value)
    {
        ++m_history->m_filling;
        field->show(value);
        --m_history->m_filling;
        m_history->m_values[field->name] = field->shown();
    }

    EditHistory *m_history;
    QVector<FieldChange> m_changes;
    QString m_name;
    bool m_done = false;
};

EditHistory::EditHistory(const SettingFields &fields, QObject *parent) : QObject(parent), m_fields(fields)
{
    for (const SettingField &field : fields.all()) {
        if (field.isEditable)
            watch(field);
    }
}

void EditHistory::watch(const SettingField &field)
{
    m_values[field.name] = field.shown();
    const auto report = [this, &field] { changed(field); };
    QWidget *control = field.control;
    if (auto *box = qobject_cast<QSpinBox *>(control))
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, report);
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(control))
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, report);
    else if (auto *combo = qobject_cast<QComboBox *>(control))
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, report);
    else if (auto *check = qobject_cast<QCheckBox *>(control))
        connect(check, &QCheckBox::toggled, this, report);
    control->installEventFilter(this);
}

void EditHistory::changed(const SettingField &field)
{
    const double now = field.shown();
    const double before = m_values.value(field.name);
    if (m_filling > 0) {
        emit edited();
        return; // endFilling compares
    }
    if (sameValue(before, now))
        return;
    m_values[field.name] = now;
    auto *last = !m_steps.canUndo() || m_steps.canRedo()
                     ? nullptr
                     : const_cast<EditStep *>(static_cast<const EditStep *>(m_steps.command(m_steps.index() - 1)));
    if (last && !m_open.isEmpty() && (m_inEvent || m_open == field.name)) {
        last->take(field, before, now);
    } else {
        m_steps.push(new EditStep(this, {{&field, before, now}}, QString()));
        m_open = field.name;
    }
    if (!m_inEvent) {
        m_inEvent = true;
        QTimer::singleShot(0, this, [this] { m_inEvent = false; });
    }
    emit edited();
    emit fieldChanged(field.name);
}

void EditHistory::endFilling(const QString &step)
{
    if (--m_filling > 0)
        return;
    QVector<FieldChange> changes;
    for (const SettingField &field : m_fields.all()) {
        if (!field.isEditable)
            continue;
        const double now = field.shown();
        const double before = m_values.value(field.name);
        if (!sameValue(now, before))
            changes.append({&field, before, now});
        m_values[field.name] = now;
    }
    m_open.clear();
    if (!step.isEmpty() && !changes.isEmpty())
        m_steps.push(new EditStep(this, changes, step));
    emit edited();
}

int EditHistory::offerBack(const QHash<QString, double> &values, const QString &step)
{
    QVector<FieldChange> changes;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const SettingField *field = m_fields.find(value.key());
        if (field && !sameValue(*value, field->shown()))
            changes.append({field, *value, field->shown()});
    }
    m_open.clear();
    if (!changes.isEmpty())
        m_steps.push(new EditStep(this, changes, step));
    return int(changes.size());
}

// A rule between controls may have gone further than the step.
void EditHistory::lookAgain()
{
    for (const SettingField &field : m_fields.all()) {
        if (field.isEditable)
            m_values[field.name] = field.shown();
    }
}

void EditHistory::undo()
{
    m_open.clear();
    const QString what = m_steps.undoText();
    if (!m_steps.canUndo()) {
        emit said(tr("There is no edit to undo"));
        return;
    }
    m_steps.undo();
    lookAgain();
    emit edited();
    emit said(tr("Undone: %1").arg(what));
}

void EditHistory::redo()
{
    m_open.clear();
    const QString what = m_steps.redoText();
    if (!m_steps.canRedo()) {
        emit said(tr("There is no edit to do again"));
        return;
    }
    m_steps.redo();
    lookAgain();
    emit edited();
    emit said(tr("Done again: %1").arg(what));
}

bool EditHistory::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        m_open.clear(); // coming back begins another step
    if (event->type() == QEvent::ShortcutOverride) {
        // A field would keep these keys for the text being typed; without any they are the window's.
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isUndo = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
        const NumberField *number = NumberField::of(qobject_cast<QWidget *>(watched));
        if (isUndo && !(number && number->holdsNewNumber())) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
