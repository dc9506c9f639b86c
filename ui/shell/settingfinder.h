/// \file
/// Ctrl+F: finds any setting by what somebody remembers of it.
#ifndef VELBRIN_UI_SETTINGFINDER_H
#define VELBRIN_UI_SETTINGFINDER_H

#include "settingfields.h"

#include <QDialog>
#include <functional>

class QLineEdit;
class QListWidget;

/// One setting as it is found; also one that has no control, or that is a whole bit field.
struct FindableSetting
{
    QString name; ///< of the control, or of the setting
    QString caption;
    QString unit;
    QString help;
    QString place;     ///< "Tuning"; says where Enter leads
    QString parameter; ///< catalogue name
    QString helpPage;  ///< what its help page says in the window's language
};

/// All settings of the catalogue, one a control.
QList<FindableSetting> findableSettings(const SettingFields &fields);
/// Those that every word of the text occurs in, best first: mnemonic, then name, unit, help, help page.
QList<FindableSetting> findSettings(const QList<FindableSetting> &settings, const QString &text);

/// A field and the list under it, which follows every key. Enter, or a double click, chooses.
class SettingFinder : public QDialog
{
    Q_OBJECT

public:
    SettingFinder(const SettingFields &fields, QWidget *parent);
    /// `lacks` tells of a catalogue name whether the connected model is without it.
    void open(const std::function<bool(const QString &)> &lacks);

signals:
    /// A control's or a setting's name.
    void chosen(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readHelpPages();
    void look();
    void choose();

    QList<FindableSetting> m_settings;
    bool m_hasHelpPages = false; ///< they are read at the first search, not at the start
    std::function<bool(const QString &)> m_lacks;
    QLineEdit *m_text;
    QListWidget *m_list;
};

/// Where the offline help speaks of a setting: file name and anchor, "Tuning tab.htm#KVP".
QString helpPlaceOf(const SettingFields &fields, const QString &name);

#endif
