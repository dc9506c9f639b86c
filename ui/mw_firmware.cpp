// The firmware dialog, and restarting the drive with or without it.
#include "errorwindow.h"
#include "firmwaredialog.h"
#include "mw.h"
#include "mwforms.h"
#include "noticetext.h"

#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

void MW::firmwareUpgradeMsg(QString msg, bool done, bool failed)
{
    m_firmwareDialog->begin();
    m_firmwareDialog->appendMessage(msg);
    if (!done)
        return;
    m_firmwareDialog->setFinished();
    m_connection.command(Connection::TaskDisconnect);
    if (!failed) {
        // The drive is at its one-time address now: let the user find it there.
        m_connection.command(Connection::TaskScanBus);
        m_form->connect_button->setText(tr("Searching devices..."));
        m_reconnectAfterUpgrade = true;
    }
}

void MW::FWUpgrade_openFile_clicked()
{
    qDebug() << "open FW";
    const QString file =
        askFile(QFileDialog::AcceptOpen, tr("Open firmware file"), m_lastFirmwareFolder, tr("Firmware file (*.tdf)"));
    if (file.isEmpty())
        return;
    m_lastFirmwareFolder = file.section(QLatin1Char('/'), 0, -2);
    m_connection.setFirmwareFileName(file, m_firmwareDialog->form.resetToFactoryState->isChecked());
    m_connection.command(Connection::TaskFlashFirmware);
    m_reconnectAfterUpgrade = false;
    m_firmwareDialog->setRunning();
}

void MW::FWUpgrade_close_clicked()
{
    m_firmwareDialog->finish();
    // Leaving without a successful upgrade drops the connection to a drive in upgrade mode.
    if (!m_reconnectAfterUpgrade)
        m_connection.command(Connection::TaskDisconnect);
}

void MW::showBootloaderIdentity()
{
    const int version = int(m_settings.value(QStringLiteral("FWVER")));
    if (version > 0)
        m_form->FWVER->setText(tr("%1 (bootloader)").arg(version));
    for (QLabel *label : {m_form->TCFWVER, m_form->BUILDREVISION})
        label->setText(tr("Not known in firmware upgrade mode"));
}

bool MW::askToKeepUpgrading()
{
    if (!m_firmwareDialog->isRunning())
        return false;
    QMessageBox box(QMessageBox::Warning, tr("Velbrin"), tr("A firmware upgrade is running."), QMessageBox::NoButton,
                    this);
    box.setInformativeText(
        tr("Closing now leaves the drive without working firmware. It then starts in firmware upgrade "
           "mode, where a new upgrade can rescue it."));
    QPushButton *keep = box.addButton(tr("Keep upgrading"), QMessageBox::RejectRole);
    const QPushButton *close = box.addButton(tr("Close anyway"), QMessageBox::DestructiveRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    return box.clickedButton() != close;
}

void MW::restartAndReconnect(Connection::Task restartTask)
{
    if (checkIfParamsChangedAndAskUser(AskWithAbort) || checkIfParamsSavedAndAskUser())
        return;
    connectionStatusChanged(false, tr("Restarting device"));
    m_connection.command(restartTask);
    m_connection.command(Connection::TaskDisconnect);
    on_connect_button_clicked();
}

void MW::on_restartDrive_clicked()
{
    restartAndReconnect(Connection::TaskRestartDrive);
}

void MW::on_restartToDFUMode_clicked()
{
    restartAndReconnect(Connection::TaskRestartToDFU);
}

void MW::suggestDeviceRestart()
{
    askWhenFree([this] {
        if (!m_connection.isConnected())
            return;
        QMessageBox box(QMessageBox::Question, tr("Velbrin"),
                        tr("Some recently changed parameters or faults require drive restart (Permanent stop state is "
                           "on). If this repeats, check parameters and device status page."),
                        QMessageBox::NoButton, this);
        box.setInformativeText(tr("Do you wish to restart device now?"));
        QAbstractButton *stay = box.addButton(tr("Don't restart"), QMessageBox::NoRole);
        QPushButton *restart = box.addButton(tr("Restart drive now"), QMessageBox::YesRole);
        box.setDefaultButton(restart);
        box.setEscapeButton(stay);
        box.exec();
        if (box.clickedButton() != restart)
            return;
        qDebug() << "restart";
        on_restartDrive_clicked();
    });
}

void MW::handleUpdateCheckerMessage(QString html, bool mustDisconnect)
{
    m_errorWindow->note(noticeText(html));
    qDebug() << "mustdisconnect" << (mustDisconnect ? "true" : "false");
    if (!mustDisconnect || !m_connection.isConnected())
        return;
    // Nobody lets go of a live drive because of a line from the network.
    m_disconnectWhenDisabled = m_enableState != EnableState::Disabled;
    if (!m_disconnectWhenDisabled)
        m_connection.command(Connection::TaskDisconnect);
    else if (m_enableState == EnableState::Enabled)
        m_errorWindow->tell({MessageKind::Note, tr("The maker's server asks for an end of this connection. The drive "
                                                   "is enabled, so it stays until the drive is disabled.")});
}

void MW::enableStatePolled(bool enabled)
{
    const bool isNews = m_enableState == EnableState::Unknown;
    m_enableState = enabled ? EnableState::Enabled : EnableState::Disabled;
    if (!m_disconnectWhenDisabled)
        return;
    if (!enabled)
        m_connection.command(Connection::TaskDisconnect);
    else if (isNews)
        handleUpdateCheckerMessage(QString(), true);
}
