// Homing: every kind of search, and what may not happen meanwhile.
#include "drivebench.h"

#include <algorithm>
#include <cmath>

using namespace sim;

namespace {

class HomingSearch : public DriveBench
{
protected:
    /// Seconds that homing took; -1 when it did not end.
    double home(std::int32_t bits)
    {
        drive.write(reg::Homing, bits);
        drive.enable();
        if (drive.write(reg::HomingCommand, 1) != Outcome::Done)
            return -1.0;
        const int cycles = cyclesUntil(StatusHoming, false, 25000);
        return cycles < 0 ? -1.0 : cycles / 2500.0;
    }
};

} // namespace

TEST_F(HomingSearch, EveryKindOfSearchEndsAtZeroOrSaysWhyNot)
{
    const struct
    {
        const char *name;
        std::int32_t bits;
        int velocity;
        std::int32_t faults = 0;
    } searches[] = {
        {"hard stop", 0x80, 2000},
        {"hard stop backwards", 0x80, -2000},
        {"home switch", 0x80 | 0x08 | 0x04, 2000},
        {"home switch backwards", 0x80 | 0x08 | 0x04, -2000},
        {"hard stop, then index away from it", 0x80 | 0x10, 2000},
        {"backwards, then index away from it", 0x80 | 0x10 | 0x02, -2000},
        {"home switch, then index forwards", 0x80 | 0x08 | 0x04 | 0x10 | 0x02, 2000},
        {"backwards, then index forwards", 0x80 | 0x08 | 0x04 | 0x10 | 0x02, -2000},
        {"index through the stop", 0x80 | 0x10, -2000, FaultTracking},
    };
    for (const auto &search : searches) {
        SCOPED_TRACE(search.name);
        startAfresh();
        drive.write(reg::HomingVelocity, search.velocity);
        const double seconds = home(search.bits);
        EXPECT_EQ(faults(), search.faults);
        EXPECT_FALSE(has(StatusHoming));
        if (search.faults)
            continue;
        EXPECT_GT(seconds, 0.1);
        EXPECT_LT(seconds, 4.0);
        drive.advanceCycles(500);
        EXPECT_NEAR(position(), 0, 1);
        EXPECT_EQ(drive.read(reg::SetpointInUse), 0);
        EXPECT_TRUE(has(StatusTargetReached));
    }
}

TEST_F(HomingSearch, OffsetMoveComesBeforeTheZero)
{
    home(0x80 | 0x08 | 0x04);
    const double plain = drive.axis().motor().angle();
    // From behind the switch: away first, so that it is found at the same place again.
    drive.writeAll({{reg::HomingOffset, -3000}, {reg::SetpointAbsolute, -1900}});
    drive.advanceCycles(500);
    ASSERT_EQ(drive.write(reg::HomingCommand, 1), Outcome::Done);
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    drive.advanceCycles(500);
    EXPECT_NEAR(std::remainder(drive.axis().motor().angle() - plain, 20000.0), -3000.0, 30.0);
}

TEST_F(HomingSearch, AbortStaysWhereItIsAndCurrentLimitHoldsAtTheStop)
{
    drive.write(reg::Homing, 0x80);
    drive.enable();
    drive.write(reg::HomingCommand, 1);
    drive.advanceCycles(300);
    drive.write(reg::HomingCommand, 0);
    EXPECT_FALSE(has(StatusHoming));
    const int stopped = position();
    drive.advanceCycles(1000);
    EXPECT_NEAR(position(), stopped, 100);
    EXPECT_EQ(faults(), 0);
    EXPECT_TRUE(has(StatusTargetReached));

    drive.write(reg::HomingCommand, 1);
    int highest = 0;
    while (has(StatusHoming)) {
        drive.advanceCycles(1);
        highest = std::max(highest, std::abs(drive.read(reg::OutputCurrent)));
    }
    EXPECT_LE(highest, 6.5 * 560 + 1);
    EXPECT_GT(highest, 1.0 * 560) << "it did lean on the stop";
}

TEST_F(HomingSearch, RefusedWhenSwitchedOffOrNotRunning)
{
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    drive.enable();
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    drive.write(reg::Homing, 0x80);
    drive.advanceCycles(1);
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), 0);
}

TEST_F(HomingSearch, RunsAtTheFirstEnableWhenAskedFor)
{
    drive.write(reg::Homing, 0xA0);
    drive.enable();
    EXPECT_TRUE(has(StatusHoming) && !has(StatusReady));
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    EXPECT_TRUE(has(StatusReady));
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(5);
    drive.enable();
    EXPECT_FALSE(has(StatusHoming)) << "once is enough";
}

TEST_F(HomingSearch, SoftLimitsHoldAfterHomingOnly)
{
    drive.writeAll({{reg::LowLimit, -500}, {reg::HighLimit, 500}});
    drive.enable();
    drive.moved(1000, 300);
    EXPECT_EQ(faults(), 0);
    ASSERT_GT(home(0x80), 0.0);
    for (const auto &[setpoint, fault] : {std::pair(-400, 0), std::pair(501, int(FaultMotionRange))}) {
        drive.moved(setpoint, 300);
        EXPECT_EQ(faults(), fault) << setpoint;
    }
}
