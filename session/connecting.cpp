// Connecting, disconnecting and searching the bus.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"

#include <QElapsedTimer>
#include <QMap>

namespace {
constexpr int scanTimeoutMs = 100; // what a silent address costs
constexpr int lastScannedNode = 20;
constexpr int firstUpgradeNode = 251;
constexpr int lastNode = 255;
constexpr int askedAtMost = 3; // times, until an address counts as unreadable
constexpr int noisyLimit = 3;  // exchanges in a row

/// Bus addresses in the order of the scan.
QList<int> scanAddresses()
{
    QList<int> result;
    for (int address = 1; address <= lastScannedNode; ++address)
        result << address;
    for (int address = firstUpgradeNode; address <= lastNode; ++address)
        result << address;
    return result;
}
} // namespace

bool SessionWorker::openLine(const QString &portName, int timeoutMs)
{
    m_asksAgain = false;
    if (m_line.open(portName, timeoutMs))
        return true;
    qCDebug(sessionLog, "connect failed");
    emit m_session.statusChanged(false, Connection::tr("Connect failed"));
    tell(MessageKind::ConnectFailed,
         Connection::tr("Unable to connect. Possibly incompatible COM adapter selected or device is "
                        "already used by another application") +
             QStringLiteral("<br>") + openErrorText(portName, m_line.openError()));
    return false;
}

void SessionWorker::resetDriveState()
{
    m_deviceErrors = 0;
    m_errorsAreOld = false;
    m_data.valuesComplete = m_data.driveWasRead = false;
    m_stopIsUnconfirmed = m_mayBeEnabled = false;
    m_brokenOffWrite.clear();
    m_communicationReported = false;
    const quint32 sequence = m_state.sequence;
    m_state = DriveState();
    m_state.sequence = sequence;
    m_announced = {};
    m_capture = {};
    m_stream = {};
    m_data.positionFeedback = 0;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.stimulus.stop();
    // A forced enable is for the drive it was asked for.
    m_data.wanted.forceEnable = false;
}

void SessionWorker::rememberTarget(const TaskRequest &request)
{
    m_streamWasLost = false;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.targetPort = request.portName;
    m_data.targetNode = request.nodeAddress;
}

void SessionWorker::connectDrive(const TaskRequest &request)
{
    if (isConnected())
        disconnectDrive(request);
    qCDebug(sessionLog) << "connecting" << request.portName;
    resetDriveState();
    if (!openLine(request.portName, m_data.replyTimeoutMs))
        return;
    qCDebug(sessionLog) << "connected" << m_line.handle();
    m_asksAgain = true;
    m_line.setNodeAddress(request.nodeAddress);
    if (!identify(request.nodeAddress)) {
        m_line.close();
        m_data.firmwareUpgradeMode = false;
        return;
    }
    rememberTarget(request);
    m_data.connected = true;
    m_errorsAreOld = true;
    emit m_session.statusChanged(true, Connection::tr("Connected"));
    announceCapture(CaptureState::Idle);
    if (inFirmwareUpgradeMode()) {
        announceFirmwareUpgradeMode();
    } else {
        writeSetting(reg::BusWatchdog, 0);
        dropOldErrorBits();
    }
}

void SessionWorker::refuse(MessageKind kind, const QString &statusText, const QString &errorText)
{
    // First, since the window asks about capabilities when it hears of the refusal.
    m_data.deviceType = 0;
    m_line.clearStatus();
    emit m_session.statusChanged(false, statusText.isEmpty() ? Connection::tr("Connect failed") : statusText);
    tell(kind, errorText);
}

void SessionWorker::announceFirmwareUpgradeMode()
{
    long faults = 0;
    readParameters(reg::FaultRegister, faults);
    const QString welcome = Connection::tr(
        "Connected to device in firmware upgrade mode (bootloader version %1). To begin upgrading, select file from "
        "the "
        "button below. Upgrading starts immediately after file opened.<br><br> <b>Backup</b> your settings before "
        "upgrade as all parameters will be reset to defaults!<br><br><b>Ensure</b> that you have a firmware file "
        "designed for your hardware type and version!");
    emit m_session.firmwareUpgradeMsg(welcome.arg(m_firmwareVersion), false, false);
    if (faults == 0)
        return;
    const QString note = Connection::tr(
        "<br><b>Note:</b> The device seem to have some fault bits active (%1 hex%2). This could mean that the last "
        "upgrade of firmware has failed, or internal memory of device has corrupted. If this happens randomly, check "
        "voltage supply stability and EMI noise. You may continue FW upgrade normally.");
    const QString cause = faults == reg::FaultUpgradeInterrupted
                              ? Connection::tr(" = chip firmware memory checksum mismatch")
                              : QString();
    emit m_session.firmwareUpgradeMsg(note.arg(QString::number(faults, 16), cause), false, false);
}

void SessionWorker::disconnectDrive(const TaskRequest &)
{
    if (!isConnected())
        return;
    m_line.startTask();
    // Not by setParameter: the end of a connection is no place for another error text.
    if (!inFirmwareUpgradeMode()) {
        if (m_stream.running)
            m_streamWasLost = !sendStop(reg::SystemCommand, reg::CommandStopStream);
        writeAndFetch(reg::BusWatchdog, 0);
    }
    if (m_disableSent)
        announceDisableOutcome(DisableOutcome::NoAnswer);
    if (m_capture.pending)
        announceCapture(CaptureState::Idle);
    qCDebug(sessionLog) << "disconnecting" << m_line.handle();
    m_line.close();
    m_line.clearStatus();
    m_data.connected = false;
    m_data.firmwareUpgradeMode = false;
    m_data.deviceType = 0;
    resetDriveState();
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        clearDeviceType(m_data.wanted.parameters);
        clearDeviceType(m_data.drive);
    }
    emit m_session.statusChanged(false, Connection::tr("Disconnected"));
    stopWhatWasLeft();
}

/// One question to one address, and not a second one to the silent, who are most of them. The reply to a question before it may come instead of its own.
SessionWorker::Heard SessionWorker::askWho(int address, NodeType &node)
{
    m_line.startTask(); // silence is normal here
    m_line.clearStatus();
    m_line.setNodeAddress(address);
    long type = 0;
    long mode = 0;
    m_line.appendRead(reg::DeviceType);
    m_line.appendRead(reg::OperatingMode);
    m_line.execute();
    m_line.fetchRead(&type);
    m_line.fetchRead(&mode);
    m_line.finishReply();
    if (m_line.status() != ZB_OK)
        return m_line.wasSilent() ? Heard::Nothing : Heard::Noise;
    node.address = m_line.replyAddress();
    node.firmwareUpgradeMode = node.address >= firstUpgradeNode || mode == 0;
    node.deviceType = static_cast<int>(type);
    return Heard::Reply;
}

/// Sorted by address, each once. What is not a good reply is asked again: it must neither hide a drive nor make the one
/// beside it look like the only one. Ends early when the line has gone or never is quiet.
QList<NodeType> SessionWorker::searchDrives(int &noisyExchanges)
{
    QMap<int, NodeType> found;
    noisyExchanges = 0;
    for (int address : scanAddresses()) {
        int unreadable = 0;
        bool isDecided = found.contains(address);
        for (int attempt = 0; attempt < askedAtMost && !isDecided; ++attempt) {
            if (m_queue.isClosing() || noisyExchanges >= noisyLimit || m_line.isGone())
                return found.values();
            QElapsedTimer timer;
            timer.start();
            NodeType node;
            const Heard heard = askWho(address, node);
            // A line that babbles instead of being silent costs seconds an exchange, and would go on doing so.
            noisyExchanges = timer.elapsed() > 10 * scanTimeoutMs ? noisyExchanges + 1 : 0;
            unreadable += heard == Heard::Noise;
            // A late reply is listed for the drive that sent it, and its place in the line is asked anew.
            if (heard == Heard::Reply)
                found.insert(node.address, node);
            isDecided = found.contains(address) || (heard == Heard::Nothing && unreadable == 0);
        }
        // Once may have been a spike on a silent line.
        if (!found.contains(address) && unreadable > 1)
            found.insert(address, NodeType{address, address >= firstUpgradeNode, 0, true});
    }
    return found.values();
}

void SessionWorker::scanBus(const TaskRequest &request)
{
    if (isConnected() || !openLine(request.portName, scanTimeoutMs))
        return;
    emit m_session.busy(true, true);
    int noisyExchanges = 0;
    const QList<NodeType> nodes = searchDrives(noisyExchanges);
    const bool isNoisy = noisyExchanges >= noisyLimit;
    const bool gone = m_line.isGone();
    m_line.close();
    m_line.clearStatus();
    emit m_session.busy(false, true);
    if (gone || isNoisy) {
        emit m_session.statusChanged(false, Connection::tr("Connect failed"));
        tell(MessageKind::ConnectFailed,
             gone ? Connection::tr("Unable to connect. The adapter was pulled out during the search: "
                                   "plug it in and search again.")
                  : Connection::tr("The bus is never quiet, so no drive can be found on it. Check the "
                                   "wiring and that the port belongs to a Zetabus adapter."));
        return;
    }
    emit m_session.availableBusNodes(nodes);
}
