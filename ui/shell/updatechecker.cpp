#include "updatechecker.h"

#include "makerlinks.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

namespace {

constexpr qint64 longestBody = 2 << 20; // a notice is a few lines; this only keeps a broken server out of the memory

const QString genuineMarker = QStringLiteral("VELBRINREPLY");
const QString disconnectMarker = QStringLiteral("MUSTDISCONNECT");
const QString silenceMarker = QStringLiteral("NOMESSAGE");

QNetworkRequest requestFor(const QString &address)
{
    QNetworkRequest request{QUrl(address)};
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // Otherwise the toolkit names the desktop's language here.
    request.setRawHeader("Accept-Language", "*");
    request.setRawHeader("User-Agent", "Velbrin");
    // A few compressed bytes could unpack to more than there is memory.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace

UpdateChecker::UpdateChecker(QObject *parent) : QObject(parent), m_manager(new QNetworkAccessManager(this))
{
    // Queued, so that a receiver of showMessage may destroy this object: the manager is then not in the middle of it.
    connect(m_manager, &QNetworkAccessManager::finished, this, &UpdateChecker::readFinished, Qt::QueuedConnection);
}

void UpdateChecker::sendCheckRequest(QString vv, int did, int snr, int fwv, int tfwv, int uid)
{
    const QString query = QStringLiteral("/velbrinmessage.php?vv=%1&did=%2&snr=%3&fwv=%4&tfwv=%5&uid=%6")
                              .arg(vv, QString::number(did), QString::number(snr), QString::number(fwv),
                                   QString::number(tfwv), QString::number(static_cast<quint32>(uid)));
    QNetworkReply *reply = m_manager->get(requestFor(makerUpdateServer() + query));
    reply->setReadBufferSize(2 * longestBody);
    connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > longestBody)
            reply->abort();
    });
    // The toolkit's own transfer time-out starts anew with every byte, so that a trickle would never end.
    QTimer::singleShot(m_timeLimitMs, reply, &QNetworkReply::abort);
}

void UpdateChecker::readFinished(QNetworkReply *reply)
{
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply->error() != QNetworkReply::NoError || status != 200 || reply->bytesAvailable() > longestBody)
        return;
    const QByteArray bytes = reply->readAll();
    const QString body = QString::fromLatin1(bytes.left(static_cast<int>(qstrnlen(bytes.constData(), bytes.size()))));

    QString msg = body.contains(genuineMarker) ? QString(body).remove(genuineMarker) : QString();
    const bool mustDisconnect = msg.contains(disconnectMarker);
    msg.remove(disconnectMarker);
    if (msg.contains(silenceMarker))
        msg.clear();
    emit showMessage(msg, mustDisconnect); // last: this object may be gone when it returns
}
