#include "stopservice.h"

#include "errortexts.h"

#include <thread>
#include <utility>

namespace {

/// How long a drive may go on showing that it is enabled after it has acknowledged a disable.
constexpr std::chrono::milliseconds takesEffectWithin(1000);
constexpr std::chrono::milliseconds lookAgainAfter(20);

} // namespace

StopService::StopService(OperationContext &context, std::function<bool()> poll)
    : Operation(context), m_poll(std::move(poll))
{
    m_pauses.setStops(
        {[this] { return serveWaitingDisable(); }, [this](Clock::time_point end) { disableRestartingDrive(end); }});
}

void StopService::setTarget(const QString &portName, int nodeAddress)
{
    m_streamWasLost = false;
    m_knowsDrive = true;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.targetPort = portName;
    m_data.targetNode = nodeAddress;
}

void StopService::suggestTarget(const QString &portName, int nodeAddress)
{
    if (m_knowsDrive)
        return;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.targetPort = portName;
    m_data.targetNode = nodeAddress;
}

bool StopService::serveWaitingDisable()
{
    // Without a connection it stays in the queue, for disableWithoutConnection.
    if (!m_data.connected)
        return false;
    QueuedTask entry;
    if (!m_queue.takeDisable(entry) || m_data.firmwareUpgradeMode)
        return false;
    disableDrive();
    return true;
}

void StopService::disableDrive()
{
    ++m_servedDisables;
    const int errorsBefore = m_line.meter().errors;
    const bool acknowledged = m_drive.sendStop(reg::SoftEnable, 0);
    m_disableSent = Clock::now();
    m_atStake.stopIsUnconfirmed = !acknowledged;
    announceDisable(acknowledged);
    // The end of this connection has been told already, which would leave this unsaid.
    if (!acknowledged && m_errors.lineWasReported())
        m_errors.tell(
            MessageKind::UnconfirmedStop,
            SessionText::tr("The drive did not confirm the disable: it may still be powered. Esc tries again; the sure "
                            "way is the machine's own stop."));
    // A reply that was lost leaves a doubt about the one that came: what the drive shows ends it.
    if (acknowledged && m_line.meter().errors != errorsBefore)
        m_poll();
}

/// A drive that restarts is deaf for a while: it is told again until it answers or the pause is over.
void StopService::disableRestartingDrive(Clock::time_point deadline)
{
    QueuedTask entry;
    if (!m_queue.takeDisable(entry) || !m_data.connected || m_data.firmwareUpgradeMode)
        return;
    ++m_servedDisables;
    const bool restarts = m_line.isClean(); // otherwise the restart itself went wrong, which is still to be reported
    bool acknowledged = m_drive.sendStop(reg::SoftEnable, 0);
    while (!acknowledged && restarts && !m_queue.isClosing() && Clock::now() < deadline) {
        // A port that has gone fails at once; do not spin on it.
        std::this_thread::sleep_for(lookAgainAfter);
        acknowledged = m_drive.sendStop(reg::SoftEnable, 0);
    }
    if (acknowledged && restarts) { // it was deaf for a while, as it had to be
        m_line.startTask();
        m_line.clearStatus();
    }
    m_disableSent = Clock::now();
    m_atStake.stopIsUnconfirmed = !acknowledged;
    announceDisable(acknowledged);
}

void StopService::announceDisable(bool acknowledged)
{
    emit m_out.disableAnswered(acknowledged);
    // Whoever pressed it wants to see soon whether it took effect.
    if (!m_queue.contains(SessionTasks::TaskUpdateStatus))
        m_queue.push(SessionTasks::TaskUpdateStatus);
}

void StopService::announceDisableOutcome(DisableOutcome outcome)
{
    m_disableSent.reset();
    emit m_out.disableFinished(outcome);
}

void StopService::lookForDisable(const DriveState &state)
{
    m_atStake.mayBeEnabled = state.isEnabled();
    if (!m_atStake.mayBeEnabled)
        m_atStake.stopIsUnconfirmed = false;
    if (!m_disableSent)
        return;
    if (!m_atStake.mayBeEnabled)
        announceDisableOutcome(DisableOutcome::Disabled);
    else if (Clock::now() - *m_disableSent > takesEffectWithin)
        announceDisableOutcome(DisableOutcome::StillEnabled);
}

bool StopService::writeBothDisables()
{
    m_line.appendWrite(reg::SoftEnable, 0);
    m_line.appendWrite(reg::ForceEnable, 0);
    ZbStatus status = m_line.execute();
    status |= m_line.fetchWrite();
    status |= m_line.fetchWrite();
    status |= m_line.finishReply();
    return status == ZB_OK;
}

/// What the drive shows is what counts: an acknowledgement may have been the late answer to something else.
DisableOutcome StopService::disableAndReadBack()
{
    DisableOutcome outcome = DisableOutcome::NoAnswer;
    m_line.beginStop();
    for (int round = 0; round < 2 && outcome != DisableOutcome::Disabled; ++round) {
        bool acknowledged = false;
        for (int attempt = 0; attempt < DriveAccess::stopAttempts && !acknowledged; ++attempt)
            acknowledged = writeBothDisables();
        outcome = readBackEnable();
        if (outcome == DisableOutcome::NoAnswer)
            break;
    }
    m_line.endStop();
    return outcome;
}

DisableOutcome StopService::readBackEnable()
{
    const auto deadline = Clock::now() + takesEffectWithin;
    for (;;) {
        long status = 0;
        long softEnable = 0;
        if (m_drive.readParameters(reg::StatusRegister, status, reg::SoftEnable, softEnable) != ZB_OK)
            return DisableOutcome::NoAnswer;
        const bool commanded = (softEnable & 1) != 0;
        if (!commanded && (status & statusBitEnabled) == 0)
            return DisableOutcome::Disabled;
        if (commanded || Clock::now() > deadline || m_queue.isClosing())
            return DisableOutcome::StillEnabled;
        std::this_thread::sleep_for(lookAgainAfter);
    }
}

void StopService::beginEnable()
{
    m_atStake.stopIsUnconfirmed = false;
    m_atStake.mayBeEnabled = true;
    m_disableSent.reset();
}

void StopService::endConnection()
{
    if (m_disableSent)
        announceDisableOutcome(DisableOutcome::NoAnswer);
}

void StopService::undoEnable()
{
    const DisableOutcome outcome = disableAndReadBack();
    if (outcome == DisableOutcome::Disabled) {
        m_line.startTask();
        m_line.clearStatus(); // told here; the line works
        // 2534 := 0 is refused by a drive that was not forced, which is nobody's news and not the next command's
        // answer.
        m_drive.writeSetting(reg::ErrorBits, 0);
        m_atStake.mayBeEnabled = false;
    } else {
        m_atStake.stopIsUnconfirmed = true;
        m_enableIsToBeUndone = outcome == DisableOutcome::NoAnswer;
    }
    announceDisableOutcome(outcome);
    m_errors.tell(outcome == DisableOutcome::Disabled ? MessageKind::Undone : MessageKind::UnconfirmedStop,
                  undoneEnableText(outcome));
    m_queue.push(SessionTasks::TaskUpdateStatus);
}

void StopService::stopWhatWasLeft()
{
    if (std::exchange(m_enableIsToBeUndone, false)) {
        disableWithoutConnection();
        return;
    }
    QString port;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        port = m_data.targetPort;
    }
    // A disable that waits comes first, and does this, too.
    if (!m_streamWasLost || m_queue.contains(SessionTasks::TaskApplyEnableState) ||
        !m_line.open(port, m_data.replyTimeoutMs))
        return;
    m_streamWasLost = !m_drive.sendStop(reg::SystemCommand, reg::CommandStopStream);
    m_line.close();
    m_line.clearStatus();
}

void StopService::disableWithoutConnection()
{
    QString port;
    int node = 0;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        port = m_data.targetPort;
        node = m_data.targetNode;
    }
    if (port.isEmpty())
        return; // nothing was ever connected
    qCDebug(sessionLog) << "disabling without a connection" << port << node;
    DisableOutcome outcome = DisableOutcome::NoPort;
    if (m_line.open(port, m_data.replyTimeoutMs)) {
        m_drive.setAsksAgain(true);
        m_line.setNodeAddress(node);
        outcome = disableAndReadBack();
        if (m_streamWasLost && outcome != DisableOutcome::NoAnswer)
            m_streamWasLost = !m_drive.sendStop(reg::SystemCommand, reg::CommandStopStream);
    }
    const QString trouble = outcome == DisableOutcome::NoPort ? openErrorText(port, m_line.openError()) : QString();
    m_line.close();
    m_line.clearStatus();
    emit m_out.disableAnswered(outcome == DisableOutcome::Disabled || outcome == DisableOutcome::StillEnabled);
    announceDisableOutcome(outcome);
    m_errors.tell(outcome == DisableOutcome::Disabled ? MessageKind::Note : MessageKind::UnconfirmedStop,
                  disabledWithoutConnectionText(outcome, port, node) + trouble);
}
