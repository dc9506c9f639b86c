#include "driveclient.h"

#include "plaintext.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

// Limits for a step, far beyond what the slowest line takes: a scan of a silent bus needs 2.5 s, a full transfer that
// is disturbed all the while gives up by itself after a few time-outs.
constexpr int scanLimitMs = 120000;
constexpr int connectLimitMs = 60000;
constexpr int transferLimitMs = 180000;
constexpr int pollLimitMs = 30000;
constexpr std::chrono::seconds closeLimit(30);

} // namespace

DriveClient::DriveClient(const QString &port, double pauseScale) : m_port(port)
{
    qRegisterMetaType<Parameters>("Parameters");
    qRegisterMetaType<QList<NodeType>>("QList<NodeType>");
    qRegisterMetaType<QList<CaptureData>>("QList<CaptureData>");
    m_connection = std::make_unique<Connection>();
    m_connection->setPauseScale(pauseScale);
    watchDrive();
    watchUpgrade();
    watchMessages();
    // Not queued: the thread is about to end.
    connect(
        m_connection.get(), &Connection::finished, this, [this] { m_ended.set_value(); }, Qt::DirectConnection);
}

DriveClient::~DriveClient() = default;

template <typename Signal, typename Store> void DriveClient::on(Signal signal, Store store)
{
    // Queued: the signals come from the worker thread.
    connect(
        m_connection.get(), signal, this,
        [this, store](auto... arguments) {
            store(arguments...);
            if (m_done && m_done())
                m_loop.quit();
        },
        Qt::QueuedConnection);
}

void DriveClient::watchDrive()
{
    Received &to = m_received;
    on(&Connection::statusChanged,
       [&to](bool connected, const QString &) { to.link = connected ? Received::Link::Up : Received::Link::Lost; });
    on(&Connection::availableBusNodes, [&to](const QList<NodeType> &nodes) { to.nodes = nodes; });
    on(&Connection::parametersRetreived, [&to](const Parameters &list, bool) {
        to.list = list;
        to.polls = 0;
    });
    on(&Connection::statePolled, [&to](const DriveState &state) {
        to.live = state;
        ++to.polls;
    });
    on(&Connection::disableFinished, [&to](DisableOutcome outcome) { to.disableOutcome = outcome; });
    on(&Connection::captureStateChanged, [&to](CaptureState state) { to.captureState = state; });
    on(&Connection::plotReady, [&to](const QList<CaptureData> &capture) { to.plot = capture; });
}

void DriveClient::watchUpgrade()
{
    Received &to = m_received;
    on(&Connection::firmwareUpgradeMsg, [&to](const QString &html, bool done, bool failed) {
        if (to.upgradeMessage)
            to.upgradeMessage(html, done, failed);
    });
    on(&Connection::firmwareUploadProgress, [&to](int sentBytes, int totalBytes) {
        if (to.uploadProgress)
            to.uploadProgress(sentBytes, totalBytes);
    });
}

void DriveClient::watchMessages()
{
    on(&Connection::message, [this](const Message &message) {
        const bool isWrong = message.kind != MessageKind::Note && message.kind != MessageKind::FileWarning;
        m_received.errors += isWrong;
        if (isWrong || m_received.notes)
            say(plainText(message.text));
    });
    on(&Connection::suggestDeviceRestart,
       [this] { say(tr("The drive is in permanent stop: save what it should keep, then restart it.")); });
}

void DriveClient::say(const QString &text)
{
    if (!text.isEmpty() && !m_messages.contains(text))
        m_messages.append(text);
}

bool DriveClient::waitFor(const QString &what, const std::function<bool()> &done, int limitMs, Until until)
{
    const auto isBrokenOff = [this, until] { return m_interrupted && until == Until::Interrupted; };
    if (isBrokenOff())
        return false;
    m_progress.show(what);
    bool timedOut = false;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, this, [this, &timedOut] {
        timedOut = true;
        m_loop.quit();
    });
    limit.start(limitMs);
    m_done = done;
    while (!done() && !timedOut && !isBrokenOff())
        m_loop.exec();
    m_done = nullptr;
    m_progress.clear();
    return done() && !isBrokenOff();
}

/// Waits for the session's answer or the loss of the line. What comes is due, so a time-out is worth a message.
bool DriveClient::waitForSession(const QString &what, const std::function<bool()> &answered, int limitMs, Until until)
{
    const auto done = [this, &answered] { return isLost() || answered(); };
    if (!waitFor(what, done, limitMs, until) && !m_interrupted)
        say(tr("No answer from the drive session within %1 s (%2).").arg(limitMs / 1000).arg(what));
    return answered() && !isLost() && (!m_interrupted || until == Until::Done);
}

std::optional<QList<NodeType>> DriveClient::scan()
{
    m_received.nodes.reset();
    m_received.link = Received::Link::None;
    m_connection->getListOfBusNodes(m_port);
    const auto answered = [this] { return m_received.nodes.has_value(); };
    return waitForSession(tr("Searching drives"), answered, scanLimitMs) ? m_received.nodes : std::nullopt;
}

bool DriveClient::connectTo(int address, Until until)
{
    m_address = address;
    m_received.link = Received::Link::None;
    m_connection->connectDevice(m_port, address);
    return waitForSession(
        tr("Connecting"), [this] { return isUp(); }, connectLimitMs, until);
}

bool DriveClient::disconnectDrive()
{
    m_connection->command(Connection::TaskDisconnect);
    return waitFor(
        tr("Waiting for the drive"), [this] { return !isUp(); }, transferLimitMs);
}

bool DriveClient::isInUpgradeMode() const
{
    return m_connection->isInFirmwareUpgradeMode();
}

int DriveClient::deviceType() const
{
    return m_connection->deviceType();
}

std::optional<Parameters> DriveClient::readBack(const QString &what)
{
    // The end of a connection is told behind the list of its last read: a poll that follows the list proves that the
    // connection has survived.
    m_received.list.reset();
    m_connection->getParams();
    m_connection->command(Connection::TaskUpdateStatus);
    const auto answered = [this] { return m_received.list && m_received.polls > 0; };
    return waitForSession(what, answered, transferLimitMs) ? m_received.list : std::nullopt;
}

std::optional<Parameters> DriveClient::read()
{
    if (!isUp())
        return std::nullopt;
    return readBack(tr("Reading the drive's settings"));
}

std::optional<Parameters> DriveClient::write(const Parameters &list)
{
    if (!isUp())
        return std::nullopt;
    beCareful();
    m_connection->setParams(list);
    m_connection->command(Connection::TaskSetParams);
    return readBack(tr("Writing the drive's settings"));
}

bool DriveClient::saveToFlash()
{
    if (!isUp())
        return false;
    beCareful();
    m_connection->command(Connection::TaskSaveToFlash);
    // Saving has no answer of its own: a poll behind it tells that it was carried out. Two may already be on their way.
    constexpr int pollsBehind = 3;
    m_received.polls = 0;
    for (int i = 0; i < pollsBehind; ++i)
        m_connection->command(Connection::TaskUpdateStatus);
    const auto answered = [this] { return m_received.polls >= pollsBehind; };
    return waitForSession(tr("Saving to the drive's flash"), answered, transferLimitMs);
}

std::optional<DriveState> DriveClient::liveState()
{
    m_connection->command(Connection::TaskUpdateStatus);
    return nextLiveState();
}

std::optional<DriveState> DriveClient::nextLiveState()
{
    if (!isUp())
        return std::nullopt;
    m_received.polls = 0;
    const auto answered = [this] { return m_received.polls > 0; };
    if (!waitForSession(tr("Reading the drive's state"), answered, pollLimitMs))
        return std::nullopt;
    return m_received.live;
}

bool DriveClient::waitForDrive(const QString &what, const std::function<bool(const DriveState &)> &shown, int limitMs)
{
    m_received.polls = 0;
    m_connection->command(Connection::TaskUpdateStatus);
    const auto isShown = [this, &shown] { return m_received.polls > 0 && shown(drive()); };
    const auto done = [this, &isShown] { return isLost() || isShown(); };
    return waitFor(what, done, limitMs) && !isLost();
}

void DriveClient::close()
{
    if (m_closed)
        return;
    m_closed = true;
    if (m_interrupted) {
        m_connection.reset(); // ends every pause, and whatever only reads
    } else {
        m_connection->command(Connection::TaskDisconnect);
        m_connection->command(Connection::TaskQuit);
        if (m_ended.get_future().wait_for(closeLimit) == std::future_status::timeout)
            say(tr("The drive session did not end."));
    }
    // The last signals of the session are still on their way.
    QCoreApplication::sendPostedEvents(this);
    m_noForce.reset();
}

void DriveClient::beCareful()
{
    if (!m_noForce && !m_closed)
        m_noForce.emplace();
}

void DriveClient::setOnInterrupt(OnInterrupt what, const QString &warning)
{
    m_onInterrupt = what;
    m_warning = warning;
}

void DriveClient::interrupt()
{
    if (m_onInterrupt == OnInterrupt::AskOnceMore && !m_warning.isEmpty()) {
        m_progress.note(m_warning);
        m_warning.clear();
        return;
    }
    m_interrupted = true;
    if (m_onInterrupt != OnInterrupt::EndQuietly)
        say(tr("Interrupted."));
    m_loop.quit();
}
