// The side of the session that the user interface calls: setters, queueing, answers from what is known.
#include "connection.h"

#include "catalogue.h"
#include "dividerrule.h"
#include "scopechannels.h"
#include "sessiondata.h"
#include "sessionworker.h"
#include "streamplan.h"

struct Connection::Private
{
    explicit Private(Connection &session) : worker(session, data, tasks) {}

    SessionData data;
    TaskQueue tasks;
    SessionWorker worker; ///< only `run` is called, on the session's thread
};

Connection::Connection(QObject *parent) : QThread(parent), d(std::make_unique<Private>(*this))
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

void Connection::queue(int task, const std::function<void(TaskRequest &)> &store)
{
    QueuedTask entry;
    entry.task = static_cast<Task>(task);
    bool stimulusSwitchedOff = false;
    {
        std::lock_guard<std::mutex> lock(d->data.mutex);
        TaskRequest &wanted = d->data.wanted;
        if (store)
            store(wanted);
        entry.request = wanted;
        if (task == TaskApplyEnableState) {
            // The force-enable request is used once, and never by a disable.
            entry.request.forceEnable = wanted.enable && wanted.forceEnable;
            wanted.forceEnable = false;
            // Nor may the next enable set going what was running before the stop, or what of it waits in the drive.
            stimulusSwitchedOff = !wanted.enable && d->data.stimulus.isActive();
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
    queue(TaskConnect, [&](TaskRequest &wanted) {
        wanted.portName = portName;
        wanted.nodeAddress = nodeAddress;
    });
}

void Connection::getListOfBusNodes(const QString &portName)
{
    queue(TaskScanBus, [&](TaskRequest &wanted) { wanted.portName = portName; });
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
    d->data.wanted.firmwareFileName = fileName;
    d->data.wanted.resetToFactory = resetToFactory;
}

void Connection::setDriveEnableStatus(bool enable)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.enable = enable;
}

void Connection::setDriveForceEnableStatus(bool force)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.forceEnable = force;
}

void Connection::setTargetSetpoint(int setpoint)
{
    std::lock_guard<std::mutex> lock(d->data.mutex);
    d->data.wanted.setpoint = setpoint;
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
    CaptureRequest &capture = d->data.wanted.capture;
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
