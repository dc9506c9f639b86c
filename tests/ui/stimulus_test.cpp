// The test stimulus from the window: what reaches the drive, and everything that ends it.
#include "testingfixture.h"

#include <QDoubleSpinBox>

namespace {

constexpr int PERIOD = 8;
constexpr int SYSTEM_COMMAND = 554;
constexpr int STOP_STREAM = 4;

class Stimulus : public TestingFixture
{
protected:
    Stimulus() { m_webEngine = HelpView::Engine::Off; }
    QCheckBox *box() const { return control<QCheckBox>("stimulusEnabled"); }
    void start()
    {
        control<QSpinBox>("stimulusTarget1")->setValue(300);
        control<QSpinBox>("stimulusTarget2")->setValue(-300);
        control<QDoubleSpinBox>("stimulusDelay1")->setValue(0.2);
        control<QDoubleSpinBox>("stimulusDelay2")->setValue(0.1);
        box()->setChecked(true);
    }
    /// All items of the drive's command buffer so far, in order.
    std::vector<sim::Item> streamed() const
    {
        std::vector<sim::Item> items;
        for (const sim::ReceivedRequest &request : receivedAt(DriveAddress)) {
            if (request.packet.id != 52)
                continue;
            for (const sim::Item &item : sim::decodeItems(request.packet.payload))
                items.push_back(item);
        }
        return items;
    }
    bool setButtonsAre(bool enabled) const
    {
        for (const char *name : {"setAbs1", "setInc1", "setAbs2", "setInc2"}) {
            if (button(name)->isEnabled() != enabled)
                return false;
        }
        return true;
    }
};

} // namespace

TEST_F(Stimulus, StreamsASquareWaveUntilUnticked)
{
    enableDrive();
    bus().clearReceived();
    start();
    EXPECT_TRUE(setButtonsAre(false));
    // A second's worth more than what fills the buffer at first: 9 uploads of 30.
    ASSERT_TRUE(waitFor([this] { return streamed().size() >= 330; }));
    ASSERT_TRUE(waitFor([this] { return label("setpointNow")->text() == "Setpoint now: -300"; }));
    ASSERT_TRUE(waitFor([this] { return label("setpointNow")->text() == "Setpoint now: 300"; }));
    EXPECT_EQ(timesWritten(PERIOD, 200), 1);
    const std::vector<sim::Item> items = streamed();
    EXPECT_EQ(std::count_if(items.begin(), items.end(), [](const sim::Item &i) { return i.selectsAddress; }), 3)
        << "return selector, return length, setpoint: once";
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(items[i].selectsAddress, i % 2 == 0) << i;
    // 0.2 s are ten periods (and the sample on the edge), 0.1 s five.
    std::vector<int> runs;
    for (std::size_t i = 5; i < items.size(); ++i) {
        ASSERT_EQ(std::abs(items[i].value), 300) << i;
        if (i > 5 && items[i].value == items[i - 1].value)
            ++runs.back();
        else
            runs.push_back(1);
    }
    ASSERT_GT(runs.size(), 20u);
    for (std::size_t i = 0; i + 1 < runs.size(); ++i)
        EXPECT_NEAR(runs[i], i % 2 == 0 ? 10 : 5, 1) << i;
    EXPECT_EQ(items[5].value, 300);

    EXPECT_EQ(timesWritten(SYSTEM_COMMAND, STOP_STREAM), 0);
    box()->setChecked(false);
    ASSERT_TRUE(waitForWrite(SYSTEM_COMMAND, STOP_STREAM));
    EXPECT_EQ(timesWritten(SYSTEM_COMMAND, STOP_STREAM), 1);
    EXPECT_TRUE(setButtonsAre(true));
    ASSERT_TRUE(driveHas(6, 2048)) << "the buffer is empty";
}

TEST_F(Stimulus, ADisconnectStopsItForGood)
{
    start();
    ASSERT_TRUE(waitFor([this] { return !streamed().empty(); }));
    click("disconnect_button");
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_GE(timesWritten(SYSTEM_COMMAND, STOP_STREAM), 1);
    EXPECT_FALSE(box()->isChecked());
    bus().clearReceived();
    connectToDrive();
    EXPECT_TRUE(setButtonsAre(true));
    EXPECT_TRUE(streamed().empty());
}

TEST_F(Stimulus, ALostLineUnticksIt)
{
    start();
    ASSERT_TRUE(waitFor([this] { return !streamed().empty(); }));
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_FALSE(box()->isChecked());
    EXPECT_TRUE(setButtonsAre(false));
}

TEST_F(Stimulus, ClosingTheWindowStopsIt)
{
    start();
    ASSERT_TRUE(waitFor([this] { return !streamed().empty(); }));
    control<QSpinBox>("KVP")->setValue(1);
    m_answers.press("Abort");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(box()->isChecked()) << "a close that was not accepted stops nothing";
    m_answers.press("Continue without applying");
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(waitForWrite(SYSTEM_COMMAND, STOP_STREAM));
}

TEST_F(Stimulus, ATickDoesNotSurviveTheConnectButton)
{
    click("disconnect_button");
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    box()->setChecked(true);
    bus().unplug(); // the search ends at once
    click("connect_button");
    EXPECT_FALSE(box()->isChecked());
}
