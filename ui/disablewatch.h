/// \file
/// What the user is told after pressing Esc: that the drive is disabled, or that nothing has confirmed it.
#ifndef DISABLEWATCH_H
#define DISABLEWATCH_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Follows one request to disable until a status poll shows the drive disabled. No poll within half a second, or a
/// lost connection, is said at once: then only the machine's own stop helps.
class DisableWatch : public QObject
{
    Q_OBJECT

public:
    explicit DisableWatch(QObject *parent = nullptr);

    /// How long a poll may take to confirm a disable, ms.
    static constexpr int LIMIT_MS = 500;

    /// The user asked for it. Without a connected drive there is nothing to wait for.
    void disableAsked(bool connected);

public slots:
    void enableStatePolled(bool enabled);
    void connectionLost();

signals:
    /// For the status bar.
    void report(const QString &text);
    /// For the error window: nothing has confirmed the disable.
    void unconfirmed(const QString &text);

private:
    QElapsedTimer m_since;
    QTimer m_limit;
    bool m_waiting = false;
};

#endif
