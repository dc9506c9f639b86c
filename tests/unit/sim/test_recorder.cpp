// The recorder: triggers, sources, divider, re-arming.
#include "drivebench.h"

#include <algorithm>
#include <vector>

using namespace sim;

namespace {

constexpr std::int32_t allSources = 0x2 | 0x4 | 0x8 | 0x10 | 0x20 | 0x40 | 0x80 | 0x100 | 0x200 | 0x10000 | 0x20000 |
                                    0x40000 | 0x80000 | 0x100000 | 0x800000 | 0x1000000;

class RecorderBench : public DriveBench
{
protected:
    void arm(std::int32_t sources, std::int32_t divider, std::int32_t trigger)
    {
        drive.write(reg::RecorderSources, sources);
        drive.write(reg::RecorderDivider, divider);
        ASSERT_EQ(drive.write(reg::RecorderState, trigger), Outcome::Done);
    }
    bool isDone() const { return drive.read(reg::RecorderState) == 0; }
    std::vector<std::int32_t> words()
    {
        std::vector<std::int32_t> all;
        for (int address = 0; address < Recorder::words; ++address) {
            drive.write(reg::RecorderAddress, address);
            all.push_back(drive.read(reg::RecorderWord));
        }
        return all;
    }
};

} // namespace

TEST_F(RecorderBench, FillsTwoThousandWordsAtTheDividedRate)
{
    // Sixteen sources, 125 samples of each: every second base period of 0.05 ms, so 12.5 ms or 31.2 cycles.
    arm(allSources, 1, 4);
    EXPECT_EQ(drive.read(reg::RecorderState), 4);
    drive.advanceCycles(31);
    EXPECT_FALSE(isDone());
    drive.advanceCycles(1);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, StoresEnabledSourcesInterleavedLowestBitFirst)
{
    drive.set(reg::BusVoltage, 40000); // the only unsigned word
    drive.write(reg::SetpointAbsolute, -700);
    arm(0x20 | 0x40 | 0x200, 0, 4);
    drive.advanceCycles(100);
    const std::vector<std::int32_t> all = words();
    const int expected[] = {-700, 0, 40000}; // 667, 667 and 666 of each
    for (int i = 0; i < Recorder::words; ++i)
        ASSERT_EQ(all[std::size_t(i)], expected[i % 3]) << i;
}

TEST_F(RecorderBench, TriggersFireAtTheirEventOnly)
{
    enum Event { Nothing, Rising, Falling, OldFault, NewFault };
    const struct
    {
        std::int32_t trigger;
        std::vector<Event> ignored;
        Event fires;
        std::int32_t firstWord; ///< of the setpoint: from the moment of the trigger
    } rows[] = {
        {4, {}, Nothing, 0},
        {1, {Nothing, Falling, NewFault}, Rising, 200},
        {2, {Nothing}, Falling, -300},
        {2, {Nothing, NewFault}, Rising, 200},
        {3, {Nothing, Rising, OldFault}, NewFault, 200},
    };
    const auto happen = [this](Event event) {
        if (event == Rising || event == Falling)
            drive.write(reg::SetpointAbsolute, event == Rising ? 200 : -300);
        if (event == OldFault || event == NewFault)
            drive.set(reg::Faults, event == OldFault ? FaultFeedback : FaultHardware);
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << "trigger " << row.trigger << ", event " << row.fires);
        startAfresh();
        drive.enable();
        drive.set(reg::Faults, FaultFeedback);
        drive.advanceCycles(1);
        arm(0x20, 0, row.trigger);
        for (const Event event : row.ignored) {
            happen(event);
            drive.advanceCycles(50);
            EXPECT_EQ(drive.read(reg::RecorderState), row.trigger) << "event " << event;
        }
        happen(row.fires);
        drive.advanceCycles(300);
        EXPECT_TRUE(isDone());
        EXPECT_EQ(words()[0], row.firstWord);
    }
}

TEST_F(RecorderBench, RearmingStartsOver)
{
    arm(0x40, 100, 4);
    drive.advanceCycles(100);
    EXPECT_FALSE(isDone());
    // At its own divider from the first word on: 2000 words of one source are 250 cycles, not one period less or more.
    arm(0x40, 0, 4);
    drive.advanceCycles(249);
    EXPECT_FALSE(isDone());
    drive.advanceCycles(1);
    EXPECT_TRUE(isDone());
    arm(0x40, 0, 1);
    drive.advanceCycles(2000);
    EXPECT_FALSE(isDone()) << "waits for the new trigger, and never ends by itself";
    drive.write(reg::RecorderState, 0);
    EXPECT_TRUE(isDone());
}

TEST_F(RecorderBench, RefusesUnknownTriggersAndNoSources)
{
    drive.write(reg::RecorderSources, 0x40);
    EXPECT_EQ(errorsOfWriting(reg::RecorderState, 5), ErrorValueNotAllowed);
    drive.write(reg::RecorderSources, 0x1);
    EXPECT_EQ(errorsOfWriting(reg::RecorderState, 4), ErrorValueNotAllowed);
    EXPECT_EQ(errorsOfWriting(reg::RecorderAddress, 2000), ErrorAboveMaximum);
}

TEST_F(RecorderBench, EverySourceOfAMoveIsPlausible)
{
    drive.enable();
    arm(allSources, 7, 1); // 50 ms of a step
    drive.write(reg::SetpointAbsolute, 1900);
    drive.advanceCycles(200);
    ASSERT_TRUE(isDone());
    const std::vector<std::int32_t> all = words();
    const struct
    {
        const char *name;
        int lowAtLeast, lowAtMost, highAtLeast, highAtMost;
    } sources[16] = {
        {"torque setpoint", -32 * 560, -560, 5 * 560, 32 * 560}, // it brakes, too
        {"torque", -32 * 560, -560, 5 * 560, 32 * 560},
        {"velocity setpoint", -5, 5, 30, 200},
        {"velocity", -5, 0, 30, 200},
        {"position setpoint", 1900, 1900, 1900, 1900},
        {"position", 0, 10, 1800, 1901},
        {"tracking error", -1, 100, 1800, 1900},
        {"output voltage", -16384, 0, 1000, 16384},
        {"bus voltage", 4700, 4800, 4800, 4900},
        {"duty 1", 0, 8000, 8300, 16384},
        {"duty 2", 0, 8000, 8300, 16384},
        {"duty 3", 0, 8000, 8300, 16384},
        {"velocity integral", -32 * 560, 0, 100, 32 * 560},
        {"motor heat", 0, 0, 0, 100},
        {"flux current", 0, 0, 0, 0},
        {"flux voltage", -16384, -1, 0, 16384},
    };
    for (std::size_t source = 0; source < 16; ++source) {
        SCOPED_TRACE(sources[source].name);
        std::int32_t low = all[source], high = all[source];
        for (std::size_t i = source; i < all.size(); i += 16)
            low = std::min(low, all[i]), high = std::max(high, all[i]);
        EXPECT_GE(low, sources[source].lowAtLeast);
        EXPECT_LE(low, sources[source].lowAtMost);
        EXPECT_GE(high, sources[source].highAtLeast);
        EXPECT_LE(high, sources[source].highAtMost);
    }
}
