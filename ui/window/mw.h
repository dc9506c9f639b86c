/// \file
/// The main window: its frame, and the switchboard between controls, session and the pages.
#ifndef VELBRIN_UI_MW_H
#define VELBRIN_UI_MW_H

#include "capturedata.h"
#include "catalogue.h"
#include "connection.h"
#include "editedsettings.h"
#include "helpview.h"

#include <QMainWindow>
#include <QUrl>
#include <memory>

class ApplyDesk;
class DriveBoard;
class PaneKeys;
class BusyDialog;
class ConnectPage;
class ControlModeRule;
class DriveDesk;
class ErrorWindow;
class FirmwareDesk;
class HelpBrowser;
class MakerNews;
class ParameterPages;
class QCloseEvent;
class QLabel;
class QuestionQueue;
class TestingPage;
class TriesDesk;
class Ui_MW;
class Ui_overrideParams;
struct SerialPort;

/// One per program, on the user-interface thread. It never waits on the bus: every slot stores what is asked on the
/// Connection and queues a task, and the answers come back as queued signals. Each slot hands over to the page or desk
/// whose topic it is.
class MW : public QMainWindow
{
    Q_OBJECT

public:
    /// What the command line asked for.
    struct Options
    {
        QString file;             ///< settings file to load when the disclaimer is accepted; empty: none
        QString port;             ///< port to choose at first; empty: the last recognised adapter
        QString virtualPort;      ///< port of the built-in virtual drive, empty when there is none
        bool debugValues = false; ///< show the drive's debug values in the fault panel
        HelpView::Engine webEngine = HelpView::Engine::Allowed;
        double pauseScale = 1.0; ///< factor on every pause of the session (restart, measurement, ...); for tests
    };

    /// Builds the window, asks the user to accept the disclaimer (a modal box) and queues close() if they do not.
    explicit MW(const Options &options, QWidget *parent = nullptr);
    MW() : MW(Options()) {}
    ~MW() override;

    /// For whoever watches it, such as the tour: its signals only.
    const Connection &session() const { return m_connection; }

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void pageChanged();
    void availableBusNodesListReceived(QList<NodeType> list);
    void on_apply_button_clicked();
    void saveTestResults_clicked();
    void openCapture();
    void toggleOpenedOut();
    void connectionStatusChanged(bool connected, QString text);
    void on_MPC_editingFinished();
    void on_MCC_editingFinished();
    void on_MMC_editingFinished();
    void on_MT_currentIndexChanged(int index);
    void on_CRI_currentIndexChanged(int index);
    void on_AXT_currentIndexChanged(int index);
    void on_CM_currentIndexChanged(int index);
    void on_HME_currentIndexChanged(int index);
    void paramsRetreived(Parameters params, bool loadedFromFile);
    void on_disable_drive_clicked();
    void on_enable_drive_clicked();
    void on_FB2D_currentIndexChanged(int index);
    void plotCapture(QList<CaptureData> capture);
    void browserLinkClicked(QUrl url);
    void on_ScopeCaptureNow_clicked();
    void on_stimulusTarget1_editingFinished();
    void on_stimulusDelay1_editingFinished();
    void on_stimulusTarget2_editingFinished();
    void on_stimulusDelay2_editingFinished();
    void on_stimulusEnabled_stateChanged(int arg1);
    void on_clear_faults_clicked();
    void changeScopeButtonText(QString text);
    void on_saveToFlash_clicked();
    void on_stimulusTarget1_valueChanged(int arg1);
    void on_stimulusTarget2_valueChanged(int arg1);
    void on_actionRaw_parameters_triggered();
    void on_start_homing_clicked();
    void on_abort_homing_clicked();
    void on_HLL_editingFinished();
    void on_HHL_editingFinished();
    void updateUnitLabels();
    void on_load_settings_from_file_clicked();
    void on_save_settings_to_file_clicked();
    void helpViewLoadFinished(bool ok);
    void on_connect_button_clicked();
    void on_disconnect_button_clicked();
    void on_restartDrive_clicked();
    void updateApplyButtonState();
    void helpLoadingTimeouted();
    void firmwareUpgradeMsg(QString msg, bool done, bool failed);
    void FWUpgrade_openFile_clicked();
    void FWUpgrade_close_clicked();
    void suggestDeviceRestart();
    void on_force_enable_clicked();
    void handleUpdateCheckerMessage(QString html, bool mustDisconnect);
    void on_setAbs1_clicked();
    void on_setInc1_clicked();
    void on_setAbs2_clicked();
    void on_setInc2_clicked();
    void on_copyDeviceStateToClipboard_clicked();
    void on_FUV_valueChanged(double arg1);
    void on_setZero_clicked();
    void setpointChanged(double val);
    void on_restartToDFUMode_clicked();
    void on_measureRLbutton_clicked();
    void setBusy(bool busy, bool nonBlocking);
    void setUnsavedStatus();
    void on_showAdvancedSettings_clicked();
    void deviceControlModeChanged(int newmode);

    // Names that are given, used by nobody in the program: units() and setpointLabel() of the pages are.
    double convertHWtoMachineVelocityUnits(double hwunits, bool isSetpoint = false, bool rawHWscale = false);
    QString convertHWtoMachineVelocityUnitsLabel(double hwunits, bool isSetpoint = false, bool rawHWscale = false);
    QString convertHWtoMachinePositionUnitsLabel(double hwunits, bool rawHWscale = false);
    QString convertHWtoMachineAccelerationUnitsLabel(double hwunits);
    QString convertHWtoMachineUnitsLabel(double hwunits, QString labelname);
    QString convertHWrefToUnitsLabel(double ref);
    QString giveDeviceVersion(int hwtypeid);

private:
    /// No slot for the connection by name: the toolkit's signal with the text is gone, so it is connected by hand.
    void on_FBD_currentIndexChanged(const QString &arg1);

    // Construction, in this order
    void buildForms();
    void buildPages(const Options &options);
    void buildPageList();
    void connectForms();
    void connectPages();
    void connectSession();
    void createShortcuts();
    void hideForGood();
    void showFirstState(const Options &options, const QList<SerialPort> &ports);
    void pictureSaved(const QString &failure);

    // The drive at a glance (mwboard.cpp)
    void buildBoard();
    void connectBoard();
    void nameControls();
    void orderKeyboard();
    void showFaultHelp(int faultBit);
    void showHelpFile(const QString &file, const QString &anchor);

    std::unique_ptr<Ui_MW> m_form;
    std::unique_ptr<Ui_overrideParams> m_overridesForm;
    QDialog *m_overridesDialog = nullptr;
    BusyDialog *m_busyDialog = nullptr;
    ErrorWindow *m_errorWindow = nullptr;
    QLabel *m_connectionStatusLabel = nullptr;
    QLabel *m_changeCount = nullptr; ///< beside the Apply button

    DriveBoard *m_board = nullptr;
    PaneKeys *m_paneKeys = nullptr;
    QString m_searchProgress; ///< as last said
    QuestionQueue *m_questions = nullptr;
    HelpBrowser *m_help = nullptr;
    ParameterPages *m_parameters = nullptr;
    ApplyDesk *m_apply = nullptr;
    ConnectPage *m_connectPage = nullptr;
    TriesDesk *m_tries = nullptr;
    TestingPage *m_testing = nullptr;
    DriveDesk *m_drive = nullptr;
    FirmwareDesk *m_firmware = nullptr;
    ControlModeRule *m_controlMode = nullptr;
    MakerNews *m_news = nullptr;

    EditedSettings m_settings{driveParameterCatalogue()};
    int m_currentPage = 0;
    bool m_closeWhenSaved = false; ///< a picture is still being written; the window closes behind it

    Connection m_connection; ///< last, so that the worker ends while everything it reports to still exists
};

#endif
