/// \file
/// Takes the user to a setting that was found.
#ifndef VELBRIN_UI_SETTINGGUIDE_H
#define VELBRIN_UI_SETTINGGUIDE_H

#include <QObject>

class ParameterPages;
class QListWidget;
class QStackedWidget;
class SettingFields;

/// Turns to the setting's page, opens what hides it, gives its field the keyboard and shows its place in the help.
class SettingGuide : public QObject
{
    Q_OBJECT

public:
    /// What it turns, and where it looks a setting up.
    struct Places
    {
        QListWidget *pageSelector;
        QStackedWidget *pages;
        ParameterPages *parameters;
        const SettingFields &fields;
    };
    SettingGuide(QObject *parent, const Places &places);

public slots:
    void goTo(const QString &name);

signals:
    /// The field is in the dialog of raw parameters.
    void rawParametersWanted();
    void helpWanted(const QString &file, const QString &anchor);
    /// Why the field is not to be seen or not to be used.
    void report(const QString &text);

private:
    void showControl(QWidget *control, int page, const QString &name);

    const Places m_places;
};

#endif
