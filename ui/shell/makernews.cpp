#include "makernews.h"

#include "connection.h"
#include "editedsettings.h"
#include "errorwindow.h"
#include "noticetext.h"
#include "version.h"

#include <QDebug>

MakerNews::MakerNews(Connection &session, ErrorWindow *errors, QObject *parent)
    : QObject(parent), m_session(session), m_errors(errors)
{
    connect(&m_checker, &UpdateChecker::showMessage, this, &MakerNews::arrived);
}

void MakerNews::ask(const EditedSettings &drive)
{
    const auto value = [&drive](const char *name) { return truncateToInt32(drive.value(QLatin1String(name))); };
    m_checker.sendCheckRequest(QLatin1String(VELBRIN_VERSION), value("HWTYPE"), value("HWSERIAL"), value("FWVER"),
                               value("TCFWVER"), value("UID"));
}

void MakerNews::show(const QString &html, bool mustDisconnect)
{
    m_errors->note(noticeText(html));
    qDebug() << "mustdisconnect" << (mustDisconnect ? "true" : "false");
    if (mustDisconnect && m_session.isConnected())
        endConnection();
}

void MakerNews::endConnection()
{
    m_disconnectWhenDisabled = m_enableState != EnableState::Disabled;
    if (!m_disconnectWhenDisabled)
        m_session.command(Connection::TaskDisconnect);
    else if (m_enableState == EnableState::Enabled)
        m_errors->tell({MessageKind::Note, tr("The maker's server asks for an end of this connection. The drive "
                                              "is enabled, so it stays until the drive is disabled.")});
}

void MakerNews::connectionChanged()
{
    m_enableState = EnableState::Unknown;
    m_disconnectWhenDisabled = false;
}

void MakerNews::enableStatePolled(bool enabled)
{
    const bool isNews = m_enableState == EnableState::Unknown;
    m_enableState = enabled ? EnableState::Enabled : EnableState::Disabled;
    if (m_disconnectWhenDisabled && m_session.isConnected() && (isNews || !enabled))
        endConnection();
}
