/// \file
/// A session on the virtual bus: a Connection, everything it has signalled, and words for the wire.
#ifndef VELBRIN_TESTS_SESSIONFIXTURE_H
#define VELBRIN_TESTS_SESSIONFIXTURE_H

// Before Qt, which makes a keyword of a name that the virtual drive uses.
#include "virtualbusfixture.h"

#include "connection.h"
#include "printqt.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QObject>
#include <QStringList>
#include <functional>
#include <gmock/gmock.h>

/// Reply time-out where replies are lost on purpose, in ms: short, but a virtual drive on a busy machine answers within
/// it. A late reply comes in the middle of the time that it is waited for before anything is asked again.
constexpr int shortTimeoutMs = 400;
constexpr int tooLateMs = 600;

/// What a Connection has signalled, in order, as the user interface's thread receives it.
struct SessionLog : QObject
{
    struct Status
    {
        bool connected;
        QString text;
    };
    struct UpgradeMessage
    {
        QString text;
        bool done, failed;
    };

    explicit SessionLog(Connection &session);

    QList<Status> statuses;
    QStringList errors;
    QList<Parameters> read;
    QList<Parameters> loaded;
    QList<QList<NodeType>> nodes;
    QStringList captureButton;
    QList<QList<CaptureData>> plots;
    QStringList statusPanels, faultPanels, inputPanels;
    QList<UpgradeMessage> upgrade;
    QList<double> setpoints;
    QList<int> controlModes;
    QList<bool> busy;
    QList<bool> disables;
    QList<bool> enabled;
    QList<Message> messages;
    QList<DriveState> states;
    QList<CaptureState> captures;
    QList<DisableOutcome> outcomes;
    QList<Parameters> held;
    int restartSuggestions = 0;
    int unsaved = 0;
};

inline SessionLog::SessionLog(Connection &s)
{
    const auto queued = Qt::QueuedConnection;
    const auto keep = [&](auto signal, auto &list) {
        connect(
            &s, signal, this, [&list](const auto &value) { list << value; }, queued);
    };
    using C = Connection;
    connect(
        &s, &C::statusChanged, this,
        [this](bool on, QString text) {
            statuses << Status{on, text};
        },
        queued);
    connect(
        &s, &C::parametersRetreived, this, [this](Parameters p, bool file) { (file ? loaded : read) << p; }, queued);
    const auto keepMessage = [this](QString t, bool done, bool failed) { upgrade << UpgradeMessage{t, done, failed}; };
    connect(&s, &C::firmwareUpgradeMsg, this, keepMessage, queued);
    connect(
        &s, &C::busy, this, [this](bool on, bool) { busy << on; }, queued);
    connect(
        &s, &C::suggestDeviceRestart, this, [this] { ++restartSuggestions; }, queued);
    connect(
        &s, &C::setUnsavedState, this, [this] { ++unsaved; }, queued);
    keep(&C::error, errors);
    keep(&C::availableBusNodes, nodes);
    keep(&C::updateCaptureButtonText, captureButton);
    keep(&C::plotReady, plots);
    keep(&C::statusRegisterUpdated, statusPanels);
    keep(&C::faultRegisterUpdated, faultPanels);
    keep(&C::physInputsUpdated, inputPanels);
    keep(&C::setpointChanged, setpoints);
    keep(&C::controlModeChanged, controlModes);
    keep(&C::disableAnswered, disables);
    keep(&C::enableStatePolled, enabled);
    keep(&C::message, messages);
    keep(&C::statePolled, states);
    keep(&C::captureStateChanged, captures);
    keep(&C::disableFinished, outcomes);
    keep(&C::driveParametersChanged, held);
}

/// Runs the event loop until the condition holds; false when it did not within the limit.
inline bool waitUntil(const std::function<bool()> &condition, int limitMs = 30000)
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        const bool holds = condition();
        QCoreApplication::processEvents();
        if (holds || timer.elapsed() > limitMs)
            return holds;
        QThread::msleep(1); // not every condition comes with an event of ours
    }
}

/// Payload in hexadecimal, e.g. "800f00000000" for register 15 := 0.
inline std::string hex(const sim::Bytes &bytes)
{
    std::string text;
    for (std::uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 15];
    }
    return text;
}

/// "800a 400000" without the blanks that make it readable.
inline std::string wire(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

class SessionFixture : public VirtualBusFixture
{
protected:
    void SetUp() override
    {
        VirtualBusFixture::SetUp();
        newSession();
    }
    void TearDown() override
    {
        endSession();
        VirtualBusFixture::TearDown();
    }

    /// The session first: the thread that signals has ended when whoever listens to it goes.
    void endSession()
    {
        m_session.reset();
        m_log.reset();
    }
    void newSession()
    {
        endSession();
        m_session = std::make_unique<Connection>();
        m_session->setPauseScale(0.05);
        m_log = std::make_unique<SessionLog>(*m_session);
    }
    Connection &session() { return *m_session; }
    SessionLog &log() { return *m_log; }

    /// Connects and waits for the outcome; true when connected.
    bool connectTo(int address = DriveAddress)
    {
        const int before = log().statuses.size();
        session().connectDevice(port(), address);
        return waitUntil([&] { return log().statuses.size() > before; }) && log().statuses.last().connected;
    }
    bool waitForDisconnect()
    {
        return waitUntil([&] { return !log().statuses.isEmpty() && !log().statuses.last().connected; });
    }
    bool leave()
    {
        session().command(Connection::TaskDisconnect);
        return waitForDisconnect();
    }
    /// A connection on which replies are lost on purpose.
    bool reconnectImpatiently()
    {
        const bool left = leave();
        session().setReplyTimeout(shortTimeoutMs);
        return left && connectTo() && waitUntilIdle();
    }
    bool readAll()
    {
        const int before = log().read.size();
        session().getParams();
        return waitUntil([&] { return log().read.size() > before || !log().statuses.last().connected; }) &&
               log().read.size() > before;
    }
    void disable()
    {
        session().setDriveEnableStatus(false);
        session().setDriveForceEnableStatus(false);
        session().command(Connection::TaskApplyEnableState);
    }
    void enable()
    {
        session().setDriveEnableStatus(true);
        session().command(Connection::TaskApplyEnableState);
    }
    void setFault(sim::LineFault::Kind kind) { bus().setFault({kind}); }
    /// How often a payload has arrived.
    int received(const std::string &payload)
    {
        const std::vector<std::string> all = payloads();
        return static_cast<int>(std::count(all.begin(), all.end(), payload));
    }
    bool waitForPayload(const std::string &payload)
    {
        return waitUntil([&] { return received(payload) > 0; });
    }
    /// A write that the drive refuses, as another master's: its bit stays in register 13.
    void leaveErrorBit()
    {
        bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.write(6020, 1); });
    }
    /// Waits until what was queued before has run and its signals have arrived.
    bool waitUntilIdle()
    {
        // A task that leaves a trace, wherever the session stands: saving the settings.
        const QString mark = QStringLiteral("%1/idle%2.drc").arg(QDir::currentPath()).arg(++m_marks);
        session().setSettingsFileName(mark);
        session().command(Connection::TaskSaveSettingsFile);
        return waitUntil([&] { return QFileInfo::exists(mark); });
    }

    bool runToEnd(Connection::Task task)
    {
        session().command(task);
        return waitUntilIdle();
    }
    /// The settings as they were read last, but for these.
    Parameters with(std::initializer_list<std::pair<const char *, double>> values)
    {
        Parameters list = log().read.last();
        for (const auto &[name, value] : values) {
            SingleParam param = list.getParam(name);
            param.value = value;
            list.replaceParam(param);
        }
        return list;
    }

    /// Payloads that arrived, without those of the periodic poll and the questions whether a write was refused.
    std::vector<std::string> payloads()
    {
        std::vector<std::string> result;
        for (const sim::ReceivedRequest &request : bus().received()) {
            const std::string payload = hex(request.packet.payload);
            const bool isPoll = payload.rfind("800a400000800940", 0) == 0 && payload.size() > 60;
            if (!isPoll && payload != wire("800a 400000 8009 40000d"))
                result.push_back(payload);
        }
        return result;
    }

private:
    std::unique_ptr<Connection> m_session;
    std::unique_ptr<SessionLog> m_log;
    int m_marks = 0;
};

#endif
