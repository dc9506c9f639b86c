// The operations one by one, on a line of the virtual bus and without a thread.
#include "sessionfixture.h"

#include "catalogue.h"
#include "drivecommands.h"
#include "parametertransfer.h"
#include "statusmonitor.h"
#include "stimulusstream.h"
#include "stopservice.h"

#include <QSignalSpy>

using testing::ElementsAre;
using testing::SizeIs;
using Fault = sim::LineFault;

namespace {

const std::string enables = "89e500000001";
const std::string disables = "89e500000000";

class Operations : public VirtualBusFixture
{
protected:
    void SetUp() override
    {
        VirtualBusFixture::SetUp();
        data.wanted.parameters = data.drive = driveParameterCatalogue();
        data.connected = true;
        data.deviceType = 11000;
        ASSERT_TRUE(with.line.open(port(), shortTimeoutMs));
        with.line.setNodeAddress(DriveAddress);
        with.drive.setAsksAgain(true);
    }
    int received(const std::string &payloadStart)
    {
        int count = 0;
        for (const std::string &payload : payloadsOf(bus().received()))
            count += payload.rfind(payloadStart, 0) == 0;
        return count;
    }
    void setFault(Fault fault) { bus().setFault(fault); }
    void beginTask()
    {
        with.line.clearStatus();
        with.line.startTask();
    }
    /// What was told since the last look.
    std::vector<MessageKind> told()
    {
        std::vector<MessageKind> kinds;
        while (!messages.isEmpty())
            kinds.push_back((last = messages.takeFirst().at(0).value<Message>()).kind);
        return kinds;
    }
    void askToDisable()
    {
        QueuedTask disable;
        disable.task = SessionTasks::TaskApplyEnableState;
        queue.push(disable);
    }

    SessionData data;
    TaskQueue queue;
    SessionEvents out;
    QSignalSpy messages{&out, &SessionEvents::message};
    Message last;
    OperationContext with{data, queue, out};
    StatusMonitor monitor{with};
    StopService stops{with, [this] { return monitor.poll(); }};
    StimulusStream stream{with};
    DriveCommands commands{with, stops, stream};
};

} // namespace

TEST_F(Operations, NothingIsForcedBehindAnEnableThatFailedOrPastADisable)
{
    const std::string refused = "refused";
    const std::tuple<std::string, std::function<void()>, int> cases[] = {
        {"well", [] {}, 1},
        {"lost",
         [this] {
             setFault(Fault{Fault::Missing, 0, 0, 1});
         },
         0},
        {refused, [this] { bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.refuseWrites(2533, 1); }); }, 0},
        {"disable waits", [this] { askToDisable(); }, 0},
        {"disable served before the enable's outcome is known",
         [this] {
             setFault({Fault::Missing, 0, 1, 1}); // the question for error bits, behind which there is a pause
             askToDisable();
         },
         0},
    };
    for (const auto &[name, prepare, forced] : cases) {
        bus().clearFaults();
        bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.acceptWrites(); });
        bus().clearReceived();
        prepare();
        commands.applyEnableState({true, true});
        EXPECT_EQ(received(enables), 1) << name;
        EXPECT_EQ(received(disables) > 0, forced == 0 && name != refused) << name;
        EXPECT_EQ(received("89e600"), forced) << name;
        beginTask();
        bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.write(2533, 0); });
    }
}

TEST_F(Operations, AnEnableThatWasUndoneLeavesNoRefusalForTheNextOne)
{
    setFault({Fault::Missing, 0, 0, 1});
    commands.applyEnableState({true, false}); // taken back also by 2534 := 0, which a drive that was not forced refuses
    commands.applyEnableState({true, false});
    EXPECT_THAT(told(), ElementsAre(MessageKind::Undone));
    EXPECT_EQ(bus().read(5, 2533), 1);
}

TEST_F(Operations, ADisableInsideTheUndoingOfAnEnableLeavesThatAStop)
{
    // The enable, what is read after both disables, and the disable that is served before that is read again: three
    // failures in a row, after which only a stop is still sent.
    bus().setFaults({{Fault::Missing, 0, 0, 1}, {Fault::Missing, 0, 1, 1}, {Fault::Missing, 0, 0, 1}});
    askToDisable();
    commands.applyEnableState({true, false});
    EXPECT_THAT(told(), ElementsAre(MessageKind::Undone)) << "it was seen to be disabled";
    EXPECT_EQ(received(disables), 3) << "with 2534 := 0, then the one that was asked for, twice";
}

TEST_F(Operations, APollWithoutAGoodReplyCountsForNothing)
{
    ASSERT_TRUE(monitor.poll());
    const DriveState before = monitor.state();
    QSignalSpy enabled(&out, &SessionEvents::enableStatePolled), panels(&out, &SessionEvents::faultRegisterUpdated);
    bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.write(2533, 1); });
    for (Fault::Kind kind : {Fault::Cut, Fault::Missing, Fault::Flip}) {
        setFault({kind, 9, 0, Fault::unlimited});
        beginTask();
        EXPECT_FALSE(monitor.poll()) << Fault::name(kind);
        EXPECT_EQ(monitor.state().sequence, before.sequence);
    }
    EXPECT_EQ(enabled.count() + panels.count(), 0) << "its zeros would mean: not enabled";
    bus().clearFaults();
    beginTask();
    EXPECT_TRUE(monitor.poll());
    EXPECT_EQ(monitor.state().sequence, before.sequence + 1);
}

TEST_F(Operations, TheFaultPanelEndsWithTheLegendForTheMarksOfTheInputs)
{
    QStringList order;
    QString faults;
    QObject::connect(&out, &SessionEvents::physInputsUpdated, [&] { order << "inputs"; });
    QObject::connect(&out, &SessionEvents::statusRegisterUpdated, [&] { order << "status"; });
    QObject::connect(&out, &SessionEvents::faultRegisterUpdated, [&](const QString &html) {
        order << "faults";
        faults = html;
    });
    ASSERT_TRUE(monitor.poll()); // not enabled, which only the inputs mark
    EXPECT_EQ(order.join(' '), "inputs status faults");
    EXPECT_TRUE(faults.endsWith("</b> = reason for inactivity</font>")) << qPrintable(faults);
}

TEST_F(Operations, ALineIsDeadAfterThreeUnansweredExchanges)
{
    setFault({Fault::Deaf});
    with.drive.setAsksAgain(false);
    long value = 0;
    for (int i = 0; i < 6; ++i)
        with.drive.readParameters(6020, value);
    EXPECT_EQ(bus().received().size(), 3u);
    with.line.startTask();
    with.drive.readParameters(6020, value);
    EXPECT_EQ(bus().received().size(), 4u);
}

TEST_F(Operations, APureReadIsAskedThreeTimesAndASettingTwice)
{
    long value = 0;
    setFault({Fault::Cut, 4, 0, 2});
    EXPECT_EQ(with.drive.readParameters(6020, value), ZB_OK);
    EXPECT_EQ(value, 11000);
    EXPECT_TRUE(with.line.isClean());
    EXPECT_EQ(with.line.meter().repeats, 2);
    EXPECT_EQ(with.line.meter().errors, 2);
    // What was mended does not count against the task, however often.
    const Fault next{Fault::Cut, 4, 1, 1};
    bus().setFaults({{Fault::Cut, 4, 0, 1}, next, next, next, next});
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(with.drive.readParameters(6020, value), ZB_OK) << i;
    bus().clearReceived();
    with.line.startTask();
    setFault({Fault::Cut, 4, 0, 2});
    EXPECT_EQ(with.drive.writeSetting(415, 300), Reply::None);
    EXPECT_FALSE(with.line.isClean());
    EXPECT_EQ(bus().received().size(), 2u);
}

TEST_F(Operations, OnlyTheIdentityIsReadFromABootloader)
{
    data.firmwareUpgradeMode = true;
    ParameterTransfer(with).getParams();
    EXPECT_EQ(bus().received().size(), 3u) << "type, serial number, unique id: what a Keta's bootloader knows";
    EXPECT_EQ(data.drive.getParam("HWTYPE").value, 11000);
    EXPECT_EQ(data.drive.getParam("KVP").max, 0.0) << "settings are left as they were";
    EXPECT_FALSE(data.valuesComplete);
}

TEST_F(Operations, WithTheLatchSetEveryTaskEndsWithAQuestionForErrors)
{
    bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.write(6020, 1); }); // refused: its bit stays
    with.errors.finishTask();
    EXPECT_EQ(bus().received().size(), 0u);
    with.errors.setLatch(true);
    with.errors.finishTask();
    EXPECT_EQ(bus().received().size(), 1u);
    EXPECT_THAT(told(), ElementsAre(MessageKind::Refused));
    EXPECT_TRUE(queue.isEmpty()) << "a refusal is an answer: the connection goes on";
}

TEST_F(Operations, AStreamIsSetUpOnceInAConnection)
{
    data.stimulus.set(100, 1, 0, 1, true);
    EXPECT_EQ(stream.state(), Stream::Fresh);
    stream.streamStimulus();
    EXPECT_EQ(stream.state(), Stream::Running);
    EXPECT_TRUE(stream.stop());
    EXPECT_EQ(stream.state(), Stream::Stopped);
    bus().clearReceived();
    data.stimulus.set(100, 1, 0, 1, true);
    stream.streamStimulus();
    EXPECT_EQ(received("800a400000800940"), 1) << "asked for room, and told no period";
    setFault({Fault::Deaf});
    EXPECT_FALSE(stream.stop());
    EXPECT_EQ(stream.state(), Stream::Running) << "as far as anybody knows";
    with.errors.finishTask();
    EXPECT_THAT(told(), SizeIs(1)) << "the only one about a stop that is tried again and may fail again";
    EXPECT_TRUE(last.text.startsWith("<b>The drive may still be powered.</b>") &&
                last.text.contains("The test stimulus was running"))
        << qPrintable(last.text);
    stream.reset();
    EXPECT_EQ(stream.state(), Stream::Fresh);
    EXPECT_FALSE(data.stimulusIsActive());

    // A disable that waits comes before its first setpoint, and ends it.
    bus().clearFaults();
    beginTask();
    bus().clearReceived();
    data.stimulus.set(100, 1, 0, 1, true);
    askToDisable();
    stream.streamStimulus();
    EXPECT_EQ(received(disables), 1);
    EXPECT_EQ(stream.state(), Stream::Fresh);
}

TEST_F(Operations, AFullReadOnADamagedLineSucceeds)
{
    // One reply in a hundred damaged, in thirty reads: each of the about two thousand replies has its chance.
    std::vector<Fault> faults;
    std::minstd_rand random(7);
    for (int i = 0; i < 400; ++i)
        faults.push_back({i % 8 ? Fault::Flip : Fault::Cut, 5, static_cast<int>(random() % 199), 1});
    bus().setFaults(faults);
    ParameterTransfer transfer(with);
    QSignalSpy read(&out, &SessionEvents::parametersRetreived);
    for (int i = 0; i < 30; ++i) {
        beginTask();
        transfer.getParams();
    }
    EXPECT_GE(read.count(), 29);
    EXPECT_GT(with.line.meter().errors, 10) << "the line was damaged";
}
