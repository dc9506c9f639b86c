/// \file
/// What the maker's server has to say about this program and this drive.
#ifndef VELBRIN_UI_MAKERNEWS_H
#define VELBRIN_UI_MAKERNEWS_H

#include "updatechecker.h"

class Connection;
class EditedSettings;
class ErrorWindow;

/// Asks when a drive was read, shows the notice, and ends the connection when the server wants that; but nobody lets go
/// of a live drive because of a line from the network: the connection stays until a poll shows the drive disabled.
/// Of the session it only ends the connection. User-interface thread.
class MakerNews : public QObject
{
    Q_OBJECT

public:
    MakerNews(Connection &session, ErrorWindow *errors, QObject *parent);

    void ask(const EditedSettings &drive);
    void show(const QString &html, bool mustDisconnect);
    /// Nothing is known of the next drive, and the wish was about the last one.
    void connectionChanged();
    void enableStatePolled(bool enabled);

signals:
    /// The server has answered; what it says belongs into show().
    void arrived(QString html, bool mustDisconnect);

private:
    void endConnection();

    Connection &m_session;
    ErrorWindow *m_errors;
    UpdateChecker m_checker;
    enum class EnableState { Unknown, Enabled, Disabled } m_enableState = EnableState::Unknown; ///< by the last poll
    bool m_disconnectWhenDisabled = false;
};

#endif
