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
constexpr int patientTimeoutMs = 4000; ///< where none is lost

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

    explicit SessionLog(Connection &session)
    {
        const auto on = [&](auto signal, auto slot) { connect(&session, signal, this, slot, Qt::QueuedConnection); };
        const auto keep = [&](auto signal, auto &list) { on(signal, [&list](const auto &value) { list << value; }); };
        using C = Connection;
        on(&C::statusChanged, [this](bool connected, QString text) { statuses << Status{connected, text}; });
        on(&C::parametersRetreived, [this](Parameters all, bool file) { (file ? loaded : read) << all; });
        on(&C::firmwareUpgradeMsg, [this](QString text, bool done, bool failed) {
            upgrade << UpgradeMessage{text, done, failed};
        });
        on(&C::busy, [this](bool isBusy, bool) { busy << isBusy; });
        on(&C::suggestDeviceRestart, [this] { ++restartSuggestions; });
        on(&C::setUnsavedState, [this] { ++unsaved; });
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
    /// One reply goes wrong, late or at a byte that is there in all of them.
    void spoil(sim::LineFault::Kind kind, int skip)
    {
        bus().setFault({kind, kind == sim::LineFault::Late ? tooLateMs : 4, skip, 1});
    }
    void repairLine()
    {
        bus().clearFaults();
        if (!bus().isPluggedIn()) {
            ASSERT_EQ(bus().plugIn(), "");
        }
    }
    /// Waits for as many polls as that.
    bool waitForPolls(int count)
    {
        const int before = log().statusPanels.size();
        return waitUntil([=] { return log().statusPanels.size() >= before + count; });
    }
    /// Waits for what was told since the log of errors was cleared; it has to be one thing.
    void expectToldOnce(MessageKind kind, const testing::Matcher<std::string> &text = testing::_,
                        int line = __builtin_LINE())
    {
        EXPECT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); })) << "line " << line;
        ASSERT_THAT(log().errors, testing::SizeIs(1)) << "line " << line;
        EXPECT_THAT(log().errors.first().toStdString(), text) << "line " << line;
        EXPECT_EQ(log().messages.last().kind, kind) << "line " << line;
    }
    /// How often a payload has arrived.
    int received(const std::string &payload)
    {
        const std::vector<std::string> all = payloads();
        return static_cast<int>(std::count(all.begin(), all.end(), payload));
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
        std::vector<std::string> result = payloadsOf(bus().received());
        const auto isNoTopic = [](const std::string &payload) {
            return (payload.rfind("800a400000800940", 0) == 0 && payload.size() > 60) ||
                   payload == wire("800a 400000 8009 40000d");
        };
        result.erase(std::remove_if(result.begin(), result.end(), isNoTopic), result.end());
        return result;
    }

private:
    std::unique_ptr<Connection> m_session;
    std::unique_ptr<SessionLog> m_log;
    int m_marks = 0;
};

/// Connected from the start, idle, and nothing of that among what has arrived. However busy the machine, no reply comes
/// too late; who loses some on purpose reconnects impatiently.
class ConnectedFixture : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        session().setReplyTimeout(patientTimeoutMs);
        ASSERT_TRUE(connectTo() && waitUntilIdle());
        bus().clearReceived();
    }
};

/// What a session can be busy with, from its begin.
struct LongTask
{
    const char *name;
    void (*begin)(Connection &);
};
inline void PrintTo(const LongTask &task, std::ostream *out)
{
    *out << task.name;
}

inline constexpr LongTask idle = {"Idle", [](Connection &) {}};
inline constexpr LongTask fullRead = {"FullRead", [](Connection &session) { session.getParams(); }};
inline constexpr LongTask fullWrite = {"FullWrite", [](Connection &s) { s.command(Connection::TaskSetParams); }};
inline constexpr LongTask measuring = {"Measuring", [](Connection &s) { s.command(Connection::TaskMeasure); }};
inline constexpr LongTask stream = {"Stream", [](Connection &s) { s.setStimulus(100, 0.1, -100, 0.1, true); }};
inline constexpr LongTask capture = {"Capture", [](Connection &session) {
                                         session.setupCapture(20000, 3, {true, true, true});
                                         session.command(Connection::TaskInitScope);
                                     }};
inline constexpr LongTask download = {"Download", [](Connection &session) {
                                          capture.begin(session);
                                          session.command(Connection::TaskDownloadScope);
                                      }};

#endif
