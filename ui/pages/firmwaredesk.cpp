#include "firmwaredesk.h"

#include "applydesk.h"
#include "connectpage.h"
#include "filedialog.h"
#include "firmwaredialog.h"
#include "questionqueue.h"

#include <QDebug>
#include <QMessageBox>
#include <QPushButton>

FirmwareDesk::FirmwareDesk(QWidget *window, Connection &session, ConnectPage *connectPage, ApplyDesk *apply,
                           QuestionQueue *questions)
    : QObject(window), m_window(window), m_session(session), m_connectPage(connectPage), m_apply(apply),
      m_questions(questions), m_dialog(new FirmwareDialog(window))
{
    connect(&m_session, &Connection::firmwareUploadProgress, m_dialog, &FirmwareDialog::setProgress,
            Qt::QueuedConnection);
}

void FirmwareDesk::progressCame(const QString &html, bool done, bool failed)
{
    m_dialog->begin();
    m_dialog->appendMessage(html);
    if (!done)
        return;
    m_dialog->setFinished();
    m_session.command(Connection::TaskDisconnect);
    if (!failed) {
        // The drive is at its one-time address now: let the user find it there.
        m_connectPage->searchAfterUpgrade();
        m_reconnects = true;
    }
}

void FirmwareDesk::openFile()
{
    qDebug() << "open FW";
    const QString file =
        askFileToOpen(m_window, {tr("Open firmware file"), m_lastFolder, tr("Firmware file (*.tdf)"), QString()});
    if (file.isEmpty())
        return;
    m_lastFolder = folderOf(file);
    m_session.setFirmwareFileName(file, m_dialog->form.resetToFactoryState->isChecked());
    m_session.command(Connection::TaskFlashFirmware);
    m_reconnects = false;
    m_dialog->setRunning();
}

void FirmwareDesk::closeDialog()
{
    m_dialog->finish();
    // Leaving without a successful upgrade drops the connection to a drive in upgrade mode.
    if (!m_reconnects)
        m_session.command(Connection::TaskDisconnect);
}

void FirmwareDesk::showCapabilities()
{
    m_dialog->form.resetToFactoryState->setVisible(m_session.deviceHasCapability(Connection::CapResetToFactory));
}

bool FirmwareDesk::wantsToKeepUpgrading()
{
    if (!m_dialog->isRunning())
        return false;
    QMessageBox box(QMessageBox::Warning, tr("Velbrin"), tr("A firmware upgrade is running."), QMessageBox::NoButton,
                    m_window);
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

void FirmwareDesk::restartBy(Connection::Task task)
{
    if (!m_apply->mayLeaveDrive())
        return;
    emit restarting();
    m_session.command(task);
    m_session.command(Connection::TaskDisconnect);
    if (task == Connection::TaskRestartDrive)
        m_connectPage->searchForLast();
    else
        m_connectPage->search();
}

void FirmwareDesk::suggestRestart()
{
    m_questions->ask([this] { askToRestart(); });
}

void FirmwareDesk::askToRestart()
{
    if (!m_session.isConnected())
        return;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"),
                    tr("Some recently changed parameters or faults require drive restart (Permanent stop state is "
                       "on). If this repeats, check parameters and device status page."),
                    QMessageBox::NoButton, m_window);
    box.setInformativeText(tr("Do you wish to restart device now?"));
    QAbstractButton *stay = box.addButton(tr("Don't restart"), QMessageBox::NoRole);
    QPushButton *now = box.addButton(tr("Restart drive now"), QMessageBox::YesRole);
    box.setDefaultButton(now);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() != now)
        return;
    qDebug() << "restart";
    restart();
}
