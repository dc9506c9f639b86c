// The closed circle of tuning: step, capture, look, change a gain, again; and what can happen in the middle of it.
#include "testingfixture.h"

#include <algorithm>

namespace {

class Capture : public TestingFixture
{
protected:
    void tickAll()
    {
        tick({"ScopeTorqRef", "ScopeTorqMeas", "ScopeVelRef", "ScopeVelMeas", "ScopePosRef", "ScopePosMeas"});
    }
    int timesArmed() const
    {
        int times = 0;
        for (int code = 1; code <= 4; ++code)
            times += timesWritten(scopeState, code);
        return times;
    }
};

} // namespace

TEST_F(Capture, TrackingFaultIsShownClearedAndRecoveredFrom)
{
    tickAll();
    choose(Fault, "2500 Hz");
    enableDrive();
    arm();
    stepTo(control<QSpinBox>("FPT")->value() + 500);
    QLabel *faults = label("faultRegister");
    ASSERT_TRUE(waitFor([&] { return isSet(faults, "Tracking error"); }));
    EXPECT_TRUE(faults->text().contains("reason for inactivity"));
    EXPECT_TRUE(isSet(label("statusRegister"), "Fault stopped"));
    waitForPlot(); // the fault is a trigger, too

    click("disable_drive");
    ASSERT_TRUE(waitFor([this] { return !(bus().read(DriveAddress, softEnable)); }));
    stepTo(bus().read(DriveAddress, positionRegister));
    click("clear_faults_2");
    ASSERT_TRUE(waitFor([&] { return !isSet(faults, "Tracking error"); }));
    enableDrive();
    EXPECT_EQ(bus().read(DriveAddress, faultBits), 0);
}

TEST_F(Capture, RepeatsUntilUntickedAndSurvivesEsc)
{
    tick({"ScopePosMeas"});
    choose(Instantly, "20000 Hz");
    auto *repeat = control<QCheckBox>("repeatCapture");
    repeat->setChecked(true);
    kvp()->setValue(1); // a series is not interrupted by a question about it
    click("ScopeCaptureNow");
    ASSERT_TRUE(waitFor([this] { return timesArmed() >= 3; }, 20000));
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitForWrite(softEnable, 0));
    const int armed = timesArmed();
    ASSERT_TRUE(waitFor([&] { return timesArmed() >= armed + 2; }, 20000)) << "Esc stops the drive, not the recorder";
    repeat->setChecked(false);
    ASSERT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));
    const int last = timesArmed();
    EXPECT_LE(last, armed + 4) << "one capture after the other, none piled up";
    const auto received = bus().received().size();
    ASSERT_TRUE(waitFor([&] { return bus().received().size() > received + 2; }));
    EXPECT_EQ(timesArmed(), last);
}

TEST_F(Capture, EndsWithTheConnection)
{
    tick({"ScopePosMeas"});
    choose(Change, "20000 Hz");
    arm();
    disconnectFromDrive();
    EXPECT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));

    connectToDrive();
    bus().setTurnAround(std::chrono::milliseconds(10)); // so that the download lasts half a second
    choose(Instantly, "20000 Hz");
    click("ScopeCaptureNow");
    ASSERT_TRUE(waitFor([this] { return captureText() == "Downloading.."; }));
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 0) << "no plot of what was not read";
    EXPECT_FALSE(button("ScopeCaptureNow")->isEnabled());
}

TEST_F(Capture, TellsBeforehandHowMuchItHoldsAndCanBeCalledOff)
{
    tickAll();
    choose(Rise, "10000 Hz");
    EXPECT_EQ(label("recordLength")->text(), "33 ms at 10 kHz with 6 channels");
    control<QSpinBox>("stimulusTarget1")->setValue(100000); // 0.25 s at the drive's velocity limit
    EXPECT_EQ(label("recordLength")->text(), "33 ms at 10 kHz with 6 channels: a move of 250 ms will be cut off");
    EXPECT_FALSE(button("callOffCapture")->isEnabled());
    arm();
    ASSERT_TRUE(waitFor([this] { return button("callOffCapture")->isEnabled(); }));
    click("callOffCapture");
    ASSERT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));
    EXPECT_TRUE(waitFor([this] { return said() == "Capture called off"; }));
    EXPECT_EQ(bus().read(DriveAddress, scopeState), 0);
}
