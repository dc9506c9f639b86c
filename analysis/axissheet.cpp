#include "axissheet.h"

#include "analysistext.h"
#include "axisfit.h"
#include "resimulation.h"
#include "traces.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double countsPerAmpere = 560.0;
constexpr double viscousShift = 16.0; ///< VFF counts in sixteenths
constexpr double highestGain = 32767.0;

constexpr double shortestBump = 0.006; ///< s
constexpr std::size_t fewestSamples = 12;
constexpr double sigmas = 2.0;
/// Of the acceleration, with a quiet encoder: a stiff axis has 0.002 to 0.005.
constexpr double widestPlusMinus = 0.010;
constexpr double widestWithNoise = 0.03;
constexpr double largestSpeedError = 0.002;
constexpr double harmlessNoise = 0.6;          ///< counts RMS
constexpr double contradiction = 1.6;          ///< standard deviations between two fits of one number
constexpr double smallestContradiction = 0.03; ///< of the acceleration
constexpr double swings[] = {6, 8, 11, 15, 20, 28, 40, 60, 85, 120}; ///< Hz
constexpr double longestInLimit = 0.05;                              ///< share of the moving time

AxisSheet refused(const QString &reason)
{
    AxisSheet sheet;
    sheet.refusal = reason;
    return sheet;
}

bool isUsableRecord(const AxisRecord &record)
{
    const auto isFinite = [](double value) { return std::isfinite(value); };
    return record.period > 0.0 && !record.position.empty() && record.position.size() == record.torque.size() &&
           std::all_of(record.position.begin(), record.position.end(), isFinite) &&
           std::all_of(record.torque.begin(), record.torque.end(), isFinite);
}

/// Share of the moving samples in which the current limit held.
double shareInLimit(const AxisRecord &record, const std::vector<Run> &runs)
{
    if (!record.currentLimit || !(*record.currentLimit > 0.0) || record.torqueSetpoint.size() < record.position.size())
        return 0.0;
    double moving = 0.0, held = 0.0;
    for (const Run &run : runs) {
        for (std::size_t k = run.begin; k < run.end; ++k) {
            moving += 1.0;
            held += std::abs(record.torqueSetpoint[k]) >= *record.currentLimit - 1.0 / countsPerAmpere ? 1.0 : 0.0;
        }
    }
    return moving > 0.0 ? held / moving : 0.0;
}

QString refusalOfMotion(const AxisRecord &record, const std::vector<Run> &runs)
{
    const auto runsTo = [&runs](int direction) {
        return std::any_of(runs.begin(), runs.end(),
                           [direction](const Run &run) { return run.direction == direction; });
    };
    if (runs.empty())
        return AnalysisText::tr("There is not enough motion in this record: move at least some hundred counts.");
    if (!runsTo(1) || !runsTo(-1))
        return AnalysisText::tr("The record holds motion in one direction only: move forth and back.");
    if (shareInLimit(record, runs) > longestInLimit)
        return AnalysisText::tr("The current stood in its limit (MMC) for much of the move: move more gently.");
    return QString();
}

/// The same move, fitted in several ways.
struct Fits
{
    std::vector<AxisFit> all;
    std::size_t first = 0, second = 0; ///< those whose mean is the answer
};

/// The mean of the two best fits; two of its standard deviations, and the largest distance to any other fit.
Estimate combined(const Fits &fits, double (*value)(const AxisFit &), double (*error)(const AxisFit &))
{
    const AxisFit &first = fits.all[fits.first], &second = fits.all[fits.second];
    const double mean = (value(first) + value(second)) / 2.0;
    double spread = 0.0;
    for (const AxisFit &fit : fits.all)
        spread = std::max(spread, std::abs(value(fit) - mean));
    return {mean, std::hypot(sigmas * std::max(error(first), error(second)), spread)};
}

template <int parameter> Estimate combined(const Fits &fits)
{
    return combined(
        fits, [](const AxisFit &fit) { return fit.value[parameter]; },
        [](const AxisFit &fit) { return fit.error[parameter]; });
}

template <int sign> double dragMean(const AxisFit &fit)
{
    return (fit.value[AxisFit::DragForward] + sign * fit.value[AxisFit::DragBackward]) / 2.0;
}

template <int sign> double dragMeanError(const AxisFit &fit)
{
    const double forward = fit.error[AxisFit::DragForward], backward = fit.error[AxisFit::DragBackward];
    const double variance = forward * forward + backward * backward + 2.0 * sign * fit.dragCovariance;
    return std::sqrt(std::max(variance, 0.0)) / 2.0;
}

void proposeGains(AxisSheet &sheet, double cycleRate)
{
    const double gain = countsPerAmpere * cycleRate * cycleRate / sheet.acceleration.value;
    sheet.aff = {std::clamp(std::round(gain), 0.0, highestGain),
                 gain * sheet.acceleration.plusMinus / sheet.acceleration.value};
    const double perSpeed = viscousShift * countsPerAmpere * cycleRate;
    const bool isTold = sheet.viscousFriction.value > sheet.viscousFriction.plusMinus;
    sheet.vff = {isTold ? std::clamp(std::round(perSpeed * sheet.viscousFriction.value), 0.0, highestGain) : 0.0,
                 perSpeed * sheet.viscousFriction.plusMinus};
}

std::size_t shortestLength(const AxisRecord &record)
{
    const double samples = std::min(std::round(shortestBump / record.period), double(record.position.size()));
    return std::max(fewestSamples, static_cast<std::size_t>(samples));
}

/// Bumps of one, two and three times the shortest length; the longest is missing where the move is short. Nothing when
/// only the shortest can be had. At twice the length both sides are explained.
std::optional<Fits> fitsOf(const AxisRecord &record, const std::vector<Run> &runs)
{
    const std::size_t length = shortestLength(record);
    const std::optional<AxisFit> ofAcceleration = fitAxis(record, runs, 2 * length, Explains::Acceleration);
    const std::optional<AxisFit> ofCurrent = fitAxis(record, runs, 2 * length, Explains::Current);
    if (!ofAcceleration || !ofCurrent)
        return std::nullopt;
    Fits fits{{*ofAcceleration, *ofCurrent}, 0, 1};
    for (const std::size_t factor : {1, 3}) {
        const std::optional<AxisFit> fit = fitAxis(record, runs, factor * length, Explains::Acceleration);
        if (fit)
            fits.all.push_back(*fit);
    }
    return fits;
}

/// 1 for a quiet encoder, more for a noisy one.
double noiseFactor(const AxisRecord &record)
{
    return std::max(1.0, encoderNoise(record) / harmlessNoise);
}

/// Whether the acceleration becomes another one when the fit may use `beside` as well.
bool changesWith(const Beside &beside, const AxisRecord &record, const std::vector<Run> &runs, double expected)
{
    // Encoder noise that the drive answers with torque is in both: it pulls such a fit away from the truth.
    const double deviations = contradiction * noiseFactor(record);
    for (const std::size_t factor : {1, 2}) {
        const std::optional<AxisFit> fit =
            fitAxis(record, runs, factor * shortestLength(record), Explains::Acceleration, beside);
        if (!fit)
            continue;
        const double difference = std::abs(fit->value[AxisFit::Acceleration] - expected);
        const double error = fit->error[AxisFit::Acceleration];
        // A long bump leaves little to tell the two apart by: only a sharp answer counts.
        const bool isSharp = factor == 1 || error < smallestContradiction * expected;
        if (isSharp && difference > deviations * error && difference > smallestContradiction * expected)
            return true;
    }
    return false;
}

/// Whether the record knows something that only a springy axis has.
bool isSpringy(const AxisRecord &record, const std::vector<Run> &runs, double expected)
{
    if (changesWith(compliance(record), record, runs, expected) ||
        changesWith(place(record, runs), record, runs, expected))
        return true;
    for (const double hertz : swings) {
        const std::optional<AxisFit> fit =
            fitAxis(record, runs, shortestLength(record), Explains::Acceleration, swingingLoad(record, hertz));
        if (fit && -fit->beside > smallestContradiction && -fit->beside > 3.0 * fit->besideError)
            return true;
    }
    return false;
}

/// Share of the highest speed; more where the move is so slow, or the encoder so noisy, that the difference is not the
/// model's.
double allowedSpeedError(const AxisRecord &record, const std::vector<double> &speed)
{
    double highest = 0.0;
    for (const double value : speed)
        highest = std::max(highest, std::abs(value));
    const double time = 2.0 * double(speedReach(record.period)) * record.period;
    return std::hypot(largestSpeedError, 2.0 * std::sqrt(2.0) * encoderNoise(record) / (time * highest));
}

} // namespace

AxisSheet axisSheet(const AxisRecord &record)
{
    if (!isUsableRecord(record))
        return refused(AnalysisText::tr("Torque achieved and position achieved have to be captured together."));
    const std::vector<double> speed = speedOf(record.position, record.period);
    const std::vector<Run> runs = runsOf(speed, record.period);
    const QString motionRefusal = refusalOfMotion(record, runs);
    if (!motionRefusal.isEmpty())
        return refused(motionRefusal);
    const std::optional<Fits> fits = fitsOf(record, runs);
    if (!fits)
        return refused(AnalysisText::tr("There is not enough motion in this record: move further, or capture at a "
                                        "higher sample rate."));
    AxisSheet sheet;
    sheet.acceleration = combined<AxisFit::Acceleration>(*fits);
    if (!(sheet.acceleration.value > 0.0))
        return refused(AnalysisText::tr("The axis does not accelerate in the direction of its torque: check the "
                                        "feedback direction, and whether anything else moves it."));
    const double widest = std::min(widestPlusMinus * noiseFactor(record), widestWithNoise);
    if (!(sheet.acceleration.plusMinus <= widest * sheet.acceleration.value) ||
        isSpringy(record, runs, sheet.acceleration.value))
        return refused(AnalysisText::tr("Parts of the move contradict each other: the axis is springy or has backlash, "
                                        "or the record is too noisy. One inertia does not describe it."));
    sheet.speedError = resimulatedSpeedError(record, runs, speed, fits->all.front());
    if (!(sheet.speedError <= allowedSpeedError(record, speed)))
        return refused(AnalysisText::tr("The speed that follows from the recorded torque is not the speed that was "
                                        "measured: one inertia with friction does not describe this axis."));
    sheet.dragForward = combined<AxisFit::DragForward>(*fits);
    sheet.dragBackward = combined<AxisFit::DragBackward>(*fits);
    sheet.dryFriction = combined(*fits, dragMean<1>, dragMeanError<1>);
    sheet.hangingLoad = combined(*fits, dragMean<-1>, dragMeanError<-1>);
    sheet.viscousFriction = combined<AxisFit::Viscous>(*fits);
    proposeGains(sheet, record.cycleRate);
    return sheet;
}

AxisRecord axisRecordOf(const CaptureRecord &capture)
{
    const std::size_t rows = rowsOf(capture);
    AxisRecord record;
    record.period = capture.samplePeriod;
    const double cycleRate = capture.setting(QStringLiteral("PIF"), 0.0);
    if (cycleRate > 0.0)
        record.cycleRate = cycleRate;
    record.position = unwrapped(traceOf(capture, QStringLiteral("posmeas"), rows));
    record.torque = traceOf(capture, QStringLiteral("torquemeas"), rows);
    record.torqueSetpoint = traceOf(capture, QStringLiteral("torqueref"), rows);
    const double limit = capture.setting(QStringLiteral("MMC"), 0.0);
    if (limit > 0.0)
        record.currentLimit = limit;
    if (record.position.empty()) {
        double place = 0.0;
        for (const double countsPerCycle : traceOf(capture, QStringLiteral("velmeas"), rows)) {
            place += countsPerCycle * record.cycleRate * record.period;
            record.position.push_back(place);
        }
    }
    return record;
}

QJsonObject toJson(const AxisSheet &sheet)
{
    const struct
    {
        const char *name;
        Estimate AxisSheet::*estimate;
        const char *unit;
    } rows[] = {
        {"acceleration", &AxisSheet::acceleration, "counts/s^2/A"},
        {"dragForward", &AxisSheet::dragForward, "A"},
        {"dragBackward", &AxisSheet::dragBackward, "A"},
        {"dryFriction", &AxisSheet::dryFriction, "A"},
        {"hangingLoad", &AxisSheet::hangingLoad, "A"},
        {"viscousFriction", &AxisSheet::viscousFriction, "A/(counts/s)"},
        {"AFF", &AxisSheet::aff, ""},
        {"VFF", &AxisSheet::vff, ""},
    };
    QJsonObject object{{QStringLiteral("refusal"), sheet.isUsable() ? QJsonValue() : QJsonValue(sheet.refusal)}};
    for (const auto &row : rows) {
        const Estimate &estimate = sheet.*row.estimate;
        const QJsonObject entry{{QStringLiteral("value"), estimate.value},
                                {QStringLiteral("plusMinus"), estimate.plusMinus},
                                {QStringLiteral("unit"), QLatin1String(row.unit)}};
        object.insert(QLatin1String(row.name), sheet.isUsable() ? QJsonValue(entry) : QJsonValue());
    }
    object.insert(QStringLiteral("speedError"), sheet.isUsable() ? QJsonValue(sheet.speedError) : QJsonValue());
    return object;
}
