#include "statusmonitor.h"

#include "statustexts.h"

bool StatusMonitor::poll()
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
    state.firmwareUpgradeMode = m_data.firmwareUpgradeMode;
    const StatusPoll plan(state);
    if (!m_drive.askAgain(DriveAccess::Read, [&] { return askPoll(plan, state); }) || !m_line.isClean())
        return false;
    state.sequence = m_state.sequence + 1; // a stop served while asking again may have polled, too
    state.when = std::chrono::steady_clock::now();
    state.line = m_line.meter();
    m_state = state;
    announcePoll();
    return true;
}

bool StatusMonitor::askPoll(const StatusPoll &plan, DriveState &state)
{
    QVector<qint32> values;
    for (const QVector<QueueItem> &items : plan.exchanges()) {
        if (!askExchange(items, values))
            return false;
    }
    return plan.store(values, state);
}

/// Appends what the drive returned, without what the set-up items did: that belongs to whoever used the selector
/// before.
bool StatusMonitor::askExchange(const QVector<QueueItem> &items, QVector<qint32> &values)
{
    ZbStatus status = 0;
    for (const QueueItem &item : items)
        status |= m_line.append(item);
    status |= m_line.execute();
    for (int i = 0; i < items.size(); ++i) {
        long value = 0;
        status |= m_line.fetch(&value);
        if (i >= StatusPoll::setUpItemCount)
            values << static_cast<qint32>(value);
    }
    status |= m_line.finishReply();
    return status == ZB_OK;
}

void StatusMonitor::announcePanels()
{
    bool inactivityReason = false;
    const QString none = SessionText::tr("Not available in firmware upgrade mode");
    const bool running = !m_state.firmwareUpgradeMode;
    // In this order: the fault panel ends with the legend for the marks of all three.
    const QString inputs = running ? getDigitalInsString(m_state, inactivityReason) : none;
    const QString status = running ? getStatusRegString(m_state, inactivityReason) : none;
    const QString faults = getFaultRegString(m_state, inactivityReason);
    emit m_out.physInputsUpdated(inputs);
    emit m_out.statusRegisterUpdated(status);
    emit m_out.faultRegisterUpdated(faults);
}

void StatusMonitor::announcePoll()
{
    if (!m_state.firmwareUpgradeMode)
        m_data.positionFeedback = m_state.position;
    announcePanels();
    if (m_state.firmwareUpgradeMode) {
        emit m_out.statePolled(m_state);
        return;
    }
    emit m_out.enableStatePolled(m_state.isEnabled());
    emit m_out.statePolled(m_state);

    if (m_state.isPermanentStop() && !m_announced.permanentStop)
        emit m_out.suggestDeviceRestart();
    m_announced.permanentStop = m_state.isPermanentStop();
    if (m_announced.setpoint != m_state.setpoint)
        emit m_out.setpointChanged(m_state.setpoint);
    m_announced.setpoint = m_state.setpoint;
}

void StatusMonitor::reset()
{
    const quint32 sequence = m_state.sequence;
    m_state = {};
    m_state.sequence = sequence;
    m_announced = {};
    m_data.positionFeedback = 0;
}
