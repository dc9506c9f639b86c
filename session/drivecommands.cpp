// Commands to the drive that are a write or two, and the pauses that some of them need.
#include "makerlinks.h"
#include "sessionregisters.h"
#include "sessionworker.h"

namespace {
constexpr int restartPauseMs = 3500;
constexpr int measurePauseMs = 8000;
constexpr int lowestCoreThatMeasures = 1060;
constexpr int disableAttempts = 3;
} // namespace

void SessionWorker::clearFaults(const TaskRequest &)
{
    qCDebug(sessionLog, "clearfaults");
    writeAndFetch(reg::FaultRegister, 0);
}

void SessionWorker::applyEnableState(const TaskRequest &request)
{
    if (!request.enable) {
        announceDisable(disableDrive());
        return;
    }
    // Once only: what enables a drive is never repeated.
    const bool enabled = writeAndFetch(reg::SoftEnable, 1);
    // Not past a disable that was asked for meanwhile, and not on a drive that did not answer.
    if (request.forceEnable && enabled && !serveWaitingDisable())
        writeAndFetch(reg::ForceEnable, reg::ForceEnableKey);
}

/// Until the drive acknowledges it: one request lost on the way must not leave the drive enabled. What went wrong in
/// between stays in the status, to be reported.
bool SessionWorker::disableDrive()
{
    bool acknowledged = false;
    m_line.beginStop();
    for (int attempt = 0; attempt < disableAttempts && !acknowledged; ++attempt)
        acknowledged = writeAndFetch(reg::SoftEnable, 0);
    m_line.endStop();
    return acknowledged;
}

void SessionWorker::announceDisable(bool acknowledged)
{
    emit m_session.disableAnswered(acknowledged);
    // Whoever pressed it wants to see soon whether it took effect.
    if (!m_queue.contains(Connection::TaskUpdateStatus))
        m_queue.push(Connection::TaskUpdateStatus);
}

void SessionWorker::saveToFlash(const TaskRequest &)
{
    writeAndFetch(reg::SystemCommand, reg::CommandSaveToFlash);
}

void SessionWorker::startHoming(const TaskRequest &)
{
    writeAndFetch(reg::Homing, 1);
}

void SessionWorker::abortHoming(const TaskRequest &)
{
    writeAndFetch(reg::Homing, 0);
}

void SessionWorker::stopStimulus(const TaskRequest &)
{
    // Still streaming when it was lost: the end of the connection then stops it again.
    if (writeAndFetch(reg::SystemCommand, reg::CommandStopStream))
        m_streaming = false;
}

void SessionWorker::forgetStimulus()
{
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        m_data.stimulus.stop();
    }
    m_streaming = m_streamStarted = false;
}

void SessionWorker::setAbsoluteSetpoint(const TaskRequest &request)
{
    setParameter(reg::AbsoluteSetpoint, request.setpoint);
}

void SessionWorker::setIncrementalSetpoint(const TaskRequest &request)
{
    setParameter(reg::IncrementalSetpoint, request.setpoint);
}

void SessionWorker::setZero(const TaskRequest &)
{
    setParameter(reg::SystemCommand, reg::CommandSetZero);
    checkZBErrors();
    reportErrors();
    connectionUpdate();
}

void SessionWorker::restartDrive(const TaskRequest &)
{
    emit m_session.busy(true, true);
    const bool told = writeAndFetch(reg::SystemCommand, reg::CommandRestart);
    forgetStimulus(); // nothing moves by itself after a restart
    // Out of firmware-upgrade mode it comes back at an address of its own, which this connection does not know.
    if (inFirmwareUpgradeMode())
        m_queue.pushDisconnectFirst();
    if (told)
        pause(restartPauseMs, Drive::Restarts);
    emit m_session.busy(false, true);
}

void SessionWorker::restartToDFU(const TaskRequest &)
{
    restartToDFUMode();
}

void SessionWorker::restartToDFUMode()
{
    writeAndFetch(reg::SystemCommand, reg::CommandRestartToDFU);
    forgetStimulus();
    if (isConnected() && statusIsClean()) {
        // From here on a bootloader answers, at its own address; it neither moves nor knows the watchdog.
        m_data.firmwareUpgradeMode = true;
        m_line.setNodeAddress(firmwareUpgradeNode);
    }
    pause(restartPauseMs, Drive::Restarts);
}

void SessionWorker::measure(const TaskRequest &)
{
    if (!deviceModelName(m_data.deviceType, false).contains(QLatin1String("KETA"))) {
        emit m_session.error(Connection::tr("Measure function is available only in KETA drive models"));
        return;
    }
    if (m_coreVersion < lowestCoreThatMeasures) {
        emit m_session.error(Connection::tr("Measure function requires newer firmware version"));
        return;
    }
    emit m_session.busy(true, false);
    writeAndFetch(reg::SystemCommand, reg::CommandMeasureMotor);
    // A command that was refused leaves the result of an earlier measurement as it is: no success of this one.
    checkZBErrors();
    const bool refused = m_deviceErrors != 0;
    m_deviceErrors = 0; // told here, and no reason to disconnect
    const bool finished = refused || (statusIsClean() && pause(measurePauseMs));
    long result = 0;
    if (finished && !refused)
        readParameters(reg::MeasureResult, result);
    emit m_session.busy(false, false);
    if (!finished || !statusIsClean())
        return; // a bad line gets its own message
    if (result != reg::MeasureSucceeded) {
        const QString page = makerWikiPage(QStringLiteral("/wiki/Measure_motor_resistance_and_inductance_in_Velbrin"));
        emit m_session.error(
            Connection::tr("Measurement failed. Ensure that all required conditions are met. See <i>%1</i>").arg(page));
        return;
    }
    m_queue.push(Connection::TaskGetParams);
    emit m_session.setUnsavedState();
}
