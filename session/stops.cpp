// What stops a drive, and how sure it is that it did: also without a connection, and where enabling went wrong.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"

#include <thread>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int stopAttempts = 3;
/// How long a drive may go on showing that it is enabled after it has acknowledged a disable.
constexpr std::chrono::milliseconds takesEffectWithin(1000);
constexpr std::chrono::milliseconds lookAgainAfter(20);

} // namespace

bool SessionWorker::serveWaitingDisable()
{
    // Without a connection it stays in the queue, for disableWithoutConnection.
    if (!isConnected())
        return false;
    QueuedTask entry;
    if (!m_queue.takeDisable(entry) || inFirmwareUpgradeMode())
        return false;
    disableDrive();
    return true;
}

/// One request lost on the way must not leave the machine moving. A failure that was mended is forgotten; what went
/// wrong when no answer came stays in the status, to be reported.
bool SessionWorker::sendStop(int address, long value)
{
    const BusLine::Mark before = m_line.mark();
    bool acknowledged = false;
    m_line.beginStop();
    for (int attempt = 0; attempt < stopAttempts && !acknowledged; ++attempt)
        acknowledged = writeAndFetch(address, value);
    m_line.endStop();
    if (acknowledged)
        m_line.forgive(before);
    return acknowledged;
}

void SessionWorker::disableDrive()
{
    const int errorsBefore = m_line.meter().errors;
    const bool acknowledged = sendStop(reg::SoftEnable, 0);
    m_disableSent = Clock::now();
    m_stopIsUnconfirmed = !acknowledged;
    announceDisable(acknowledged);
    // The end of this connection has been told already, which would leave this unsaid.
    if (!acknowledged && m_communicationReported)
        tell(MessageKind::UnconfirmedStop,
             Connection::tr("The drive did not confirm the disable: it may still be powered. Esc tries again; the sure "
                            "way is the machine's own stop."));
    // A reply that was lost leaves a doubt about the one that came: what the drive shows ends it.
    if (acknowledged && m_line.meter().errors != errorsBefore)
        poll();
}

/// A drive that restarts is deaf for a while: it is told again until it answers or the pause is over.
void SessionWorker::disableRestartingDrive(Clock::time_point deadline)
{
    QueuedTask entry;
    if (!m_queue.takeDisable(entry) || !isConnected() || inFirmwareUpgradeMode())
        return;
    const bool restarts = statusIsClean(); // otherwise the restart itself went wrong, which is still to be reported
    bool acknowledged = sendStop(reg::SoftEnable, 0);
    while (!acknowledged && restarts && !m_queue.isClosing() && Clock::now() < deadline) {
        // A port that has gone fails at once; do not spin on it.
        std::this_thread::sleep_for(lookAgainAfter);
        acknowledged = sendStop(reg::SoftEnable, 0);
    }
    if (acknowledged && restarts) { // it was deaf for a while, as it had to be
        m_line.startTask();
        m_line.clearStatus();
    }
    m_disableSent = Clock::now();
    m_stopIsUnconfirmed = !acknowledged;
    announceDisable(acknowledged);
}

void SessionWorker::announceDisable(bool acknowledged)
{
    emit m_session.disableAnswered(acknowledged);
    // Whoever pressed it wants to see soon whether it took effect.
    if (!m_queue.contains(Connection::TaskUpdateStatus))
        m_queue.push(Connection::TaskUpdateStatus);
}

void SessionWorker::announceDisableOutcome(DisableOutcome outcome)
{
    m_disableSent.reset();
    emit m_session.disableFinished(outcome);
}

void SessionWorker::lookForDisable()
{
    m_mayBeEnabled = m_state.isEnabled();
    if (!m_mayBeEnabled)
        m_stopIsUnconfirmed = false;
    if (!m_disableSent)
        return;
    if (!m_mayBeEnabled)
        announceDisableOutcome(DisableOutcome::Disabled);
    else if (Clock::now() - *m_disableSent > takesEffectWithin)
        announceDisableOutcome(DisableOutcome::StillEnabled);
}

bool SessionWorker::writeBothDisables()
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
DisableOutcome SessionWorker::disableAndReadBack()
{
    DisableOutcome outcome = DisableOutcome::NoAnswer;
    m_line.beginStop();
    for (int round = 0; round < 2 && outcome != DisableOutcome::Disabled; ++round) {
        bool acknowledged = false;
        for (int attempt = 0; attempt < stopAttempts && !acknowledged; ++attempt)
            acknowledged = writeBothDisables();
        outcome = readBackEnable();
        if (outcome == DisableOutcome::NoAnswer)
            break;
    }
    m_line.endStop();
    return outcome;
}

DisableOutcome SessionWorker::readBackEnable()
{
    const auto deadline = Clock::now() + takesEffectWithin;
    for (;;) {
        long status = 0;
        long softEnable = 0;
        if (readParameters(reg::StatusRegister, status, reg::SoftEnable, softEnable) != ZB_OK)
            return DisableOutcome::NoAnswer;
        const bool commanded = (softEnable & 1) != 0;
        if (!commanded && (status & statusBitEnabled) == 0)
            return DisableOutcome::Disabled;
        if (commanded || Clock::now() > deadline || m_queue.isClosing())
            return DisableOutcome::StillEnabled;
        std::this_thread::sleep_for(lookAgainAfter);
    }
}

/// A drive whose enabling was not acknowledged may be enabled all the same, which nobody would know.
void SessionWorker::undoEnable()
{
    const DisableOutcome outcome = disableAndReadBack();
    if (outcome == DisableOutcome::Disabled) {
        m_line.startTask();
        m_line.clearStatus(); // told here; the line works
        m_mayBeEnabled = false;
    } else {
        m_stopIsUnconfirmed = true;
        m_enableIsToBeUndone = outcome == DisableOutcome::NoAnswer;
    }
    announceDisableOutcome(outcome);
    tell(outcome == DisableOutcome::Disabled ? MessageKind::Undone : MessageKind::UnconfirmedStop,
         undoneEnableText(outcome));
    m_queue.push(Connection::TaskUpdateStatus);
}

/// The session's own motion, and an enable that it could not take back, are not left to a connection that has gone:
/// the port is opened once more. Nothing else disables a drive that the user has not told to.
void SessionWorker::stopWhatWasLeft()
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
    if (!m_streamWasLost || m_queue.contains(Connection::TaskApplyEnableState) ||
        !m_line.open(port, m_data.replyTimeoutMs))
        return;
    m_streamWasLost = !sendStop(reg::SystemCommand, reg::CommandStopStream);
    m_line.close();
    m_line.clearStatus();
}

void SessionWorker::disableWithoutConnection()
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
        m_asksAgain = true;
        m_line.setNodeAddress(node);
        outcome = disableAndReadBack();
        if (m_streamWasLost && outcome != DisableOutcome::NoAnswer)
            m_streamWasLost = !sendStop(reg::SystemCommand, reg::CommandStopStream);
    }
    const QString trouble = outcome == DisableOutcome::NoPort ? openErrorText(port, m_line.openError()) : QString();
    m_line.close();
    m_line.clearStatus();
    emit m_session.disableAnswered(outcome == DisableOutcome::Disabled || outcome == DisableOutcome::StillEnabled);
    announceDisableOutcome(outcome);
    tell(outcome == DisableOutcome::Disabled ? MessageKind::Note : MessageKind::UnconfirmedStop,
         disabledWithoutConnectionText(outcome, port, node) + trouble);
}
