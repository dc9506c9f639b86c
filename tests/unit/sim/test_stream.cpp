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
    drive.write(reg::StreamPeriod, 200); // 20 ms
    setUp();
    for (int i = 1; i <= 3; ++i)
        setpoint(i * 10);
    EXPECT_EQ(freeBytes(), 2048 - 8 * 4);
    drive.advanceCycles(1);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 10) << "set-up and first setpoint in the first cycle";
    EXPECT_EQ(freeBytes(), 2048 - 2 * 4);
    drive.advanceCycles(49);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 10);
    drive.advanceCycles(1);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 20) << "20 ms later";
    drive.advanceCycles(50);
    EXPECT_EQ(drive.read(reg::SetpointInUse), 30);
    EXPECT_EQ(freeBytes(), 2048);
}

TEST_F(Stream, OddPeriodsKeepTheirMeanRate)
{
    drive.write(reg::StreamPeriod, 10); // 1 ms, two and a half cycles
    setUp();
    for (int i = 1; i <= 100; ++i)
        setpoint(i);
    drive.advanceCycles(1 + 125);
    EXPECT_NEAR(drive.read(reg::SetpointInUse), 51, 1);
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
    for (int i = 0; i < 507; ++i)
        setpoint(i); // with the five set-up items 512 of 4 bytes
    EXPECT_EQ(freeBytes(), 0);
    EXPECT_EQ(drive.read(reg::ErrorBits), 0);
    setpoint(0);
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
