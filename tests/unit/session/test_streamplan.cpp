#include "streamplan.h"

#include <gtest/gtest.h>

TEST(StreamPlan, AsksForFiftySetpointsASecond)
{
    EXPECT_EQ(streamPeriod(), 200); // 20 ms in units of 0.1 ms
    EXPECT_EQ(streamPeriod(3.0), 3333);
}

TEST(StreamPlan, KeepsTheLeadAndNeverUploadsLessThanAChunk)
{
    EXPECT_EQ(streamThreshold(2048), 1048);
    EXPECT_EQ(streamThreshold(1120), 120);
    EXPECT_EQ(streamThreshold(1119), 120);
    EXPECT_EQ(streamThreshold(0), 120);
}

TEST(StreamPlan, CountsTheChunksThatAreDue)
{
    const struct
    {
        int free, threshold, chunks;
    } cases[] = {{2048, 1048, 9}, {1048, 1048, 1}, {1167, 1048, 1}, {1168, 1048, 2},
                 {1047, 1048, 0}, {119, 120, 0},   {120, 120, 1},   {-1, 120, 0}};
    for (const auto &c : cases)
        EXPECT_EQ(streamChunkCount(c.free, c.threshold), c.chunks) << c.free << " free, threshold " << c.threshold;
}

TEST(StreamPlan, TruncatesSetpointsAndNeverWrapsThem)
{
    const struct
    {
        double setpoint;
        int sent;
    } cases[] = {{-3.7, -3},           {3.7, 3},          {2097151, 2097151}, {2097152, 2097151},
                 {-2097152, -2097152}, {-1e300, -2097152}};
    for (const auto &c : cases)
        EXPECT_EQ(streamSetpointItem(c.setpoint), (QueueItem{QueueItem::Value24, c.sent})) << c.setpoint;
}
