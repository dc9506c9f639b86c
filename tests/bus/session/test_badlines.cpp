// Every way for a line to go bad, at every moment: one clear message, disconnected within a few time-outs, and the next
// connection works.
#include "sessionfixture.h"

#include <algorithm>

using testing::HasSubstr;
using testing::SizeIs;
using Fault = sim::LineFault;

namespace {

/// What it is doing, and how many replies come through before.
using Moment = std::pair<LongTask, int>;
const Moment transferMoments[] = {{idle, 0}, {fullRead, 20}, {fullWrite, 20}};
const Moment testingMoments[] = {{capture, 1}, {download, 30}, {stream, 4}, {measuring, 1}};

/// All but a reply that arrives twice: the first one is good, the second is dropped.
std::vector<Fault::Kind> kindsThatSpoilReplies()
{
    std::vector<Fault::Kind> kinds = Fault::allKinds();
    kinds.erase(std::remove(kinds.begin(), kinds.end(), Fault::Twice), kinds.end());
    return kinds;
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Moment, Fault::Kind>> &info)
{
    const auto [moment, kind] = info.param;
    std::string fault = Fault::name(kind);
    fault[0] = char(std::toupper(fault[0]));
    return moment.first.name + fault;
}

class BadLine : public SessionFixture, public testing::WithParamInterface<std::tuple<Moment, Fault::Kind>>
{
};

} // namespace

TEST_P(BadLine, EndsInOneMessageAndTheNextConnectionWorks)
{
    const auto [moment, kind] = GetParam();
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectTo() && readAll() && waitUntilIdle());
    log().statuses.clear();
    session().setReplyTimeout(1000);

    bus().setFault({kind, kind == Fault::Late ? tooLateMs : 4, moment.second});
    QElapsedTimer timer;
    timer.start();
    moment.first.begin(session());
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_LT(timer.elapsed(), 10000);
    expectToldOnce(MessageKind::LineLost, HasSubstr("Communication error flags:"));
    EXPECT_THAT(log().statuses, SizeIs(1));
    EXPECT_EQ(log().statuses.last().text, "Disconnected");
    EXPECT_EQ(log().captureButton.last(), "Start capture");
    EXPECT_TRUE(log().plots.isEmpty()) << "no picture of invented data";

    repairLine();
    if (kind == Fault::Late) // replies that are still under way may answer the first attempts
        EXPECT_TRUE(waitUntil([this] { return connectTo() && readAll(); }));
    else
        EXPECT_TRUE(connectTo() && readAll() && log().errors.size() == 1);
}

INSTANTIATE_TEST_SUITE_P(Transfer, BadLine,
                         testing::Combine(testing::ValuesIn(transferMoments),
                                          testing::ValuesIn(kindsThatSpoilReplies())),
                         nameOf);

// One of each sort, as each combination takes its seconds.
INSTANTIATE_TEST_SUITE_P(Testing, BadLine,
                         testing::Combine(testing::ValuesIn(testingMoments),
                                          testing::Values(Fault::Drop, Fault::Flip, Fault::Late, Fault::Missing,
                                                          Fault::Unplugged)),
                         nameOf);

TEST_F(SessionFixture, ABabblingLineEndsAScanWithinSeconds)
{
    bus().setFault({Fault::Noise});
    session().getListOfBusNodes(port());
    expectToldOnce(MessageKind::ConnectFailed, HasSubstr("The bus is never quiet"));
    ASSERT_THAT(log().statuses, SizeIs(1));
    EXPECT_EQ(log().statuses.first().text, "Connect failed");
    EXPECT_EQ(log().busy.last(), false);
    bus().clearFaults();
    EXPECT_TRUE(connectTo());
}
