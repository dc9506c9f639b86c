// The life of a connection, and searching the bus for one.
#include "devicemodel.h"
#include "errortexts.h"
#include "sessionworker.h"

bool SessionWorker::openLine(const QString &portName, int timeoutMs)
{
    m_context.drive.setAsksAgain(false);
    if (m_context.line.open(portName, timeoutMs))
        return true;
    qCDebug(sessionLog, "connect failed");
    emit m_out.statusChanged(false, SessionText::tr("Connect failed"));
    m_context.errors.tell(MessageKind::ConnectFailed,
                          SessionText::tr("Unable to connect. Possibly incompatible COM adapter selected or device is "
                                          "already used by another application") +
                              QStringLiteral("<br>") + openErrorText(portName, m_context.line.openError()));
    return false;
}

void SessionWorker::resetDriveState()
{
    m_context.errors.reset();
    m_context.atStake = {};
    m_monitor.reset();
    m_capture.reset();
    m_stream.reset();
    m_data.valuesComplete = m_data.driveWasRead = false;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    // A forced enable is for the drive it was asked for.
    m_data.wanted.enable.force = false;
}

void SessionWorker::connectDrive(const ConnectRequest &request)
{
    if (m_data.connected)
        disconnectDrive();
    qCDebug(sessionLog) << "connecting" << request.portName;
    resetDriveState();
    m_stops.suggestTarget(request.portName, request.nodeAddress);
    if (!openLine(request.portName, m_data.replyTimeoutMs))
        return;
    qCDebug(sessionLog) << "connected" << m_context.line.handle();
    m_context.drive.setAsksAgain(true);
    m_context.line.setNodeAddress(request.nodeAddress);
    const auto answer = Identification(m_context).identify(request.nodeAddress);
    const auto *drive = std::get_if<DriveIdentity>(&answer);
    if (!drive) {
        m_context.errors.setLatch(true);
        refuse(MessageKind::ConnectFailed, QString(), std::get_if<NoIdentity>(&answer)->text);
    }
    if (!drive || !judge(*drive)) {
        m_context.line.close();
        m_data.firmwareUpgradeMode = false;
        return;
    }
    m_stops.setTarget(request.portName, request.nodeAddress);
    m_data.connected = true;
    m_context.errors.beginConnection();
    emit m_out.statusChanged(true, SessionText::tr("Connected"));
    m_capture.announceCapture(CaptureState::Idle);
    if (m_data.firmwareUpgradeMode) {
        announceFirmwareUpgradeMode(drive->firmwareVersion);
    } else {
        m_context.drive.writeSetting(reg::BusWatchdog, 0);
        m_context.errors.dropOldErrorBits();
    }
}

/// Whether this program may work with it; otherwise it has been told, and the drive restarted where that helps.
bool SessionWorker::judge(const DriveIdentity &drive)
{
    setDeviceSpecificVariables(drive);
    const VersionVerdict verdict = checkVersions(drive);
    if (verdict.accepted) {
        if (!verdict.errorText.isEmpty())
            m_context.errors.tell(MessageKind::Note, verdict.errorText);
        return true;
    }
    const bool restarted = verdict.restartToDFU && m_commands.sendRestartToDFU();
    const bool failed = verdict.restartToDFU && !restarted;
    refuse(MessageKind::Identity, verdict.statusText, failed ? verdict.notRestartedText : verdict.errorText);
    if (restarted)
        m_commands.waitForRestart();
    return false;
}

void SessionWorker::setDeviceSpecificVariables(const DriveIdentity &drive)
{
    m_data.firmwareUpgradeMode = drive.firmwareUpgradeMode;
    m_data.deviceType = drive.deviceType;
    m_data.baseFrequency = baseFrequencyOfModel(drive.deviceType, m_data.baseFrequency);
    m_commands.setCoreVersion(drive.coreVersion);
    m_upgrade.setBootloaderVersion(drive.firmwareVersion);
}

void SessionWorker::refuse(MessageKind kind, const QString &statusText, const QString &errorText)
{
    // First, since the window asks about capabilities when it hears of the refusal.
    m_data.deviceType = 0;
    m_context.line.clearStatus();
    emit m_out.statusChanged(false, statusText.isEmpty() ? SessionText::tr("Connect failed") : statusText);
    m_context.errors.tell(kind, errorText);
}

void SessionWorker::announceFirmwareUpgradeMode(int bootloaderVersion)
{
    long faults = 0;
    m_context.drive.readParameters(reg::FaultRegister, faults);
    const QString welcome = SessionText::tr(
        "Connected to device in firmware upgrade mode (bootloader version %1). To begin upgrading, select file from "
        "the "
        "button below. Upgrading starts immediately after file opened.<br><br> <b>Backup</b> your settings before "
        "upgrade as all parameters will be reset to defaults!<br><br><b>Ensure</b> that you have a firmware file "
        "designed for your hardware type and version!");
    emit m_out.firmwareUpgradeMsg(welcome.arg(bootloaderVersion), false, false);
    if (faults == 0)
        return;
    const QString note = SessionText::tr(
        "<br><b>Note:</b> The device seem to have some fault bits active (%1 hex%2). This could mean that the last "
        "upgrade of firmware has failed, or internal memory of device has corrupted. If this happens randomly, check "
        "voltage supply stability and EMI noise. You may continue FW upgrade normally.");
    const QString cause = faults == reg::FaultUpgradeInterrupted
                              ? SessionText::tr(" = chip firmware memory checksum mismatch")
                              : QString();
    emit m_out.firmwareUpgradeMsg(note.arg(QString::number(faults, 16), cause), false, false);
}

void SessionWorker::disconnectDrive()
{
    if (!m_data.connected)
        return;
    BusLine &line = m_context.line;
    line.startTask();
    // The end of a connection is no place for another error text: what fails here stays unsaid.
    if (!m_data.firmwareUpgradeMode) {
        if (m_stream.state() == Stream::Running)
            m_stops.setStreamWasLost(!m_stream.stop());
        m_context.drive.writeAndFetch(reg::BusWatchdog, 0);
    }
    m_stops.endConnection();
    m_capture.reset();
    qCDebug(sessionLog) << "disconnecting" << line.handle();
    line.close();
    line.clearStatus();
    m_data.connected = false;
    m_data.firmwareUpgradeMode = false;
    m_data.deviceType = 0;
    resetDriveState();
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        clearDeviceType(m_data.wanted.parameters);
        clearDeviceType(m_data.drive);
    }
    emit m_out.statusChanged(false, SessionText::tr("Disconnected"));
    m_stops.stopWhatWasLeft();
}

void SessionWorker::scanBus(const ScanRequest &request)
{
    if (m_data.connected || !openLine(request.portName, scanTimeoutMs))
        return;
    emit m_out.busy(true, true);
    // A disable does not wait for the search's end, which may be seconds away.
    const auto serveDisable = [this, &request] {
        QueuedTask disable;
        if (!m_context.queue.takeDisable(disable))
            return true;
        m_context.line.close();
        m_context.line.clearStatus();
        m_stops.disableWithoutConnection();
        return openLine(request.portName, scanTimeoutMs);
    };
    const BusSearch::Result result = BusSearch(m_context, serveDisable).searchDrives();
    m_context.line.close();
    m_context.line.clearStatus();
    emit m_out.busy(false, true);
    if (!result.isGone && !result.isNoisy) {
        emit m_out.availableBusNodes(result.nodes);
        return;
    }
    emit m_out.statusChanged(false, SessionText::tr("Connect failed"));
    m_context.errors.tell(MessageKind::ConnectFailed,
                          result.isGone
                              ? SessionText::tr("Unable to connect. The adapter was pulled out during the search: "
                                                "plug it in and search again.")
                              : SessionText::tr("The bus is never quiet, so no drive can be found on it. Check the "
                                                "wiring and that the port belongs to a Zetabus adapter."));
}
