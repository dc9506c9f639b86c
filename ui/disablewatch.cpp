#include "disablewatch.h"

DisableWatch::DisableWatch(QObject *parent) : QObject(parent)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(LIMIT_MS);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        // A late poll may still bring the good news, so the watch goes on.
        emit unconfirmed(tr("The disable is not confirmed: the drive may still be powered. Use the machine's hardware "
                            "stop."));
    });
}

void DisableWatch::disableAsked(bool connected)
{
    if (!connected) {
        emit report(tr("No drive is connected, so none was disabled. Use the machine's hardware stop if one moves."));
        return;
    }
    if (m_waiting)
        return; // the first press counts; more of them do not restart the clock
    m_waiting = true;
    m_since.start();
    m_limit.start();
}

void DisableWatch::enableStatePolled(bool enabled)
{
    if (!m_waiting || enabled)
        return;
    m_waiting = false;
    m_limit.stop();
    emit report(tr("Disabled after %1 ms").arg(m_since.elapsed()));
}

void DisableWatch::connectionLost()
{
    if (!m_waiting)
        return;
    m_waiting = false;
    m_limit.stop();
    emit unconfirmed(
        tr("The disable is not confirmed: the connection was lost. The drive may still be powered. Use the "
           "machine's hardware stop."));
}
