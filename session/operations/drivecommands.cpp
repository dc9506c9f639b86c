#include "drivecommands.h"

#include "devicemodel.h"
#include "errortexts.h"
#include "makerlinks.h"
#include "stimulusstream.h"
#include "stopservice.h"

namespace {
constexpr Pauses::Milliseconds restartPause(3500);
constexpr Pauses::Milliseconds measurePause(8000);
constexpr int lowestCoreThatMeasures = 1060;
} // namespace

void DriveCommands::clearFaults()
{
    qCDebug(sessionLog, "clearfaults");
    m_drive.writeAndFetch(reg::FaultRegister, 0);
}

/// A query and a text of its own behind each command: what accumulates is told at the end of the task, and says less.
Reply DriveCommands::writeCommand(int address, long value, const QString &refusal)
{
    const Reply reply = m_drive.write(address, value);
    if (reply == Reply::None)
        return reply;
    long bits = 0;
    if (m_drive.readParameters(reg::ErrorBits, bits) != ZB_OK || (bits == 0 && reply == Reply::Done))
        return reply;
    m_drive.writeSetting(reg::ErrorBits, 0);
    m_errors.setLatch(true);
    const auto reasons = static_cast<quint32>(bits != 0 ? bits : reg::ErrorCommandFailed);
    m_errors.tell(MessageKind::Refused, refusal.arg(refusalReasons(reasons)));
    return Reply::Refused;
}

void DriveCommands::applyEnableState(const EnableRequest &request)
{
    if (!request.enable) {
        m_stops.disableDrive();
        return;
    }
    m_stops.beginEnable();
    const int servedBefore = m_stops.servedDisables();
    // Once only: what enables a drive is never repeated.
    const Reply enabled =
        writeCommand(reg::SoftEnable, 1, SessionText::tr("The drive refused to be enabled.<br>Device errors: <br>%1"));
    if (enabled == Reply::None)
        m_stops.undoEnable();
    // Not past a disable that was asked for meanwhile, waiting or served already, and not on a drive that did not
    // answer.
    if (!request.force || enabled != Reply::Done || m_pauses.serveWaitingDisable() ||
        m_stops.servedDisables() != servedBefore)
        return;
    if (writeCommand(reg::ForceEnable, reg::ForceEnableKey,
                     SessionText::tr("The drive refused to be enabled by force.<br>Device errors: <br>%1")) ==
        Reply::None)
        m_stops.undoEnable();
}

void DriveCommands::saveToFlash()
{
    const Reply reply =
        writeCommand(reg::SystemCommand, reg::CommandSaveToFlash,
                     SessionText::tr("The drive refused to save its settings to flash.<br>Device errors: <br>%1"));
    emit m_out.savedToFlash(reply == Reply::Done);
}

void DriveCommands::startHoming()
{
    writeCommand(reg::Homing, 1, SessionText::tr("The drive refused to start homing.<br>Device errors: <br>%1"));
}

void DriveCommands::abortHoming()
{
    m_drive.sendStop(reg::Homing, 0);
}

void DriveCommands::stopStimulus()
{
    m_stream.stop();
}

void DriveCommands::writeSetpoint(int address, int setpoint)
{
    writeCommand(address, setpoint,
                 SessionText::tr("The drive refused the setpoint %1.<br>Device errors: <br>%2").arg(setpoint));
}

void DriveCommands::setAbsoluteSetpoint(const SetpointRequest &request)
{
    writeSetpoint(reg::AbsoluteSetpoint, request.setpoint);
}

void DriveCommands::setIncrementalSetpoint(const SetpointRequest &request)
{
    writeSetpoint(reg::IncrementalSetpoint, request.setpoint);
}

void DriveCommands::setZero()
{
    m_drive.write(reg::SystemCommand, reg::CommandSetZero);
    m_errors.reportWrite(undefinedParam(reg::SystemCommand, reg::CommandSetZero));
    m_errors.checkZBErrors();
    m_errors.report();
}

/// Nothing moves by itself after a restart.
void DriveCommands::forgetMotion()
{
    m_stream.reset();
    m_atStake.mayBeEnabled = false;
}

void DriveCommands::waitForRestart()
{
    m_pauses.pause(restartPause, Pauses::Drive::Restarts);
}

void DriveCommands::restartDrive()
{
    emit m_out.busy(true, true);
    const bool told = m_drive.writeAndFetch(reg::SystemCommand, reg::CommandRestart);
    if (told)
        forgetMotion(); // nothing moves by itself after a restart
    // Out of firmware-upgrade mode it comes back at an address of its own, which this connection does not know.
    if (m_data.firmwareUpgradeMode)
        m_queue.pushDisconnectFirst();
    if (told)
        waitForRestart();
    emit m_out.busy(false, true);
}

void DriveCommands::restartToDFU()
{
    if (!modelHasCapability(m_data.deviceType, DeviceCapability::RestartToDFU)) {
        m_errors.tell(MessageKind::Note,
                      SessionText::tr("This drive cannot be restarted in firmware upgrade mode by a command."));
        return;
    }
    sendRestartToDFU();
    waitForRestart();
}

bool DriveCommands::sendRestartToDFU()
{
    const bool told = m_drive.writeAndFetch(reg::SystemCommand, reg::CommandRestartToDFU);
    if (told)
        forgetMotion();
    if (told && m_data.connected) {
        // From here on a bootloader answers, at its own address; it neither moves nor knows the watchdog.
        m_data.firmwareUpgradeMode = true;
        m_line.setNodeAddress(firmwareUpgradeNode);
    }
    return told;
}

void DriveCommands::measure()
{
    if (!modelHasCapability(m_data.deviceType, DeviceCapability::MeasureRL)) {
        m_errors.tell(MessageKind::Note, SessionText::tr("Measure function is available only in KETA drive models"));
        return;
    }
    if (m_coreVersion < lowestCoreThatMeasures) {
        m_errors.tell(MessageKind::Note, SessionText::tr("Measure function requires newer firmware version"));
        return;
    }
    emit m_out.busy(true, false);
    long result = 0;
    const bool finished = measureMotor(result);
    // A command that was refused leaves the result of an earlier measurement as it is: no success of this one.
    const bool refused = m_errors.deviceErrors() != 0;
    m_errors.forgetDeviceErrors(); // told here, and no reason to disconnect
    emit m_out.busy(false, false);
    if (!finished || !m_line.isClean())
        return; // a bad line gets its own message
    if (refused || result != reg::MeasureSucceeded) {
        const QString page = makerWikiPage(QStringLiteral("/wiki/Measure_motor_resistance_and_inductance_in_Velbrin"));
        m_errors.tell(MessageKind::Refused,
                      SessionText::tr("Measurement failed. Ensure that all required conditions are met. See <i>%1</i>")
                          .arg(page));
        return;
    }
    m_queue.push(SessionTasks::TaskGetParams);
    emit m_out.setUnsavedState();
}

/// False when it was broken off.
bool DriveCommands::measureMotor(long &result)
{
    // What is in the error register from before would pass for a refusal of the command.
    if (!m_drive.writeAndFetch(reg::ErrorBits, 0) ||
        !m_drive.writeAndFetch(reg::SystemCommand, reg::CommandMeasureMotor) || !m_pauses.pause(measurePause))
        return false;
    m_drive.readParameters(reg::MeasureResult, result);
    m_errors.checkZBErrors();
    return true;
}
