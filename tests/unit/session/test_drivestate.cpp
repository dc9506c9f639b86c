#include "drivestate.h"
#include "withvalues.h"

#include <gtest/gtest.h>

#include <variant>

namespace {

DriveState wanting(bool debugValues, int watchedAddress, bool firmwareUpgradeMode = false)
{
    DriveState state;
    state.debugValuesShown = debugValues;
    state.watchedAddress = watchedAddress;
    state.firmwareUpgradeMode = firmwareUpgradeMode;
    return state;
}

/// What a running drive answers, in the order of the poll, and what comes of it in display units. A register that the
/// poll reads besides breaks nothing here.
const struct
{
    int address;
    qint32 returned;
    std::variant<qint32 DriveState::*, double DriveState::*> member;
    double expected;
} liveValues[] = {
    {552, 2, &DriveState::faultRegister, 2},          {553, 24, &DriveState::statusRegister, 24},
    {2533, 1, &DriveState::softEnable, 1},            {950, 4800, &DriveState::busVoltage, 48.0},
    {951, -280, &DriveState::outputCurrent, -0.5},    {952, 41, &DriveState::deviceTemperature, 41.0},
    {953, 1500, &DriveState::actualCurrentLimit, 1.5}, {954, 3, &DriveState::lastLimitReason, 3},
    {955, -12, &DriveState::rawVelocity, -12},        {956, 123456, &DriveState::position, 123456},
    {957, -7, &DriveState::setpoint, -7},             {958, 2500, &DriveState::analogIn1, 2.5},
    {959, -125, &DriveState::analogIn2, -0.125},      {960, 3300, &DriveState::analogEncoderA, 3.3},
    {961, 1650, &DriveState::analogEncoderB, 1.65},   {962, 65535, &DriveState::digitalInputs, 65535},
    {963, 31, &DriveState::controlInputs, 31},        {964, 5, &DriveState::faultLocation1, 5},
    {965, 6, &DriveState::faultLocation2, 6},         {5011, 4, &DriveState::scopeState, 4},
};
const QVector<int> debugRegisters = {971, 972, 973, 974, 975, 976};

} // namespace

TEST(StatusPoll, ReadsDebugValuesAndWatchedRegisterOnlyWhenWanted)
{
    const QVector<int> alwaysRead = StatusPoll(wanting(false, 0)).registers();
    qsizetype from = 0;
    for (const auto &live : liveValues) {
        const qsizetype at = alwaysRead.indexOf(live.address, from);
        ASSERT_GE(at, from) << live.address << " is read, and in this order";
        from = at + 1;
    }
    EXPECT_EQ(StatusPoll(wanting(true, 0)).registers(), alwaysRead + debugRegisters);
    EXPECT_EQ(StatusPoll(wanting(false, 202)).registers(), alwaysRead + QVector<int>{202});
    EXPECT_EQ(StatusPoll(wanting(true, 202)).registers(), alwaysRead + debugRegisters + QVector<int>{202});
    EXPECT_EQ(StatusPoll(wanting(true, 202, true)).registers(), QVector<int>{552});
}

TEST(StatusPoll, WalksTheReturnSelector)
{
    const QVector<QueueItem> expected = {
        {QueueItem::Address, 10}, {QueueItem::Value24, 0}, {QueueItem::Address, 9}, {QueueItem::Value24, 552}};
    EXPECT_EQ(StatusPoll(wanting(true, 202, true)).exchanges(), QVector<QVector<QueueItem>>{expected});
    const QVector<QueueItem> running = StatusPoll(wanting(false, 202)).exchanges().constFirst();
    EXPECT_EQ(running.mid(0, 4), expected);
    EXPECT_EQ(running.last(), (QueueItem{QueueItem::Value24, 202}));
}

TEST(StatusPoll, FillsOneReplyAndGoesOnInTheNext)
{
    // A reply carries 120 bytes, four a return value, and each exchange spends three on its set-up items.
    QVector<int> many;
    for (int address = 1000; address < 1000 + 55; ++address)
        many << address;
    EXPECT_EQ(StatusPoll::exchangesFor(many.mid(0, 27)).size(), 1);
    const QVector<QVector<QueueItem>> exchanges = StatusPoll::exchangesFor(many);
    ASSERT_EQ(exchanges.size(), 3);
    EXPECT_EQ(exchanges[0].size() * 4, 120);
    EXPECT_EQ(exchanges[1].size() * 4, 120);
    EXPECT_EQ(exchanges[1].mid(0, 3), exchanges[0].mid(0, 3));
    EXPECT_EQ(exchanges[1].at(3).value, 1027);
    EXPECT_EQ(exchanges[2].size(), 3 + 1);
    EXPECT_EQ(exchanges[2].last().value, 1054);
    EXPECT_TRUE(StatusPoll::exchangesFor({}).isEmpty());
}

TEST(StatusPoll, StoresEveryReturnValueInItsUnit)
{
    DriveState state = wanting(true, 202);
    const StatusPoll poll(state);
    const QVector<int> registers = poll.registers();
    QVector<qint32> returned(registers.size(), 0);
    for (const auto &live : liveValues) {
        ASSERT_TRUE(registers.contains(live.address)) << live.address;
        returned[registers.indexOf(live.address)] = live.returned;
    }
    for (int i = 0; i < debugRegisters.size(); ++i)
        returned[registers.indexOf(debugRegisters[i])] = 11 + i;
    returned.last() = -300;
    state.watchedAddress = 415; // chosen while the poll was on the line
    ASSERT_TRUE(poll.store(returned, state));

    for (const auto &live : liveValues) {
        const double stored = std::visit([&](auto member) { return double(state.*member); }, live.member);
        EXPECT_DOUBLE_EQ(stored, live.expected) << live.address;
    }
    EXPECT_EQ(state.debugValues, (std::array<qint32, 6>{11, 12, 13, 14, 15, 16}));
    EXPECT_EQ(state.watchedValue, -300);
    EXPECT_EQ(state.watchedAddress, 202) << "the value must stand beside the register it came from";
}

TEST(StatusPoll, StoresWhatItAskedForAndNothingOfAnotherNumberOfValues)
{
    DriveState state = wanting(false, 202);
    const StatusPoll watching(state);
    QVector<qint32> returned(watching.registers().size(), 0);
    returned.last() = 4711;
    ASSERT_TRUE(watching.store(returned, state));
    EXPECT_EQ(state.watchedValue, 4711);
    EXPECT_EQ(state.debugValues, (std::array<qint32, 6>{}));
    for (const qsizetype count : {qsizetype(0), qsizetype(3), returned.size() - 1, returned.size() + 1}) {
        EXPECT_FALSE(watching.store(QVector<qint32>(count, 1), state)) << count;
        EXPECT_EQ(state.faultRegister, 0) << count;
    }

    state = wanting(false, 0, true);
    state.statusRegister = 8;
    ASSERT_TRUE(StatusPoll(state).store({0x120}, state));
    EXPECT_EQ(state.faultRegister, 0x120);
    EXPECT_EQ(state.statusRegister, 8);
}

TEST(DriveState, TakesTheLimitSwitchSettingByEitherName)
{
    Parameters list;
    DriveState state;
    state.limitSwitchFunction = 9;
    takeWordingSettings(list, state);
    EXPECT_EQ(state.limitSwitchFunction, 0.0);
    EXPECT_EQ(state.feedbackResolution, 0.0);

    list = withValues(list, {{"LSF", 3}, {"FBR", 2048}});
    takeWordingSettings(list, state);
    EXPECT_EQ(state.limitSwitchFunction, 3.0);
    EXPECT_EQ(state.feedbackResolution, 2048.0);

    takeWordingSettings(withValues(list, {{"LFS", 1}}), state);
    EXPECT_EQ(state.limitSwitchFunction, 1.0);
}
