/// \file
/// What the user is told after pressing Esc: that the drive is disabled, or that nothing has confirmed it.
#ifndef VELBRIN_UI_DISABLEWATCH_H
#define VELBRIN_UI_DISABLEWATCH_H

#include "disableoutcome.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Follows one request to disable until the drive shows that it is disabled. No poll within half a second, or a lost
/// connection, is said at once: then only the machine's own stop helps. What was said is taken back as soon as a poll
/// shows otherwise.
class DisableWatch : public QObject
{
    Q_OBJECT

public:
    explicit DisableWatch(QObject *parent = nullptr);

    /// How long a poll may take to confirm a disable, ms.
    static constexpr int limitMs = 500;

    /// Which drive a disable can reach.
    enum class Reach {
        Connected,
        LastKnown, ///< none is connected, but port and address of the last one are known
        Nobody,
    };
    /// The user asked for it. Where nobody can be reached there is nothing to wait for.
    void disableAsked(Reach reach);

public slots:
    void enableStatePolled(bool enabled);
    void disableFinished(DisableOutcome outcome);
    void connectionLost();

signals:
    /// For the status bar.
    void report(const QString &text);
    /// What the last report said is no longer true; this is.
    void outdated(const QString &lastReport, const QString &text);
    /// For the error window: nothing has confirmed the disable.
    void unconfirmed(const QString &text);

private:
    void confirm();

    QElapsedTimer m_since;
    QTimer m_limit;
    QString m_confirmed;    ///< the report that the drive is disabled, empty while none stands
    bool m_waiting = false; ///< for a poll
    bool m_asked = false;   ///< and not answered in any way yet
};

#endif
