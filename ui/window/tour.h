/// \file
/// The program shows itself: a walk through the window with its own widgets, leaving a screenshot of every page. For
/// machines without a display, for the documentation, and as a check that the whole road is open.
#ifndef VELBRIN_UI_TOUR_H
#define VELBRIN_UI_TOUR_H

#include "drivestate.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <vector>

class QAbstractButton;
class QWidget;

/// Only ever runs on the built-in virtual drive: it enables the drive and moves the axis. Whoever starts it has to make
/// sure of that. Main thread.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// Screenshots go into `folder`, which is made if need be.
    explicit Tour(const QString &folder);

    /// Begins as soon as an event loop runs; call it before the window is built, whose disclaimer is the first stop.
    /// The tour ends the application, with exit status 0 or, after a message on standard error, 1.
    void start();
    /// Whether a stop could not be made. Has the last word about the exit status.
    bool failed() const { return m_failed; }

private:
    /// One stop: tried again and again until it is done.
    struct Stop
    {
        QString what; ///< names the stop in a message, such as "connect"
        std::function<bool()> done;
    };

    void plan();
    void planPages();
    void planEdit();
    void planTestMove();
    void planEnd();
    void add(const QString &what, const std::function<bool()> &done);
    void addPress(const QString &what, const char *button);
    void addScreenshot(const QString &name, const char *dialog = nullptr);
    void addPage(const char *name);
    void addSettling(const QString &what);

    bool runs() const;
    void step();
    void fail(const QString &reason);
    void endFailed();
    bool findsNoMessage();

    QString m_folder;
    std::vector<Stop> m_stops;
    std::size_t m_next = 0;
    QTimer m_timer;
    DriveState m_state; ///< as polled last
    QElapsedTimer m_atThisStop;
    bool m_failed = false;
};

#endif
