// The periodic poll: one exchange, three panels, and what follows from the values.
#include "sessionworker.h"
#include "statustexts.h"

void SessionWorker::updateStatus(const TaskRequest &)
{
    DriveState state = m_state;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        takeWordingSettings(m_data.wanted.parameters, state);
        state.watchedAddress = m_data.watchedParameter;
        state.debugValuesShown = m_data.debugValuesShown;
    }
    state.deviceType = m_data.deviceType;
    state.firmwareUpgradeMode = inFirmwareUpgradeMode();

    const StatusPoll poll(state);
    const QVector<QueueItem> items = poll.items();
    for (const QueueItem &item : items)
        m_line.append(item);
    m_line.execute();
    QVector<qint32> values;
    for (int i = 0; i < items.size(); ++i) {
        long value = 0;
        m_line.fetch(&value);
        values << static_cast<qint32>(value);
    }
    m_line.finishReply();
    if (m_line.status() != ZB_OK || !poll.store(values, state))
        return;
    m_state = state;
    announcePoll();
}

void SessionWorker::announcePoll()
{
    bool inactivityReason = false;
    if (m_state.firmwareUpgradeMode) {
        const QString none = Connection::tr("Not available in firmware upgrade mode");
        emit m_session.physInputsUpdated(none);
        emit m_session.statusRegisterUpdated(none);
        emit m_session.faultRegisterUpdated(getFaultRegString(m_state, inactivityReason));
        return;
    }
    const QString inputs = getDigitalInsString(m_state, inactivityReason);
    const QString status = getStatusRegString(m_state, inactivityReason);
    const QString faults = getFaultRegString(m_state, inactivityReason);
    m_data.positionFeedback = m_state.position;
    emit m_session.physInputsUpdated(inputs);
    emit m_session.statusRegisterUpdated(status);
    emit m_session.faultRegisterUpdated(faults);
    emit m_session.enableStatePolled((m_state.statusRegister & statusBitEnabled) != 0 || (m_state.softEnable & 1) != 0);

    const bool permanentStop = (m_state.statusRegister & statusBitPermanentStop) != 0;
    if (permanentStop && !(m_polled && m_permanentStop))
        emit m_session.suggestDeviceRestart();
    m_permanentStop = permanentStop;
    m_polled = true;

    if (!m_setpointAnnounced || m_announcedSetpoint != m_state.setpoint)
        emit m_session.setpointChanged(m_state.setpoint);
    m_setpointAnnounced = true;
    m_announcedSetpoint = m_state.setpoint;

    qCDebug(sessionLog) << "Pend scope " << m_capturePending << m_state.scopeState;
    if (m_capturePending && m_state.scopeState == 0) {
        m_capturePending = false;
        emit m_session.updateCaptureButtonText(Connection::tr("Downloading.."));
        m_queue.push(Connection::TaskDownloadScope);
    }
}
