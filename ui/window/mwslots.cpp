// The switchboard: each slot, and the page or desk whose topic it is.
#include "mw.h"

#include "actwatch.h"
#include "applydesk.h"
#include "connectpage.h"
#include "controlmoderule.h"
#include "driveboard.h"
#include "drivedesk.h"
#include "firmwaredesk.h"
#include "helpbrowser.h"
#include "makernews.h"
#include "parameterpages.h"
#include "testingpage.h"
#include "triesdesk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QStatusBar>

using Target = TestingPage::Target;
using Move = TestingPage::Move;

// --- Settings -----------------------------------------------------------------------------------------------------

void MW::availableBusNodesListReceived(QList<NodeType> list)
{
    m_firmware->searchEnded();
    statusBar()->showMessage(tr("Drives found: %1").arg(list.size()));
    m_connectPage->nodesFound(list);
}

void MW::on_apply_button_clicked()
{
    m_apply->apply();
}

void MW::saveTestResults_clicked()
{
    m_tries->save();
}

void MW::paramsRetreived(Parameters params, bool loadedFromFile)
{
    m_apply->takeSettings(params, loadedFromFile);
    m_tries->showLimits();
    m_apply->updateSaveToFileButton();
    updateUnitLabels();
    updateApplyButtonState();
}

void MW::updateUnitLabels()
{
    m_parameters->updateUnitLabels();
    m_testing->updateTargetLabels();
}

void MW::updateApplyButtonState()
{
    m_apply->updateButton();
}

void MW::setUnsavedStatus()
{
    m_settings.setSaved(false);
}

void MW::on_saveToFlash_clicked()
{
    m_apply->saveToFlash();
}

void MW::on_load_settings_from_file_clicked()
{
    m_apply->loadFile();
}

void MW::on_save_settings_to_file_clicked()
{
    m_apply->saveFile();
}

// --- Connecting ---------------------------------------------------------------------------------------------------

void MW::on_connect_button_clicked()
{
    m_connectPage->search();
}

void MW::on_disconnect_button_clicked()
{
    if (m_connectPage->canDisconnect() && m_apply->mayLeaveDrive())
        m_connectPage->disconnectDrive();
}

void MW::on_restartDrive_clicked()
{
    m_firmware->restart();
}

void MW::on_restartToDFUMode_clicked()
{
    m_firmware->restartToUpgradeMode();
}

void MW::suggestDeviceRestart()
{
    m_firmware->suggestRestart();
}

void MW::firmwareUpgradeMsg(QString msg, bool done, bool failed)
{
    m_firmware->progressCame(msg, done, failed);
}

void MW::FWUpgrade_openFile_clicked()
{
    m_firmware->openFile();
}

void MW::FWUpgrade_close_clicked()
{
    m_firmware->closeDialog();
}

void MW::handleUpdateCheckerMessage(QString html, bool mustDisconnect)
{
    m_news->show(html, mustDisconnect);
}

void MW::deviceControlModeChanged(int newmode)
{
    m_controlMode->modeChanged(newmode);
}

// --- The drive ----------------------------------------------------------------------------------------------------

void MW::on_enable_drive_clicked()
{
    m_board->acts()->enableAsked();
    m_drive->enable(DriveDesk::Enable::Usual);
}

void MW::on_force_enable_clicked()
{
    m_board->acts()->enableAsked();
    m_drive->enable(DriveDesk::Enable::Forced);
}

void MW::on_disable_drive_clicked()
{
    m_drive->disable();
    m_board->acts()->forget(); // an enable that was asked for before
}

void MW::on_clear_faults_clicked()
{
    if (m_drive->clearFaults())
        m_board->acts()->clearFaultsAsked();
}

void MW::on_start_homing_clicked()
{
    m_drive->startHoming();
}

void MW::on_abort_homing_clicked()
{
    m_drive->abortHoming();
}

void MW::on_measureRLbutton_clicked()
{
    m_drive->measure();
}

// --- Testing ------------------------------------------------------------------------------------------------------

void MW::on_setAbs1_clicked()
{
    m_testing->sendSetpoint(Target::First, Move::Absolute);
}

void MW::on_setAbs2_clicked()
{
    m_testing->sendSetpoint(Target::Second, Move::Absolute);
}

void MW::on_setInc1_clicked()
{
    m_testing->sendSetpoint(Target::First, Move::Increment);
}

void MW::on_setInc2_clicked()
{
    m_testing->sendSetpoint(Target::Second, Move::Increment);
}

void MW::on_setZero_clicked()
{
    m_testing->sendZero();
}

void MW::on_stimulusTarget1_editingFinished()
{
    m_testing->sendStimulus();
}

void MW::on_stimulusDelay1_editingFinished()
{
    m_testing->sendStimulus();
}

void MW::on_stimulusTarget2_editingFinished()
{
    m_testing->sendStimulus();
}

void MW::on_stimulusDelay2_editingFinished()
{
    m_testing->sendStimulus();
}

void MW::on_stimulusEnabled_stateChanged(int)
{
    m_testing->stimulusTicked();
}

void MW::on_stimulusTarget1_valueChanged(int)
{
    m_testing->updateTargetLabels();
}

void MW::on_stimulusTarget2_valueChanged(int)
{
    m_testing->updateTargetLabels();
}

void MW::setpointChanged(double val)
{
    m_testing->setpointPolled(val);
}

void MW::on_ScopeCaptureNow_clicked()
{
    m_testing->capture();
}

void MW::changeScopeButtonText(QString text)
{
    m_testing->showCaptureState(text);
}

void MW::plotCapture(QList<CaptureData> capture)
{
    m_testing->plot(capture);
}

void MW::on_copyDeviceStateToClipboard_clicked()
{
    QGuiApplication::clipboard()->setText(m_testing->deviceState(), QClipboard::Clipboard);
}

// --- Help ---------------------------------------------------------------------------------------------------------

void MW::openCapture()
{
    m_tries->open();
}

void MW::toggleOpenedOut()
{
    m_tries->toggleOpenedOut();
}

void MW::browserLinkClicked(QUrl url)
{
    m_help->follow(url);
}

void MW::helpViewLoadFinished(bool ok)
{
    m_help->loadFinished(ok);
}

void MW::helpLoadingTimeouted()
{
    m_help->goOffline();
}
