/// \file
/// From the controls to the drive, to its flash, to a settings file; and the questions before edits would be lost.
#ifndef VELBRIN_UI_APPLYDESK_H
#define VELBRIN_UI_APPLYDESK_H

#include "reports.h"

#include <QObject>
#include <QString>

class Connection;
class DriveBoard;
class EditedSettings;
class ParameterPages;
class Parameters;
class QLabel;
class QPushButton;
class QSpinBox;
enum class Reach;

/// Nothing is applied or stored before everything of the connected drive was read: the controls hold no value of it
/// until then. Of the session it hands over settings, file names and the three tasks that use them. User-interface
/// thread.
class ApplyDesk : public QObject
{
    Q_OBJECT

public:
    /// What the user wants to become of edits before something else happens.
    enum class Answer {
        GoOn,  ///< without them; or there were none
        Apply, ///< they are on their way to the drive (or to its flash)
        Stay,  ///< nothing else is to happen
    };
    struct Controls
    {
        QPushButton *apply;
        QLabel *changeCount; ///< beside the Apply button
        QPushButton *saveToFile;
        const QSpinBox *watchedRegister; ///< of the overrides dialog
    };
    ApplyDesk(QWidget *window, const Controls &controls, Connection &session, EditedSettings &settings,
              ParameterPages *pages, DriveBoard *board, const Reports &reports);

    void updateButton();
    void updateSaveToFileButton();
    void showConnection(Reach reach);
    /// A list that was read or loaded. The read behind an apply tells what the drive has taken; edits made meanwhile
    /// stay.
    void takeSettings(const Parameters &list, bool loadedFromFile);
    /// The drive has answered a save to its flash.
    void savedToFlash(bool done);

    /// The Apply button: what is being typed counts.
    void apply();
    void saveToFlash();
    void saveFile();
    void loadFile();
    void loadFile(const QString &file);

    /// Before the Testing page shows: apply or not. There is no going back.
    Answer askBeforeTesting();
    /// Before something that edits would be lost by, or would not take part in.
    Answer askToApply();
    /// Before the drive is left: what was applied may not be in its flash yet.
    Answer askToSave();
    /// Both: whether the drive may be left.
    bool mayLeaveDrive() { return askToApply() != Answer::Stay && askToSave() != Answer::Stay; }

signals:
    /// What the Apply button says now, and whether it can be pressed.
    void buttonChanged(const QString &text, bool canApply);

private:
    bool applyNow();
    bool mayAsk();
    bool driveWasRead(const QString &refusal);

    QWidget *m_window;
    Controls m_controls;
    Connection &m_session;
    EditedSettings &m_settings;
    ParameterPages *m_pages;
    DriveBoard *m_board;
    Reports m_reports;
    QString m_loading; ///< file that was asked for and has not arrived
    QString m_lastFolder = QStringLiteral("~");
};

#endif
