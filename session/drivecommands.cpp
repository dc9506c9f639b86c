// Commands to the drive that are a write or two, and the pauses that some of them need.
#include "makerlinks.h"
#include "sessionregisters.h"
#include "sessionworker.h"

namespace {
constexpr int measurePauseMs = 8000;
constexpr int lowestCoreThatMeasures = 1060;

QString refusedSetpoint(int setpoint)
{
    return Connection::tr("The drive refused the setpoint %1.<br>Device errors: <br>%2").arg(setpoint);
}
} // namespace

void SessionWorker::clearFaults(const TaskRequest &)
{
    qCDebug(sessionLog, "clearfaults");
    writeAndFetch(reg::FaultRegister, 0);
}

void SessionWorker::applyEnableState(const TaskRequest &request)
{
    if (!request.enable) {
        disableDrive();
        return;
    }
    m_stopIsUnconfirmed = false;
    m_disableSent.reset();
    m_mayBeEnabled = true;
    // Once only: what enables a drive is never repeated.
    const Reply enabled =
        writeCommand(reg::SoftEnable, 1, Connection::tr("The drive refused to be enabled.<br>Device errors: <br>%1"));
    if (enabled == Reply::None)
        undoEnable();
    // Not past a disable that was asked for meanwhile, and not on a drive that did not answer.
    if (!request.forceEnable || enabled != Reply::Done || serveWaitingDisable())
        return;
    if (writeCommand(reg::ForceEnable, reg::ForceEnableKey,
                     Connection::tr("The drive refused to be enabled by force.<br>Device errors: <br>%1")) ==
        Reply::None)
        undoEnable();
}

void SessionWorker::saveToFlash(const TaskRequest &)
{
    writeCommand(reg::SystemCommand, reg::CommandSaveToFlash,
                 Connection::tr("The drive refused to save its settings to flash.<br>Device errors: <br>%1"));
}

void SessionWorker::startHoming(const TaskRequest &)
{
    writeCommand(reg::Homing, 1, Connection::tr("The drive refused to start homing.<br>Device errors: <br>%1"));
}

void SessionWorker::abortHoming(const TaskRequest &)
{
    sendStop(reg::Homing, 0);
}

void SessionWorker::stopStimulus(const TaskRequest &)
{
    // Still streaming when it was lost: the end of the connection then stops it again.
    if (sendStop(reg::SystemCommand, reg::CommandStopStream))
        m_stream.running = false;
}

void SessionWorker::forgetStimulus()
{
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        m_data.stimulus.stop();
    }
    m_stream = {};
    m_mayBeEnabled = false;
}

void SessionWorker::setAbsoluteSetpoint(const TaskRequest &request)
{
    writeCommand(reg::AbsoluteSetpoint, request.setpoint, refusedSetpoint(request.setpoint));
}

void SessionWorker::setIncrementalSetpoint(const TaskRequest &request)
{
    writeCommand(reg::IncrementalSetpoint, request.setpoint, refusedSetpoint(request.setpoint));
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
    if (told)
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
    if (!modelHasCapability(m_data.deviceType, DeviceCapability::RestartToDFU)) {
        tell(MessageKind::Note,
             Connection::tr("This drive cannot be restarted in firmware upgrade mode by a command."));
        return;
    }
    sendRestartToDFU();
    pause(restartPauseMs, Drive::Restarts);
}

bool SessionWorker::sendRestartToDFU()
{
    const bool told = writeAndFetch(reg::SystemCommand, reg::CommandRestartToDFU);
    if (told)
        forgetStimulus();
    if (told && isConnected()) {
        // From here on a bootloader answers, at its own address; it neither moves nor knows the watchdog.
        m_data.firmwareUpgradeMode = true;
        m_line.setNodeAddress(firmwareUpgradeNode);
    }
    return told;
}

void SessionWorker::measure(const TaskRequest &)
{
    if (!deviceModelName(m_data.deviceType, false).contains(QLatin1String("KETA"))) {
        tell(MessageKind::Note, Connection::tr("Measure function is available only in KETA drive models"));
        return;
    }
    if (m_coreVersion < lowestCoreThatMeasures) {
        tell(MessageKind::Note, Connection::tr("Measure function requires newer firmware version"));
        return;
    }
    emit m_session.busy(true, false);
    // What is in the error register from before would pass for a refusal of the command.
    const bool told =
        writeAndFetch(reg::ErrorBits, 0) && writeAndFetch(reg::SystemCommand, reg::CommandMeasureMotor);
    const bool finished = told && pause(measurePauseMs);
    long result = 0;
    if (finished) {
        readParameters(reg::MeasureResult, result);
        checkZBErrors();
    }
    // A command that was refused leaves the result of an earlier measurement as it is: no success of this one.
    const bool refused = m_deviceErrors != 0;
    m_deviceErrors = 0; // told here, and no reason to disconnect
    emit m_session.busy(false, false);
    if (!finished || !statusIsClean())
        return; // a bad line gets its own message
    if (refused || result != reg::MeasureSucceeded) {
        const QString page = makerWikiPage(QStringLiteral("/wiki/Measure_motor_resistance_and_inductance_in_Velbrin"));
        tell(
            MessageKind::Refused,
            Connection::tr("Measurement failed. Ensure that all required conditions are met. See <i>%1</i>").arg(page));
        return;
    }
    m_queue.push(Connection::TaskGetParams);
    emit m_session.setUnsavedState();
}
