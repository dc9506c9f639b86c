#include "streamplan.h"

#include <gtest/gtest.h>

TEST(StreamPlan, AsksForFiftySetpointsASecondAndKeepsTheLead)
{
    EXPECT_EQ(streamPeriod(), 200); // 20 ms in units of 0.1 ms
    EXPECT_EQ(streamPeriod(3.0), 3333);
    // Never less than a chunk.
    EXPECT_EQ(streamThreshold(2048), 1048);
    EXPECT_EQ(streamThreshold(1120), 120);
    EXPECT_EQ(streamThreshold(1119), 120);
    EXPECT_EQ(streamThreshold(0), 120);
}

TEST(StreamPlan, CountsTheChunksThatAreDue)
{
    const std::tuple<int, int, int> cases[] = {{2048, 1048, 9}, {1048, 1048, 1}, {1167, 1048, 1}, {1168, 1048, 2},
                                               {1047, 1048, 0}, {119, 120, 0},   {120, 120, 1},   {-1, 120, 0}};
    for (const auto &[free, threshold, chunks] : cases)
        EXPECT_EQ(streamChunkCount(free, threshold), chunks) << free << " free, threshold " << threshold;
}

TEST(StreamPlan, TruncatesSetpointsAndNeverWrapsThem)
{
    const std::pair<double, int> cases[] = {
        {-3.7, -3}, {3.7, 3}, {2097151, 2097151}, {2097152, 2097151}, {-2097152, -2097152}, {-1e300, -2097152}};
    for (const auto &[setpoint, sent] : cases)
        EXPECT_EQ(streamSetpointItem(setpoint), (QueueItem{QueueItem::Value24, sent})) << setpoint;
}
