// What the Testing page, the motor measurement and a changed control mode ask before they go on.
#include "testingfixture.h"

#include <QDoubleSpinBox>

namespace {

constexpr int KVP = 202;
constexpr int SYSTEM_COMMAND = 554;
constexpr int MEASURE = 256;
constexpr int RESET_POSITION = 512;
constexpr int CONTROL_MODE = 559; // counts from 1
constexpr int POSITION_CONTROL = 0, VELOCITY_CONTROL = 1;

class Questions : public TestingFixture
{
protected:
    Questions() { m_webEngine = HelpView::Engine::Off; }
    void edit() { control<QSpinBox>("KVP")->setValue(control<QSpinBox>("KVP")->value() + 1); }
    void showPlot() { QMetaObject::invokeMethod(m_window.get(), "plotCapture", Q_ARG(QList<CaptureData>, {})); }
    /// Changes the control mode in the window and applies it.
    void applyMode(int mode)
    {
        bus().clearReceived();
        control<QComboBox>("CM")->setCurrentIndex(mode);
        click("apply_button");
        ASSERT_TRUE(driveHas(CONTROL_MODE, mode + 1));
        ASSERT_TRUE(waitForThreePolls());
    }
    /// Leaves position control, and comes back more than a turn away from zero.
    void comeBackToPositionControl()
    {
        applyMode(VELOCITY_CONTROL);
        bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) {
            drive.write(CONTROL_MODE, POSITION_CONTROL + 1);
            drive.write(SOFT_ENABLE, 1);
            drive.advanceCycles(5);
            for (int turn = 1; turn <= 13; ++turn) {
                drive.write(551, turn * 1000);
                drive.advanceCycles(1000);
            }
            drive.write(SOFT_ENABLE, 0);
            drive.write(CONTROL_MODE, VELOCITY_CONTROL + 1);
        });
        ASSERT_GT(bus().read(DriveAddress, POSITION), 10000);
        ASSERT_TRUE(waitFor([&] { return m_state.position == bus().read(DriveAddress, POSITION); }));
        applyMode(POSITION_CONTROL);
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
        goTo(TUNING_PAGE);
        if (plotted)
            showPlot();
        edit();
        m_answers.press("No");
        goTo(TESTING_PAGE);
        EXPECT_TRUE(m_answers.isDone()) << "asked on entering";
        clickLink("tdext://showhelp"); // any question here is nobody's to answer, which fails the test
    }
    goTo(TUNING_PAGE);
    m_answers.press("Yes");
    goTo(TESTING_PAGE);
    EXPECT_TRUE(driveHas(KVP, control<QSpinBox>("KVP")->value()));
}

TEST_F(QuestionsBesideAPlot, APlotThatComesDuringTheQuestionStays)
{
    goTo(TUNING_PAGE);
    edit();
    m_answers.expect([this](QWidget *box) {
        showPlot();
        return box->close();
    });
    goTo(TESTING_PAGE);
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
    EXPECT_EQ(timesWritten(SYSTEM_COMMAND, MEASURE), 0);
    m_answers.press("Apply settings");
    click("measureRLbutton");
    ASSERT_TRUE(waitForWrite(SYSTEM_COMMAND, MEASURE));
    ASSERT_TRUE(waitFor([this] {
        return std::abs(control<QDoubleSpinBox>("MR")->value() * 1000 - bus().read(DriveAddress, 405)) < 0.6 &&
               std::abs(control<QDoubleSpinBox>("ML")->value() * 1000 - bus().read(DriveAddress, 406)) < 0.6;
    }));
    EXPECT_EQ(bus().read(DriveAddress, 405), 150) << "0.15 ohms have the virtual motor's windings";
    EXPECT_EQ(bus().read(DriveAddress, 406), 500);
    EXPECT_TRUE(waitForPending(false));
    enableDrive();
    click("measureRLbutton"); // refused
    ASSERT_TRUE(waitFor([this] { return shownMessage(m_window.get()).startsWith("Measurement failed."); }));
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
        EXPECT_EQ(timesWritten(SYSTEM_COMMAND, RESET_POSITION), 0);
    }
    m_answers.press("Reset");
    applyMode(VELOCITY_CONTROL);
    applyMode(POSITION_CONTROL);
    ASSERT_TRUE(waitForWrite(SYSTEM_COMMAND, RESET_POSITION));
    EXPECT_EQ(timesWritten(SYSTEM_COMMAND, RESET_POSITION), 1);
    EXPECT_EQ(bus().read(DriveAddress, POSITION), 0);
}

TEST_F(Questions, AlwaysResetQueuesOneReset)
{
    m_answers.press("Always reset");
    for (int time = 0; time < 2; ++time) { // no question any more
        comeBackToPositionControl();
        ASSERT_TRUE(waitForWrite(SYSTEM_COMMAND, RESET_POSITION));
        ASSERT_TRUE(waitForThreePolls());
        EXPECT_EQ(timesWritten(SYSTEM_COMMAND, RESET_POSITION), 1);
    }
}

TEST_F(Questions, NeverResetStaysSilentAfterwards)
{
    m_answers.press("Never reset");
    comeBackToPositionControl();
    ASSERT_TRUE(waitFor([this] { return m_answers.isDone(); }));
    comeBackToPositionControl();
    EXPECT_EQ(timesWritten(SYSTEM_COMMAND, RESET_POSITION), 0);
}
