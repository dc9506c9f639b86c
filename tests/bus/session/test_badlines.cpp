// Every way for a line to go bad, at every moment: one clear message, disconnected within a few time-outs, and the next
// connection works.
#include "sessionfixture.h"

#include <algorithm>

using testing::HasSubstr;
using testing::SizeIs;
using Fault = sim::LineFault;

namespace {

struct Moment
{
    const char *name;
    int repliesThatPass;
    void (*begin)(Connection &);
};

void PrintTo(const Moment &moment, std::ostream *out)
{
    *out << moment.name;
}

const Moment transferMoments[] = {
    {"IdlePoll", 0, [](Connection &) {}},
    {"FullRead", 20, [](Connection &session) { session.getParams(); }},
    {"FullWrite", 20, [](Connection &session) { session.command(Connection::TaskSetParams); }},
};

const Moment testingMoments[] = {
    {"Capture", 1,
     [](Connection &session) {
         session.setupCapture(20000, 3, {true, true, true});
         session.command(Connection::TaskInitScope);
     }},
    {"Download", 30,
     [](Connection &session) {
         session.setupCapture(20000, 3, {true, true, true});
         session.command(Connection::TaskInitScope);
         session.command(Connection::TaskDownloadScope);
     }},
    {"Stream", 4, [](Connection &session) { session.setStimulus(100, 0.1, -100, 0.1, true); }},
    {"Measuring", 1, [](Connection &session) { session.command(Connection::TaskMeasure); }},
};

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
    return moment.name + std::string(1, char(std::toupper(Fault::name(kind)[0]))) + Fault::name(kind).substr(1);
}

class BadLine : public SessionFixture, public testing::WithParamInterface<std::tuple<Moment, Fault::Kind>>
{
protected:
    void repair()
    {
        bus().clearFaults();
        if (!bus().isPluggedIn()) {
            ASSERT_EQ(bus().plugIn(), "");
        }
    }
};

} // namespace

TEST_P(BadLine, EndsInOneMessageAndTheNextConnectionWorks)
{
    const auto [moment, kind] = GetParam();
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectTo() && readAll() && waitUntilIdle());
    log().statuses.clear();
    session().setReplyTimeout(1000);

    bus().setFault({kind, kind == Fault::Late ? tooLateMs : 4, moment.repliesThatPass});
    QElapsedTimer timer;
    timer.start();
    moment.begin(session());
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_LT(timer.elapsed(), 10000);
    ASSERT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); }));
    EXPECT_THAT(log().errors, SizeIs(1));
    EXPECT_THAT(log().errors.first().toStdString(), HasSubstr("Communication error flags:"));
    EXPECT_THAT(log().statuses, SizeIs(1));
    EXPECT_EQ(log().statuses.last().text, "Disconnected");
    EXPECT_EQ(log().captureButton.last(), "Start capture");
    EXPECT_TRUE(log().plots.isEmpty()) << "no picture of invented data";

    repair();
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
    ASSERT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); }));
    EXPECT_THAT(log().errors.first().toStdString(), HasSubstr("The bus is never quiet"));
    ASSERT_THAT(log().statuses, SizeIs(1));
    EXPECT_EQ(log().statuses.first().text, "Connect failed");
    EXPECT_EQ(log().busy.last(), false);
    bus().clearFaults();
    EXPECT_TRUE(connectTo());
}
