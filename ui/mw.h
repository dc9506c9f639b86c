/// \file
/// The main window: page list, seven pages, help view, and the dialogs that belong to it. A thin shell: what can be
/// told without a window (units, bit fields, visibility, sanity checks) stands in files of its own beside this one.
#ifndef MW_H
#define MW_H

#include "captureplotter.h"
#include "connection.h"
#include "controlbinding.h"
#include "helpview.h"
#include "updatechecker.h"

#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QUrl>
#include <functional>
#include <initializer_list>
#include <memory>

class BusyDialog;
class DisableWatch;
class ErrorWindow;
class EscapeFilter;
class FirmwareDialog;
class QCloseEvent;
class QLabel;
class QPushButton;
class QSpinBox;
class QTimer;
class StatePanels;
class Ui_overrideParams;
struct Forms;

/// One per program, on the user-interface thread. It never waits on the bus: every slot stores what is asked on the
/// Connection and queues a task, and the answers come back as queued signals.
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
        double pauseScale = 1.0;  ///< factor on every pause of the session (restart, measurement, ...); for tests
    };

    /// When checkIfParamsChangedAndAskUser asks, and how.
    enum AskForApplyMode {
        AskWithAbort = 0,     ///< apply, go on without, or go back
        AskBeforeTesting = 1, ///< apply or not
    };

    /// Builds the window, asks the user to accept the disclaimer (a modal box) and queues close() if they do not.
    explicit MW(const Options &options, QWidget *parent = nullptr);
    MW() : MW(Options()) {}
    ~MW() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void pageChanged();
    void availableBusNodesListReceived(QList<NodeType> list);
    void on_apply_button_clicked();
    void saveTestResults_clicked();
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
    double convertHWtoMachineVelocityUnits(double hwunits, bool isSetpoint = false, bool rawHWscale = false);
    QString convertHWtoMachineVelocityUnitsLabel(double hwunits, bool isSetpoint = false, bool rawHWscale = false);
    QString convertHWtoMachinePositionUnitsLabel(double hwunits, bool rawHWscale = false);
    QString convertHWtoMachineAccelerationUnitsLabel(double hwunits);
    QString convertHWtoMachineUnitsLabel(double hwunits, QString labelname);
    QString convertHWrefToUnitsLabel(double ref);
    void on_stimulusTarget1_valueChanged(int arg1);
    void on_stimulusTarget2_valueChanged(int arg1);
    void on_actionRaw_parameters_triggered();
    QString giveDeviceVersion(int hwtypeid);
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

private:
    /// No slot for the connection by name: the toolkit's signal with the text is gone, so it is connected by hand.
    void on_FBD_currentIndexChanged(const QString &arg1);

    // Construction, in this order (mw.cpp)
    void buildForms();
    void buildPageList();
    void buildHelpAndStatus();
    void connectSession();
    void connectStatePanels();
    void connectNumberFields();
    void connectDisableWatch();
    void createShortcuts();
    void hideForGood();
    void fillTorqueFunctions();
    void restoreLayout();
    void saveLayout() const;
    bool showDisclaimer(); ///< whether the user agrees; close() is queued otherwise

    // Connect page
    void populateConnectionPortList();
    QString chosenPort() const;
    void chooseNode();
    void connectToNode(int address);
    void enableDriveControls(bool connected);
    void updateSaveToFileButton();
    /// Whether a drive is connected that has settings and moves: not one that runs its bootloader.
    bool driveRunsItsFirmware() const;
    void showMaximumSampleRate();
    void showNoDevice();

    // Parameter pages
    void setParams();
    void sendUpdateQuery();
    void fillControls(bool bareCatalogue);
    ControlBinding::Filled fillControl(SingleParam p);
    void showDeviceType(int typeId);
    void connectDynamicSpinboxLabels();
    void doParamSanityChecks();
    void updateControlVisibility();
    void updateAllRules();
    /// For values beside their controls: as the pages have the scale.
    struct UnitConversion unitConversion() const;
    /// For what the drive does: as it has the scale. Without one, as the pages have it.
    struct UnitConversion driveUnitConversion() const;
    void askToResetPosition();

    // Apply, save, files
    /// Whether what was being typed, if anything was, could be taken.
    bool commitEditedField();
    /// Says why the number that was typed last into one of these fields was refused, once: whoever is about to move a
    /// drive by them asks first.
    bool anyNumberRefused(std::initializer_list<const QWidget *> boxes);
    bool valuesHaveArrived(const QString &refusal);
    bool applyToDrive();
    bool areParamsChanged();
    bool checkIfParamsChangedAndAskUser(AskForApplyMode mode);
    bool checkIfParamsSavedAndAskUser();
    void loadSettingsFile(const QString &file);
    bool askBeforeTesting(const QString &text);
    bool askWithAbort(const QString &text);
    /// `mode` is QFileDialog::AcceptSave or AcceptOpen, "~" the home folder; empty when the user gave no name.
    QString askFile(int mode, const QString &title, QString start, const QString &filters,
                    const QString &defaultSuffix = QString());

    // Testing, actions, help
    void stopStimulus();
    void sendSetpoint(const QWidget *button, QSpinBox *target, Connection::Task task);
    bool askToKeepUpgrading();
    void showBootloaderIdentity();
    void restartAndReconnect(Connection::Task restartTask);
    void enableStatePolled(bool enabled);
    void loadHelp();
    /// The page of the same name among the offline pages once help is offline; any other address stays as it is.
    QUrl offlineCopyOf(const QUrl &url) const;
    void showPlotPage(HelpView::Zoom zoom);
    void pictureSaved(const QString &failure);
    /// Runs a question as soon as no other box, message or popup is open, so that its default button never takes a key
    /// that was meant for the other. Questions wait in order.
    /// What the user has just asked for (the list of drives found) does not wait for messages to be read first.
    enum class Asked { BySession, ByUser };
    void askWhenFree(const std::function<void()> &question, Asked asked = Asked::BySession);
    void runWaitingQuestion();

    Options m_options;
    std::unique_ptr<Forms> m_form;
    std::unique_ptr<Ui_overrideParams> m_overridesForm;
    QDialog *m_overridesDialog = nullptr;
    BusyDialog *m_busyDialog = nullptr;
    FirmwareDialog *m_firmwareDialog = nullptr;
    HelpView *m_helpView = nullptr;
    QPushButton *m_saveAsPdfButton = nullptr;
    ErrorWindow *m_errorWindow = nullptr;
    EscapeFilter *m_escapeFilter = nullptr;
    DisableWatch *m_disableWatch = nullptr;
    StatePanels *m_statePanels = nullptr;
    QLabel *m_connectionStatusLabel = nullptr;
    QTimer *m_applyTimer = nullptr;
    QTimer *m_helpTimer = nullptr;
    QTimer *m_questionTimer = nullptr;
    struct Question
    {
        std::function<void()> ask;
        Asked asked;
    };
    QList<Question> m_questions;

    EditedSettings m_settings;
    ControlBinding m_binding{this};
    QList<QLabel *> m_unitLabels; ///< labels that show their control in machine units
    CapturePlotter m_plotter;
    UpdateChecker m_updateChecker;
    QString m_lastSetpoint;        ///< as polled last, empty before the first poll
    QList<CaptureData> m_captures; ///< the last capture, kept for plotting it again
    QString m_lastDirectory = QStringLiteral("~");
    QString m_lastFirmwareFolder = QStringLiteral("~");
    QList<NodeType> m_foundNodes;
    QPointer<QDialog> m_nodeDialog;
    bool m_nodeQuestionWaits = false;
    QString m_lastPort; ///< of the drive that was connected last, empty before the first
    int m_lastAddress = 0;

    int m_currentPage = 0;
    bool m_helpEnabled = true;     ///< false while a plot is shown
    bool m_offlineHelp = false;    ///< once true, help comes from local files for the rest of the run
    enum class EnableState { Unknown, Enabled, Disabled } m_enableState = EnableState::Unknown; ///< by the last poll
    bool m_disconnectWhenDisabled = false; ///< the maker asks for it, and the drive is enabled
    bool m_showAdvanced = false;
    bool m_reconnectAfterUpgrade = false;
    bool m_closeWhenSaved = false; ///< a picture is still being written; the window closes behind it
    double m_loopFrequency = 2500.0; ///< control cycles a second (PIF), Hz
    enum class ResetChoice { Ask, Never, Always } m_resetChoice = ResetChoice::Ask; ///< for this run only

    Connection m_connection; ///< last, so that the worker ends while everything it reports to still exists
};

#endif
