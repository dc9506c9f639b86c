// The test stimulus: what is streamed, when, and how it ends.
#include "sessionfixture.h"

using testing::SizeIs;

namespace {

const std::string readFree = wire("800a 400000 8009 400006");

class Stimulus : public ConnectedFixture
{
protected:
    void start() { session().setStimulus(100, 0.11, -3.7, 10, true); }
    /// Chunks of the first run: up to the reading of the clock, which ends each.
    std::vector<std::string> uploads()
    {
        std::vector<std::string> result;
        for (const sim::ReceivedRequest &request : bus().received()) {
            if (request.packet.id == 80)
                break;
            if (request.packet.id == 52)
                result.push_back(hex(request.packet.payload));
        }
        return result;
    }
    bool waitForClock() { return waitForPackets(80); }
};

} // namespace

TEST_F(Stimulus, BeginsWithThePeriodTheSetUpAndNineChunks)
{
    start();
    ASSERT_TRUE(waitForClock());
    EXPECT_EQ(payloads().front(), wire("8008 000000c8") + readFree) << "200 times 0.1 ms";
    const std::vector<std::string> chunks = uploads();
    ASSERT_THAT(chunks, SizeIs(9));
    std::string first = wire("8009 400006 800a 400002 8227"); // five items, then 25 setpoints
    for (int i = 0; i < 5; ++i)
        first += "400064";
    for (int i = 0; i < 20; ++i)
        first += "7ffffd"; // -3.7 is cut to -3
    EXPECT_EQ(chunks[0], first);
    for (std::size_t i = 1; i < chunks.size(); ++i)
        EXPECT_EQ(chunks[i].size(), 2u * 3 * 30);
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_F(Stimulus, ANewConnectionBeginsAnewAndDoesNotMoveByItself)
{
    start();
    ASSERT_TRUE(waitForClock());
    bus().clearReceived();
    ASSERT_TRUE(leave());
    const std::vector<std::string> sent = payloads();
    ASSERT_GE(sent.size(), 2u);
    EXPECT_EQ(sent[sent.size() - 2], wire("822a 00000004")) << "the stream is stopped first";
    EXPECT_EQ(sent.back(), wire("800f 00000000"));

    ASSERT_TRUE(connectTo());
    ASSERT_TRUE(waitForPolls(2));
    EXPECT_THAT(uploads(), SizeIs(0)) << "it does not move by itself";
    bus().clearReceived();
    start();
    ASSERT_TRUE(waitForClock());
    EXPECT_EQ(payloads().front(), wire("8008 000000c8") + readFree);
}

TEST_F(Stimulus, ADisableAndARestartEndItForGood)
{
    for (bool restart : {false, true}) {
        bus().clearReceived();
        start();
        ASSERT_TRUE(waitForClock());
        if (restart)
            session().command(Connection::TaskRestartDrive);
        else
            disable(); // as a program without a window does it
        ASSERT_TRUE(waitUntilIdle());
        bus().clearReceived();
        ASSERT_TRUE(waitForPolls(3));
        EXPECT_EQ(packetsIn(bus().received(), 52), 0);
        EXPECT_EQ(bus().read(5, 6), 2048) << "nothing waits in the drive for the next enable";
        EXPECT_TRUE(log().errors.isEmpty());
    }
}

TEST_F(Stimulus, NeverRunsDryBesidePollsAndACapture)
{
    enable();
    session().setStimulus(100, 0.5, -100, 0.5, true);
    ASSERT_TRUE(waitForClock());
    capture.begin(session());
    int most = 0;
    bool up = false, down = false;
    // Longer than the five seconds that the buffer holds.
    waitUntil(
        [&] {
            most = std::max(most, bus().read(5, 6));
            up |= bus().read(5, 957) == 100;
            down |= bus().read(5, 957) == -100;
            return false;
        },
        6500);
    EXPECT_LT(most, 2048 - 50 * 4) << "always more than a second of setpoints left";
    EXPECT_TRUE(up && down) << "the setpoint in use follows the square wave";
    EXPECT_THAT(log().plots, SizeIs(1));
    EXPECT_GE(log().statusPanels.size(), 8);
    EXPECT_TRUE(log().errors.isEmpty());
}
