#include "sessionworker.h"

#include <algorithm>
#include <iterator>

Q_LOGGING_CATEGORY(sessionLog, "velbrin.session", QtInfoMsg)

namespace {
constexpr TaskQueue::Milliseconds pollPeriod(330);
}

struct SessionWorker::TaskRule
{
    int task;
    Handler handler;
    bool needsDrive;            ///< returns quietly, without traffic, when none is connected
    bool inFirmwareUpgradeMode; ///< has a meaning for a bootloader, which neither moves nor has settings
};

const SessionWorker::TaskRule *SessionWorker::ruleOf(int task)
{
    using W = SessionWorker;
    static const TaskRule rules[] = {
        {Connection::TaskNone, &W::doNothing, false, true},
        {Connection::TaskConnect, &W::connectDrive, false, true},
        {Connection::TaskDisconnect, &W::disconnectDrive, false, true},
        {Connection::TaskSetParams, &W::setParams, true, false},
        {Connection::TaskGetParams, &W::getParams, true, true},
        {Connection::TaskUpdateStatus, &W::updateStatus, true, true},
        {Connection::TaskInitScope, &W::startCapture, true, false},
        {Connection::TaskDownloadScope, &W::downloadCapture, true, false},
        {Connection::TaskQuit, &W::quit, false, true},
        {Connection::TaskCheckErrors, &W::checkErrors, true, true},
        {Connection::TaskClearFaults, &W::clearFaults, true, true},
        {Connection::TaskApplyEnableState, &W::applyEnableState, true, false},
        {Connection::TaskStimulus, &W::streamStimulus, true, false},
        {13, &W::doNothing, false, true},
        {Connection::TaskSaveToFlash, &W::saveToFlash, true, false},
        {Connection::TaskStartHoming, &W::startHoming, true, false},
        {Connection::TaskAbortHoming, &W::abortHoming, true, false},
        {Connection::TaskSaveSettingsFile, &W::saveSettingsFile, false, true},
        {Connection::TaskLoadSettingsFile, &W::loadSettingsFile, false, true},
        {Connection::TaskScanBus, &W::scanBus, false, true},
        {Connection::TaskFlashFirmware, &W::flashFirmware, false, true},
        {Connection::TaskRestartDrive, &W::restartDrive, true, true},
        {Connection::TaskStopStimulus, &W::stopStimulus, true, false},
        {Connection::TaskSetAbsoluteSetpoint, &W::setAbsoluteSetpoint, true, false},
        {Connection::TaskSetIncrementalSetpoint, &W::setIncrementalSetpoint, true, false},
        {Connection::TaskRestartToDFU, &W::restartToDFU, true, false},
        {Connection::TaskMeasure, &W::measure, true, false},
        {Connection::TaskSetZero, &W::setZero, true, false},
    };
    const auto found =
        std::find_if(std::begin(rules), std::end(rules), [task](const TaskRule &rule) { return rule.task == task; });
    return found == std::end(rules) ? nullptr : found;
}

SessionWorker::SessionWorker(Connection &session, SessionData &data, TaskQueue &queue)
    : m_session(session), m_data(data), m_queue(queue), m_line(queue)
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
        m_queue.waitForTask(pollPeriod);
        connectionUpdate();
    }
    m_line.close();
}

void SessionWorker::perform(const QueuedTask &entry)
{
    const TaskRule *rule = ruleOf(entry.task);
    if (!rule) {
        tell(MessageKind::Note, Connection::tr("Invalid comm task"));
        return;
    }
    if (entry.isDisable() && !isConnected()) {
        disableWithoutConnection();
    } else {
        if ((rule->needsDrive && !isConnected()) || (inFirmwareUpgradeMode() && !rule->inFirmwareUpgradeMode))
            return;
        m_line.startTask();
        (this->*rule->handler)(entry.request);
        finishTask();
    }
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.lineMeter = m_line.meter();
}

void SessionWorker::finishTask()
{
    // Error bits that are already here would be lost in the answer to a second query: the drive has cleared its own.
    if (m_errorLatch && isConnected() && m_deviceErrors == 0)
        checkZBErrors();
    reportErrors();
    m_errorsAreOld = false;
}

void SessionWorker::connectionUpdate()
{
    if (!isConnected() || !m_queue.isEmpty())
        return;
    qCDebug(sessionLog, "----------------------------tick------------------------");
    if (stimulusActive())
        m_queue.push(Connection::TaskStimulus);
    m_queue.push(Connection::TaskUpdateStatus);
}

bool SessionWorker::pause(int milliseconds, Drive drive)
{
    using Clock = std::chrono::steady_clock;
    const auto length = std::chrono::duration<double, std::milli>(milliseconds * m_data.pauseScale);
    const auto deadline = Clock::now() + std::chrono::duration_cast<Clock::duration>(length);
    for (;;) {
        switch (m_queue.pauseUntil(deadline)) {
        case TaskQueue::Wake::TimeOver:
            return true;
        case TaskQueue::Wake::Disable:
            // Without a connection it is the next task, which this pause must not hold up.
            if (!isConnected())
                return true;
            if (drive == Drive::Restarts)
                disableRestartingDrive(deadline);
            else
                serveWaitingDisable();
            break;
        case TaskQueue::Wake::Closing:
            return false;
        }
    }
}

void SessionWorker::debug() const
{
    if (!statusIsClean())
        qCDebug(sessionLog) << "status" << m_line.status();
}

void SessionWorker::quit(const TaskRequest &)
{
    qCDebug(sessionLog) << "quit comm" << m_line.handle();
    m_quit = true;
}
