#include "applydesk.h"

#include "connection.h"
#include "driveboard.h"
#include "editedfield.h"
#include "editedsettings.h"
#include "errorwindow.h"
#include "filedialog.h"
#include "parameterpages.h"

#include <QDebug>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <utility>

ApplyDesk::ApplyDesk(QWidget *window, const Controls &controls, Connection &session, EditedSettings &settings,
                     ParameterPages *pages, DriveBoard *board, const Reports &reports)
    : QObject(window), m_window(window), m_controls(controls), m_session(session), m_settings(settings), m_pages(pages),
      m_board(board), m_reports(reports)
{
}

void ApplyDesk::updateButton()
{
    m_pages->collect();
    m_board->refresh();
    // A number that is just being typed counts with the next Apply.
    const bool pending = m_settings.isPending() || isNewNumberTyped();
    m_controls.apply->setDefault(pending);
    const auto count = m_board->changes().size();
    QString changes = count == 1 ? tr("1 change") : tr("%1 changes").arg(count);
    if (count == 0)
        changes.clear();
    m_controls.changeCount->setText(changes);
    m_controls.apply->setAccessibleDescription(changes);
    m_controls.apply->setText(pending ? tr("Apply settings (parameters changed)") : tr("Apply settings [Alt+A]"));
    emit buttonChanged(m_controls.apply->text(), m_controls.apply->isEnabled());
}

void ApplyDesk::updateSaveToFileButton()
{
    // Without a drive there is nothing to wait for; with one, a file must not pass for its settings before they came.
    m_controls.saveToFile->setEnabled(!m_session.isConnected() || m_settings.driveWasRead());
}

void ApplyDesk::showConnection(Reach reach)
{
    enableByReach(m_controls.apply, reach);
    emit buttonChanged(m_controls.apply->text(), m_controls.apply->isEnabled());
    updateSaveToFileButton();
}

bool ApplyDesk::driveWasRead(const QString &refusal)
{
    if (!m_settings.driveWasRead())
        m_reports.status->showMessage(refusal);
    return m_settings.driveWasRead();
}

// --- Apply and store ----------------------------------------------------------------------------------------------

void ApplyDesk::apply()
{
    if (commitEditedField(m_window)) // what was typed is not what would be applied
        applyNow();
}

bool ApplyDesk::applyNow()
{
    if (!m_controls.apply->isEnabled()) // the shortcut reaches the slot all the same
        return false;
    if (!driveWasRead(tr("Nothing applied: the settings of this drive have not been read yet")))
        return false;
    m_pages->collect();
    m_board->refresh();
    if (!m_board->confirmApply(m_pages->sanityWarnings()))
        return false;
    m_session.setWatchedParameter(m_controls.watchedRegister->value());
    m_board->applyBegins();
    m_settings.applied();
    m_session.setParams(m_settings.edited());
    m_session.command(Connection::TaskSetParams);
    m_session.checkErrors();
    m_session.getParams(); // what it has taken
    emit m_pages->unitsChanged();
    updateButton();
    return true;
}

void ApplyDesk::saveToFlash()
{
    // An abort here still saves: what is in the drive's memory is worth keeping whatever becomes of the edits.
    askToApply();
    if (!driveWasRead(tr("Nothing saved: the settings of this drive have not been read yet")))
        return;
    m_session.command(Connection::TaskSaveToFlash);
    m_settings.setSaved(true);
    m_board->saveToDriveBegins();
}

void ApplyDesk::savedToFlash(bool done)
{
    if (!done)
        m_settings.setSaved(false);
    m_board->saveToDriveEnded(done);
}

void ApplyDesk::takeSettings(const Parameters &list, bool loadedFromFile)
{
    if (!loadedFromFile && m_board->isOutdatedRead())
        return;
    m_board->fillingBegins();
    m_pages->take(list, loadedFromFile);
    const QString file = loadedFromFile ? std::exchange(m_loading, QString()) : QString();
    if (!file.isEmpty())
        m_reports.status->showMessage(tr("Loaded %1. Nothing of it is in the drive before it is applied").arg(file));
    m_board->fillingEnds(file);
}

// --- Questions ----------------------------------------------------------------------------------------------------

bool ApplyDesk::mayAsk()
{
    commitEditedField(m_window);
    m_pages->collect();
    return m_settings.isPending() && reachOf(m_session) == Reach::Firmware;
}

namespace {
QString notAppliedText()
{
    return ApplyDesk::tr("Some paramets have been changed since last Apply. Changed settings won't take effect before "
                         "Apply.");
}
} // namespace

ApplyDesk::Answer ApplyDesk::askBeforeTesting()
{
    if (!mayAsk())
        return Answer::GoOn;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), notAppliedText(), QMessageBox::Yes | QMessageBox::No,
                    m_window);
    box.setInformativeText(tr("Do you wish to apply changes to drive now?"));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return Answer::GoOn;
    apply();
    return Answer::Apply;
}

ApplyDesk::Answer ApplyDesk::askToApply()
{
    if (!mayAsk())
        return Answer::GoOn;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), notAppliedText(), QMessageBox::Abort, m_window);
    box.setInformativeText(tr("Do you wish to apply changes to drive now? You may also choose Abort to go back."));
    const QPushButton *goOn = box.addButton(tr("Continue without applying"), QMessageBox::DestructiveRole);
    const QPushButton *apply = box.addButton(tr("Apply settings"), QMessageBox::YesRole);
    box.setDefaultButton(QMessageBox::Abort); // a stray Return neither writes to the drive nor loses an edit
    box.exec();
    if (box.clickedButton() == goOn) {
        qDebug() << "dont apply";
        m_settings.settle();
        return Answer::GoOn;
    }
    if (box.clickedButton() == apply) {
        qDebug() << "apply";
        return applyNow() ? Answer::Apply : Answer::Stay; // a refused apply must not cost the edits
    }
    qDebug() << "abort";
    return Answer::Stay;
}

ApplyDesk::Answer ApplyDesk::askToSave()
{
    m_pages->collect();
    if (m_settings.isSaved() || reachOf(m_session) != Reach::Firmware)
        return Answer::GoOn;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"),
                    tr("Some paramets have been changed since last Save to drive. Last changes will be lost on drive "
                       "power-off if not saved."),
                    QMessageBox::Abort, m_window);
    box.setInformativeText(
        tr("Do you wish to save active settings to drive now? You may also choose Abort to go back."));
    const QPushButton *discard = box.addButton(tr("Discard changes"), QMessageBox::DestructiveRole);
    const QPushButton *save = box.addButton(tr("Save to drive now"), QMessageBox::YesRole);
    box.setDefaultButton(QMessageBox::Abort);
    box.exec();
    qDebug() << "choice" << (box.clickedButton() ? box.clickedButton()->text() : QString());
    if (box.clickedButton() == discard) {
        m_settings.settle(); // not the unsaved state: the next close asks again
        return Answer::GoOn;
    }
    if (box.clickedButton() == save) {
        saveToFlash();
        return Answer::Apply;
    }
    return Answer::Stay;
}

// --- Files --------------------------------------------------------------------------------------------------------

void ApplyDesk::saveFile()
{
    // The shortcut reaches the slot even when the button is disabled.
    if (m_session.isConnected() &&
        !driveWasRead(tr("Nothing saved: the settings of this drive have not been read yet")))
        return;
    if (!commitEditedField(m_window))
        return;
    // Without the ending the open dialog would not list the file.
    const QString file =
        askFileToSave(m_window, {tr("Save settings to file"), m_lastFolder + QLatin1String("/settings.drc"),
                                 tr("Drive settings (*.drc)"), QStringLiteral("drc")});
    if (file.isEmpty())
        return;
    m_lastFolder = folderOf(file);
    m_pages->collect();
    m_session.setParams(m_settings.edited());
    m_session.setSettingsFileName(file);
    m_session.command(Connection::TaskSaveSettingsFile);
    if (m_settings.value(QStringLiteral("HWTYPE")) <= 0)
        m_reports.errors->note(
            tr("This file is saved without a drive: what nobody has typed into it are start values of "
               "this program, not the settings of a drive."));
}

void ApplyDesk::loadFile()
{
    const QString file =
        askFileToOpen(m_window, {tr("Open settings file"), m_lastFolder, tr("Drive settings (*.drc)"), QString()});
    if (!file.isEmpty())
        loadFile(file);
}

void ApplyDesk::loadFile(const QString &file)
{
    m_lastFolder = folderOf(file);
    m_session.setSettingsFileName(file);
    m_loading = file;
    m_session.command(Connection::TaskLoadSettingsFile);
}
