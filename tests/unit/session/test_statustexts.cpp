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
const QString noLocation = "<br>Fault location ID 1 0" + help + "<br>Fault location ID 2 0" + help;

/// One flag of a panel, in the panel's order.
struct Row
{
    const char *label;
    int DriveState::*member;
    int mask;
    enum { Never, WhenClear, WhenSet } keepsFromRunning = Never;
    const char *before = ""; ///< what parts it from the flag above
};

constexpr auto statusRegister = &DriveState::statusRegister, faultRegister = &DriveState::faultRegister,
               pins = &DriveState::digitalInputs, controls = &DriveState::controlInputs;

const QList<Row> statusRows = {
    {"Initialized", statusRegister, 4096, Row::WhenClear}, {"Error recovering", statusRegister, 4},
    {"Tracking error warn", statusRegister, 64}, {"Target reached", statusRegister, 2},
    {"Enabled", statusRegister, 16, Row::WhenClear}, {"Run", statusRegister, 8},
    {"Homing active", statusRegister, 2048}, {"Braking", statusRegister, 1024},
    {"Permanent stop", statusRegister, 32768, Row::WhenSet}, {"Voltages good", statusRegister, 8192, Row::WhenClear},
    {"Fault stopped", statusRegister, 32, Row::WhenSet}, {"Ready for use", statusRegister, 256},
    {"STO active", statusRegister, 128, Row::WhenSet},
};
const QList<Row> faultRows = {
    {"Tracking error", faultRegister, 2, Row::WhenSet}, {"Over velocity", faultRegister, 1024, Row::WhenSet},
    {"Hardware", faultRegister, 512, Row::WhenSet}, {"Over temperature", faultRegister, 32, Row::WhenSet},
    {"Feedback", faultRegister, 16, Row::WhenSet}, {"Over current", faultRegister, 4, Row::WhenSet},
    {"Internal comm error", faultRegister, 32768, Row::WhenSet},
    {"Power stage forced off", faultRegister, 16384, Row::WhenSet},
    {"Under voltage", faultRegister, 64, Row::WhenSet}, {"Over voltage", faultRegister, 128, Row::WhenSet},
    {"Motion range", faultRegister, 8192, Row::WhenSet}, {"Firmware error", faultRegister, 256, Row::WhenSet},
    {"Init", faultRegister, 2048, Row::WhenSet}, {"Motion", faultRegister, 4096, Row::WhenSet},
    {"Zetabus", faultRegister, 8, Row::WhenSet},
};
/// The feed inputs as they are with limit switches.
const QList<Row> inputRows = {
    {"GPI 1", pins, 1}, {"GPI 2", pins, 2}, {"GPI 3", pins, 4}, {"GPI 4", pins, 8}, {"GPI 5", pins, 16},
    {"GPI 6", pins, 1048576}, {"HSIN 1", pins, 32}, {"HSIN 2", pins, 64}, {"ANA1 as digital", pins, 128},
    {"ANA2 as digital", pins, 256}, {"ENC A", pins, 512}, {"ENC B", pins, 1024}, {"ENC C", pins, 2048},
    {"ENC D", pins, 4096}, {"Hall U", pins, 8192}, {"Hall V", pins, 16384}, {"Hall W", pins, 32768},
    {"Soft enable", &DriveState::softEnable, 1, Row::WhenClear, "<br>"}, {"Phys enable", controls, 1, Row::WhenClear},
    {"Pos feed enable", controls, 2, Row::WhenClear}, {"Neg feed enable", controls, 4, Row::WhenClear},
    {"Home switch", controls, 8}, {"Clear faults", controls, 16},
};

/// A panel's flags with one of them set, or all, or none.
QString linesOf(const QList<Row> &rows, const Row *only = nullptr, bool all = false, bool running = false)
{
    QString text;
    for (const Row &row : rows) {
        const bool isSet = all || &row == only;
        const bool isReason = row.keepsFromRunning == (isSet ? Row::WhenSet : Row::WhenClear);
        text += row.before + (isSet ? on : off) + row.label + (isReason && !running ? mark : QString()) + "<br>";
    }
    return text;
}

DriveState keta()
{
    DriveState state;
    state.deviceType = 11000;
    state.feedbackResolution = 2500;
    state.limitSwitchFunction = 1;
    return state;
}

struct Panel
{
    QString text;
    bool marked = false;
};
using Wording = QString (*)(const DriveState &, bool &);

Panel panelOf(Wording wording, const DriveState &state, bool marked = false)
{
    Panel panel{{}, marked};
    panel.text = wording(state, panel.marked);
    return panel;
}

Panel statusPanel(const DriveState &state) { return panelOf(getStatusRegString, state); }
Panel faultPanel(const DriveState &state, bool marked = false) { return panelOf(getFaultRegString, state, marked); }

/// The panel has these lines whole, in this order; others may stand between them.
void expectLines(const QString &text, const QStringList &expected)
{
    EXPECT_TRUE(text.endsWith("<br>"));
    const QStringList lines = text.split("<br>");
    qsizetype from = 0;
    for (const QString &line : expected) {
        const qsizetype at = lines.indexOf(line, from);
        EXPECT_GE(at, from) << qPrintable(line) << "\nin " << qPrintable(text);
        from = std::max(at, from);
    }
}

const struct
{
    const QList<Row> &rows;
    Wording wording;
    QList<DriveFlag> (*flags)(const DriveState &);
} panels[] = {{statusRows, getStatusRegString, statusFlagsOf},
              {faultRows, getFaultRegString, faultFlagsOf},
              {inputRows, getDigitalInsString, inputFlagsOf}};

} // namespace

TEST(Panels, EveryFlagHasItsBitAndItsMarkAndStandsInTheValuesToo)
{
    for (const auto &panel : panels) {
        EXPECT_TRUE(panelOf(panel.wording, keta()).text.startsWith(linesOf(panel.rows) + "<br>"));
        for (const Row &row : panel.rows) {
            DriveState state = keta();
            state.*row.member = row.mask;
            const bool running = state.isRunning();
            EXPECT_TRUE(panelOf(panel.wording, state).text.startsWith(linesOf(panel.rows, &row, false, running) + "<br>"))
                << row.label;
            const QList<DriveFlag> flags = panel.flags(state);
            ASSERT_EQ(flags.size(), panel.rows.size());
            for (int i = 0; i < flags.size(); ++i) {
                const bool isSet = &panel.rows[i] == &row;
                EXPECT_EQ(flags[i].label, panel.rows[i].label);
                EXPECT_EQ(flags[i].isSet, isSet) << row.label;
                EXPECT_EQ(flags[i].isReason,
                          !running && panel.rows[i].keepsFromRunning == (isSet ? Row::WhenSet : Row::WhenClear));
            }
        }
    }
    DriveState bootloader = keta();
    bootloader.firmwareUpgradeMode = true;
    EXPECT_TRUE(statusFlagsOf(bootloader).isEmpty() && inputFlagsOf(bootloader).isEmpty());
}

TEST(Panels, OfADriveThatRunsOrWouldBeReadyHaveNoMarks)
{
    DriveState state = keta();
    state.statusRegister = state.faultRegister = 0x3FFFFFFF;
    for (const auto &panel : panels)
        EXPECT_FALSE(panelOf(panel.wording, state).marked);
    EXPECT_TRUE(statusPanel(state).text.startsWith(linesOf(statusRows, nullptr, true, true) + "<br>"));
    EXPECT_EQ(faultPanel(state).text, linesOf(faultRows, nullptr, true, true) + noLocation);

    state.statusRegister = 4096 + 16 + 8192;
    EXPECT_FALSE(statusPanel(state).marked);
    state.softEnable = state.controlInputs = 1;
    EXPECT_TRUE(panelOf(getDigitalInsString, state).marked);
    state.limitSwitchFunction = 0; // the feed inputs do not matter then
    EXPECT_FALSE(panelOf(getDigitalInsString, state).marked);
}

TEST(Panels, EndWithTheirValues)
{
    DriveState state = keta();
    state.busVoltage = 48.27;
    state.deviceTemperature = 41.0;
    state.actualCurrentLimit = 5.57;
    state.lastLimitReason = 2;
    state.outputCurrent = -1.234;
    state.rawVelocity = -123;
    state.position = -2147483647;
    state.setpoint = 16383;
    state.analogIn1 = -9.876;
    state.analogIn2 = 10;
    state.analogEncoderA = 1.654;
    state.analogEncoderB = 3.3;
    state.faultLocation1 = 440101;
    state.faultLocation2 = -7;
    expectLines(statusPanel(state).text,
                {"", "HV bus voltage&nbsp;&nbsp;48.3 VDC", "Device temperature&nbsp;&nbsp;41 &deg;C",
                 "Actual current limit&nbsp;&nbsp;&plusmn;5.6 A", "Last limit reason&nbsp;&nbsp;Continuous current [MCC]",
                 "Output current&nbsp;&nbsp;-1.23 A", "Velocity feedback&nbsp;&nbsp;-30.75 r/s",
                 "Velocity feedback (raw)&nbsp;&nbsp;-123", "Position feedback&nbsp;&nbsp;-2147483647",
                 "Setpoint value&nbsp;&nbsp;16383"});
    expectLines(panelOf(getDigitalInsString, state).text,
                {"", "Analog in 1&nbsp;&nbsp;-9.88 V ", "Analog in 2&nbsp;&nbsp;10.00 V ",
                 "Analog Enc A&nbsp;&nbsp;1.65 V ", "Analog Enc B&nbsp;&nbsp;3.30 V "});
    const QString locations = "<br><br>Fault location ID 1 440101" + help + "<br>Fault location ID 2 -7" + help;
    EXPECT_TRUE(faultPanel(state).text.endsWith(locations));
    EXPECT_FALSE(faultPanel(state).marked);
    EXPECT_TRUE(faultPanel(state, true).text.endsWith(locations + legend)) << "for the marks of the other panels";
    state.faultRegister = 8;
    EXPECT_TRUE(faultPanel(state).text.endsWith(locations + legend));
    EXPECT_TRUE(faultPanel(state).marked);
}

TEST(StatusPanel, TorvaShowsNoTemperature)
{
    DriveState state = keta();
    state.deviceType = 4000;
    EXPECT_FALSE(statusPanel(state).text.contains("Device temperature"));
    expectLines(statusPanel(state).text, {"HV bus voltage&nbsp;&nbsp;0.0 VDC"});
    state.deviceType = 0; // not identified: nothing says that it is a Torva
    expectLines(statusPanel(state).text, {"Device temperature&nbsp;&nbsp;0 &deg;C"});
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
        expectLines(statusPanel(state).text, {QString("Velocity feedback&nbsp;&nbsp;") + c.text});
    }
}

TEST(FaultPanel, ShowsDebugValuesAndTheWatchedRegisterWhenWanted)
{
    DriveState state = keta();
    state.debugValues = {1, -2, 3, 4, 5, 600000};
    state.watchedValue = -42;
    const QString plain = linesOf(faultRows) + noLocation;
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
