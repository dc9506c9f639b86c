/// \file
/// Asks the maker's update server whether there is news for this program and this drive.
#ifndef VELBRIN_UI_UPDATECHECKER_H
#define VELBRIN_UI_UPDATECHECKER_H

#include <QObject>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;

/// One GET request a question, no retries. Nothing waits for the answer: it comes through the event loop, or not at all
/// (no network, another status than 200, a redirect, too slow, too long), and then nobody is told. May be destroyed at
/// any time, also by a receiver of showMessage. User-interface thread.
///
/// What is sent is what sendCheckRequest is given and nothing else: no cookies, no language, no system name. The server
/// is makerUpdateServer() at the time of the question.
class UpdateChecker : public QObject
{
    Q_OBJECT

public:
    explicit UpdateChecker(QObject *parent = nullptr);

    /// Time from the question to the end of the answer, ms. 15 s unless a test has less patience.
    void setTimeLimit(int ms) { m_timeLimitMs = ms; }

    /// Sends the program's version and the drive's identity: type id (HWTYPE), serial number (HWSERIAL), firmware and
    /// core firmware version (FWVER, TCFWVER), and unique id (UID, sent as an unsigned number). Returns at once.
    void sendCheckRequest(QString vv, int did, int snr, int fwv, int tfwv, int uid);

public slots:
    /// Reads the answer and passes its notice on.
    void readFinished(QNetworkReply *reply);

signals:
    /// The server's notice: may be HTML, may be empty. `mustDisconnect` when it wants the drive to be left alone.
    void showMessage(QString msg, bool mustDisconnect);

private:
    QNetworkAccessManager *m_manager;
    int m_timeLimitMs = 15000;
};

#endif
