// The closed circle of tuning: step, capture, look, change a gain, again; and what can happen in the middle of it.
#include "testingfixture.h"

#include <algorithm>

namespace {

constexpr int KPP = 201;

struct Response
{
    double riseMs = -1;   ///< to 90 %
    double settledMs = 0; ///< from when on it stays within 2 %
    double overshoot = 0; ///< percent
};

/// Of a step from the first sample's position by `distance`.
Response responseOf(const QVector<QPointF> &position, double distance)
{
    Response response;
    const double start = position.isEmpty() ? 0.0 : position.first().y();
    for (const QPointF &sample : position) {
        const double part = (sample.y() - start) / distance;
        const double ms = sample.x() * 1000;
        if (response.riseMs < 0 && part >= 0.9)
            response.riseMs = ms;
        if (std::abs(part - 1) > 0.02)
            response.settledMs = ms;
        response.overshoot = std::max(response.overshoot, (part - 1) * 100);
    }
    return response;
}

class Capture : public TestingFixture
{
protected:
    void tickAll()
    {
        tick({"ScopeTorqRef", "ScopeTorqMeas", "ScopeVelRef", "ScopeVelMeas", "ScopePosRef", "ScopePosMeas"});
    }
    Response captureStep(int target, double distance)
    {
        Response response;
        [&] {
            arm();
            stepTo(target);
            waitForPlot();
            response = responseOf(samples("Position", 1), distance);
        }();
        return response;
    }
    void apply(const char *name, int reg, int value)
    {
        control<QSpinBox>(name)->setValue(value);
        click("apply_button");
        ASSERT_TRUE(driveHas(reg, value));
        ASSERT_TRUE(waitForPending(false));
    }
    int timesArmed() const
    {
        int times = 0;
        for (int code = 1; code <= 4; ++code)
            times += timesWritten(SCOPE_STATE, code);
        return times;
    }
};

} // namespace

TEST_F(Capture, StepIsSeenTheGainRaisedAndTheOvershootSeen)
{
    tickAll();
    choose(Change, "2500 Hz");
    enableDrive();
    const Response clean = captureStep(1000, 1000);
    ASSERT_EQ(samples("Position", 1).size(), 333);
    EXPECT_EQ(samples("Position", 0).last().y(), 1000);
    EXPECT_GT(clean.riseMs, 25);
    EXPECT_LT(clean.riseMs, 40);
    EXPECT_LE(clean.overshoot, 0);
    EXPECT_LT(clean.settledMs, 80);

    apply("KPP", KPP, 4 * control<QSpinBox>("KPP")->value());
    const Response ringing = captureStep(0, -1000);
    EXPECT_GT(ringing.overshoot, 20);
    EXPECT_LT(ringing.overshoot, 100);
    EXPECT_EQ(bus().read(DriveAddress, FAULTS), 0);
}

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
    ASSERT_TRUE(waitFor([this] { return !(bus().read(DriveAddress, SOFT_ENABLE)); }));
    stepTo(bus().read(DriveAddress, POSITION));
    click("clear_faults_2");
    ASSERT_TRUE(waitFor([&] { return !isSet(faults, "Tracking error"); }));
    enableDrive();
    choose(Change, "2500 Hz");
    const int start = bus().read(DriveAddress, POSITION);
    const Response response = captureStep(start + 1000, 1000);
    EXPECT_GT(response.riseMs, 25);
    EXPECT_LT(response.riseMs, 40);
    EXPECT_EQ(bus().read(DriveAddress, FAULTS), 0);
}

TEST_F(Capture, RepeatsUntilUntickedAndSurvivesEsc)
{
    tick({"ScopePosMeas"});
    choose(Instantly, "20000 Hz");
    auto *repeat = control<QCheckBox>("repeatCapture");
    repeat->setChecked(true);
    control<QSpinBox>("KVP")->setValue(1); // a series is not interrupted by a question about it
    click("ScopeCaptureNow");
    ASSERT_TRUE(waitFor([this] { return timesArmed() >= 3; }, 20000));
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitForWrite(SOFT_ENABLE, 0));
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
    click("disconnect_button");
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
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
    EXPECT_TRUE(waitFor([this] { return statusBarText() == "Capture called off"; }));
    EXPECT_EQ(bus().read(DriveAddress, SCOPE_STATE), 0);
}

TEST_F(Capture, PlotZoomsAndRestores)
{
    tickAll();
    choose(Instantly, "20000 Hz");
    click("ScopeCaptureNow");
    waitForPlot();
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 3);
    EXPECT_TRUE(label("offlineHelpNotification")->isHidden());
    EXPECT_LE(run("document.documentElement.scrollWidth - window.innerWidth").toInt(), 0);
    EXPECT_LT(view()->width(), 500) << "as narrow as it is at first";
    const auto right = [this] { return run("$('#Torque').data('plot').getAxes().xaxis.max").toDouble(); };
    const double all = right();
    run("$('#Torque').data('plot').setSelection({xaxis: {from: 0.001, to: 0.002}, yaxis: {from: -1, to: 1}})");
    EXPECT_NEAR(right(), 0.002, 1e-4);
    clickLink("tdext://reloadplots");
    EXPECT_TRUE(waitFor([&] { return right() == all; }));
    clickLink("tdext://showhelp");
    EXPECT_TRUE(waitFor([this] { return run("document.body.innerText").toString().startsWith("online"); }));
}
