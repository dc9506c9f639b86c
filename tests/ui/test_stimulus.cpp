// The test stimulus from the window: what reaches the drive, and everything that ends it.
#include "testingfixture.h"

namespace {

constexpr int stopStream = 4;

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
    bool isStreaming() const
    {
        const sim::ReceivedRequests all = receivedAt(DriveAddress);
        return std::any_of(all.begin(), all.end(), [](const auto &request) { return request.packet.id == 52; });
    }
};

} // namespace

TEST_F(Stimulus, ALostLineUnticksItAndATickDoesNotSurviveTheConnectButton)
{
    start();
    ASSERT_TRUE(waitFor([this] { return isStreaming(); }));
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_FALSE(box()->isChecked());
    for (const char *name : {"setAbs1", "setInc1", "setAbs2", "setInc2"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;

    box()->setChecked(true);
    click("connect_button"); // the search ends at once
    EXPECT_FALSE(box()->isChecked());
}

TEST_F(Stimulus, ClosingTheWindowStopsIt)
{
    start();
    ASSERT_TRUE(waitFor([this] { return isStreaming(); }));
    kvp()->setValue(1);
    m_answers.press("Abort");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(box()->isChecked()) << "a close that was not accepted stops nothing";
    m_answers.press("Continue without applying");
    EXPECT_TRUE(m_window->close());
    EXPECT_TRUE(waitForWrite(systemCommand, stopStream));
    EXPECT_NE(bus().read(DriveAddress, KVP), 1) << "nor does it apply";
}
