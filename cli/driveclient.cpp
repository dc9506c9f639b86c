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

DriveClient::DriveClient(const QString &port) : m_port(port)
{
    qRegisterMetaType<Parameters>("Parameters");
    qRegisterMetaType<QList<NodeType>>("QList<NodeType>");
    m_connection = std::make_unique<Connection>();
    watchConnection();
}

DriveClient::~DriveClient() = default;

void DriveClient::watchConnection()
{
    // Queued: the signals come from the worker thread.
    const auto on = [this](auto signal, auto store) {
        connect(
            m_connection.get(), signal, this,
            [this, store](auto... arguments) {
                store(arguments...);
                if (m_done && m_done())
                    m_loop.quit();
            },
            Qt::QueuedConnection);
    };
    on(&Connection::statusChanged, [this](bool connected, const QString &) {
        // The "Disconnected" of a clean end is no loss, but nobody waits for anything then.
        m_link = connected ? Link::Up : Link::Lost;
    });
    on(&Connection::availableBusNodes, [this](const QList<NodeType> &nodes) { m_nodes = nodes; });
    on(&Connection::parametersRetreived, [this](const Parameters &list, bool) {
        m_list = list;
        m_polls = 0;
    });
    on(&Connection::physInputsUpdated, [this](const QString &html) { m_live.inputs = html; });
    on(&Connection::statusRegisterUpdated, [this](const QString &html) { m_live.status = html; });
    on(&Connection::faultRegisterUpdated, [this](const QString &html) {
        m_live.faults = html;
        ++m_polls;
    });
    on(&Connection::error, [this](const QString &html) { say(plainText(html)); });
    on(&Connection::suggestDeviceRestart,
       [this] { say(tr("The drive is in permanent stop: save what it should keep, then restart it.")); });
    connect(
        m_connection.get(), &Connection::finished, this, [this] { m_ended.set_value(); }, Qt::DirectConnection);
}

void DriveClient::say(const QString &text)
{
    if (!text.isEmpty() && !m_messages.contains(text))
        m_messages.append(text);
}

bool DriveClient::waitFor(const QString &what, const std::function<bool()> &done, int limitMs)
{
    if (m_interrupted)
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
    if (!done())
        m_loop.exec();
    m_done = nullptr;
    m_progress.clear();
    if (timedOut)
        say(tr("No answer from the drive session within %1 s (%2).").arg(limitMs / 1000).arg(what));
    return done() && !m_interrupted;
}

std::optional<QList<NodeType>> DriveClient::scan()
{
    m_nodes.reset();
    m_link = Link::None;
    m_connection->getListOfBusNodes(m_port);
    const auto done = [this] { return m_nodes || m_link == Link::Lost; };
    return waitFor(tr("Searching drives"), done, scanLimitMs) ? m_nodes : std::nullopt;
}

bool DriveClient::connectTo(int address)
{
    m_address = address;
    m_link = Link::None;
    m_connection->connectDevice(m_port, address);
    const auto done = [this] { return m_link != Link::None; };
    return waitFor(tr("Connecting"), done, connectLimitMs) && m_link == Link::Up;
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
    // A read that broke off still hands over its list, and the error comes after it. A poll that follows the list
    // proves that the connection has survived.
    m_list.reset();
    m_connection->getParams();
    m_connection->command(Connection::TaskUpdateStatus);
    const auto done = [this] { return (m_list && m_polls > 0) || m_link == Link::Lost; };
    const bool arrived = waitFor(what, done, transferLimitMs);
    return arrived && m_link == Link::Up ? m_list : std::nullopt;
}

std::optional<Parameters> DriveClient::read()
{
    if (m_link != Link::Up)
        return std::nullopt;
    return readBack(tr("Reading the drive's settings"));
}

std::optional<Parameters> DriveClient::write(const Parameters &list)
{
    if (m_link != Link::Up)
        return std::nullopt;
    m_connection->setParams(list);
    m_connection->command(Connection::TaskSetParams);
    return readBack(tr("Writing the drive's settings"));
}

bool DriveClient::saveToFlash()
{
    if (m_link != Link::Up)
        return false;
    // Saving has no answer of its own: the read behind it tells that it was carried out.
    m_connection->command(Connection::TaskSaveToFlash);
    return readBack(tr("Saving to the drive's flash")).has_value();
}

std::optional<LiveState> DriveClient::liveState()
{
    if (m_link != Link::Up)
        return std::nullopt;
    m_polls = 0;
    m_connection->command(Connection::TaskUpdateStatus);
    const auto done = [this] { return m_polls > 0 || m_link == Link::Lost; };
    if (!waitFor(tr("Reading the drive's state"), done, pollLimitMs) || m_link != Link::Up)
        return std::nullopt;
    return m_live;
}

void DriveClient::close()
{
    m_connection->command(Connection::TaskDisconnect);
    m_connection->command(Connection::TaskQuit);
    if (m_ended.get_future().wait_for(closeLimit) == std::future_status::timeout)
        say(tr("The drive session did not end."));
    // The last signals of the session are still on their way.
    QCoreApplication::sendPostedEvents(this);
}

void DriveClient::interrupt()
{
    m_interrupted = true;
    say(tr("Interrupted."));
    m_loop.quit();
}
