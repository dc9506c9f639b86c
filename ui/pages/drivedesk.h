/// \file
/// Buttons and shortcuts that act on the connected drive at once.
#ifndef VELBRIN_UI_DRIVEDESK_H
#define VELBRIN_UI_DRIVEDESK_H

#include "disablewatch.h"
#include "reports.h"

#include <QObject>

class ApplyDesk;
class ConnectPage;
class Connection;
class TestingPage;

/// Enabling, homing and measuring happen by the user's own act only; disabling always gets through, whatever the window
/// believes about the connection, and is followed until the drive has confirmed it. User-interface thread.
class DriveDesk : public QObject
{
    Q_OBJECT

public:
    enum class Enable { Usual, Forced };

    DriveDesk(QWidget *window, Connection &session, ConnectPage *connectPage, TestingPage *testing, ApplyDesk *apply,
              const Reports &reports);

    void enable(Enable how);
    void disable();
    void connectionLost() { m_watch.connectionLost(); }
    /// Whether it was sent.
    bool clearFaults();
    void startHoming();
    void abortHoming();
    void measure();

private:
    Connection &m_session;
    ConnectPage *m_connectPage;
    TestingPage *m_testing;
    ApplyDesk *m_apply;
    Reports m_reports;
    DisableWatch m_watch;
};

#endif
