/// \file
/// Firmware upgrades, and restarting the drive with or without one.
#ifndef VELBRIN_UI_FIRMWAREDESK_H
#define VELBRIN_UI_FIRMWAREDESK_H

#include "connection.h"

#include <QObject>
#include <QString>

class ApplyDesk;
class ConnectPage;
class FirmwareDialog;
class QuestionQueue;

/// Of the session it flashes, restarts and disconnects. User-interface thread.
class FirmwareDesk : public QObject
{
    Q_OBJECT

public:
    FirmwareDesk(QWidget *window, Connection &session, ConnectPage *connectPage, ApplyDesk *apply,
                 QuestionQueue *questions);

    FirmwareDialog *dialog() const { return m_dialog; }

    // The upgrade and its dialog
    void progressCame(const QString &html, bool done, bool failed);
    void openFile();
    void closeDialog();
    /// The search that follows an upgrade has brought its list.
    void searchEnded() { m_reconnects = false; }
    /// While an upgrade runs: whether the user would rather not close the window.
    bool wantsToKeepUpgrading();
    void showCapabilities();

    // Restarting
    void restart() { restartBy(Connection::TaskRestartDrive); }
    void restartToUpgradeMode() { restartBy(Connection::TaskRestartToDFU); }
    void suggestRestart();

signals:
    /// The drive is about to restart, which ends the connection.
    void restarting();

private:
    void restartBy(Connection::Task task);
    void askToRestart();

    QWidget *m_window;
    Connection &m_session;
    ConnectPage *m_connectPage;
    ApplyDesk *m_apply;
    QuestionQueue *m_questions;
    FirmwareDialog *m_dialog;
    QString m_lastFolder = QStringLiteral("~");
    bool m_reconnects = false; ///< an upgrade has succeeded and its drive is being searched
};

#endif
