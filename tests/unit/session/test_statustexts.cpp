#include "printqt.h"
#include "statustexts.h"

#include <gtest/gtest.h>

// The panels are compared byte for byte with texts typed by hand: they are what a technician reads and what scripts
// look for. "on" and "off" stand for the two circles, `!` for the red mark.

namespace {

const QString on = "&#9679;&nbsp;&nbsp;";
const QString off = "&#9675;&nbsp;&nbsp;";
const QString mark = "<b><font style=\"color:#e00\"> !</font></b>";
const QString legend = "<br><font style=\"color:#e00\"><b>!</b> = reason for inactivity</font>";
const QString help = " <a href=https://wiki.tarnwell.example/wiki/Fault_location>?</a>";

DriveState keta()
{
    DriveState state;
    state.deviceType = 11000;
    state.feedbackResolution = 2500;
    return state;
}

struct Panel
{
    QString text;
    bool marked = false;
};

Panel statusPanel(const DriveState &state)
{
    Panel panel;
    panel.text = getStatusRegString(state, panel.marked);
    return panel;
}

Panel faultPanel(const DriveState &state, bool marked = false)
{
    Panel panel;
    panel.marked = marked;
    panel.text = getFaultRegString(state, panel.marked);
    return panel;
}

Panel inputPanel(const DriveState &state)
{
    Panel panel;
    panel.text = getDigitalInsString(state, panel.marked);
    return panel;
}

const QString clearFaults = off + "Tracking error<br>" + off + "Over velocity<br>" + off + "Hardware<br>" + off +
                            "Over temperature<br>" + off + "Feedback<br>" + off + "Over current<br>" + off +
                            "Internal comm error<br>" + off + "Power stage forced off<br>" + off + "Under voltage<br>" +
                            off + "Over voltage<br>" + off + "Motion range<br>" + off + "Firmware error<br>" + off +
                            "Init<br>" + off + "Motion<br>" + off + "Zetabus<br>";

QString valueLineAfter(const QString &text, const QString &label)
{
    const int begin = text.indexOf(label) + label.size();
    return text.mid(begin, text.indexOf("<br>", begin) - begin);
}

/// A panel's flags, put together from the values.
QString flagLines(const QList<DriveFlag> &flags)
{
    QString text;
    for (const DriveFlag &flag : flags)
        text += (flag.isSet ? on : off) + flag.label + (flag.isReason ? mark : QString()) + "<br>";
    return text;
}

} // namespace

TEST(DriveFlags, SayWhatThePanelsShow)
{
    DriveState state = keta();
    for (const auto &[status, faults, inputs] :
         {std::array<int, 3>{0, 0, 0}, {4096 + 16, 2 + 64, 1 + 4}, {8 + 16, 512, 2}, {32768, 8, 31}}) {
        state.statusRegister = status;
        state.faultRegister = faults;
        state.controlInputs = state.digitalInputs = inputs;
        state.softEnable = inputs & 1;
        state.limitSwitchFunction = inputs & 4;
        EXPECT_TRUE(statusPanel(state).text.startsWith(flagLines(statusFlagsOf(state)) + "<br>HV bus")) << status;
        EXPECT_TRUE(faultPanel(state).text.startsWith(flagLines(faultFlagsOf(state)) + "<br>Fault location")) << faults;
        EXPECT_EQ(inputPanel(state).text.remove("<br><br>").section("Analog in 1", 0, 0).remove("<br>"),
                  flagLines(inputFlagsOf(state)).remove("<br>"))
            << inputs;
    }
    state.firmwareUpgradeMode = true;
    EXPECT_TRUE(statusFlagsOf(state).isEmpty() && inputFlagsOf(state).isEmpty());
}

TEST(StatusPanel, AllClear)
{
    const Panel panel = statusPanel(keta());
    EXPECT_EQ(panel.text, off + "Initialized" + mark + "<br>" + off + "Error recovering<br>" + off +
                              "Tracking error warn<br>" + off + "Target reached<br>" + off + "Enabled" + mark + "<br>" +
                              off + "Run<br>" + off + "Homing active<br>" + off + "Braking<br>" + off +
                              "Permanent stop<br>" + off + "Voltages good" + mark + "<br>" + off + "Fault stopped<br>" +
                              off + "Ready for use<br>" + off + "STO active<br>" +
                              "<br>"
                              "HV bus voltage&nbsp;&nbsp;0.0 VDC<br>"
                              "Device temperature&nbsp;&nbsp;0 &deg;C<br>"
                              "Actual current limit&nbsp;&nbsp;&plusmn;0.0 A<br>"
                              "Last limit reason&nbsp;&nbsp;None<br>"
                              "Output current&nbsp;&nbsp;0.00 A<br>"
                              "Velocity feedback&nbsp;&nbsp;0 r/s<br>"
                              "Velocity feedback (raw)&nbsp;&nbsp;0<br>"
                              "Position feedback&nbsp;&nbsp;0<br>"
                              "Setpoint value&nbsp;&nbsp;0<br>");
    EXPECT_TRUE(panel.marked);
}

TEST(StatusPanel, AllSetWhileRunning)
{
    DriveState state = keta();
    state.statusRegister = 0x3FFFFFFF;
    state.busVoltage = 48.27;
    state.deviceTemperature = 41.0;
    state.actualCurrentLimit = 5.57;
    state.lastLimitReason = 2;
    state.outputCurrent = -1.234;
    state.rawVelocity = -123;
    state.position = -2147483647;
    state.setpoint = 16383;
    const Panel panel = statusPanel(state);
    EXPECT_EQ(panel.text, on + "Initialized<br>" + on + "Error recovering<br>" + on + "Tracking error warn<br>" + on +
                              "Target reached<br>" + on + "Enabled<br>" + on + "Run<br>" + on + "Homing active<br>" +
                              on + "Braking<br>" + on + "Permanent stop<br>" + on + "Voltages good<br>" + on +
                              "Fault stopped<br>" + on + "Ready for use<br>" + on + "STO active<br>" +
                              "<br>"
                              "HV bus voltage&nbsp;&nbsp;48.3 VDC<br>"
                              "Device temperature&nbsp;&nbsp;41 &deg;C<br>"
                              "Actual current limit&nbsp;&nbsp;&plusmn;5.6 A<br>"
                              "Last limit reason&nbsp;&nbsp;Continuous current [MCC]<br>"
                              "Output current&nbsp;&nbsp;-1.23 A<br>"
                              "Velocity feedback&nbsp;&nbsp;-30.75 r/s<br>"
                              "Velocity feedback (raw)&nbsp;&nbsp;-123<br>"
                              "Position feedback&nbsp;&nbsp;-2147483647<br>"
                              "Setpoint value&nbsp;&nbsp;16383<br>");
    EXPECT_FALSE(panel.marked);
}

TEST(StatusPanel, MarksWhatKeepsAStoppedDriveFromRunning)
{
    DriveState state = keta();
    state.statusRegister = 4096 + 16 + 8192; // would be ready
    EXPECT_FALSE(statusPanel(state).marked);
    for (const auto &c : {std::make_pair(32768, "Permanent stop"), std::make_pair(32, "Fault stopped"),
                          std::make_pair(128, "STO active")}) {
        DriveState stopped = state;
        stopped.statusRegister += c.first;
        const Panel panel = statusPanel(stopped);
        EXPECT_TRUE(panel.text.contains(on + c.second + mark + "<br>")) << c.second;
        EXPECT_EQ(panel.text.count(mark), 1) << c.second;
    }
}

TEST(StatusPanel, TorvaShowsNoTemperature)
{
    DriveState state = keta();
    state.deviceType = 4000;
    const Panel panel = statusPanel(state);
    EXPECT_TRUE(panel.text.contains("HV bus voltage&nbsp;&nbsp;0.0 VDC<br>Actual current limit&nbsp;&nbsp;"));
    EXPECT_FALSE(panel.text.contains("temperature"));
    state.deviceType = 0; // not identified: nothing says that it is a Torva
    EXPECT_TRUE(statusPanel(state).text.contains("Device temperature&nbsp;&nbsp;0 &deg;C<br>"));
}

TEST(StatusPanel, VelocityWithoutAFeedbackResolutionIsPerCount)
{
    const struct
    {
        double resolution;
        int raw;
        const char *text;
    } cases[] = {{0, 3, "7500 r/s"},    {-1, 3, "7500 r/s"},      {0.2, 3, "7500 r/s"},      {0.25, 3, "7500 r/s"},
                 {2500, 7, "1.75 r/s"}, {4000, 1, "0.15625 r/s"}, {3333, 1, "0.187519 r/s"}, {0, 1000, "2.5e+06 r/s"}};
    for (const auto &c : cases) {
        DriveState state = keta();
        state.feedbackResolution = c.resolution;
        state.rawVelocity = c.raw;
        EXPECT_EQ(valueLineAfter(statusPanel(state).text, "Velocity feedback&nbsp;&nbsp;"), c.text) << c.resolution;
    }
}

TEST(FaultPanel, AllClear)
{
    const Panel panel = faultPanel(keta());
    EXPECT_EQ(panel.text, clearFaults + "<br>Fault location ID 1 0" + help + "<br>Fault location ID 2 0" + help);
    EXPECT_FALSE(panel.marked);
}

TEST(FaultPanel, FaultsWhileStoppedAreMarkedAndExplained)
{
    DriveState state = keta();
    state.faultRegister = 2 + 64;
    state.faultLocation1 = 440101;
    state.faultLocation2 = -7;
    const Panel panel = faultPanel(state);
    EXPECT_EQ(panel.text, on + "Tracking error" + mark + "<br>" + off + "Over velocity<br>" + off + "Hardware<br>" +
                              off + "Over temperature<br>" + off + "Feedback<br>" + off + "Over current<br>" + off +
                              "Internal comm error<br>" + off + "Power stage forced off<br>" + on + "Under voltage" +
                              mark + "<br>" + off + "Over voltage<br>" + off + "Motion range<br>" + off +
                              "Firmware error<br>" + off + "Init<br>" + off + "Motion<br>" + off + "Zetabus<br>" +
                              "<br>Fault location ID 1 440101" + help + "<br>Fault location ID 2 -7" + help + legend);
    EXPECT_TRUE(panel.marked);
}

TEST(FaultPanel, FaultWhileRunningIsShownUnmarked)
{
    DriveState state = keta();
    state.statusRegister = 8;
    state.faultRegister = 8;
    const Panel panel = faultPanel(state);
    EXPECT_TRUE(panel.text.contains(on + "Zetabus<br>"));
    EXPECT_FALSE(panel.text.contains(mark));
    EXPECT_FALSE(panel.text.contains(legend));
    EXPECT_FALSE(panel.marked);
}

TEST(FaultPanel, EveryFaultHasItsBit)
{
    const std::pair<int, const char *> faults[] = {{2, "Tracking error"},
                                                   {1024, "Over velocity"},
                                                   {512, "Hardware"},
                                                   {32, "Over temperature"},
                                                   {16, "Feedback"},
                                                   {4, "Over current"},
                                                   {32768, "Internal comm error"},
                                                   {16384, "Power stage forced off"},
                                                   {64, "Under voltage"},
                                                   {128, "Over voltage"},
                                                   {8192, "Motion range"},
                                                   {256, "Firmware error"},
                                                   {2048, "Init"},
                                                   {4096, "Motion"},
                                                   {8, "Zetabus"}};
    for (const auto &fault : faults) {
        DriveState state = keta();
        state.faultRegister = fault.first;
        const QString text = faultPanel(state).text;
        EXPECT_TRUE(text.contains(on + fault.second + mark + "<br>")) << fault.second;
        EXPECT_EQ(text.count(on), 1) << fault.second;
    }
}

TEST(FaultPanel, LegendAlsoExplainsTheMarksOfTheOtherPanels)
{
    EXPECT_TRUE(faultPanel(keta(), true).text.endsWith(help + legend));
}

TEST(FaultPanel, ShowsDebugValuesAndTheWatchedRegisterWhenWanted)
{
    DriveState state = keta();
    state.debugValues = {1, -2, 3, 4, 5, 600000};
    state.watchedValue = -42;
    const QString plain = clearFaults + "<br>Fault location ID 1 0" + help + "<br>Fault location ID 2 0" + help;
    const QString debug = "<br><br>Debug 1&nbsp;&nbsp;1<br>Debug 2&nbsp;&nbsp;-2<br>Debug 3&nbsp;&nbsp;3<br>"
                          "Debug 4&nbsp;&nbsp;4<br>Debug 5&nbsp;&nbsp;5<br>Debug 6&nbsp;&nbsp;600000<br>";
    const QString watched = "Param 202&nbsp;&nbsp;-42<br>";

    EXPECT_EQ(faultPanel(state).text, plain);
    state.debugValuesShown = true;
    EXPECT_EQ(faultPanel(state).text, plain + debug);
    state.watchedAddress = 202;
    EXPECT_EQ(faultPanel(state, true).text, plain + debug + watched + legend);
    state.debugValuesShown = false;
    EXPECT_EQ(faultPanel(state).text, plain + watched);
    state.debugValuesShown = true;
    state.firmwareUpgradeMode = true; // a bootloader knows neither
    EXPECT_EQ(faultPanel(state).text, plain);
}

TEST(InputPanel, AllClear)
{
    DriveState state = keta();
    state.limitSwitchFunction = 1;
    const Panel panel = inputPanel(state);
    EXPECT_EQ(panel.text, off + "GPI 1<br>" + off + "GPI 2<br>" + off + "GPI 3<br>" + off + "GPI 4<br>" + off +
                              "GPI 5<br>" + off + "GPI 6<br>" + off + "HSIN 1<br>" + off + "HSIN 2<br>" + off +
                              "ANA1 as digital<br>" + off + "ANA2 as digital<br>" + off + "ENC A<br>" + off +
                              "ENC B<br>" + off + "ENC C<br>" + off + "ENC D<br>" + off + "Hall U<br>" + off +
                              "Hall V<br>" + off + "Hall W<br>" + "<br>" + off + "Soft enable" + mark + "<br>" + off +
                              "Phys enable" + mark + "<br>" + off + "Pos feed enable" + mark + "<br>" + off +
                              "Neg feed enable" + mark + "<br>" + off + "Home switch<br>" + off + "Clear faults<br>" +
                              "<br>"
                              "Analog in 1&nbsp;&nbsp;0.00 V <br>"
                              "Analog in 2&nbsp;&nbsp;0.00 V <br>"
                              "Analog Enc A&nbsp;&nbsp;0.00 V <br>"
                              "Analog Enc B&nbsp;&nbsp;0.00 V <br>");
    EXPECT_TRUE(panel.marked);
}

TEST(InputPanel, AllSet)
{
    DriveState state = keta();
    state.limitSwitchFunction = 1;
    state.digitalInputs = 0x10FFFF;
    state.controlInputs = 31;
    state.softEnable = 1;
    state.analogIn1 = -9.876;
    state.analogIn2 = 10;
    state.analogEncoderA = 1.654;
    state.analogEncoderB = 3.3;
    const Panel panel = inputPanel(state);
    EXPECT_EQ(panel.text, on + "GPI 1<br>" + on + "GPI 2<br>" + on + "GPI 3<br>" + on + "GPI 4<br>" + on + "GPI 5<br>" +
                              on + "GPI 6<br>" + on + "HSIN 1<br>" + on + "HSIN 2<br>" + on + "ANA1 as digital<br>" +
                              on + "ANA2 as digital<br>" + on + "ENC A<br>" + on + "ENC B<br>" + on + "ENC C<br>" + on +
                              "ENC D<br>" + on + "Hall U<br>" + on + "Hall V<br>" + on + "Hall W<br>" + "<br>" + on +
                              "Soft enable<br>" + on + "Phys enable<br>" + on + "Pos feed enable<br>" + on +
                              "Neg feed enable<br>" + on + "Home switch<br>" + on + "Clear faults<br>" +
                              "<br>"
                              "Analog in 1&nbsp;&nbsp;-9.88 V <br>"
                              "Analog in 2&nbsp;&nbsp;10.00 V <br>"
                              "Analog Enc A&nbsp;&nbsp;1.65 V <br>"
                              "Analog Enc B&nbsp;&nbsp;3.30 V <br>");
    EXPECT_FALSE(panel.marked);
}

TEST(InputPanel, FeedInputsAreNoReasonWithoutLimitSwitches)
{
    DriveState state = keta();
    state.softEnable = 1;
    state.controlInputs = 1;
    const Panel panel = inputPanel(state);
    EXPECT_TRUE(panel.text.contains(off + "Pos feed enable<br>" + off + "Neg feed enable<br>"));
    EXPECT_FALSE(panel.marked);
}

TEST(InputPanel, EveryInputHasItsBit)
{
    const std::pair<int, const char *> pins[] = {{1, "GPI 1"},
                                                 {2, "GPI 2"},
                                                 {4, "GPI 3"},
                                                 {8, "GPI 4"},
                                                 {16, "GPI 5"},
                                                 {1048576, "GPI 6"},
                                                 {32, "HSIN 1"},
                                                 {64, "HSIN 2"},
                                                 {512, "ENC A"},
                                                 {1024, "ENC B"},
                                                 {2048, "ENC C"},
                                                 {4096, "ENC D"},
                                                 {128, "ANA1 as digital"},
                                                 {256, "ANA2 as digital"},
                                                 {8192, "Hall U"},
                                                 {16384, "Hall V"},
                                                 {32768, "Hall W"}};
    for (const auto &pin : pins) {
        DriveState state = keta();
        state.digitalInputs = pin.first;
        const QString text = inputPanel(state).text;
        EXPECT_TRUE(text.contains(on + pin.second + "<br>")) << pin.second;
        EXPECT_EQ(text.count(on), 1) << pin.second;
    }
    const std::pair<int, const char *> controls[] = {
        {1, "Phys enable"}, {2, "Pos feed enable"}, {4, "Neg feed enable"}, {8, "Home switch"}, {16, "Clear faults"}};
    for (const auto &control : controls) {
        DriveState state = keta();
        state.controlInputs = control.first;
        const QString text = inputPanel(state).text;
        EXPECT_TRUE(text.contains(on + control.second + "<br>")) << control.second;
        EXPECT_EQ(text.count(on), 1) << control.second;
    }
}

TEST(FlagLine, IsMarkedOnlyForAReasonInTheUnexpectedStateWhileNotRunning)
{
    for (int bits = 0; bits < 16; ++bits) {
        const bool running = bits & 1, isReason = bits & 2, expected = bits & 4, set = bits & 8;
        DriveState state = keta();
        state.statusRegister = running ? 8 : 0;
        bool marked = false;
        const QString line = formatDigitalStateAsString(state, "X", set ? 6 : 1, 4, isReason, expected, marked);
        const bool wanted = !running && isReason && set != expected;
        EXPECT_EQ(line, (set ? on : off) + "X" + (wanted ? mark : QString()) + "<br>") << bits;
        EXPECT_EQ(marked, wanted) << bits;
    }
    bool marked = true;
    formatDigitalStateAsString(keta(), "X", 1, 1, true, true, marked);
    EXPECT_TRUE(marked) << "a mark of another line must survive";
}
