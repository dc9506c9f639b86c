#include "settingfacts.h"

#include "devicemodel.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Row
{
    const char *name;
    const char *caption;
    const char *unit;
    double standard;      // display units
    double torvaStandard; // Torva drives for a smaller current and a higher voltage
};

// Units that are words; the others are the same everywhere.
constexpr const char *wordUnits[] = {
    QT_TRANSLATE_NOOP("SettingFacts", "counts"),         QT_TRANSLATE_NOOP("SettingFacts", "cnt/cycle"),
    QT_TRANSLATE_NOOP("SettingFacts", "cnt/cycle/DIV"),  QT_TRANSLATE_NOOP("SettingFacts", "cnt/cycle²/DIV"),
    QT_TRANSLATE_NOOP("SettingFacts", "setpoint units"), QT_TRANSLATE_NOOP("SettingFacts", "lines/rev"),
    QT_TRANSLATE_NOOP("SettingFacts", "poles"),          QT_TRANSLATE_NOOP("SettingFacts", "rpm"),
    QT_TRANSLATE_NOOP("SettingFacts", "bits"),           QT_TRANSLATE_NOOP("SettingFacts", "raw"),
};

// clang-format off: one setting a line
constexpr Row rows[] = {
    {"CEI", QT_TRANSLATE_NOOP("SettingFacts", "Enable and limit input logic"), "", 0, 0},
    {"ZBO", QT_TRANSLATE_NOOP("SettingFacts", "Bus address offset"), "", 0, 0},
    {"TRF1", QT_TRANSLATE_NOOP("SettingFacts", "Cogging compensation function"), "", 0, 0},
    {"TRF2", QT_TRANSLATE_NOOP("SettingFacts", "Torque uniformity compensation function"), "", 0, 0},
    {"TRA1", QT_TRANSLATE_NOOP("SettingFacts", "Cogging compensation amplitude"), "A", 0, 0},
    {"TRA2", QT_TRANSLATE_NOOP("SettingFacts", "Torque uniformity compensation amplitude"), "%", 0, 0},
    {"FBR", QT_TRANSLATE_NOOP("SettingFacts", "Feedback device resolution"), "lines/rev", 2500, 2500},
    {"FBD", QT_TRANSLATE_NOOP("SettingFacts", "Position feedback device"), "", 1, 1},
    {"FB2D", QT_TRANSLATE_NOOP("SettingFacts", "Velocity feedback device"), "", 0, 0},
    {"TBW", QT_TRANSLATE_NOOP("SettingFacts", "Torque bandwidth"), "", 6, 6},
    {"KVP", QT_TRANSLATE_NOOP("SettingFacts", "Velocity P gain"), "", 360, 90},
    {"KVI", QT_TRANSLATE_NOOP("SettingFacts", "Velocity I gain"), "", 360, 90},
    {"KPP", QT_TRANSLATE_NOOP("SettingFacts", "Position P gain"), "", 120, 120},
    {"VFF", QT_TRANSLATE_NOOP("SettingFacts", "Velocity feed-forward gain"), "", 0, 0},
    {"AFF", QT_TRANSLATE_NOOP("SettingFacts", "Acceleration feed-forward gain"), "", 0, 0},
    {"PFF", QT_TRANSLATE_NOOP("SettingFacts", "Position feed-forward gain"), "%", 100, 100},
    {"CM", QT_TRANSLATE_NOOP("SettingFacts", "Control mode"), "", 0, 0},
    {"MT", QT_TRANSLATE_NOOP("SettingFacts", "Motor type"), "", 3, 3},
    {"AD", QT_TRANSLATE_NOOP("SettingFacts", "Active damping gain"), "", 0, 0},
    {"FLAGS", QT_TRANSLATE_NOOP("SettingFacts", "Switches of enabling, direction and feedback"), "bits", 1, 1},
    {"MMC", QT_TRANSLATE_NOOP("SettingFacts", "Peak current"), "A", 32, 8},
    {"MCC", QT_TRANSLATE_NOOP("SettingFacts", "Continuous current"), "A", 13, 3.25},
    {"FOC", QT_TRANSLATE_NOOP("SettingFacts", "Over current fault threshold"), "A", 48, 12},
    {"FOV", QT_TRANSLATE_NOOP("SettingFacts", "Over voltage fault threshold"), "V", 58, 400},
    {"FUV", QT_TRANSLATE_NOOP("SettingFacts", "Under voltage fault threshold"), "V", 36, 200},
    {"FPT", QT_TRANSLATE_NOOP("SettingFacts", "Position tracking error threshold"), "counts", 2000, 2000},
    {"FVT", QT_TRANSLATE_NOOP("SettingFacts", "Velocity tracking error threshold"), "cnt/cycle", 120, 120},
    {"FEV", QT_TRANSLATE_NOOP("SettingFacts", "Over speed fault threshold"), "cnt/cycle", 240, 240},
    {"FMO", QT_TRANSLATE_NOOP("SettingFacts", "Motion fault threshold"), "counts", 0, 0},
    {"LSF", QT_TRANSLATE_NOOP("SettingFacts", "Limit switch function"), "", 0, 0},
    {"AXS", QT_TRANSLATE_NOOP("SettingFacts", "Axis scale"), "", 1, 1},
    {"AXT", QT_TRANSLATE_NOOP("SettingFacts", "Axis type & units"), "", 3, 3},
    {"FFT", QT_TRANSLATE_NOOP("SettingFacts", "Tracking fault delay"), "s", 0, 0},
    {"CRI", QT_TRANSLATE_NOOP("SettingFacts", "Setpoint input"), "", 0, 0},
    {"DIV", QT_TRANSLATE_NOOP("SettingFacts", "Setpoint divider"), "", 200, 200},
    {"MUL", QT_TRANSLATE_NOOP("SettingFacts", "Setpoint multiplier"), "", 200, 200},
    {"CAL", QT_TRANSLATE_NOOP("SettingFacts", "Acceleration limit"), "cnt/cycle²/DIV", 320, 320},
    {"CSD", QT_TRANSLATE_NOOP("SettingFacts", "Stop deceleration limit"), "cnt/cycle²/DIV", 0, 0},
    {"CVL", QT_TRANSLATE_NOOP("SettingFacts", "Velocity limit"), "cnt/cycle/DIV", 40000, 40000},
    {"CRV", QT_TRANSLATE_NOOP("SettingFacts", "Recovery velocity limit"), "cnt/cycle/DIV", 8000, 8000},
    {"MR", QT_TRANSLATE_NOOP("SettingFacts", "Motor resistance"), "Ω", 0.15, 2.4},
    {"ML", QT_TRANSLATE_NOOP("SettingFacts", "Motor inductance"), "mH", 0.5, 8},
    {"MTC", QT_TRANSLATE_NOOP("SettingFacts", "Thermal time constant"), "s", 600, 600},
    {"MPC", QT_TRANSLATE_NOOP("SettingFacts", "Pole count"), "poles", 8, 8},
    {"MMS", QT_TRANSLATE_NOOP("SettingFacts", "Maximum speed"), "rpm", 3000, 3000},
    {"CAO", QT_TRANSLATE_NOOP("SettingFacts", "Setpoint offset nulling"), "%", 0, 0},
    {"HOMING", QT_TRANSLATE_NOOP("SettingFacts", "Homing method"), "bits", 0, 0},
    {"HMV", QT_TRANSLATE_NOOP("SettingFacts", "Homing velocity"), "cnt/cycle/DIV", 2000, 2000},
    {"HMA", QT_TRANSLATE_NOOP("SettingFacts", "Homing acceleration"), "cnt/cycle²/DIV", 80, 80},
    {"HMH", QT_TRANSLATE_NOOP("SettingFacts", "Homing hard stop threshold"), "counts", 1000, 1000},
    {"HMT", QT_TRANSLATE_NOOP("SettingFacts", "Homing current limit"), "A", 6.5, 1.625},
    {"HHL", QT_TRANSLATE_NOOP("SettingFacts", "Soft high limit"), "setpoint units", 0, 0},
    {"HLL", QT_TRANSLATE_NOOP("SettingFacts", "Soft low limit"), "setpoint units", 0, 0},
    {"HMF", QT_TRANSLATE_NOOP("SettingFacts", "Homing offset move"), "setpoint units", 0, 0},
    {"overrideAddr1", QT_TRANSLATE_NOOP("SettingFacts", "Override 1, register"), "", 0, 0},
    {"overrideAddr2", QT_TRANSLATE_NOOP("SettingFacts", "Override 2, register"), "", 0, 0},
    {"overrideAddr3", QT_TRANSLATE_NOOP("SettingFacts", "Override 3, register"), "", 0, 0},
    {"overrideVal1", QT_TRANSLATE_NOOP("SettingFacts", "Override 1, value"), "raw", 0, 0},
    {"overrideVal2", QT_TRANSLATE_NOOP("SettingFacts", "Override 2, value"), "raw", 0, 0},
    {"overrideVal3", QT_TRANSLATE_NOOP("SettingFacts", "Override 3, value"), "raw", 0, 0},
    {"BED", QT_TRANSLATE_NOOP("SettingFacts", "Brake engage delay"), "s", 0, 0},
    {"BER", QT_TRANSLATE_NOOP("SettingFacts", "Brake release delay"), "s", 0, 0},
    {"BDD", QT_TRANSLATE_NOOP("SettingFacts", "Brake deceleration delay"), "ms", 0, 0},
};
// clang-format on

constexpr int torqueFunctionOrders = 12; ///< behind "none" and "constant", a sine and a cosine each

/// What the values 0, 1, ... of a setting are called. The words and their translations are those of the window's forms.
struct Choices
{
    const char *name;
    const char *context; ///< of the translations; none where all languages say the same
    const char *words[11];
};

// clang-format off: a setting's words together
constexpr Choices choices[] = {
    {"CM", "GoalsPage",
     {QT_TRANSLATE_NOOP("GoalsPage", "Position control"), QT_TRANSLATE_NOOP("GoalsPage", "Velocity control"),
      QT_TRANSLATE_NOOP("GoalsPage", "Torque control")}},
    {"CRI", "GoalsPage",
     {QT_TRANSLATE_NOOP("GoalsPage", "Serial only"), QT_TRANSLATE_NOOP("GoalsPage", "Pulse and direction"),
      QT_TRANSLATE_NOOP("GoalsPage", "Quadrature (A and B)"), QT_TRANSLATE_NOOP("GoalsPage", "Analog input 1 (±10 V)"),
      QT_TRANSLATE_NOOP("GoalsPage", "Analog input 2 (±10 V)")}},
    {"AXT", "GoalsPage",
     {QT_TRANSLATE_NOOP("GoalsPage", "Linear [mm]"), QT_TRANSLATE_NOOP("GoalsPage", "Linear [µm]"),
      QT_TRANSLATE_NOOP("GoalsPage", "Linear [inch]"), QT_TRANSLATE_NOOP("GoalsPage", "Rotary [revolution]"),
      QT_TRANSLATE_NOOP("GoalsPage", "Rotary [degrees]")}},
    {"MT", "MachinePage",
     {QT_TRANSLATE_NOOP("MachinePage", "None"), QT_TRANSLATE_NOOP("MachinePage", "Brush DC"),
      QT_TRANSLATE_NOOP("MachinePage", "2 phase AC or BLDC"), QT_TRANSLATE_NOOP("MachinePage", "3 phase AC or BLDC"),
      QT_TRANSLATE_NOOP("MachinePage", "Stepping motor")}},
    {"FBD", "MachinePage",
     {QT_TRANSLATE_NOOP("MachinePage", "None"), QT_TRANSLATE_NOOP("MachinePage", "Quadrature encoder"),
      QT_TRANSLATE_NOOP("MachinePage", "SinCos encoder, 16x interpolation"),
      QT_TRANSLATE_NOOP("MachinePage", "SinCos encoder, 64x interpolation"),
      QT_TRANSLATE_NOOP("MachinePage", "SinCos encoder, 256x interpolation"),
      QT_TRANSLATE_NOOP("MachinePage", "Resolver"), QT_TRANSLATE_NOOP("MachinePage", "Serial encoder (BiSS-C)")}},
    {"FB2D", "MachinePage",
     {QT_TRANSLATE_NOOP("MachinePage", "Same as position feedback device"),
      QT_TRANSLATE_NOOP("MachinePage", "Quadrature encoder"),
      QT_TRANSLATE_NOOP("MachinePage", "SinCos encoder, 64x interpolation"),
      QT_TRANSLATE_NOOP("MachinePage", "Resolver"), QT_TRANSLATE_NOOP("MachinePage", "Serial encoder (BiSS-C)")}},
    {"LSF", "MachinePage",
     {QT_TRANSLATE_NOOP("MachinePage", "Not in use"), QT_TRANSLATE_NOOP("MachinePage", "Stop and hold"),
      QT_TRANSLATE_NOOP("MachinePage", "Stop and disable (fault)")}},
    {"CEI", "MachinePage",
     {QT_TRANSLATE_NOOP("MachinePage", "Normally closed"), QT_TRANSLATE_NOOP("MachinePage", "Normally open")}},
    {"TBW", nullptr,
     {"100 Hz", "200 Hz", "300 Hz", "400 Hz", "500 Hz", "700 Hz", "1000 Hz", "1500 Hz", "2000 Hz", "3000 Hz"}},
};
// clang-format on

QStringList choicesOf(const QString &name)
{
    QStringList words;
    const auto row = std::find_if(std::begin(choices), std::end(choices),
                                  [&name](const Choices &each) { return name == QLatin1String(each.name); });
    for (int i = 0; row != std::end(choices) && row->words[i] != nullptr; ++i) {
        const char *const word = row->words[i];
        words.append(row->context ? QCoreApplication::translate(row->context, word) : QString::fromUtf8(word));
    }
    // The torque functions have an index that goes on as the orders do.
    if (name == QLatin1String("TRF1") || name == QLatin1String("TRF2")) {
        words = {QCoreApplication::translate("TuningPage", "None"),
                 QCoreApplication::translate("TuningPage", "Constant")};
        for (int k = 2; k < 2 + 2 * torqueFunctionOrders; ++k)
            words.append((k % 2 == 0 ? QCoreApplication::translate("ParameterPages", "Sin(%1x)")
                                     : QCoreApplication::translate("ParameterPages", "Cos(%1x)"))
                             .arg(k / 2));
    }
    return words;
}

QString unitText(const char *unit)
{
    const bool isWord = std::any_of(std::begin(wordUnits), std::end(wordUnits),
                                    [unit](const char *word) { return qstrcmp(word, unit) == 0; });
    return isWord ? QCoreApplication::translate("SettingFacts", unit) : QString::fromUtf8(unit);
}

} // namespace

std::optional<SettingFacts> settingFacts(const QString &name, bool isTorva)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [&name](const Row &each) { return name == QLatin1String(each.name); });
    if (row == std::end(rows))
        return std::nullopt;
    return SettingFacts{QCoreApplication::translate("SettingFacts", row->caption), unitText(row->unit),
                        isTorva ? row->torvaStandard : row->standard, choicesOf(name)};
}

/// What a value is called; empty for one that is no choice, as a file from anywhere may have.
static QString wordOf(double value, const SettingFacts &facts)
{
    const bool isChoice = value >= 0.0 && value < double(facts.choices.size());
    return isChoice ? facts.choices.at(int(value)) : QString();
}

QString settingCaption(const SingleParam &setting, const SettingFacts &facts)
{
    const QString word = wordOf(setting.value, facts), standard = wordOf(facts.standard, facts);
    if (word.isEmpty())
        return facts.caption;
    if (differsFromStandard(setting, facts) && !standard.isEmpty())
        return QCoreApplication::translate("SettingFacts", "%1: %2 (new drive: %3)").arg(facts.caption, word, standard);
    return QCoreApplication::translate("SettingFacts", "%1: %2").arg(facts.caption, word);
}

bool differsFromStandard(const SingleParam &setting, const SettingFacts &facts)
{
    return setting.convertToDeviceScale(setting.value) != setting.convertToDeviceScale(facts.standard);
}

QList<SingleParam> settingsOfDrive(const Parameters &settings, int driveType)
{
    const QString model = deviceModelName(driveType, false);
    QList<SingleParam> list;
    for (int i = 0; i < settings.getParamCount(); ++i) {
        const SingleParam setting = settings.getParam(i);
        if (!setting.readonly && setting.supportedInDevice(model))
            list.append(setting);
    }
    return list;
}

QList<ChangedSetting> changedSettings(const Parameters &settings, int driveType)
{
    QList<ChangedSetting> changed;
    for (const SingleParam &setting : settingsOfDrive(settings, driveType)) {
        const std::optional<SettingFacts> facts = settingFacts(setting.name, isTorvaModel(driveType));
        if (facts && differsFromStandard(setting, *facts))
            changed.append({setting, *facts});
    }
    return changed;
}
