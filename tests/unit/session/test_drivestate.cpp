#include "drivestate.h"
#include "parameters.h"

#include <gtest/gtest.h>

namespace {

DriveState wanting(bool debugValues, int watchedAddress, bool firmwareUpgradeMode = false)
{
    DriveState state;
    state.debugValuesShown = debugValues;
    state.watchedAddress = watchedAddress;
    state.firmwareUpgradeMode = firmwareUpgradeMode;
    return state;
}

const QVector<int> alwaysRead = {552, 553, 2533, 950, 951, 952, 953, 954, 955, 956,
                                 957, 958, 959,  960, 961, 962, 963, 964, 965, 5011};
const QVector<int> debugRegisters = {971, 972, 973, 974, 975, 976};

SingleParam named(const char *name, double value)
{
    SingleParam p;
    p.name = name;
    p.value = value;
    return p;
}

} // namespace

TEST(StatusPoll, ReadsDebugValuesAndWatchedRegisterOnlyWhenWanted)
{
    EXPECT_EQ(StatusPoll(wanting(false, 0)).registers(), alwaysRead);
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
    EXPECT_EQ(StatusPoll(wanting(true, 202)).exchanges().size(), 1);
    QVector<int> many;
    for (int address = 1000; address < 1000 + 55; ++address)
        many << address;
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
    const QVector<qint32> returned = {
        2,    24,   1,    4800, -280, 41,    1500, 3, -12, 123456,
        -7,   2500, -125, 3300, 1650, 65535, 31,   5, 6,   4, // ... 965, scope state
        11,   12,   13,   14,   15,   16,                     // debug values
        -300,                                                 // watched
    };
    DriveState state = wanting(true, 202);
    const StatusPoll poll(state);
    state.watchedAddress = 415; // chosen while the poll was on the line
    ASSERT_TRUE(poll.store(returned, state));

    const std::pair<qint32, qint32> whole[] = {
        {state.faultRegister, 2}, {state.statusRegister, 24},    {state.softEnable, 1},     {state.lastLimitReason, 3},
        {state.rawVelocity, -12}, {state.position, 123456},      {state.setpoint, -7},      {state.digitalInputs, 65535},
        {state.controlInputs, 31}, {state.faultLocation1, 5},    {state.faultLocation2, 6}, {state.scopeState, 4},
    };
    for (const auto &[stored, expected] : whole)
        EXPECT_EQ(stored, expected);
    const std::pair<double, double> scaled[] = {
        {state.busVoltage, 48.0}, {state.outputCurrent, -0.5}, {state.deviceTemperature, 41.0},
        {state.actualCurrentLimit, 1.5}, {state.analogIn1, 2.5}, {state.analogIn2, -0.125},
        {state.analogEncoderA, 3.3}, {state.analogEncoderB, 1.65},
    };
    for (const auto &[stored, expected] : scaled)
        EXPECT_DOUBLE_EQ(stored, expected);
    EXPECT_EQ(state.debugValues, (std::array<qint32, 6>{11, 12, 13, 14, 15, 16}));
    EXPECT_EQ(state.watchedValue, -300);
    EXPECT_EQ(state.watchedAddress, 202) << "the value must stand beside the register it came from";
}

TEST(StatusPoll, TakesTheWatchedValueAlsoWithoutDebugValues)
{
    DriveState state = wanting(false, 202);
    QVector<qint32> returned(20, 0);
    returned.append(4711);
    ASSERT_TRUE(StatusPoll(state).store(returned, state));
    EXPECT_EQ(state.watchedValue, 4711);
    EXPECT_EQ(state.debugValues, (std::array<qint32, 6>{}));
}

TEST(StatusPoll, InFirmwareUpgradeModeChangesTheFaultsOnly)
{
    DriveState state = wanting(false, 0, true);
    state.statusRegister = 8;
    ASSERT_TRUE(StatusPoll(state).store({0x120}, state));
    EXPECT_EQ(state.faultRegister, 0x120);
    EXPECT_EQ(state.statusRegister, 8);
}

TEST(StatusPoll, RefusesAnotherNumberOfValuesUntouched)
{
    DriveState state = wanting(false, 0);
    const StatusPoll poll(state);
    for (int count : {0, 3, 19, 21, 27}) {
        EXPECT_FALSE(poll.store(QVector<qint32>(count, 1), state)) << count;
        EXPECT_EQ(state.faultRegister, 0) << count;
    }
}

TEST(DriveState, WordsTheLimitReasons)
{
    const QStringList texts = {"Unknown (-1)", "None", "Peak current [MMC]", "Continuous current [MCC]",
                               "Motor thermal model [MTC]", "Drive temperature", "Supply voltage", "Unknown (6)"};
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_EQ(limitReasonText(i - 1), texts.at(i));
}

TEST(DriveState, TakesTheLimitSwitchSettingByEitherName)
{
    Parameters list;
    DriveState state;
    state.limitSwitchFunction = 9;
    takeWordingSettings(list, state);
    EXPECT_EQ(state.limitSwitchFunction, 0.0);
    EXPECT_EQ(state.feedbackResolution, 0.0);

    list.addParameter(named("LSF", 3));
    list.addParameter(named("FBR", 2048));
    takeWordingSettings(list, state);
    EXPECT_EQ(state.limitSwitchFunction, 3.0);
    EXPECT_EQ(state.feedbackResolution, 2048.0);

    list.addParameter(named("LFS", 1));
    takeWordingSettings(list, state);
    EXPECT_EQ(state.limitSwitchFunction, 1.0);
}
