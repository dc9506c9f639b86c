#include "drivedesk.h"

#include "applydesk.h"
#include "connection.h"
#include "connectpage.h"
#include "errorwindow.h"
#include "testingpage.h"

#include <QStatusBar>

namespace {
constexpr int upgradeModeNoteMs = 5000; // no longer: the drive may run its firmware again by then
}

DriveDesk::DriveDesk(QWidget *window, Connection &session, ConnectPage *connectPage, TestingPage *testing,
                     ApplyDesk *apply, const Reports &reports)
    : QObject(window), m_session(session), m_connectPage(connectPage), m_testing(testing), m_apply(apply),
      m_reports(reports)
{
    const auto type = Qt::QueuedConnection; // from the worker
    connect(&m_session, &Connection::enableStatePolled, &m_watch, &DisableWatch::enableStatePolled, type);
    connect(&m_session, &Connection::disableFinished, &m_watch, &DisableWatch::disableFinished, type);
    QStatusBar *status = m_reports.status;
    connect(&m_watch, &DisableWatch::report, this, [status](const QString &text) { status->showMessage(text); });
    connect(&m_watch, &DisableWatch::outdated, this, [status](const QString &last, const QString &text) {
        if (status->currentMessage() == last)
            status->showMessage(text);
    });
    connect(&m_watch, &DisableWatch::unconfirmed, this, [this](const QString &text) {
        m_reports.errors->tell({MessageKind::UnconfirmedStop, text});
    });
}

void DriveDesk::enable(Enable how)
{
    m_reports.status->clearMessage(); // "Disabled" would no longer be true
    m_session.setDriveEnableStatus(true);
    if (how == Enable::Forced)
        m_session.setDriveForceEnableStatus(true);
    m_session.command(Connection::TaskApplyEnableState);
}

// No guard: a disable always gets through.
void DriveDesk::disable()
{
    m_session.setDriveEnableStatus(false);
    m_session.setDriveForceEnableStatus(false);
    m_testing->stopStimulus();
    m_session.command(Connection::TaskApplyEnableState);
    if (m_session.isInFirmwareUpgradeMode())
        m_reports.status->showMessage(
            tr("Nothing to disable: the drive is in firmware upgrade mode, which drives no motor"), upgradeModeNoteMs);
    else
        m_watch.disableAsked(m_session.isConnected()             ? DisableWatch::Reach::Connected
                             : m_connectPage->lastAddress() != 0 ? DisableWatch::Reach::LastKnown
                                                                 : DisableWatch::Reach::Nobody);
}

bool DriveDesk::clearFaults()
{
    if (!m_connectPage->canClearFaults()) // the shortcut reaches the slot all the same
        return false;
    m_session.clearDriveFaults();
    return true;
}

void DriveDesk::startHoming()
{
    if (m_apply->askToApply() != ApplyDesk::Answer::Stay)
        m_session.command(Connection::TaskStartHoming);
}

void DriveDesk::abortHoming()
{
    m_session.command(Connection::TaskAbortHoming);
}

void DriveDesk::measure()
{
    // The measurement ends in a full read, which would take edits that were not applied with it.
    if (m_apply->askToApply() == ApplyDesk::Answer::Stay)
        return;
    m_testing->stopStimulus();
    m_session.command(Connection::TaskMeasure);
}
