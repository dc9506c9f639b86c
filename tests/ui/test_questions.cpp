// What the Testing page, the motor measurement and a changed control mode ask before they go on.
#include "testingfixture.h"

namespace {

constexpr int measure = 256;
constexpr int resetPosition = 512;
constexpr int controlMode = 559; // counts from 1
constexpr int positionControl = 0, velocityControl = 1;

class Questions : public TestingFixture
{
protected:
    Questions() { m_webEngine = HelpView::Engine::Off; }
    void edit() { kvp()->setValue(kvp()->value() + 1); }
    /// Changes the control mode in the window and applies it.
    void applyMode(int mode)
    {
        bus().clearReceived();
        control<QComboBox>("CM")->setCurrentIndex(mode);
        click("apply_button");
        ASSERT_TRUE(driveHas(controlMode, mode + 1));
        ASSERT_TRUE(waitForThreePolls());
    }
    /// Leaves position control, and comes back more than a turn away from zero.
    void comeBackToPositionControl()
    {
        applyMode(velocityControl);
        bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) {
            drive.write(controlMode, positionControl + 1);
            drive.write(softEnable, 1);
            drive.advanceCycles(5);
            for (int turn = 1; turn <= 13; ++turn) {
                drive.write(551, turn * 1000);
                drive.advanceCycles(1000);
            }
            drive.write(softEnable, 0);
            drive.write(controlMode, velocityControl + 1);
        });
        ASSERT_GT(bus().read(DriveAddress, positionRegister), 10000);
        ASSERT_TRUE(waitFor([&] { return m_state.position == bus().read(DriveAddress, positionRegister); }));
        applyMode(positionControl);
    }
};

class QuestionsBesideAPlot : public Questions
{
protected:
    QuestionsBesideAPlot() { m_webEngine = HelpView::Engine::Allowed; }
};

} // namespace

TEST_F(Questions, TestingPageAsksOnceOnEnteringAlsoWhileAPlotIsShown)
{
    for (const bool plotted : {false, true}) {
        SCOPED_TRACE(plotted);
        goTo(tuningPage);
        if (plotted)
            showPlot();
        edit();
        m_answers.press("No");
        goTo(testingPage);
        EXPECT_TRUE(m_answers.isDone()) << "asked on entering";
        clickLink("tdext://showhelp"); // any question here is nobody's to answer, which fails the test
    }
    goTo(tuningPage);
    m_answers.press("Yes");
    goTo(testingPage);
    EXPECT_TRUE(driveHas(KVP, kvp()->value()));
}

TEST_F(QuestionsBesideAPlot, APlotThatComesDuringTheQuestionStays)
{
    goTo(tuningPage);
    edit();
    m_answers.expect([this](QWidget *box) {
        showPlot();
        return box->close();
    });
    goTo(testingPage);
    EXPECT_TRUE(waitFor([this] { return shownText().contains("Velbrin servo scope"); }));
    QTest::qWait(100);
    EXPECT_TRUE(shownText().contains("Velbrin servo scope"));
}

TEST_F(Questions, MeasuringAsksFirstAndFillsInTheMotor)
{
    control<QDoubleSpinBox>("MR")->setValue(0.9);
    control<QDoubleSpinBox>("ML")->setValue(0.9);
    m_answers.press("Abort");
    click("measureRLbutton");
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(systemCommand, measure), 0);
    m_answers.press("Apply settings");
    click("measureRLbutton");
    ASSERT_TRUE(waitForWrite(systemCommand, measure));
    ASSERT_TRUE(waitFor([this] {
        return std::abs(control<QDoubleSpinBox>("MR")->value() * 1000 - bus().read(DriveAddress, 405)) < 0.6 &&
               std::abs(control<QDoubleSpinBox>("ML")->value() * 1000 - bus().read(DriveAddress, 406)) < 0.6;
    }));
    EXPECT_EQ(bus().read(DriveAddress, 405), 150) << "0.15 ohms have the virtual motor's windings";
    EXPECT_EQ(bus().read(DriveAddress, 406), 500);
    EXPECT_TRUE(waitForPending(false));
    enableDrive();
    click("measureRLbutton"); // refused
    ASSERT_TRUE(waitFor([this] { return shownMessage().startsWith("Measurement failed."); }));
    EXPECT_EQ(connectionText(), "Connected");
    m_answers.press("Abort"); // it is not saved, and the question about that says so
    click("disconnect_button");
    EXPECT_TRUE(m_answers.texts.last().contains("since last Save to drive"));
}

TEST_F(Questions, PositionIsResetOnlyWhenTheUserSaysSo)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        m_answers.pressKey(key);
        comeBackToPositionControl();
        ASSERT_TRUE(waitFor([this] { return m_answers.isDone(); }));
        EXPECT_EQ(m_answers.texts.last(), "Drive control mode changed to position control ");
        ASSERT_TRUE(waitForThreePolls());
        EXPECT_EQ(timesWritten(systemCommand, resetPosition), 0);
    }
    m_answers.press("Reset");
    applyMode(velocityControl);
    applyMode(positionControl);
    ASSERT_TRUE(waitForWrite(systemCommand, resetPosition));
    EXPECT_EQ(timesWritten(systemCommand, resetPosition), 1);
    EXPECT_EQ(bus().read(DriveAddress, positionRegister), 0);
}

TEST_F(Questions, AlwaysAndNeverAreRememberedAndQueueOneResetOrNone)
{
    for (const auto &[answer, resets] : {std::pair{"Always reset", 1}, {"Never reset", 0}}) {
        m_answers.press(answer);
        for (int time = 0; time < 2; ++time) { // no question any more
            comeBackToPositionControl();
            ASSERT_TRUE(waitFor([this] { return m_answers.isDone(); }));
            ASSERT_TRUE(resets == 0 || waitForWrite(systemCommand, resetPosition));
            ASSERT_TRUE(waitForThreePolls());
            EXPECT_EQ(timesWritten(systemCommand, resetPosition), resets);
        }
        m_window.reset(); // and not beyond the program's end
        openConnectedWindow();
    }
}
