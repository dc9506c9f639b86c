// The test stimulus from the window: what reaches the drive, and everything that ends it.
#include "testingfixture.h"

#include <QDoubleSpinBox>

namespace {

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
    bool isStreaming() const
    {
        const sim::ReceivedRequests all = receivedAt(DriveAddress);
        return std::any_of(all.begin(), all.end(), [](const auto &request) { return request.packet.id == 52; });
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

TEST_F(Stimulus, ALostLineUnticksIt)
{
    start();
    ASSERT_TRUE(waitFor([this] { return isStreaming(); }));
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_FALSE(box()->isChecked());
    EXPECT_TRUE(setButtonsAre(false));
}

TEST_F(Stimulus, ClosingTheWindowStopsIt)
{
    start();
    ASSERT_TRUE(waitFor([this] { return isStreaming(); }));
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
    disconnectFromDrive();
    box()->setChecked(true);
    bus().unplug(); // the search ends at once
    click("connect_button");
    EXPECT_FALSE(box()->isChecked());
}
