// Homing: every kind of search, and what may not happen meanwhile.
#include "runningaxis.h"

#include <algorithm>
#include <cmath>
#include <string>

using namespace sim;

namespace {

class HomingSearch : public RunningAxis
{
protected:
    /// Seconds that homing took; -1 when it did not end.
    double home(std::int32_t bits)
    {
        drive.write(reg::Homing, bits);
        enable();
        if (drive.write(reg::HomingCommand, 1) != Outcome::Done)
            return -1.0;
        const int cycles = cyclesUntil(StatusHoming, false, 25000);
        return cycles < 0 ? -1.0 : cycles / 2500.0;
    }
};

} // namespace

TEST_F(HomingSearch, EveryKindOfSearchEndsAtZero)
{
    const struct
    {
        const char *name;
        std::int32_t bits;
    } searches[] = {
        {"hard stop", 0x80},
        {"home switch", 0x80 | 0x08 | 0x04},
        {"hard stop, then index", 0x80 | 0x10}, // away from the stop, see below
        {"home switch, then index forwards", 0x80 | 0x08 | 0x04 | 0x10 | 0x02},
    };
    for (const auto &search : searches) {
        for (const int direction : {1, -1}) {
            SCOPED_TRACE(std::string(search.name) + (direction > 0 ? ", forwards" : ", backwards"));
            drive.powerUp(drive.flash());
            drive.write(reg::HomingVelocity, 2000 * direction);
            const std::int32_t away = search.bits == (0x80 | 0x10) && direction < 0 ? 0x02 : 0;
            const double seconds = home(search.bits | away);
            EXPECT_GT(seconds, 0.1);
            EXPECT_LT(seconds, 4.0);
            EXPECT_EQ(faults(), 0);
            drive.advanceCycles(500);
            EXPECT_NEAR(position(), 0, 1);
            EXPECT_EQ(drive.read(reg::SetpointInUse), 0);
            EXPECT_TRUE(has(StatusTargetReached));
        }
    }
}

TEST_F(HomingSearch, SearchingTheIndexThroughTheStopFaults)
{
    drive.write(reg::HomingVelocity, -2000);
    home(0x80 | 0x10);
    EXPECT_EQ(faults(), FaultTracking);
    EXPECT_FALSE(has(StatusHoming));
}

TEST_F(HomingSearch, OffsetMoveComesBeforeTheZero)
{
    home(0x80 | 0x08 | 0x04);
    const double plain = drive.axis().motor().angle();
    drive.write(reg::HomingOffset, -3000);
    // From behind the switch: away first, so that it is found at the same place again.
    drive.write(reg::SetpointAbsolute, -1900);
    drive.advanceCycles(500);
    ASSERT_EQ(drive.write(reg::HomingCommand, 1), Outcome::Done);
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    drive.advanceCycles(500);
    const double distance = drive.axis().motor().angle() - plain;
    EXPECT_NEAR(std::remainder(distance, 20000.0), -3000.0, 30.0);
}

TEST_F(HomingSearch, CurrentLimitHoldsAtTheStop)
{
    drive.write(reg::Homing, 0x80);
    enable();
    drive.write(reg::HomingCommand, 1);
    int highest = 0;
    while (has(StatusHoming)) {
        drive.advanceCycles(1);
        highest = std::max(highest, std::abs(drive.read(reg::OutputCurrent)));
    }
    EXPECT_LE(highest, 6.5 * 560 + 1);
    EXPECT_GT(highest, 1.0 * 560) << "it did lean on the stop";
}

TEST_F(HomingSearch, AbortStaysWhereItIs)
{
    drive.write(reg::Homing, 0x80);
    enable();
    drive.write(reg::HomingCommand, 1);
    drive.advanceCycles(300);
    drive.write(reg::HomingCommand, 0);
    EXPECT_FALSE(has(StatusHoming));
    const int stopped = position();
    drive.advanceCycles(1000);
    EXPECT_NEAR(position(), stopped, 100);
    EXPECT_EQ(faults(), 0);
    EXPECT_TRUE(has(StatusTargetReached));
}

TEST_F(HomingSearch, RefusedWhenSwitchedOffOrNotRunning)
{
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    enable();
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), ErrorValueNotAllowed);
    drive.write(reg::Homing, 0x80);
    drive.advanceCycles(1);
    EXPECT_EQ(errorsOfWriting(reg::HomingCommand, 1), 0);
}

TEST_F(HomingSearch, RunsAtTheFirstEnableWhenAskedFor)
{
    drive.write(reg::Homing, 0xA0);
    enable();
    EXPECT_TRUE(has(StatusHoming));
    EXPECT_FALSE(has(StatusReady));
    ASSERT_GT(cyclesUntil(StatusHoming, false), 0);
    EXPECT_TRUE(has(StatusReady));
    drive.write(reg::SoftEnable, 0);
    drive.advanceCycles(5);
    enable();
    EXPECT_FALSE(has(StatusHoming)) << "once is enough";
}

TEST_F(HomingSearch, SoftLimitsHoldAfterHomingOnly)
{
    drive.write(reg::LowLimit, -500);
    drive.write(reg::HighLimit, 500);
    enable();
    drive.write(reg::SetpointAbsolute, 1000);
    drive.advanceCycles(300);
    EXPECT_EQ(faults(), 0);
    ASSERT_GT(home(0x80), 0.0);
    drive.write(reg::SetpointAbsolute, -400);
    drive.advanceCycles(300);
    EXPECT_EQ(faults(), 0);
    drive.write(reg::SetpointAbsolute, 501);
    drive.advanceCycles(2);
    EXPECT_EQ(faults(), FaultMotionRange);
}
