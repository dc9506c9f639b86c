#include "sessionworker.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::chrono::milliseconds pollPeriod(330);
constexpr std::chrono::milliseconds shortestPollPeriod(10); // however much a test shortens it

template <typename Operation> void call(Operation &operation, void (Operation::*handler)(), const TaskRequest &)
{
    (operation.*handler)();
}

template <typename Operation, typename Request>
void call(Operation &operation, void (Operation::*handler)(const Request &), const TaskRequest &request)
{
    if (const auto *own = std::get_if<Request>(&request))
        (operation.*handler)(*own);
}

/// For the table: the worker's own function, or that of one of its operations.
template <auto handler> void on(SessionWorker &worker, const TaskRequest &request)
{
    call(worker, handler, request);
}

template <auto operation, auto handler> void on(SessionWorker &worker, const TaskRequest &request)
{
    call(worker.*operation, handler, request);
}

} // namespace

struct SessionWorker::TaskRule
{
    int task;
    Handler handler;
    bool needsDrive;            ///< returns quietly, without traffic, when none is connected
    bool inFirmwareUpgradeMode; ///< has a meaning for a bootloader, which neither moves nor has settings
};

const SessionWorker::TaskRule *SessionWorker::ruleOf(int task)
{
    using T = SessionTasks;
    using W = SessionWorker;
    using C = DriveCommands;
    static const TaskRule rules[] = {
        {T::TaskNone, on<&W::doNothing>, false, true},
        {T::TaskConnect, on<&W::connectDrive>, false, true},
        {T::TaskDisconnect, on<&W::disconnectDrive>, false, true},
        {T::TaskSetParams, on<&W::m_transfer, &ParameterTransfer::setParams>, true, false},
        {T::TaskGetParams, on<&W::m_transfer, &ParameterTransfer::getParams>, true, true},
        {T::TaskUpdateStatus, on<&W::updateStatus>, true, true},
        {T::TaskInitScope, on<&W::m_capture, &CaptureRun::startCapture>, true, false},
        {T::TaskDownloadScope, on<&W::m_capture, &CaptureRun::downloadCapture>, true, false},
        {T::TaskQuit, on<&W::quit>, false, true},
        {T::TaskCheckErrors, on<&W::checkErrors>, true, true},
        {T::TaskClearFaults, on<&W::m_commands, &C::clearFaults>, true, true},
        {T::TaskApplyEnableState, on<&W::m_commands, &C::applyEnableState>, true, false},
        {T::TaskStimulus, on<&W::m_stream, &StimulusStream::streamStimulus>, true, false},
        {13, on<&W::doNothing>, false, true}, // a code that was never given a name
        {T::TaskSaveToFlash, on<&W::m_commands, &C::saveToFlash>, true, false},
        {T::TaskStartHoming, on<&W::m_commands, &C::startHoming>, true, false},
        {T::TaskAbortHoming, on<&W::m_commands, &C::abortHoming>, true, false},
        {T::TaskSaveSettingsFile, on<&W::saveSettingsFile>, false, true},
        {T::TaskLoadSettingsFile, on<&W::loadSettingsFile>, false, true},
        {T::TaskScanBus, on<&W::scanBus>, false, true},
        {T::TaskFlashFirmware, on<&W::m_upgrade, &FirmwareUpgrade::flashFirmware>, false, true},
        {T::TaskRestartDrive, on<&W::m_commands, &C::restartDrive>, true, true},
        {T::TaskStopStimulus, on<&W::m_commands, &C::stopStimulus>, true, false},
        {T::TaskSetAbsoluteSetpoint, on<&W::m_commands, &C::setAbsoluteSetpoint>, true, false},
        {T::TaskSetIncrementalSetpoint, on<&W::m_commands, &C::setIncrementalSetpoint>, true, false},
        {T::TaskRestartToDFU, on<&W::m_commands, &C::restartToDFU>, true, false},
        {T::TaskMeasure, on<&W::m_commands, &C::measure>, true, false},
        {T::TaskSetZero, on<&W::setZero>, true, false},
        {T::TaskCallOffCapture, on<&W::m_capture, &CaptureRun::callOffCapture>, true, false},
    };
    const auto found =
        std::find_if(std::begin(rules), std::end(rules), [task](const TaskRule &rule) { return rule.task == task; });
    return found == std::end(rules) ? nullptr : found;
}

SessionWorker::SessionWorker(SessionData &data, TaskQueue &queue, SessionEvents &out)
    : m_data(data), m_queue(queue), m_out(out), m_context(data, queue, out), m_monitor(m_context),
      m_stops(m_context, [this] { return poll(); }), m_stream(m_context), m_transfer(m_context),
      m_capture(m_context, [this] { return poll(); }), m_commands(m_context, m_stops, m_stream), m_upgrade(m_context)
{
}

void SessionWorker::run()
{
    if (sessionLog().isDebugEnabled())
        zbSetDebugOutput(2, stderr);
    while (!m_quit) {
        QueuedTask entry;
        if (m_queue.take(entry))
            perform(entry);
        if (m_quit)
            break;
        const auto period = std::chrono::duration_cast<TaskQueue::Milliseconds>(m_data.scaled(pollPeriod));
        m_queue.waitForTask(std::max(period, shortestPollPeriod));
        connectionUpdate();
    }
    m_context.line.close();
}

void SessionWorker::perform(const QueuedTask &entry)
{
    const TaskRule *rule = ruleOf(entry.task);
    if (!rule) {
        m_context.errors.tell(MessageKind::Note, SessionText::tr("Invalid comm task"));
        return;
    }
    if (entry.isDisable() && !m_data.connected) {
        m_stops.disableWithoutConnection();
    } else {
        if ((rule->needsDrive && !m_data.connected) || (m_data.firmwareUpgradeMode && !rule->inFirmwareUpgradeMode))
            return;
        m_context.line.startTask();
        rule->handler(*this, entry.request);
        m_context.errors.finishTask();
    }
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.lineMeter = m_context.line.meter();
}

void SessionWorker::connectionUpdate()
{
    if (!m_data.connected || !m_queue.isEmpty())
        return;
    qCDebug(sessionLog, "----------------------------tick------------------------");
    if (m_data.stimulusIsActive())
        m_queue.push(SessionTasks::TaskStimulus);
    m_queue.push(SessionTasks::TaskUpdateStatus);
}

bool SessionWorker::poll()
{
    if (!m_monitor.poll())
        return false;
    if (!m_data.firmwareUpgradeMode) {
        m_stops.lookForDisable(m_monitor.state());
        m_capture.lookForEnd(m_monitor.state());
    }
    return true;
}

void SessionWorker::checkErrors()
{
    m_context.errors.checkZBErrors();
}

void SessionWorker::setZero()
{
    m_commands.setZero();
    connectionUpdate();
}

void SessionWorker::quit()
{
    qCDebug(sessionLog) << "quit comm" << m_context.line.handle();
    m_quit = true;
}
