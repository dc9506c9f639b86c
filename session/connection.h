/// \file
/// The drive session: a worker thread that owns the bus, runs queued tasks and reports through signals.
#ifndef VELBRIN_SESSION_CONNECTION_H
#define VELBRIN_SESSION_CONNECTION_H

#include "capturedata.h"
#include "capturestate.h"
#include "devicemodel.h"
#include "disableoutcome.h"
#include "drivestate.h"
#include "message.h"
#include "nodetype.h"
#include "parameters.h"
#include "task.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QThread>
#include <functional>
#include <memory>

/// The only caller of the bus library. Everything public is called from the user-interface thread unless it says
/// otherwise, and returns at once: setters store what is asked, `command` queues a task with a copy of it, and the
/// results come back through signals, which are emitted on the worker thread (use queued connections).
class Connection : public QThread, public SessionTasks
{
    Q_OBJECT

public:
    /// For deviceHasCapability(); which family has what stands with DeviceCapability.
    enum Capability {
        CapRestartToDFU = int(DeviceCapability::RestartToDFU),
        CapMeasureRL = int(DeviceCapability::MeasureRL),
        CapResetToFactory = int(DeviceCapability::ResetToFactory),
        CapControlModeChange = int(DeviceCapability::ControlModeChange),
        CapIOSideFirmware = int(DeviceCapability::IOSideFirmware),
    };

    /// Builds the parameter catalogue and starts the worker thread.
    explicit Connection(QObject *parent = nullptr);
    /// Queues a disconnect and a quit, waits up to 5 s for the thread and terminates it otherwise.
    ~Connection() override;

    // --- Asking for work (user-interface thread) --------------------------------------------------------------

    /// Queues a task with a copy of the requests stored by the setters. `waitForLoop` is kept for its callers: nothing
    /// is locked across bus traffic, so there is nothing to wait for.
    void command(Task task, bool waitForLoop = false);
    /// Queues a connect to the drive at `nodeAddress` on a port; 255 means firmware-upgrade mode.
    void connectDevice(const QString &portName, int nodeAddress);
    /// Queues a bus scan; its answer is availableBusNodes. One scan at a time.
    void getListOfBusNodes(const QString &portName);
    /// Queues a full read; its answer is parametersRetreived(list, false).
    void getParams();
    /// Hands over the set that the next write, or save to a file, uses.
    void setParams(const Parameters &list);
    /// Emits parametersRetreived with a copy of the held list and `true`.
    void emitParameters();
    void checkErrors();
    void clearDriveFaults();

    void setSettingsFileName(const QString &fileName);
    void setFirmwareFileName(const QString &fileName, bool resetToFactory);
    void setDriveEnableStatus(bool enable);
    void setDriveForceEnableStatus(bool force);
    /// Setpoint for tasks 27 and 28, in the drive's setpoint units.
    void setTargetSetpoint(int setpoint);
    /// Square wave between two targets (setpoint units), held for the delays (s). Off while on queues task 26.
    void setStimulus(double target1, double delay1, double target2, double delay2, bool enabled);
    /// Chooses rate (Hz), trigger (0 rising setpoint, 1 setpoint change, 2 fault, 3 at once) and channels, in channel
    /// order, of the next capture.
    void setupCapture(double sampleRateHz, int triggerIndex, const QList<bool> &selected);
    /// Register shown under the fault panel; 0 shows none.
    void setWatchedParameter(int address);
    /// Whether the fault panel shows the drive's debug values.
    void setDebugValuesShown(bool shown);
    /// Names the drive that a disable goes to while none is connected, for whoever wants to disable before connecting.
    /// Connecting names it, too, and an ended connection leaves it named; until one of these, a disable without a
    /// connection does nothing.
    void setDisableTarget(const QString &portName, int nodeAddress);

    // --- Asking about the drive (any thread) ------------------------------------------------------------------

    bool isConnected() const;
    /// Whether a full read has read everything since connecting: what parametersRetreived(list, false) brings is a part
    /// of it when a read failed. A bootloader's drive never has all of it.
    bool valuesAreComplete() const;
    /// Whether the connected drive runs its bootloader.
    bool isInFirmwareUpgradeMode() const;
    /// Type id of the connected drive, 0 when there is none.
    int deviceType() const;
    static QString deviceModelName(int typeId, bool withMakerPrefix);
    bool isKetaPro() const;
    /// False for every capability when no drive is connected.
    bool deviceHasCapability(int capability) const;
    /// Display value of the first record with this name, 0.0 when there is none: as the connected drive has it once it
    /// was read, otherwise as handed over or loaded.
    double getActiveParamValue(const QString &name) const;
    /// What was last read from the drive, or written and acknowledged; what is merely wanted is not in it. The bare
    /// catalogue until something was read in this connection.
    Parameters driveParameters() const;
    /// How the line has done since the program started.
    LineMeter lineMeter() const;
    /// Position feedback in counts, as last polled.
    int positionFeedback() const;
    /// Highest sample rate of the connected family's recorder, Hz.
    double maxScopeSampleRate() const;
    /// Next value of the square wave; advances its clock by one stream period.
    double getStimulus();

    /// Multiplies every pause of the worker (restart 3.5 s, measurement 8 s, ...) and the period of its polls (330 ms,
    /// never below 10 ms): tests shorten them. Default 1.
    void setPauseScale(double scale);
    /// Read time-out of connections made from now on, ms, in steps of 100: tests shorten it. Default 1000.
    void setReplyTimeout(int milliseconds);

    // --- Called by nobody in this program; kept, with their names, for whoever builds on this class -------------

    bool isTorva() const;
    bool isKeta() const;
    /// Divider of velocities and accelerations that suits a feedback resolution (lines) and a speed (rpm).
    static int generateDividerValue(int resolution, int speed);

signals:
    void statusChanged(bool connected, QString text);
    void parametersRetreived(Parameters list, bool loadedFromFile);
    void error(QString text);
    void plotReady(QList<CaptureData> capture);
    void updateCaptureButtonText(QString text);
    void physInputsUpdated(QString html);
    void statusRegisterUpdated(QString html);
    void faultRegisterUpdated(QString html);
    void availableBusNodes(QList<NodeType> nodes);
    /// While a scan is on its way: addresses asked so far, and in all.
    void scanProgress(int asked, int total);
    void firmwareUpgradeMsg(QString html, bool done, bool failed);
    /// Bytes of the images uploaded so far, and in all.
    void firmwareUploadProgress(int sentBytes, int totalBytes);
    void suggestDeviceRestart();
    void setpointChanged(double setpoint);
    void busy(bool busy, bool nonBlocking);
    void setUnsavedState();
    void controlModeChanged(int mode);
    /// A disable was sent; whether the drive answered it. What it did about it shows in the next enableStatePolled.
    void disableAnswered(bool acknowledged);
    /// How a disable, or an enable that was taken back, ended: what the drive showed behind it.
    void disableFinished(DisableOutcome outcome);
    /// Enable state in a status poll of a drive in normal mode.
    void enableStatePolled(bool enabled);

    // The same as values, for whoever decides something: nobody takes the words above apart.
    /// Every text of `error`, with its kind, right behind it.
    void message(Message message);
    /// A good poll, right behind the panels worded from it. `firmwareUpgradeMode` says that only the faults were read.
    void statePolled(DriveState state);
    /// driveParameters() has changed: behind a whole read and a write.
    void driveParametersChanged(Parameters list);
    /// A save to flash was answered; `done`: its flash now holds what its working memory does.
    void savedToFlash(bool done);
    /// The file holds this list now.
    void settingsFileSaved(QString fileName, Parameters list);
    /// Right behind each updateCaptureButtonText.
    void captureStateChanged(CaptureState state);

protected:
    void run() override;

private:
    void queue(Task task, const std::function<void()> &store = {});

    struct Private;
    std::unique_ptr<Private> d;
};

#endif
