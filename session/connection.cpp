// The side of the session that the user interface calls: setters, queueing, answers from what is known.
#include "connection.h"

#include "catalogue.h"
#include "dividerrule.h"
#include "scopechannels.h"
#include "sessiondata.h"
#include "sessionevents.h"
#include "sessionworker.h"
#include "streamplan.h"

struct Connection::Private
{
    SessionData data;
    TaskQueue tasks;
    SessionEvents events;
    SessionWorker worker{data, tasks, events}; ///< only `run` is called, on the session's thread

    /// Direct: what is emitted on the worker thread is passed on there.
    template <typename Event, typename Signal> void pass(Event event, Connection &to, Signal signal)
    {
        connect(&events, event, &to, signal, Qt::DirectConnection);
    }
    void passEventsOn(Connection &to);
};

void Connection::Private::passEventsOn(Connection &to)
{
    using E = SessionEvents;
    using C = Connection;
    pass(&E::statusChanged, to, &C::statusChanged);
    pass(&E::parametersRetreived, to, &C::parametersRetreived);
    pass(&E::error, to, &C::error);
    pass(&E::plotReady, to, &C::plotReady);
    pass(&E::updateCaptureButtonText, to, &C::updateCaptureButtonText);
    pass(&E::physInputsUpdated, to, &C::physInputsUpdated);
    pass(&E::statusRegisterUpdated, to, &C::statusRegisterUpdated);
    pass(&E::faultRegisterUpdated, to, &C::faultRegisterUpdated);
    pass(&E::availableBusNodes, to, &C::availableBusNodes);
    pass(&E::firmwareUpgradeMsg, to, &C::firmwareUpgradeMsg);
    pass(&E::firmwareUploadProgress, to, &C::firmwareUploadProgress);
    pass(&E::suggestDeviceRestart, to, &C::suggestDeviceRestart);
    pass(&E::setpointChanged, to, &C::setpointChanged);
    pass(&E::busy, to, &C::busy);
    pass(&E::setUnsavedState, to, &C::setUnsavedState);
    pass(&E::controlModeChanged, to, &C::controlModeChanged);
    pass(&E::disableAnswered, to, &C::disableAnswered);
    pass(&E::disableFinished, to, &C::disableFinished);
    pass(&E::enableStatePolled, to, &C::enableStatePolled);
    pass(&E::message, to, &C::message);
    pass(&E::statePolled, to, &C::statePolled);
    pass(&E::driveParametersChanged, to, &C::driveParametersChanged);
    pass(&E::captureStateChanged, to, &C::captureStateChanged);
    pass(&E::scanProgress, to, &C::scanProgress);
    pass(&E::savedToFlash, to, &C::savedToFlash);
    pass(&E::settingsFileSaved, to, &C::settingsFileSaved);
}

Connection::Connection(QObject *parent) : QThread(parent), d(std::make_unique<Private>())
{
    qRegisterMetaType<Parameters>("Parameters");
    qRegisterMetaType<QList<CaptureData>>("QList<CaptureData>");
    qRegisterMetaType<QList<NodeType>>("QList<NodeType>");
    qRegisterMetaType<DriveState>("DriveState");
    qRegisterMetaType<CaptureState>("CaptureState");
    qRegisterMetaType<DisableOutcome>("DisableOutcome");
    qRegisterMetaType<Message>("Message");
    d->data.wanted.parameters = d->data.drive = driveParameterCatalogue();
    d->data.wanted.capture.channels = scopeChannels();
    d->passEventsOn(*this);
    start();
}

Connection::~Connection()
{
    qCDebug(sessionLog, "destroy conn");
    d->tasks.close();
    if (!wait(5000)) {
        qCDebug(sessionLog, "terminating thread");
        setTerminationEnabled(true);
        terminate();
        wait();
    }
    // wait() has ordered the worker's last words before what follows, but out of the thread sanitizer's sight.
    d->data.workerEnded.load();
}

void Connection::run()
{
    d->worker.run();
    d->data.workerEnded = true;
}

// --- Asking for work ----------------------------------------------------------------------------------------------

void Connection::queue(Task task, const std::function<void()> &store)
{
    QueuedTask entry;
    entry.task = task;
    bool stimulusSwitchedOff = false;
    {
        std::lock_guard<std::mutex> lock(d->data.mutex);
        if (store)
            store();
        entry.request = d->data.wanted.requestOf(task);
        if (task == TaskApplyEnableState) {
            d->data.wanted.enable.force = false; // used once
            // Nor may the next enable set going what was running before the stop, or what of it waits in the drive.
            stimulusSwitchedOff = entry.isDisable() && d->data.stimulus.isActive();
            if (stimulusSwitchedOff)
                d->data.stimulus.stop();
        }
    }
    d->tasks.push(std::move(entry));
    if (stimulusSwitchedOff)
        queue(TaskStopStimulus);
}

void Connection::command(Task task, bool waitForLoop)
{
    Q_UNUSED(waitForLoop)
    queue(task);
}

void Connection::connectDevice(const QString &portName, int nodeAddress)
{
    queue(TaskConnect, [&] { d->data.wanted.connect = {portName, nodeAddress}; });
}

void Connection::getListOfBusNodes(const QString &portName)
{
    queue(TaskScanBus, [&] { d->data.wanted.connect.portName = portName; });
}

void Connection::getParams()
{
    queue(TaskGetParams);
}

void Connection::setParams(const Parameters &list)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.parameters = list;
    // Nobody else knows that the drive has gone: the set may come from one that was connected.
    if (!d->data.connected)
        clearDeviceType(d->data.wanted.parameters);
    ++d->data.parameterHandOvers;
}

void Connection::emitParameters()
{
    emit parametersRetreived(d->data.parameters(), true);
}

void Connection::checkErrors()
{
    queue(TaskCheckErrors);
}

void Connection::clearDriveFaults()
{
    queue(TaskClearFaults);
}

void Connection::setSettingsFileName(const QString &fileName)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.settingsFileName = fileName;
}

void Connection::setFirmwareFileName(const QString &fileName, bool resetToFactory)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.flash = {fileName, resetToFactory};
}

void Connection::setDriveEnableStatus(bool enable)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.enable.enable = enable;
}

void Connection::setDriveForceEnableStatus(bool force)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.enable.force = force;
}

void Connection::setTargetSetpoint(int setpoint)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.setpoint.setpoint = setpoint;
}

void Connection::setStimulus(double target1, double delay1, double target2, double delay2, bool enabled)
{
    bool switchedOff = false;
    {
        std::lock_guard<std::mutex> lock(d->data.mutex);
        switchedOff = d->data.stimulus.set(target1, delay1, target2, delay2, enabled);
    }
    if (switchedOff)
        queue(TaskStopStimulus);
}

void Connection::setupCapture(double sampleRateHz, int triggerIndex, const QList<bool> &selected)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    ScopeRequest &capture = d->data.wanted.capture;
    capture.sampleRate = sampleRateHz;
    capture.triggerCode = scopeTriggerCode(triggerIndex);
    capture.enabledCount = selectScopeChannels(capture.channels, selected);
}

void Connection::setWatchedParameter(int address)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.watchedParameter = address;
}

void Connection::setDebugValuesShown(bool shown)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.debugValuesShown = shown;
}

void Connection::setDisableTarget(const QString &portName, int nodeAddress)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.targetPort = portName;
    d->data.targetNode = nodeAddress;
}

// --- Asking about the drive ---------------------------------------------------------------------------------------

bool Connection::isConnected() const
{
    return d->data.connected;
}

bool Connection::valuesAreComplete() const
{
    return d->data.valuesComplete;
}

bool Connection::isInFirmwareUpgradeMode() const
{
    return d->data.connected && d->data.firmwareUpgradeMode;
}

int Connection::deviceType() const
{
    return d->data.deviceType;
}

QString Connection::deviceModelName(int typeId, bool withMakerPrefix)
{
    return ::deviceModelName(typeId, withMakerPrefix);
}

bool Connection::isTorva() const
{
    return isTorvaModel(deviceType());
}

bool Connection::isKeta() const
{
    return isKetaModel(deviceType());
}

bool Connection::isKetaPro() const
{
    return isKetaProModel(deviceType());
}

bool Connection::deviceHasCapability(int capability) const
{
    return modelHasCapability(deviceType(), static_cast<DeviceCapability>(capability));
}

double Connection::getActiveParamValue(const QString &name) const
{
    const bool ofTheDrive = d->data.connected && d->data.driveWasRead;
    return (ofTheDrive ? driveParameters() : d->data.parameters()).getParam(name).value;
}

Parameters Connection::driveParameters() const
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    return d->data.drive;
}

LineMeter Connection::lineMeter() const
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    return d->data.lineMeter;
}

int Connection::positionFeedback() const
{
    return d->data.positionFeedback;
}

double Connection::maxScopeSampleRate() const
{
    return d->data.baseFrequency;
}

double Connection::getStimulus()
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    return d->data.stimulus.next(streamRate);
}

void Connection::setPauseScale(double scale)
{
    d->data.pauseScale = scale;
}

void Connection::setReplyTimeout(int milliseconds)
{
    d->data.replyTimeoutMs = milliseconds;
}

int Connection::generateDividerValue(int resolution, int speed)
{
    return dividerValue(resolution, speed);
}
