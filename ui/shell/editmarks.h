/// \file
/// The marks at edited fields: the drive's value beside each, and what was corrected in silence.
#ifndef VELBRIN_UI_EDITMARKS_H
#define VELBRIN_UI_EDITMARKS_H

#include "settingchanges.h"
#include "settingfields.h"

#include <QHash>
#include <QObject>

class QGridLayout;
class QToolButton;
class Parameters;

/// A button beside each field that holds another value than the drive: its text is the drive's value, a click takes
/// the edit back. And a line for what a rule between fields has just changed by itself. User-interface thread.
class EditMarks : public QObject
{
    Q_OBJECT

public:
    explicit EditMarks(const SettingFields &fields, QObject *parent = nullptr);

    /// What differs, as last read from the drive and as edited; `names` are the settings to look at, the others hold no
    /// edit. Marks the fields and returns the changes, one a field, in the order of the catalogue.
    QList<SettingChange> show(const Parameters &drive, const Parameters &edited, const QStringList &names);
    /// Says at a field what a rule has just made of it: where the user looks, and to a screen reader.
    void note(const QString &name, const QString &text);
    void clearNote(const QString &name);

signals:
    /// The drive's value is wanted back in this field.
    void takeBackAsked(const QString &name, double value);

private:
    struct Mark
    {
        QToolButton *button = nullptr;
        double driveValue = 0.0;
    };

    void make(const SettingField &field);
    void mark(const SettingField &field, const SettingChange *change);

    const SettingFields &m_fields;
    QHash<QString, Mark> m_marks;
};

#endif
