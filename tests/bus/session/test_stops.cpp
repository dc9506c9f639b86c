// Every operation that promises a stop, with every single fault at every request: on a line that goes on working no
// drive is left enabled. And a stop without a connection.
#include "sessionfixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using Fault = sim::LineFault;

namespace {

const std::string bothDisables = "89e50000000089e600000000"; // 2533 := 0, 2534 := 0

const Fault::Kind singleFaults[] = {Fault::Missing, Fault::Deaf, Fault::Cut, Fault::Flip, Fault::Late, Fault::Twice};

class Stops : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        session().setReplyTimeout(shortTimeoutMs);
    }
    bool isEnabled() { return (bus().read(5, 553) & 16) != 0 || bus().read(5, 2533) != 0; }
    void setEnabled(bool on)
    {
        bus().withDrive(5, [on](sim::VirtualDrive &drive) { drive.write(2533, on); });
        ASSERT_TRUE(waitUntil([&] { return isEnabled() == on; }));
    }
    /// Connected and quiet; the drive enabled by the session's own poll, too.
    void begin(bool enabled)
    {
        bus().clearFaults();
        if (session().isConnected()) {
            ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
        }
        setEnabled(enabled);
        ASSERT_TRUE(connectTo());
        ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus));
        log().outcomes.clear();
        log().errors.clear();
        log().messages.clear();
        bus().clearReceived();
    }
    /// The next replies, and no poll in between: it has its usual period again.
    void hit(Fault::Kind kind, int request)
    {
        session().setPauseScale(1);
        spoil(kind, request);
    }
    /// Connected, enabled and moving.
    void beginStream()
    {
        begin(true);
        stream.begin(session());
        ASSERT_TRUE(bus().waitForRegister(5, 6, [](int free) { return free < 1500; }));
        ASSERT_TRUE(waitUntilIdle());
    }
    /// Asks to disable; what came of it.
    DisableOutcome outcomeOfADisable()
    {
        const int before = log().outcomes.size();
        disable();
        EXPECT_TRUE(waitUntil([&] { return log().outcomes.size() > before; }));
        EXPECT_EQ(log().outcomes.size(), before + 1);
        return log().outcomes.value(before, DisableOutcome::NoAnswer);
    }
    /// The first request is lost, and what follows it at once is the stop.
    void expectDisableBehindTheFirst(const std::string &stop)
    {
        ASSERT_TRUE(waitForRequests(1));
        EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
        const auto sent = bus().received();
        ASSERT_GE(sent.size(), 2u);
        EXPECT_EQ(hex(sent[1].packet.payload), stop);
        EXPECT_LT(sent[1].time - sent[0].time, std::chrono::milliseconds(2 * shortTimeoutMs))
            << "a late reply is not awaited";
        EXPECT_FALSE(isEnabled());
    }
    MessageKind lastKind() { return log().messages.isEmpty() ? MessageKind::Note : log().messages.last().kind; }
};

} // namespace

TEST_F(Stops, ADisableLeavesNoDriveEnabledWhateverHappensToOneReply)
{
    for (Fault::Kind kind : singleFaults) {
        for (int request = 0; request < 3; ++request) {
            begin(true);
            hit(kind, request);
            EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled) << kind << " at " << request;
            EXPECT_FALSE(isEnabled()) << kind << " at " << request;
            EXPECT_TRUE(session().isConnected()) << "one damaged reply is no end";
            EXPECT_TRUE(log().errors.isEmpty()) << qPrintable(log().errors.join('\n'));
        }
    }
}

TEST_F(Stops, AnEnableIsConfirmedOrUndoneWhateverHappensToOneReply)
{
    int undone = 0;
    for (Fault::Kind kind : singleFaults) {
        for (int request = 0; request < 3; ++request) {
            begin(false);
            hit(kind, request);
            enable();
            ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus));
            const bool confirmed = log().messages.isEmpty();
            EXPECT_EQ(isEnabled(), confirmed) << kind << " at " << request;
            EXPECT_EQ(received(wire("89e5 00000001")), 1) << "never repeated";
            if (confirmed)
                continue;
            ++undone;
            EXPECT_EQ(lastKind(), MessageKind::Undone);
            EXPECT_THAT(log().outcomes, ElementsAre(DisableOutcome::Disabled));
            EXPECT_THAT(log().errors.last().toStdString(), HasSubstr("It shows that it is not enabled."));
        }
    }
    EXPECT_GE(undone, 5) << "each kind but the doubled reply hits the enable itself";
}

TEST_F(Stops, ADisableWithoutAConnectionLeavesNoDriveEnabledWhateverHappensToOneReply)
{
    session().setDisableTarget(port(), DriveAddress); // nothing was ever connected
    for (Fault::Kind kind : singleFaults) {
        for (int request = 0; request < 3; ++request) {
            bus().clearFaults();
            setEnabled(true);
            log().outcomes.clear();
            bus().clearReceived();
            hit(kind, request);
            EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled) << kind << " at " << request;
            EXPECT_FALSE(isEnabled()) << kind << " at " << request;
            EXPECT_THAT(payloads().front(), bothDisables) << "before anything else";
            EXPECT_LE(received(bothDisables), 3);
            ASSERT_TRUE(waitUntil([this] { return !log().messages.isEmpty(); }));
            EXPECT_EQ(lastKind(), MessageKind::Note);
        }
    }
    EXPECT_THAT(log().errors.last().toStdString(),
                HasSubstr("was disabled without a connection. It shows that it is not"));
    EXPECT_FALSE(session().isConnected());
}

TEST_F(Stops, ADisableWithoutAConnectionSaysWhatTheDriveShows)
{
    disable();
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_TRUE(log().outcomes.isEmpty() && payloads().empty()) << "no drive is known";

    begin(true); // connecting makes it known
    setFault(Fault::Deaf);
    ASSERT_TRUE(waitForDisconnect());
    expectToldOnce(MessageKind::LineLost, StartsWith("<b>The drive may still be powered.</b> Esc tries to disable it"));
    EXPECT_TRUE(isEnabled()) << "nothing disables a drive by itself";
    EXPECT_EQ(received(wire("89e5 00000000")) + received(bothDisables), 0);

    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::NoAnswer);
    ASSERT_TRUE(waitUntil([this] { return lastKind() == MessageKind::UnconfirmedStop; }));
    EXPECT_EQ(received(bothDisables), 3);

    bus().unplug();
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::NoPort);
    ASSERT_TRUE(waitUntil([this] { return log().messages.size() == 3; }));
    EXPECT_EQ(lastKind(), MessageKind::UnconfirmedStop);

    repairLine();
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
    EXPECT_FALSE(isEnabled());
    EXPECT_TRUE(connectTo()) << "and the next connection works";
}

TEST_F(Stops, ADriveThatStaysEnabledIsNeverCalledDisabledWithAConnectionOrWithout)
{
    begin(true);
    bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.refuseWrites(2533, 0); });
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::StillEnabled);
    ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::StillEnabled);
    ASSERT_TRUE(waitUntil([this] { return lastKind() == MessageKind::UnconfirmedStop; }));
    EXPECT_THAT(log().errors.last().toStdString(), HasSubstr("answers, but shows that it is still enabled"));
    EXPECT_TRUE(isEnabled());
    bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.acceptWrites(); });
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
}

TEST_F(Stops, AnEnableThatCouldNotBeTakenBackIsTakenBackThroughANewOpeningOfThePort)
{
    begin(false);
    // Executed, but the answer is lost; then nothing is heard until the connection has ended.
    bus().setFaults({{Fault::Missing, 4, 0, 1}, {Fault::Deaf, 4, 0, 5}});
    enable();
    ASSERT_TRUE(waitUntil([this] { return log().outcomes.size() == 2; }));
    EXPECT_THAT(log().outcomes, ElementsAre(DisableOutcome::NoAnswer, DisableOutcome::Disabled));
    EXPECT_FALSE(isEnabled());
    EXPECT_FALSE(session().isConnected());
}

TEST_F(Stops, AStreamIsStoppedThroughANewOpeningOfThePort)
{
    beginStream();
    bus().setFaults({{Fault::Deaf, 4, 0, 6}}); // a poll, the stop and the watchdog
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_TRUE(bus().waitForRegister(5, 6, 2048, std::chrono::seconds(2)));
    EXPECT_TRUE(isEnabled()) << "nothing disables a drive by itself";
}

TEST_F(Stops, ADisableOnTheWayOutOpensThePortAnew)
{
    begin(true);
    bus().setFaults({{Fault::Missing, 4, 0, 3}});
    ASSERT_TRUE(waitForDisconnect());
    disable();
    newSession(); // destroys the one before
    EXPECT_FALSE(isEnabled());
    EXPECT_EQ(received(bothDisables), 1);
}

TEST_F(Stops, ADisableDoesNotWaitForAConnectionThatDoesNotComeAbout)
{
    begin(true);
    ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
    bus().setFault({Fault::Deaf, 4, 0, 1});
    bus().clearReceived();
    session().connectDevice(port(), DriveAddress);
    expectDisableBehindTheFirst(bothDisables);
}

TEST_F(Stops, ADriveThatCouldNotBeConnectedToCanBeDisabledAllTheSame)
{
    setEnabled(true);
    setFault(Fault::Deaf);
    EXPECT_FALSE(connectTo(4)); // a slip of the finger
    EXPECT_FALSE(connectTo());
    bus().clearFaults();
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
    EXPECT_FALSE(isEnabled());
    // From here on a drive is known that may move: it stays the one to be stopped.
    begin(true);
    session().connectDevice(port(), 4);
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
}

TEST_F(Stops, ADisableDoesNotWaitForTheEndOfASearch)
{
    begin(true);
    ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
    bus().clearReceived();
    session().getListOfBusNodes(port());
    ASSERT_TRUE(waitForRequests(1));
    const std::size_t asked = bus().received().size();
    EXPECT_EQ(outcomeOfADisable(), DisableOutcome::Disabled);
    const std::vector<std::string> sent = payloads();
    const auto served = std::find(sent.begin(), sent.end(), bothDisables);
    ASSERT_NE(served, sent.end());
    EXPECT_LE(served - sent.begin(), asked + 2) << "of 25 addresses";
    ASSERT_TRUE(waitUntil([this] { return !log().nodes.isEmpty(); })) << "the search goes on";
    ASSERT_THAT(log().nodes.last(), SizeIs(1));
    EXPECT_EQ(log().nodes.last().first().address, 5);
}

TEST_F(Stops, AStreamDoesNotOutliveItsConnectionWhateverHappensToOneReply)
{
    const LongTask ends[] = {
        {"switched off", [](Connection &s) { s.setStimulus(100, 0.1, -100, 0.1, false); }},
        {"disconnected", [](Connection &s) { s.command(Connection::TaskDisconnect); }},
        {"restarted", [](Connection &s) { s.command(Connection::TaskRestartDrive); }},
    };
    for (const auto &each : ends) {
        for (Fault::Kind kind : singleFaults) {
            beginStream();
            hit(kind, 0);
            each.begin(session());
            EXPECT_TRUE(bus().waitForRegister(5, 6, 2048, std::chrono::seconds(3))) << each.name << " " << kind;
            session().setStimulus(100, 0.1, -100, 0.1, false);
            ASSERT_TRUE(waitUntilIdle());
            bus().powerCycle();
            if (session().isConnected()) {
                ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
            }
        }
    }
}

TEST_F(Stops, AbortHomingSurvivesADisconnectAnErrorAndQuitting)
{
    const std::string abort = wire("9d6c 00000000");
    for (const std::string end : {"disconnect", "error", "quit"}) {
        begin(false);
        if (end == "error")
            bus().setFaults({{Fault::Missing, 4, 0, 2}});
        else
            bus().setTurnAround(std::chrono::milliseconds(20));
        session().getParams(); // busy with this
        ASSERT_TRUE(waitForRequests(1));
        session().command(Connection::TaskAbortHoming);
        if (end == "disconnect")
            session().command(Connection::TaskDisconnect);
        else if (end == "quit")
            newSession();
        EXPECT_TRUE(waitForPayload(abort)) << end;
        bus().setTurnAround(std::chrono::milliseconds(0));
        session().setReplyTimeout(shortTimeoutMs);
        ASSERT_TRUE(waitUntilIdle());
    }
}

TEST_F(Stops, ThePollGoesOnAndCountsWhateverHappensToOneReply)
{
    for (Fault::Kind kind : singleFaults) {
        begin(true);
        const LineMeter before = session().lineMeter();
        hit(kind, 0);
        for (int poll = 0; poll < 3; ++poll)
            ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus));
        EXPECT_TRUE(session().isConnected());
        EXPECT_TRUE(log().errors.isEmpty());
        // On a busy machine one more reply may come too late.
        const auto isOrOneMore = [](int count) { return testing::AnyOf(count, count + 1); };
        const LineMeter now = log().states.last().line;
        EXPECT_THAT(now.errors - before.errors, isOrOneMore(kind == Fault::Twice ? 0 : 1)) << kind;
        EXPECT_THAT(now.repeats - before.repeats, isOrOneMore(kind == Fault::Twice ? 0 : 1)) << kind;
        EXPECT_THAT(now.strays - before.strays, isOrOneMore(kind == Fault::Twice || kind == Fault::Late)) << kind;
    }
    const DriveState &last = log().states.last();
    EXPECT_EQ(last.sequence, log().states.at(log().states.size() - 2).sequence + 1);
    EXPECT_TRUE(last.isEnabled() && last.isSoftEnabled());
}

TEST_F(Stops, AStopGetsThroughBeforeALostReplyIsAskedForAgain)
{
    begin(true);
    bus().setFaults({{Fault::Deaf, 4, 0, 1}}); // to a poll
    expectDisableBehindTheFirst(wire("89e5 00000000"));
}
