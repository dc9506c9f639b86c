// The command buffer: timed setpoints, free bytes, return values.
#include "drivebench.h"

using namespace sim;

namespace {

class Stream : public DriveBench
{
protected:
    /// Buffered: selector 6, length 2, then setpoints to 551.
    void setUp() { ask({0x80, 0x09, 0x40, 0x00, 0x06, 0x80, 0x0A, 0x40, 0x00, 0x02, 0x82, 0x27}, BufferedCommand); }
    Bytes setpoint(int value) { return ask({0x40, std::uint8_t(value >> 8), std::uint8_t(value)}, BufferedCommand); }
    int freeBytes() const { return drive.read(reg::BufferFree); }
};

} // namespace

TEST_F(Stream, EverySetpointTakesAPeriodAndEverythingElseNoTime)
{
    // Period in 0.1 ms; cycles of 0.4 ms until the setpoint in use is looked at.
    const std::tuple<int, int, int, int> rows[] = {
        {200, 0, 0, 2048 - 105 * 4}, // the five items of the set-up and a hundred setpoints
        {200, 1, 1, 2048 - 99 * 4},  // set-up and first setpoint in the first cycle
        {200, 50, 1, 2048 - 99 * 4},
        {200, 51, 2, 2048 - 98 * 4}, // 20 ms later
        {200, 101, 3, 2048 - 97 * 4},
        {10, 126, 51, 2048 - 49 * 4}, // two and a half cycles each: the mean rate is exact
        {10, 251, 100, 2048},
    };
    for (const auto &[period, cycles, inUse, free] : rows) {
        SCOPED_TRACE(testing::Message() << period << " after " << cycles);
        startAfresh();
        drive.write(reg::StreamPeriod, period);
        setUp();
        for (int i = 1; i <= 100; ++i)
            setpoint(i);
        drive.advanceCycles(cycles);
        EXPECT_EQ(drive.axis().setpoint(), inUse);
        EXPECT_EQ(freeBytes(), free);
    }
}

TEST_F(Stream, RepliesCarryReturnValuesOfWhatWasExecutedSince)
{
    drive.write(reg::StreamPeriod, 4);
    setUp();
    EXPECT_EQ(setpoint(1), Bytes{}) << "nothing executed yet";
    drive.advanceCycles(1);
    // Register 0 in four bytes, 6 in four bytes twice (2036, then 2040 free), then in two bytes.
    EXPECT_EQ(setpoint(2), (Bytes{0, 0, 0, 0, 0, 0, 0x07, 0xF0, 0, 0, 0x07, 0xF4, 0x87, 0xF8, 0x87, 0xFC, 0x88, 0x00}));
    drive.advanceCycles(1);
    EXPECT_EQ(setpoint(3), (Bytes{0x88, 0x00}));
}

TEST_F(Stream, ReturnValuesPastOneReplyAreDropped)
{
    drive.write(reg::StreamPeriod, 4);
    setUp();
    for (int i = 0; i < 200; ++i)
        setpoint(i);
    drive.advanceCycles(300);
    EXPECT_LE(setpoint(0).size(), 120u);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 199) << "executed all the same";
}

TEST_F(Stream, WhatDoesNotFitIsDroppedWithAnError)
{
    drive.write(reg::StreamPeriod, 100000);
    setUp();
    for (int i = 0; i < 508; ++i) { // with the five set-up items 512 of 4 bytes fit
        EXPECT_EQ(drive.read(reg::ErrorBits), 0);
        setpoint(i);
    }
    EXPECT_EQ(freeBytes(), 0);
    EXPECT_EQ(drive.read(reg::ErrorBits), ErrorValueNotAllowed);
}

TEST_F(Stream, StopEmptiesTheBufferAndKeepsItsReturnControl)
{
    drive.write(reg::StreamPeriod, 200);
    setUp();
    for (int i = 1; i <= 10; ++i)
        setpoint(i);
    drive.advanceCycles(1);
    drive.write(reg::Command, 4);
    EXPECT_EQ(freeBytes(), 2048);
    drive.advanceCycles(500);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 1);
    setpoint(77);
    drive.advanceCycles(50);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 77) << "551 is still selected";
    EXPECT_EQ(setpoint(0), (Bytes{0x88, 0x00})) << "and register 6 still returned in two bytes";
}
