#include "statustexts.h"

#include "devicemodel.h"
#include "makerlinks.h"
#include "sessiontext.h"

namespace {

struct Flag
{
    const char *label;
    int mask;
    bool isReason; // can keep the drive from running
    bool expected; // state on a drive that is ready
};

constexpr Flag statusFlags[] = {
    {QT_TRANSLATE_NOOP("Connection", "Initialized"), 4096, true, true},
    {QT_TRANSLATE_NOOP("Connection", "Error recovering"), 4, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Tracking error warn"), 64, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Target reached"), 2, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Enabled"), statusBitEnabled, true, true},
    {QT_TRANSLATE_NOOP("Connection", "Run"), statusBitRun, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Homing active"), 2048, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Braking"), 1024, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Permanent stop"), statusBitPermanentStop, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Voltages good"), 8192, true, true},
    {QT_TRANSLATE_NOOP("Connection", "Fault stopped"), 32, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Ready for use"), 256, false, true},
    {QT_TRANSLATE_NOOP("Connection", "STO active"), 128, true, false},
};

constexpr Flag faultFlags[] = {
    {QT_TRANSLATE_NOOP("Connection", "Tracking error"), 2, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Over velocity"), 1024, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Hardware"), 512, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Over temperature"), 32, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Feedback"), 16, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Over current"), 4, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Internal comm error"), 32768, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Power stage forced off"), 16384, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Under voltage"), 64, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Over voltage"), 128, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Motion range"), 8192, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Firmware error"), 256, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Init"), 2048, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Motion"), 4096, true, false},
    {QT_TRANSLATE_NOOP("Connection", "Zetabus"), 8, true, false},
};

constexpr Flag pinFlags[] = {
    {QT_TRANSLATE_NOOP("Connection", "GPI 1"), 1, false, true},
    {QT_TRANSLATE_NOOP("Connection", "GPI 2"), 2, false, true},
    {QT_TRANSLATE_NOOP("Connection", "GPI 3"), 4, false, true},
    {QT_TRANSLATE_NOOP("Connection", "GPI 4"), 8, false, true},
    {QT_TRANSLATE_NOOP("Connection", "GPI 5"), 16, false, true},
    {QT_TRANSLATE_NOOP("Connection", "GPI 6"), 1048576, false, true},
    {QT_TRANSLATE_NOOP("Connection", "HSIN 1"), 32, false, true},
    {QT_TRANSLATE_NOOP("Connection", "HSIN 2"), 64, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ANA1 as digital"), 128, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ANA2 as digital"), 256, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ENC A"), 512, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ENC B"), 1024, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ENC C"), 2048, false, true},
    {QT_TRANSLATE_NOOP("Connection", "ENC D"), 4096, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Hall U"), 8192, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Hall V"), 16384, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Hall W"), 32768, false, true},
};

constexpr Flag softEnableFlag = {QT_TRANSLATE_NOOP("Connection", "Soft enable"), 1, true, true};
constexpr Flag physEnableFlag = {QT_TRANSLATE_NOOP("Connection", "Phys enable"), 1, true, true};
constexpr Flag feedEnableFlags[] = {
    {QT_TRANSLATE_NOOP("Connection", "Pos feed enable"), 2, true, true},
    {QT_TRANSLATE_NOOP("Connection", "Neg feed enable"), 4, true, true},
};
constexpr Flag otherControlFlags[] = {
    {QT_TRANSLATE_NOOP("Connection", "Home switch"), 8, false, true},
    {QT_TRANSLATE_NOOP("Connection", "Clear faults"), 16, false, true},
};

/// Keeps the drive, which does not run, from running.
bool isReasonForInactivity(const DriveState &state, bool isSet, bool isReason, bool expected)
{
    return !state.isRunning() && isReason && isSet != expected;
}

DriveFlag flagValue(const DriveState &state, const Flag &flag, qint32 value)
{
    const bool isSet = (value & flag.mask) != 0;
    return {SessionText::tr(flag.label), isSet, isReasonForInactivity(state, isSet, flag.isReason, flag.expected),
            flag.mask};
}

template <std::size_t count>
QList<DriveFlag> flagValues(const DriveState &state, const Flag (&flags)[count], qint32 value)
{
    QList<DriveFlag> result;
    for (const Flag &flag : flags)
        result.append(flagValue(state, flag, value));
    return result;
}

/// The feed inputs stop the drive only where limit switches are in use.
Flag feedEnableFlag(const DriveState &state, Flag flag)
{
    flag.isReason = state.limitSwitchFunction != 0.0;
    return flag;
}

QString flagLine(const DriveState &state, const Flag &flag, qint32 value, bool &inactivityReason)
{
    return formatDigitalStateAsString(state, SessionText::tr(flag.label), value, flag.mask, flag.isReason,
                                      flag.expected, inactivityReason);
}

template <std::size_t count>
QString flagLines(const DriveState &state, const Flag (&flags)[count], qint32 value, bool &inactivityReason)
{
    QString text;
    for (const Flag &flag : flags)
        text += flagLine(state, flag, value, inactivityReason);
    return text;
}

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

double revolutionsPerSecond(const DriveState &state)
{
    double countsPerRevolution = 4.0 * state.feedbackResolution;
    if (countsPerRevolution < 1.0)
        countsPerRevolution = 1.0;
    return state.rawVelocity / countsPerRevolution * 2500.0; // control cycles a second
}

} // namespace

QString formatDigitalStateAsString(const DriveState &state, const QString &label, qint32 value, int mask, bool isReason,
                                   bool expected, bool &inactivityReason)
{
    const bool set = (value & mask) != 0;
    QString marker;
    if (isReasonForInactivity(state, set, isReason, expected)) {
        marker = QStringLiteral("<b><font style=\"color:#e00\"> !</font></b>");
        inactivityReason = true;
    }
    const QString circle = set ? QStringLiteral("&#9679;") : QStringLiteral("&#9675;");
    return circle + QStringLiteral("&nbsp;&nbsp;") + label + marker + QStringLiteral("<br>");
}

QList<DriveFlag> statusFlagsOf(const DriveState &state)
{
    return state.firmwareUpgradeMode ? QList<DriveFlag>() : flagValues(state, statusFlags, state.statusRegister);
}

QList<DriveFlag> faultFlagsOf(const DriveState &state)
{
    return flagValues(state, faultFlags, state.faultRegister);
}

QList<DriveFlag> inputFlagsOf(const DriveState &state)
{
    if (state.firmwareUpgradeMode)
        return {};
    QList<DriveFlag> result = flagValues(state, pinFlags, state.digitalInputs);
    result << flagValue(state, softEnableFlag, state.softEnable)
           << flagValue(state, physEnableFlag, state.controlInputs);
    for (const Flag &flag : feedEnableFlags)
        result << flagValue(state, feedEnableFlag(state, flag), state.controlInputs);
    return result + flagValues(state, otherControlFlags, state.controlInputs);
}

QString getStatusRegString(const DriveState &state, bool &inactivityReason)
{
    QString text = flagLines(state, statusFlags, state.statusRegister, inactivityReason);
    text += QStringLiteral("<br>");
    text += SessionText::tr("HV bus voltage&nbsp;&nbsp;%1 VDC<br>").arg(fixed(state.busVoltage, 1));
    if (!isTorvaModel(state.deviceType)) // a Torva does not measure it
        text += SessionText::tr("Device temperature&nbsp;&nbsp;%1 &deg;C<br>").arg(fixed(state.deviceTemperature, 0));
    text += SessionText::tr("Actual current limit&nbsp;&nbsp;&plusmn;%1 A<br>").arg(fixed(state.actualCurrentLimit, 1));
    text += SessionText::tr("Last limit reason&nbsp;&nbsp;%1<br>").arg(limitReasonText(state.lastLimitReason));
    text += SessionText::tr("Output current&nbsp;&nbsp;%1 A<br>").arg(fixed(state.outputCurrent, 2));
    text += SessionText::tr("Velocity feedback&nbsp;&nbsp;%1 r/s<br>")
                .arg(QString::number(revolutionsPerSecond(state), 'g', 6));
    text += SessionText::tr("Velocity feedback (raw)&nbsp;&nbsp;%1<br>").arg(state.rawVelocity);
    text += SessionText::tr("Position feedback&nbsp;&nbsp;%1<br>").arg(state.position);
    text += SessionText::tr("Setpoint value&nbsp;&nbsp;%1<br>").arg(state.setpoint);
    return text;
}

QString getFaultRegString(const DriveState &state, bool &inactivityReason)
{
    const QString helpPage = makerWikiPage(QStringLiteral("/wiki/Fault_location"));
    QString text = flagLines(state, faultFlags, state.faultRegister, inactivityReason);
    text += SessionText::tr("<br>Fault location ID 1 %1 <a href=%2>?</a>").arg(state.faultLocation1).arg(helpPage);
    text += SessionText::tr("<br>Fault location ID 2 %1 <a href=%2>?</a>").arg(state.faultLocation2).arg(helpPage);
    const bool polled = !state.firmwareUpgradeMode; // a bootloader has neither: no zeros that nobody has read
    if (polled && state.debugValuesShown) {
        text += QStringLiteral("<br><br>");
        for (std::size_t i = 0; i < state.debugValues.size(); ++i)
            text += SessionText::tr("Debug %1&nbsp;&nbsp;%2<br>").arg(i + 1).arg(state.debugValues[i]);
    }
    if (polled && state.watchedAddress != 0)
        text += SessionText::tr("Param %1&nbsp;&nbsp;%2<br>").arg(state.watchedAddress).arg(state.watchedValue);
    if (inactivityReason)
        text += SessionText::tr("<br><font style=\"color:#e00\"><b>!</b> = reason for inactivity</font>");
    return text;
}

QString getDigitalInsString(const DriveState &state, bool &inactivityReason)
{
    QString text = flagLines(state, pinFlags, state.digitalInputs, inactivityReason);
    text += QStringLiteral("<br>");
    text += flagLine(state, softEnableFlag, state.softEnable, inactivityReason);
    text += flagLine(state, physEnableFlag, state.controlInputs, inactivityReason);
    for (const Flag &flag : feedEnableFlags)
        text += flagLine(state, feedEnableFlag(state, flag), state.controlInputs, inactivityReason);
    text += flagLines(state, otherControlFlags, state.controlInputs, inactivityReason);
    text += QStringLiteral("<br>");
    text += SessionText::tr("Analog in 1&nbsp;&nbsp;%1 V <br>").arg(fixed(state.analogIn1, 2));
    text += SessionText::tr("Analog in 2&nbsp;&nbsp;%1 V <br>").arg(fixed(state.analogIn2, 2));
    text += SessionText::tr("Analog Enc A&nbsp;&nbsp;%1 V <br>").arg(fixed(state.analogEncoderA, 2));
    text += SessionText::tr("Analog Enc B&nbsp;&nbsp;%1 V <br>").arg(fixed(state.analogEncoderB, 2));
    return text;
}
