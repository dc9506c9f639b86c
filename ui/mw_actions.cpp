// Buttons and shortcuts that act on the connected drive at once.
#include "disablewatch.h"
#include "errorwindow.h"
#include "mw.h"
#include "mwforms.h"
#include "statepanels.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QStatusBar>

namespace {
constexpr int upgradeModeNoteMs = 5000; // no longer: the drive may run its firmware again by then
}

void MW::connectDisableWatch()
{
    const auto type = Qt::QueuedConnection; // from the worker
    m_disableWatch = new DisableWatch(this);
    connect(m_disableWatch, &DisableWatch::report, this,
            [this](const QString &text) { statusBar()->showMessage(text); });
    connect(m_disableWatch, &DisableWatch::outdated, this, [this](const QString &last, const QString &text) {
        if (statusBar()->currentMessage() == last)
            statusBar()->showMessage(text);
    });
    connect(m_disableWatch, &DisableWatch::unconfirmed, this, [this](const QString &text) {
        m_errorWindow->tell({MessageKind::UnconfirmedStop, text});
    });
    connect(&m_connection, &Connection::enableStatePolled, m_disableWatch, &DisableWatch::enableStatePolled, type);
    connect(&m_connection, &Connection::enableStatePolled, this, &MW::enableStatePolled, type);
    connect(&m_connection, &Connection::disableFinished, m_disableWatch, &DisableWatch::disableFinished, type);
}

void MW::on_enable_drive_clicked()
{
    statusBar()->clearMessage(); // "Disabled" would no longer be true
    m_connection.setDriveEnableStatus(true);
    m_connection.command(Connection::TaskApplyEnableState);
}

void MW::on_force_enable_clicked()
{
    statusBar()->clearMessage();
    m_connection.setDriveEnableStatus(true);
    m_connection.setDriveForceEnableStatus(true);
    m_connection.command(Connection::TaskApplyEnableState);
}

// No guard: a disable always gets through, whatever the window believes about the connection.
void MW::on_disable_drive_clicked()
{
    m_connection.setDriveEnableStatus(false);
    m_connection.setDriveForceEnableStatus(false);
    stopStimulus();
    m_connection.command(Connection::TaskApplyEnableState);
    if (m_connection.isInFirmwareUpgradeMode())
        statusBar()->showMessage(tr("Nothing to disable: the drive is in firmware upgrade mode, which drives no motor"),
                                 upgradeModeNoteMs);
    else
        m_disableWatch->disableAsked(m_connection.isConnected() ? DisableWatch::Reach::Connected
                                     : m_lastAddress != 0       ? DisableWatch::Reach::LastKnown
                                                                : DisableWatch::Reach::Nobody);
}

void MW::on_clear_faults_clicked()
{
    if (m_form->clear_faults->isEnabled())
        m_connection.clearDriveFaults();
}

void MW::on_start_homing_clicked()
{
    if (!checkIfParamsChangedAndAskUser(AskWithAbort))
        m_connection.command(Connection::TaskStartHoming);
}

void MW::on_abort_homing_clicked()
{
    m_connection.command(Connection::TaskAbortHoming);
}

void MW::sendSetpoint(const QWidget *button, QSpinBox *target, Connection::Task task)
{
    // The shortcuts reach the slots even when the buttons are disabled.
    if (!button->isEnabled())
        return;
    // Not the old target in place of one that was typed and refused.
    if (!commitEditedField() || anyNumberRefused({target}))
        return;
    m_connection.setTargetSetpoint(target->value());
    m_connection.command(task);
}

void MW::on_setAbs1_clicked()
{
    sendSetpoint(m_form->setAbs1, m_form->stimulusTarget1, Connection::TaskSetAbsoluteSetpoint);
}

void MW::on_setInc1_clicked()
{
    sendSetpoint(m_form->setInc1, m_form->stimulusTarget1, Connection::TaskSetIncrementalSetpoint);
}

void MW::on_setAbs2_clicked()
{
    sendSetpoint(m_form->setAbs2, m_form->stimulusTarget2, Connection::TaskSetAbsoluteSetpoint);
}

void MW::on_setInc2_clicked()
{
    sendSetpoint(m_form->setInc2, m_form->stimulusTarget2, Connection::TaskSetIncrementalSetpoint);
}

// No guard, as with disabling.
void MW::on_setZero_clicked()
{
    stopStimulus();
    m_connection.setTargetSetpoint(0);
    m_connection.command(Connection::TaskSetAbsoluteSetpoint);
}

void MW::on_measureRLbutton_clicked()
{
    // The measurement ends in a full read, which would take edits that were not applied with it.
    if (checkIfParamsChangedAndAskUser(AskWithAbort))
        return;
    stopStimulus();
    m_connection.command(Connection::TaskMeasure);
}

void MW::on_copyDeviceStateToClipboard_clicked()
{
    QGuiApplication::clipboard()->setText(m_statePanels->plainText(), QClipboard::Clipboard);
}
