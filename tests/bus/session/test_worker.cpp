// The worker thread: nobody waits for it, a stop gets through whatever it is doing, and it ends when told to.
#include "sessionfixture.h"

using testing::Contains;
using testing::HasSubstr;

namespace {

const std::string disableWrite = "89e500000000"; // register 2533 := 0

class Worker : public SessionFixture
{
};

const LongTask longTasks[] = {fullRead, fullWrite, download, stream};

const LongTask waitingTasks[] = {
    idle,
    measuring,
    {"Restarting", [](Connection &session) { session.command(Connection::TaskRestartDrive); }},
    {"Scanning",
     [](Connection &session) {
         session.command(Connection::TaskDisconnect);
         session.getListOfBusNodes("COM1");
     }},
};

std::string nameOf(const testing::TestParamInfo<LongTask> &info)
{
    return info.param.name;
}

class DuringATask : public SessionFixture, public testing::WithParamInterface<LongTask>
{
};

class EndingATask : public SessionFixture, public testing::WithParamInterface<LongTask>
{
};

} // namespace

TEST_F(Worker, SettersAndCommandsReturnAtOnceWhileTheDriveAnswersNothing)
{
    session().setReplyTimeout(400);
    ASSERT_TRUE(connectTo());
    bus().setFault({sim::LineFault::Deaf});
    bus().clearReceived();
    session().getParams();
    ASSERT_TRUE(waitForRequests(1)); // the worker now waits for a reply
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 200; ++i) {
        session().setParams(Parameters());
        session().setTargetSetpoint(i);
        session().setStimulus(1, 1, 2, 1, i % 2);
        session().setupCapture(1000, 0, {true});
        session().setDriveEnableStatus(false);
        session().command(Connection::TaskApplyEnableState, true);
        session().command(Connection::TaskSetIncrementalSetpoint, true);
        session().checkErrors();
        session().getActiveParamValue("KVP");
        session().getStimulus();
    }
    EXPECT_LT(timer.elapsed(), 500);
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_EQ(log().errors.size(), 1);
}

TEST_P(DuringATask, ADisableIsTheNextThingOnTheLine)
{
    session().setReplyTimeout(patientTimeoutMs);
    ASSERT_TRUE(connectTo() && readAll());
    bus().setTurnAround(std::chrono::milliseconds(3));
    bus().clearReceived();
    GetParam().begin(session());
    ASSERT_TRUE(waitForRequests(6));
    disable();
    const std::size_t asked = bus().received().size();
    ASSERT_TRUE(waitUntil([this] { return !log().disables.isEmpty(); }));
    EXPECT_TRUE(log().disables.first());
    // What was on its way when it was asked for, and with a time-out's luck one more.
    const std::vector<std::string> sent = payloadsOf(bus().received());
    const auto found = std::find(sent.begin(), sent.end(), disableWrite);
    ASSERT_NE(found, sent.end());
    EXPECT_LE(found - sent.begin(), asked + 2);
    ASSERT_TRUE(waitUntil([this] { return !log().enabled.isEmpty() && !log().enabled.last(); }));
    EXPECT_TRUE(log().errors.isEmpty());
}
INSTANTIATE_TEST_SUITE_P(Any, DuringATask, testing::ValuesIn(longTasks), nameOf);

TEST_F(Worker, ADisableThatNothingAcknowledgesIsSentThreeTimesAndTold)
{
    session().setReplyTimeout(400);
    ASSERT_TRUE(connectTo());
    enable();
    ASSERT_TRUE(bus().waitForRegister(5, 2533, 1));
    ASSERT_TRUE(waitUntilIdle());
    bus().clearReceived();
    setFault(sim::LineFault::Deaf);
    disable();
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_THAT(log().outcomes, testing::ElementsAre(DisableOutcome::NoAnswer));
    EXPECT_THAT(log().disables, testing::ElementsAre(false));
    EXPECT_EQ(bus().read(5, 2533), 1);
    EXPECT_EQ(received(disableWrite), 3);
    expectToldOnce(MessageKind::UnconfirmedStop,
                   testing::StartsWith("<b>The drive may still be powered.</b> Esc tries to disable it; the "
                                       "sure way is the machine's own stop.<br>"));
}

TEST_F(Worker, ADisableIsSentAlsoWhereTheLineCountsAsDead)
{
    session().setReplyTimeout(500);
    ASSERT_TRUE(connectTo());
    bus().setTurnAround(std::chrono::milliseconds(50));
    session().setStimulus(100, 1, -100, 1, true);
    constexpr int upload = 52;
    ASSERT_TRUE(waitForPackets(upload));
    setFault(sim::LineFault::Deaf);
    bus().clearReceived();
    ASSERT_TRUE(waitForPackets(upload, 3)); // the last that this task sends
    disable();
    bus().clearFaults();
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_THAT(log().disables, testing::ElementsAre(true));
    EXPECT_EQ(received(disableWrite), 1);
    EXPECT_EQ(packetsIn(bus().received(), upload), 3) << "and the task is still over";
}

TEST_F(Worker, ALateReplyToSomethingElseDoesNotAcknowledgeADisable)
{
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectTo() && waitUntilIdle());
    bus().setFaults({{sim::LineFault::Late, tooLateMs, 0, 1}, {sim::LineFault::Deaf}});
    bus().clearReceived();
    ASSERT_TRUE(waitForRequests(1)); // a poll
    disable();
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_THAT(log().disables, testing::ElementsAre(false));
}

TEST_F(Worker, ADisableIsServedInsideAPause)
{
    ASSERT_TRUE(connectTo());
    session().setPauseScale(1); // eight seconds of measuring
    session().command(Connection::TaskMeasure);
    ASSERT_TRUE(waitUntil([this] { return log().busy.size() == 1; }));
    disable();
    ASSERT_TRUE(waitUntil([this] { return !log().disables.isEmpty(); }, 4000));
    EXPECT_EQ(log().busy.size(), 1) << "still measuring";
}

TEST_F(Worker, ARestartingDriveIsToldToDisableUntilItHearsIt)
{
    sim::BusOptions slowly;
    slowly.restartTime = std::chrono::milliseconds(400);
    startBus(slowly);
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectTo());
    session().setPauseScale(0.4); // 1.4 s
    session().command(Connection::TaskRestartDrive);
    ASSERT_TRUE(waitUntil([this] { return log().busy.size() == 1; }));
    disable();
    ASSERT_TRUE(waitUntil([this] { return log().busy.size() == 2; }));
    EXPECT_THAT(log().disables, testing::ElementsAre(true));
    EXPECT_TRUE(log().errors.isEmpty());
    EXPECT_TRUE(session().isConnected());
}

TEST_F(Worker, PollsAnIdleDriveAndSaysWhatHasChanged)
{
    bus().set(5, 553, 32768 + 4096); // permanent stop
    bus().set(5, 957, 50);
    ASSERT_TRUE(connectTo());
    ASSERT_TRUE(waitUntil([this] { return log().statusPanels.size() >= 3; }));
    EXPECT_EQ(log().restartSuggestions, 1);
    EXPECT_THAT(log().setpoints, testing::ElementsAre(50.0));
    EXPECT_THAT(log().statusPanels.last().toStdString(), HasSubstr("&#9679;&nbsp;&nbsp;Permanent stop"));
    EXPECT_EQ(log().inputPanels.size(), log().statusPanels.size());

    bus().set(5, 553, 4096);
    bus().set(5, 957, -7);
    session().setWatchedParameter(202);
    ASSERT_TRUE(waitUntil([this] { return log().setpoints.size() == 2; }));
    EXPECT_EQ(log().setpoints.last(), -7.0);
    const std::string watched = "Param 202&nbsp;&nbsp;" + std::to_string(bus().read(5, 202)) + "<br>";
    ASSERT_TRUE(waitUntil([&] { return log().faultPanels.last().contains(QString::fromStdString(watched)); }));
    bus().set(5, 553, 32768);
    ASSERT_TRUE(waitUntil([this] { return log().restartSuggestions == 2; }));
}

TEST_P(EndingATask, ComesBeforeTheThreadWouldBeTerminated)
{
    for (bool answers : {true, false}) {
        newSession();
        bus().clearFaults();
        ASSERT_TRUE(connectTo());
        session().setPauseScale(1);
        if (!answers)
            setFault(sim::LineFault::Deaf);
        bus().clearReceived();
        GetParam().begin(session());
        ASSERT_TRUE(waitForRequests(1));
        QElapsedTimer timer;
        timer.start();
        newSession(); // destroys the one before
        EXPECT_LT(timer.elapsed(), 4500) << "it would be terminated after 5 s";
        bus().powerCycle();
    }
}
INSTANTIATE_TEST_SUITE_P(Any, EndingATask, testing::ValuesIn(longTasks), nameOf);
INSTANTIATE_TEST_SUITE_P(Waiting, EndingATask, testing::ValuesIn(waitingTasks), nameOf);

TEST_F(Worker, ClosingOnABabblingLineEndsInTime)
{
    for (bool withADisable : {false, true}) {
        newSession();
        bus().clearFaults();
        bus().setTurnAround(std::chrono::milliseconds(0));
        ASSERT_TRUE(connectTo());
        ASSERT_TRUE(waitUntilIdle()); // connecting ends with dropping what error bits it finds
        leaveErrorBit();
        session().checkErrors(); // from this error on every write is followed by a question
        ASSERT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); }));
        ASSERT_TRUE(readAll());
        bus().setTurnAround(std::chrono::milliseconds(10));
        session().command(Connection::TaskSetParams);
        bus().clearReceived();
        ASSERT_TRUE(waitForRequests(5));
        setFault(sim::LineFault::Noise);
        bus().clearReceived();
        ASSERT_TRUE(waitForRequests(1));
        if (withADisable)
            disable();
        QElapsedTimer timer;
        timer.start();
        newSession();
        EXPECT_LT(timer.elapsed(), withADisable ? 4500 : 3200) << "it would be terminated after 5 s";
    }
}

TEST_F(Worker, LeavingCarriesOutWhatWasChosenOnTheWayOut)
{
    ASSERT_TRUE(connectTo() && readAll());
    session().setParams(with({{"KVP", 432}}));
    session().getParams();
    session().command(Connection::TaskSetParams);
    session().command(Connection::TaskSaveToFlash);
    newSession();
    EXPECT_EQ(bus().read(5, 202), 432);
    EXPECT_THAT(payloads(), Contains(wire("822a 00000001")));
    EXPECT_EQ(payloads().back(), wire("800f 00000000"));
}

TEST_F(Worker, SettingsTravelThroughAFile)
{
    ASSERT_TRUE(connectTo() && readAll());
    session().setParams(with({{"KVP", 123}}));
    session().setSettingsFileName("saved.drc");
    session().command(Connection::TaskSaveSettingsFile);
    session().setParams(with({{"KVP", 456}})); // after the save was asked for
    session().command(Connection::TaskLoadSettingsFile);
    ASSERT_TRUE(waitUntil([this] { return !log().loaded.isEmpty(); }));
    EXPECT_EQ(log().loaded.last().getParam("KVP").value, 123.0);
    EXPECT_TRUE(log().errors.isEmpty());

    session().setSettingsFileName(QDir::currentPath()); // a folder
    session().command(Connection::TaskLoadSettingsFile);
    session().command(Connection::TaskSaveSettingsFile);
    ASSERT_TRUE(waitUntil([this] { return log().errors.size() == 2; }));
    EXPECT_THAT(log().loaded, testing::SizeIs(1));
    EXPECT_TRUE(session().isConnected());
}
