// Captures: the wire of arming and download, and every word in its channel at its time.
#include "sessionfixture.h"

using testing::ElementsAre;
using testing::SizeIs;
using Fault = sim::LineFault;

namespace {

constexpr int torqueSetpoint = 0, positionAchieved = 5, busVoltage = 8; // channels
constexpr int captureAtOnce = 3, captureOnFault = 2;                    // rows of the trigger list

const std::string selectMemory = wire("800a 400001 8009 4014d6 94d5");

class Scope : public ConnectedFixture
{
protected:
    static QList<bool> selection(std::initializer_list<int> channels)
    {
        QList<bool> selected(16, false);
        for (int channel : channels)
            selected[channel] = true;
        return selected;
    }
    void arm(double rate, int trigger, const QList<bool> &selected)
    {
        session().setupCapture(rate, trigger, selected);
        session().command(Connection::TaskInitScope);
    }
    bool waitForPlot()
    {
        return waitUntil([this] { return !log().plots.isEmpty(); });
    }
    std::vector<std::int32_t> recordedWords()
    {
        std::vector<std::int32_t> words;
        bus().withDrive(5, [&words](sim::VirtualDrive &drive) {
            for (int i = 0; i < 2000; ++i) {
                drive.recorder().setReadAddress(i);
                words.push_back(drive.recorder().word());
            }
        });
        return words;
    }
};

} // namespace

TEST_F(Scope, ArmsWithTwoExchangesAndDownloadsInFiftyOfFortyWords)
{
    arm(10000, captureAtOnce, selection({torqueSetpoint, positionAchieved, busVoltage}));
    ASSERT_TRUE(waitForPlot());
    const std::vector<std::string> sent = payloads();
    ASSERT_GE(sent.size(), 53u);
    EXPECT_EQ(sent[0], wire("939c 00000242 9394 00000001")) << "sources 2 + 0x40 + 0x200; 20000 / 10000 - 1";
    EXPECT_EQ(sent[1], wire("9393 00000004"));
    EXPECT_EQ(sent[2], selectMemory);
    EXPECT_EQ(sent[3].size(), 2u * 3 * 40);
    EXPECT_EQ(sent[3].substr(0, 12), wire("400000 400001"));
    EXPECT_EQ(sent[4].substr(0, 12), wire("400028 400029"));
    EXPECT_EQ(sent[52].substr(0, 6), "4007a8");
    EXPECT_EQ(sent[52].substr(2 * 3 * 39), "4007cf") << "1999";
    EXPECT_THAT(log().captureButton, ElementsAre(QString("Start capture"), QString("Scope waiting.."),
                                                 QString("Downloading.."), QString("Start capture")));
    EXPECT_THAT(log().captures,
                ElementsAre(CaptureState::Idle, CaptureState::Waiting, CaptureState::Downloading, CaptureState::Idle));
}

TEST_F(Scope, PutsEveryWordIntoItsChannelAtItsTime)
{
    bus().set(5, 950, 40000); // 400 V: more than a signed word holds
    const QList<QList<bool>> selections = {selection({busVoltage}),
                                           selection({torqueSetpoint, positionAchieved, busVoltage}),
                                           selection({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15})};
    for (const QList<bool> &selected : selections) {
        log().plots.clear();
        arm(20000, captureAtOnce, selected);
        ASSERT_TRUE(waitForPlot());
        const std::vector<std::int32_t> words = recordedWords();
        const QList<CaptureData> channels = log().plots.last();
        ASSERT_EQ(channels.size(), 16);
        const int enabled = selected.count(true);
        int position = 0;
        for (int i = 0; i < 16; ++i) {
            const auto &samples = channels[i].samples;
            if (!selected[i]) {
                EXPECT_TRUE(samples.isEmpty());
                continue;
            }
            EXPECT_EQ(samples.size(), (2000 - position + enabled - 1) / enabled) << "of " << enabled;
            for (int k = 0; k < samples.size(); ++k) {
                ASSERT_EQ(samples[k].first, k * (1 / 20000.0));
                ASSERT_EQ(samples[k].second, words[k * enabled + position] * channels[i].scale) << i << ", " << k;
            }
            ++position;
        }
        EXPECT_EQ(channels[busVoltage].samples.first().second, 400.0);
    }
}

TEST_F(Scope, OneBadReplyOfADownloadChangesNoWord)
{
    ASSERT_TRUE(reconnectImpatiently());
    arm(20000, captureAtOnce, selection({torqueSetpoint, busVoltage}));
    ASSERT_TRUE(waitForPlot());
    const auto whole = log().plots.last()[busVoltage].samples;
    for (Fault::Kind kind : {Fault::Twice, Fault::Flip, Fault::Missing, Fault::Late}) {
        ASSERT_TRUE(waitUntilIdle());
        spoil(kind, 10);
        log().plots.clear();
        session().command(Connection::TaskDownloadScope);
        ASSERT_TRUE(waitForPlot()) << kind;
        EXPECT_EQ(log().plots.last()[busVoltage].samples, whole) << kind;
    }
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_F(Scope, ADownloadIsNotBelievedWhenThePollBehindItFails)
{
    ASSERT_TRUE(reconnectImpatiently());
    arm(20000, captureAtOnce, selection({busVoltage}));
    ASSERT_TRUE(waitForPlot());
    log().plots.clear();
    log().captures.clear();
    bus().setTurnAround(std::chrono::milliseconds(5));
    bus().clearReceived();
    session().command(Connection::TaskDownloadScope);
    ASSERT_TRUE(bus().waitForReceived([](const sim::ReceivedRequests &all) {
        return !all.empty() && hex(all.back().packet.payload).rfind("4007a8", 0) == 0; // the last forty words
    }));
    setFault(Fault::Cut);
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_TRUE(log().plots.isEmpty());
    EXPECT_EQ(log().captures.last(), CaptureState::Idle);
}

TEST_F(Scope, WithoutAChannelNothingIsSent)
{
    arm(20000, captureAtOnce, selection({}));
    ASSERT_TRUE(runToEnd(Connection::TaskDownloadScope));
    EXPECT_THAT(log().errors, ElementsAre(QString("No scope channels selected. Select at least one.")));
    EXPECT_TRUE(payloads().empty());
    EXPECT_TRUE(log().plots.isEmpty());
}

TEST_F(Scope, ACaptureThatNeverTriggersWaitsUntilItIsArmedAnewOrLeft)
{
    arm(20000, captureOnFault, selection({busVoltage}));
    ASSERT_TRUE(waitForPolls(3));
    EXPECT_EQ(log().captureButton.last(), "Scope waiting..");
    arm(20000, captureAtOnce, selection({busVoltage}));
    ASSERT_TRUE(waitForPlot());

    arm(20000, captureOnFault, selection({busVoltage}));
    ASSERT_TRUE(bus().waitForRegister(5, 5011, 3)) << "it is armed";
    ASSERT_TRUE(waitUntilIdle());
    ASSERT_TRUE(leave());
    ASSERT_TRUE(waitUntil([this] { return log().captureButton.last() == "Start capture"; }));

    // The recorder goes off when nobody of this connection waits for it.
    ASSERT_TRUE(connectTo());
    bus().set(5, 552, 4);
    ASSERT_TRUE(bus().waitForRegister(5, 5011, 0)) << "it is full";
    log().states.clear();
    const auto showsItFull = [](const DriveState &state) { return state.scopeState == 0; };
    // A download that the first such poll led to would be queued before the second.
    ASSERT_TRUE(waitUntil([&] { return std::count_if(log().states.begin(), log().states.end(), showsItFull) > 1; }));
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_THAT(log().plots, SizeIs(1));
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_F(Scope, ArmedAnewJustBeforeTheDownloadNothingHalfOldIsRead)
{
    const auto armAnew = [this](const QString &text) {
        if (text == "Downloading..")
            arm(20000, captureOnFault, selection({torqueSetpoint}));
    };
    // In the worker's own thread, so that it comes in front of the download.
    const auto connection =
        QObject::connect(&session(), &Connection::updateCaptureButtonText, &session(), armAnew, Qt::DirectConnection);
    arm(20000, captureAtOnce, selection({busVoltage}));
    ASSERT_TRUE(waitUntil([this] { return log().captureButton.count("Scope waiting..") == 2; }));
    QObject::disconnect(connection);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_TRUE(log().plots.isEmpty());
    EXPECT_EQ(log().captureButton.last(), "Scope waiting..");

    bus().set(5, 552, 4);
    ASSERT_TRUE(waitForPlot());
    EXPECT_THAT(log().plots.last()[torqueSetpoint].samples, SizeIs(2000));
    EXPECT_TRUE(log().plots.last()[busVoltage].samples.isEmpty());
}

TEST_F(Scope, ADisableInsideADownloadIsFollowedByTheSetUpAgain)
{
    bus().setTurnAround(std::chrono::milliseconds(3));
    arm(20000, captureAtOnce, selection({busVoltage}));
    ASSERT_TRUE(bus().waitForReceived([](const sim::ReceivedRequests &all) {
        return std::count_if(all.begin(), all.end(), [](const sim::ReceivedRequest &request) {
                   return request.packet.payload.size() == 120;
               }) > 3;
    }));
    disable();
    ASSERT_TRUE(waitForPlot());
    const std::vector<std::string> sent = payloads();
    const auto disable = std::find(sent.begin(), sent.end(), wire("89e5 00000000"));
    ASSERT_NE(disable, sent.end());
    EXPECT_EQ(disable[1], selectMemory);
    EXPECT_EQ(disable[2].size(), 2u * 3 * 40);
    EXPECT_EQ(bus().read(5, 2533), 0);
    EXPECT_TRUE(log().errors.isEmpty());
    EXPECT_THAT(log().plots.last()[busVoltage].samples, SizeIs(2000));
}
