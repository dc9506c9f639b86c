// The full read, the full write, and single commands: what goes over the wire, and what is kept.
#include "sessionfixture.h"

#include "catalogue.h"

#include <QRegularExpression>
#include <cmath>

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;
using Fault = sim::LineFault;

namespace {

/// Registers of the catalogue in its order, without those that the drive lacks.
std::vector<int> registersOf(const QString &model, bool writableOnly = false)
{
    const Parameters list = driveParameterCatalogue();
    std::vector<int> result;
    for (int i = 0; i < list.getParamCount(); ++i) {
        const SingleParam param = list.getParam(i);
        if (param.supportedInDevice(model) && !(writableOnly && param.readonly))
            result.push_back(param.addr);
    }
    return result;
}

class Transfer : public ConnectedFixture
{
protected:
    void SetUp() override
    {
        ConnectedFixture::SetUp();
        ASSERT_TRUE(readAll());
        ASSERT_TRUE(waitUntilIdle());
        bus().clearReceived();
    }
    Parameters held() { return log().read.last(); }

    void apply(const Parameters &list)
    {
        session().setParams(list);
        ASSERT_TRUE(runToEnd(Connection::TaskSetParams));
    }
    std::vector<std::string> sentBy(Connection::Task task)
    {
        bus().clearReceived();
        session().command(task);
        EXPECT_TRUE(waitUntilIdle());
        return payloads();
    }
};

class TorvaTransfer : public Transfer
{
    sim::BusOptions busOptions() const override { return {{{"torva", 5}}}; }
};

std::string fourHexDigits(int value)
{
    return hex({std::uint8_t(value >> 8), std::uint8_t(value & 0xff)});
}

} // namespace

TEST_F(Transfer, AFullReadIsOneExchangeARecordInCatalogueOrder)
{
    ASSERT_TRUE(readAll());
    std::vector<std::string> expected;
    for (int address : registersOf("KETA")) {
        // Value, minimum (+ 0x4000) and maximum (+ 0x8000, which is negative in its 16 bits and so in the item).
        expected.push_back(wire("800a 400000 8009 40" + fourHexDigits(address) + "800a 400000 8009 40" +
                                fourHexDigits(address + 0x4000) + "800a 400000 8009 7f" +
                                fourHexDigits(address + 0x8000)));
    }
    EXPECT_THAT(payloads(), ElementsAreArray(expected));
    // The first and the last, typed.
    EXPECT_EQ(expected.front(), wire("800a 400000 8009 40177e 800a 400000 8009 40577e 800a 400000 8009 7f977e"));
    EXPECT_EQ(expected.back(), wire("800a 400000 8009 400390 800a 400000 8009 404390 800a 400000 8009 7f8390"));
    EXPECT_EQ(held().getParam("FBR").value, bus().read(5, 565));
    EXPECT_EQ(held().getParam("CM").value, bus().read(5, 559) - 1);
    EXPECT_EQ(held().getParam("TRF1").value, -1.0) << "a Pro's";
}

TEST_F(TorvaTransfer, WhatATorvaLacksReadsAsMinusOneIsNotWrittenAndIsSaid)
{
    for (const char *name : {"BUILDREVISION", "CEI", "UID", "ZBO", "TRF1", "TRF2", "TRA1", "TRA2"})
        EXPECT_EQ(held().getParam(name).value, -1.0) << name;
    EXPECT_EQ(held().getParam("FWVER").value, 1090.0);
    apply(held());
    EXPECT_THAT(payloads(), Each(Not(StartsWith("823d")))) << "CEI, register 573";
    EXPECT_TRUE(log().errors.isEmpty());

    bus().clearReceived();
    session().command(Connection::TaskMeasure);
    ASSERT_TRUE(runToEnd(Connection::TaskRestartToDFU));
    ASSERT_THAT(log().errors, SizeIs(2));
    EXPECT_EQ(log().errors[0], "Measure function is available only in KETA drive models");
    EXPECT_EQ(log().messages.last().kind, MessageKind::Note);
    EXPECT_TRUE(payloads().empty());
}

TEST_F(Transfer, AFullWriteBeginsWithTheLengthControlThenOneExchangeAWritableRecord)
{
    apply(with({{"KVP", 321}}));
    std::vector<std::string> expected = {wire("800a 00000003")};
    for (int address : registersOf("KETA", true)) {
        const int value = bus().read(5, address); // it holds what has just been written
        expected.push_back(fourHexDigits(address | 0x8000) + fourHexDigits((value >> 16) & 0x3fff) +
                           fourHexDigits(value & 0xffff));
    }
    EXPECT_THAT(payloads(), ElementsAreArray(expected));
    EXPECT_THAT(payloads(), Contains(wire("80ca 00000141"))) << "KVP is register 202";
    EXPECT_EQ(bus().read(5, 202), 321);
    EXPECT_TRUE(log().errors.isEmpty());
    EXPECT_TRUE(log().controlModes.isEmpty());
    // Override slots follow the records.
    apply(with({{"overrideAddr1", 202}, {"overrideVal1", 77}}));
    EXPECT_EQ(payloads().back(), wire("80ca 0000004d"));
    EXPECT_EQ(bus().read(5, 202), 77);
}

TEST_F(Transfer, NoSettingsFileAndNoOverrideEnablesMovesOrRestartsADrive)
{
    // Clearing a fault, 552, sets an enabled drive going.
    Parameters list = with({{"overrideAddr1", 551}, {"overrideAddr2", 552}});
    SingleParam disguised = list.getParam("KVP"); // a file carries its own register for every setting
    disguised.addr = 2533;
    disguised.value = 1;
    list.replaceParam(disguised);
    apply(list);
    EXPECT_EQ(bus().read(5, 2533), 0);
    for (const char *forbidden : {"89e5", "8227", "8228"}) // 2533, 551, 552
        EXPECT_THAT(payloads(), Each(Not(HasSubstr(forbidden))));
    ASSERT_THAT(log().errors, SizeIs(3));
    EXPECT_EQ(log().messages.last().kind, MessageKind::NotWritten);
    EXPECT_EQ(log().errors[0], "KVP was not written: register 2533 is a command to the drive and not a setting.");
    EXPECT_EQ(session().isConnected(), true);
}

TEST_F(Transfer, AChangedControlModeIsAnnouncedOnceTheDriveHasTakenIt)
{
    const int other = held().getParam("CM").value == 1.0 ? 2 : 1;
    apply(with({{"CM", 100}})); // refused
    EXPECT_TRUE(log().controlModes.isEmpty());
    apply(with({{"CM", other}}));
    apply(with({{"CM", other}}));
    EXPECT_THAT(log().controlModes, ElementsAre(other));
}

TEST_F(Transfer, ASetHandedOverDuringAReadIsNotOverwrittenByIt)
{
    bus().setTurnAround(std::chrono::milliseconds(2));
    bus().clearReceived();
    session().getParams();
    ASSERT_TRUE(waitForRequests(10));
    session().setParams(with({{"KVP", 999}}));
    const int before = log().read.size();
    ASSERT_TRUE(waitUntil([&] { return log().read.size() > before; }));
    session().emitParameters();
    ASSERT_TRUE(waitUntil([this] { return !log().loaded.isEmpty(); }));
    EXPECT_EQ(log().loaded.last().getParam("KVP").value, 999.0);
    EXPECT_EQ(session().getActiveParamValue("KVP"), bus().read(5, 202)) << "what is wanted is not what the drive has";
    EXPECT_EQ(log().read.last().getParam("KVP").value, bus().read(5, 202)) << "what was read is the drive's";
}

TEST_F(Transfer, AValueThatTheBusCannotCarryIsNamedAndLeftOut)
{
    const int before = bus().read(5, 202);
    for (double value : {1e15, 536870912.0, -536870913.0, std::nan("")}) {
        log().errors.clear();
        apply(with({{"KVP", value}, {"KVI", 17}}));
        EXPECT_EQ(bus().read(5, 202), before) << value;
        EXPECT_EQ(bus().read(5, 200), 17) << "the rest is written";
        expectToldOnce(MessageKind::NotWritten, StartsWith("KVP was not written: "));
    }
    EXPECT_TRUE(session().isConnected());
}

TEST_F(Transfer, ARefusedWriteIsToldWithItsValueAndTheDrivesLimitsAndTheConnectionGoesOn)
{
    const SingleParam drives = held().getParam("KVP");
    const Parameters list = with({{"KVP", 500000000}, {"CAL", held().getParam("CAL").min}});
    for (int pass = 0; pass < 2; ++pass) { // the second with a question behind every write
        log().errors.clear();
        apply(list);
        expectToldOnce(MessageKind::Refused,
                       AllOf(HasSubstr("* Value too high<br>Occurred while setting parameter: name=KVP, addr=202, "
                                       "GUI value=5e+08, HW value=5e+08"),
                             HasSubstr("This drive: " + std::to_string(int(drives.min)) + " to " +
                                       std::to_string(int(drives.max)))));
        EXPECT_TRUE(session().isConnected());
        EXPECT_EQ(session().getActiveParamValue("KVP"), drives.value) << "what the drive has";
        EXPECT_EQ(bus().read(5, 13), 0) << "nobody else gets the blame";
    }
    EXPECT_THAT(payloads(), Contains(wire("800a 400000 8009 40000d 800d 00000000")));
    EXPECT_EQ(log().statuses.size(), 1) << "connected";
}

TEST_F(Transfer, ARefusedCommandIsToldAtOnceAndTheNextOneGetsNoBlame)
{
    const std::pair<Connection::Task, const char *> cases[] = {
        {Connection::TaskStartHoming, "The drive refused to start homing."}, // it is not enabled
        {Connection::TaskSetIncrementalSetpoint, "The drive refused the setpoint 536870911."},
    };
    session().setTargetSetpoint(536870911); // as far as it goes: there is nothing left to add
    session().command(Connection::TaskSetAbsoluteSetpoint);
    for (const auto &[task, text] : cases) {
        log().errors.clear();
        session().command(task);
        ASSERT_TRUE(runToEnd(Connection::TaskSaveToFlash));
        expectToldOnce(MessageKind::Refused, AllOf(StartsWith(text), HasSubstr("* Invalid param value<br>")));
        EXPECT_TRUE(session().isConnected());
    }
}

TEST_F(Transfer, ErrorsFromBeforeAConnectionGetNobodyTheBlame)
{
    for (int pass = 0; pass < 2; ++pass) { // the second with a question behind every write
        ASSERT_TRUE(leave());
        leaveErrorBit();
        ASSERT_TRUE(connectTo() && runToEnd(Connection::TaskSaveToFlash));
        EXPECT_THAT(log().errors, SizeIs(pass));
        log().statuses.clear();
        if (pass == 0)
            apply(with({{"KVP", 500000000}}));
    }
}

TEST_F(Transfer, AWriteThatBrokeOffSaysWhatSurelyReachedTheDrive)
{
    ASSERT_TRUE(reconnectImpatiently());
    bus().setTurnAround(std::chrono::milliseconds(2));
    session().setParams(held());
    bus().clearReceived();
    session().command(Connection::TaskSetParams);
    ASSERT_TRUE(waitForRequests(8));
    setFault(Fault::Deaf);
    ASSERT_TRUE(waitForDisconnect());
    expectToldOnce(MessageKind::LineLost);
    const QRegularExpression pattern("part of the settings reached the drive\\. The last that surely did is (\\w+)\\.");
    const QRegularExpressionMatch found = pattern.match(log().errors.first());
    ASSERT_TRUE(found.hasMatch()) << qPrintable(log().errors.first());
    // The record behind it was asked for twice, and never answered.
    const int last = held().getParam(found.captured(1)).addr;
    const std::vector<std::string> sent = payloads();
    const auto written = std::find_if(sent.begin(), sent.end(), [&](const std::string &payload) {
        return payload.rfind(fourHexDigits(last | 0x8000), 0) == 0;
    });
    ASSERT_LT(written - sent.begin() + 2, static_cast<long>(sent.size()));
    EXPECT_EQ(*(written + 1), *(written + 2));
}

TEST_F(Transfer, WhatIsWantedChangesNothingAboutWhatTheDriveShows)
{
    bus().set(5, 955, 100);
    session().setParams(with({{"FBR", held().getParam("FBR").value / 2}}));
    ASSERT_TRUE(waitForPolls(2));
    EXPECT_EQ(log().states.last().feedbackResolution, held().getParam("FBR").value);
    EXPECT_EQ(session().getActiveParamValue("FBR"), held().getParam("FBR").value);
    apply(with({{"FBR", held().getParam("FBR").value / 2}}));
    EXPECT_EQ(log().held.last().getParam("FBR").value, held().getParam("FBR").value / 2) << "acknowledged";
}

TEST_F(Transfer, EverySingleFaultOfAReadAndAWriteIsMended)
{
    const double before = held().getParam("MMS").value;
    ASSERT_TRUE(reconnectImpatiently());
    for (Fault::Kind kind : {Fault::Twice, Fault::Flip, Fault::Cut, Fault::Missing, Fault::Late}) {
        for (int at : {0, 30}) {
            spoil(kind, at);
            ASSERT_TRUE(readAll()) << kind;
            EXPECT_EQ(log().read.last().getParam("KVP").value, bus().read(5, 202)) << kind << " at " << at;
            EXPECT_EQ(held().getParam("MMS").value, before);
            spoil(kind, at);
            apply(with({{"KVP", 100 + at}}));
            EXPECT_EQ(bus().read(5, 202), 100 + at) << kind << " at " << at;
        }
    }
    EXPECT_TRUE(log().errors.isEmpty()) << qPrintable(log().errors.join("\n"));
}

TEST_F(Transfer, ValuesAreCompleteOnceEverythingWasReadInThisConnection)
{
    EXPECT_TRUE(session().valuesAreComplete());
    ASSERT_TRUE(leave());
    EXPECT_FALSE(session().valuesAreComplete());
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectTo());
    EXPECT_FALSE(session().valuesAreComplete());
    bus().clearReceived();
    bus().setTurnAround(std::chrono::milliseconds(5));
    const int before = log().read.size();
    session().getParams();
    ASSERT_TRUE(waitForRequests(10));
    setFault(Fault::Cut);
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_EQ(log().read.size(), before) << "a part hands no values to anyone";
    EXPECT_FALSE(session().valuesAreComplete());

    // The end of the next connection is told, too.
    bus().clearFaults();
    bus().setTurnAround(std::chrono::milliseconds(0));
    ASSERT_TRUE(connectTo());
    bus().unplug();
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_TRUE(waitUntil([this] { return log().errors.size() == 2; }));
}

TEST_F(Transfer, CommandsAreTheWritesTheyStandFor)
{
    EXPECT_THAT(sentBy(Connection::TaskSetZero).front(), wire("822a 00000200"));
    EXPECT_THAT(sentBy(Connection::TaskSaveToFlash), ElementsAre(wire("822a 00000001")));
    EXPECT_THAT(sentBy(Connection::TaskAbortHoming), ElementsAre(wire("9d6c 00000000")));
    EXPECT_THAT(sentBy(Connection::TaskClearFaults), ElementsAre(wire("8228 00000000")));
    session().setTargetSetpoint(-5);
    EXPECT_THAT(sentBy(Connection::TaskSetAbsoluteSetpoint), ElementsAre(wire("8227 3ffffffb")));
    EXPECT_THAT(sentBy(Connection::TaskSetIncrementalSetpoint), ElementsAre(wire("8226 3ffffffb")));
    EXPECT_THAT(log().errors, testing::IsEmpty());
    EXPECT_EQ(sentBy(Connection::TaskStartHoming).front(), wire("9d6c 00000001"));
}

TEST_F(Transfer, ForceEnableIsUsedOnceAndNeverByADisable)
{
    session().setDriveEnableStatus(true);
    session().setDriveForceEnableStatus(true);
    EXPECT_THAT(sentBy(Connection::TaskApplyEnableState), ElementsAre(wire("89e5 00000001"), wire("89e6 00000007")));
    EXPECT_THAT(sentBy(Connection::TaskApplyEnableState), ElementsAre(wire("89e5 00000001")));
    session().setDriveForceEnableStatus(true);
    session().setDriveEnableStatus(false);
    EXPECT_THAT(sentBy(Connection::TaskApplyEnableState), ElementsAre(wire("89e5 00000000")));
    EXPECT_THAT(log().disables, ElementsAre(true));

    // It is for the drive that it was asked for.
    session().setDriveForceEnableStatus(true);
    ASSERT_TRUE(leave() && connectTo() && waitUntilIdle());
    session().setDriveEnableStatus(true);
    EXPECT_THAT(sentBy(Connection::TaskApplyEnableState), ElementsAre(wire("89e5 00000001")));

    // Two quick setpoints are two different ones.
    ASSERT_TRUE(waitUntilIdle());
    bus().clearReceived();
    for (int target : {100, 200}) {
        session().setTargetSetpoint(target);
        session().command(Connection::TaskSetAbsoluteSetpoint);
    }
    session().setTargetSetpoint(300);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_THAT(payloads(), ElementsAre(wire("8227 00000064"), wire("8227 000000c8")));
}

TEST_F(Transfer, MeasuringReadsEverythingAgainAndARefusedOneDoesNotPassForTheOneBefore)
{
    leaveErrorBit();
    session().command(Connection::TaskMeasure);
    ASSERT_TRUE(waitUntil([this] { return log().read.size() == 2; }));
    EXPECT_EQ(payloads()[0], wire("800d 00000000")) << "old error bits are no refusal";
    EXPECT_EQ(payloads()[1], wire("822a 00000100"));
    EXPECT_THAT(log().busy, ElementsAre(true, false));
    EXPECT_TRUE(log().errors.isEmpty());
    ASSERT_EQ(bus().read(5, 8104), 800);
    bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.refuseWrites(554, 256); });
    ASSERT_TRUE(runToEnd(Connection::TaskMeasure));
    expectToldOnce(MessageKind::Refused, HasSubstr("Measurement failed."));
    EXPECT_THAT(log().busy, ElementsAre(true, false, true, false));
    EXPECT_EQ(log().unsaved, 1);
    EXPECT_TRUE(session().isConnected());
}
