#include "valuemarks.h"

#include "elided.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

void setMark(QLabel *label, bool isSo, const QString &words)
{
    const QString text = (isSo ? QStringLiteral("\u25CF ") : QStringLiteral("\u25CB ")) + words;
    if (label->text() == text)
        return;
    label->setText(text);
    label->setAccessibleName(words); // which say it themselves
    QFont font = label->parentWidget()->font();
    font.setBold(isSo);
    label->setFont(font);
}

QString changesText(const ValueHomes &homes)
{
    if (homes.changes == 1)
        return ValueMarks::tr("Edited (1 change)");
    if (homes.changes > 1)
        return ValueMarks::tr("Edited (%1 changes)").arg(homes.changes);
    if (!homes.isPending)
        return ValueMarks::tr("Nothing edited");
    // Without a drive there is nothing to count against.
    return homes.file.isEmpty() ? ValueMarks::tr("Edited, not applied") : ValueMarks::tr("File loaded, not applied");
}

QString flashText(const ValueHomes &homes)
{
    switch (homes.driveKnown ? homes.flash : ValueHomes::Flash::Unknown) {
    case ValueHomes::Flash::Behind:
        return ValueMarks::tr("Not saved over power-off");
    case ValueHomes::Flash::Saving:
        return ValueMarks::tr("Being saved over power-off");
    case ValueHomes::Flash::Saved:
        return homes.isPending || homes.changes > 0 ? ValueMarks::tr("Edits not saved over power-off")
                                                    : ValueMarks::tr("Saved over power-off");
    case ValueHomes::Flash::Unknown:
        break;
    }
    return ValueMarks::tr("Saved over power-off: not known");
}

} // namespace

ValueMarks::ValueMarks(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("valueMarks"));
    setAccessibleName(tr("Where the values live"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(14);
    const auto add = [row](QLabel *label, const char *name) {
        label->setObjectName(QLatin1String(name));
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        row->addWidget(label);
        return label;
    };
    m_edited = add(new QLabel(this), "markEdited");
    m_working = add(new QLabel(this), "markWorking");
    m_save = new QPushButton(tr("Save to drive"), this);
    m_save->setObjectName(QStringLiteral("stripSaveToDrive"));
    m_save->setToolTip(tr("Keeps the applied settings over a power-off."));
    m_save->setAutoDefault(false);
    connect(m_save, &QPushButton::clicked, this, &ValueMarks::saveToDriveAsked);
    row->addWidget(m_save);
    setMinimumHeight(m_save->sizeHint().height()); // nothing jumps when it comes and goes
    m_flash = add(new QLabel(this), "markFlash");
    m_file = add(new ElidedLabel(this), "markFile"); // as long as the file's name
    row->addStretch(1);
    show(ValueHomes());
}

void ValueMarks::show(const ValueHomes &homes)
{
    using Flash = ValueHomes::Flash;
    const bool behind = homes.driveKnown && homes.flash == Flash::Behind;
    // Also where the user has gone on without applying: the fields still show something else than the drive has.
    const bool isEdited = homes.isPending || homes.changes > 0;
    const bool inDrive = homes.driveKnown && !isEdited;
    setMark(m_edited, isEdited, changesText(homes));
    QString working = tr("In the drive");
    if (!homes.driveKnown)
        working = tr("In no drive");
    else if (behind)
        working = isEdited ? tr("Applied before, lost at power-off") : tr("In the drive, lost at power-off");
    else if (isEdited)
        working = tr("Not in the drive yet");
    setMark(m_working, inDrive || behind, working);
    setMark(m_flash, homes.driveKnown && !isEdited && homes.flash == Flash::Saved, flashText(homes));
    if (m_save->isHidden() == behind)
        m_save->setVisible(behind);
    setMark(m_file, !homes.file.isEmpty(),
            homes.file.isEmpty() ? tr("In no file") : tr("In the file %1").arg(homes.file));
}

bool holdSameSettings(const Parameters &first, const Parameters &second)
{
    if (first.getParamCount() != second.getParamCount())
        return false;
    for (int i = 0; i < first.getParamCount(); ++i) {
        const SingleParam a = first.getParam(i);
        const SingleParam b = second.getParam(a.name);
        if (!a.readonly && a.convertToDeviceScale(a.value) != b.convertToDeviceScale(b.value))
            return false;
    }
    return true;
}
