#include "disablewatch.h"

#include <utility>

DisableWatch::DisableWatch(QObject *parent) : QObject(parent)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(limitMs);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        // A late poll may still bring the good news, so the watch goes on.
        emit unconfirmed(tr("The disable is not confirmed: the drive may still be powered. Use the machine's hardware "
                            "stop."));
    });
}

void DisableWatch::disableAsked(Reach reach)
{
    if (reach == Reach::Nobody) {
        emit report(tr("No drive is connected, so none was disabled. Use the machine's hardware stop if one moves."));
        return;
    }
    if (!m_waiting)
        m_since.start(); // the first press counts; more of them do not restart the clock
    m_asked = true;
    if (reach == Reach::LastKnown) {
        // How it ends is the session's to say, however long the port takes.
        emit report(tr("No drive is connected: trying to disable the last one all the same..."));
    } else if (!m_waiting) {
        m_waiting = true;
        m_limit.start();
    }
}

void DisableWatch::enableStatePolled(bool enabled)
{
    if (enabled && !m_confirmed.isEmpty())
        emit outdated(std::exchange(m_confirmed, QString()), tr("The drive is enabled again"));
    else if (!enabled && m_asked)
        confirm();
}

void DisableWatch::disableFinished(DisableOutcome outcome)
{
    if (m_asked && outcome == DisableOutcome::Disabled)
        confirm();
    if (!m_waiting) // a poll may still bring the good news
        m_asked = false;
}

void DisableWatch::confirm()
{
    m_asked = m_waiting = false;
    m_limit.stop();
    m_confirmed = tr("Disabled after %1 ms").arg(m_since.elapsed());
    emit report(m_confirmed);
}

void DisableWatch::connectionLost()
{
    m_confirmed.clear();
    if (!m_waiting)
        return;
    m_waiting = false; // but a disable that still waits is tried without a connection
    m_limit.stop();
    emit unconfirmed(
        tr("The disable is not confirmed: the connection was lost. The drive may still be powered. Use the "
           "machine's hardware stop."));
}
