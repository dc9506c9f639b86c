// The periodic poll: one exchange, three panels, and what follows from the values.
#include "sessionworker.h"
#include "statustexts.h"

void SessionWorker::updateStatus(const TaskRequest &)
{
    poll();
}

bool SessionWorker::poll()
{
    DriveState state = m_state;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        // As the drive has them: what is merely wanted changes nothing about how fast it turns.
        takeWordingSettings(m_data.drive, state);
        state.watchedAddress = m_data.watchedParameter;
        state.debugValuesShown = m_data.debugValuesShown;
    }
    state.deviceType = m_data.deviceType;
    state.firmwareUpgradeMode = inFirmwareUpgradeMode();
    const StatusPoll plan(state);
    if (!askAgain([&] { return askPoll(plan, state); }) || !statusIsClean())
        return false;
    state.sequence = m_state.sequence + 1; // a stop served while asking again may have polled, too
    state.when = std::chrono::steady_clock::now();
    state.line = m_line.meter();
    m_state = state;
    announcePoll();
    return true;
}

bool SessionWorker::askPoll(const StatusPoll &plan, DriveState &state)
{
    const QVector<QueueItem> items = plan.items();
    ZbStatus status = 0;
    for (const QueueItem &item : items)
        status |= m_line.append(item);
    status |= m_line.execute();
    QVector<qint32> values;
    for (int i = 0; i < items.size(); ++i) {
        long value = 0;
        status |= m_line.fetch(&value);
        values << static_cast<qint32>(value);
    }
    status |= m_line.finishReply();
    return status == ZB_OK && plan.store(values, state);
}

void SessionWorker::announcePanels()
{
    bool inactivityReason = false;
    const QString none = Connection::tr("Not available in firmware upgrade mode");
    const bool running = !m_state.firmwareUpgradeMode;
    // In this order: the fault panel ends with the legend for the marks of all three.
    const QString inputs = running ? getDigitalInsString(m_state, inactivityReason) : none;
    const QString status = running ? getStatusRegString(m_state, inactivityReason) : none;
    const QString faults = getFaultRegString(m_state, inactivityReason);
    emit m_session.physInputsUpdated(inputs);
    emit m_session.statusRegisterUpdated(status);
    emit m_session.faultRegisterUpdated(faults);
}

void SessionWorker::announcePoll()
{
    if (!m_state.firmwareUpgradeMode)
        m_data.positionFeedback = m_state.position;
    announcePanels();
    if (m_state.firmwareUpgradeMode) {
        emit m_session.statePolled(m_state);
        return;
    }
    emit m_session.enableStatePolled(m_state.isEnabled());
    emit m_session.statePolled(m_state);
    lookForDisable();

    if (m_state.isPermanentStop() && !m_announced.permanentStop)
        emit m_session.suggestDeviceRestart();
    m_announced.permanentStop = m_state.isPermanentStop();
    if (m_announced.setpoint != m_state.setpoint)
        emit m_session.setpointChanged(m_state.setpoint);
    m_announced.setpoint = m_state.setpoint;

    qCDebug(sessionLog) << "Pend scope " << m_capture.pending << m_state.scopeState;
    if (m_capture.pending && m_state.scopeState == 0) {
        m_capture.pending = false;
        announceCapture(CaptureState::Downloading);
        m_queue.push(Connection::TaskDownloadScope);
    }
}
