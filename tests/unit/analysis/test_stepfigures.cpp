// The figures of a step against a second calculation, which takes whole samples and knows the truth of what was made
// up.
#include "figurelines.h"
#include "madeuprecords.h"
#include "recordedmove.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

namespace {

constexpr double undefined = -1e9;

/// By samples alone, and each from its definition; `undefined` where there is none.
struct Reference
{
    double rise = undefined, to90 = undefined, overshoot = undefined, settling = undefined;
    double peak = 0.0, rms = 0.0;
    int inLimit = 0;
};

Reference calculate(const StepRecord &record)
{
    const int count = int(record.setpoint.size());
    int start = 1;
    while (record.setpoint[start] == record.setpoint[start - 1])
        ++start;
    const double from = record.setpoint[start - 1], height = record.setpoint[count - 1] - from;
    Reference reference;
    int at10 = -1, at90 = -1, lastOutside = start - 1, peakAt = start;
    double best = -1e9, sum = 0.0;
    for (int k = start; k < count; ++k) {
        const double percent = 100.0 * (record.measured[k] - from) / height;
        at10 = at10 < 0 && percent >= 10.0 ? k : at10;
        at90 = at90 < 0 && percent >= 90.0 ? k : at90;
        lastOutside = percent < 98.0 || percent > 102.0 ? k : lastOutside;
        if (percent > best) {
            best = percent;
            peakAt = k;
        }
        const double error = record.setpoint[k] - record.measured[k];
        reference.peak = std::max(reference.peak, std::abs(error));
        sum += error * error;
        reference.inLimit += std::abs(record.torqueSetpoint[k]) > *record.currentLimit - 1.5 / 560 ? 1 : 0;
    }
    reference.rms = std::sqrt(sum / (count - start));
    if (at90 > start)
        reference.to90 = (at90 - start) * record.period;
    if (at90 > start && at10 > start)
        reference.rise = (at90 - at10) * record.period;
    const int stayed = count - 1 - lastOutside, took = lastOutside + 1 - start;
    if (stayed > 0 && 10 * stayed >= took)
        reference.settling = took * record.period;
    const bool stillRising = peakAt == count - 1 && lastOutside == count - 1;
    if ((best >= 100.0 || reference.settling != undefined) && !stillRising)
        reference.overshoot = std::max(best - 100.0, 0.0);
    return reference;
}

/// How many numbers there were of a figure, and the largest difference as a share of what is allowed.
std::map<std::string, std::pair<int, double>> agreements;

void expectNear(const Figure &figure, double expected, double tolerance, const char *name)
{
    ASSERT_EQ(figure.value.has_value(), expected != undefined) << name << ": " << figure.reason.toStdString();
    EXPECT_EQ(figure.reason.isEmpty(), figure.value.has_value()) << name;
    if (figure.value) {
        EXPECT_NEAR(*figure.value, expected, tolerance) << name;
        auto &[count, worst] = agreements[name];
        ++count;
        worst = std::max(worst, std::abs(*figure.value - expected) / tolerance);
    }
}

} // namespace

TEST(StepFigures, AgreeWithASecondCalculation)
{
    int rings = 0, silent = 0, numbers = 0;
    for (unsigned seed = 0; seed < 50; ++seed) {
        for (const Made kind : everyKind) {
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << " seed " << seed);
            const MadeUp made = makeUp(kind, seed);
            const StepFigures figures = stepFigures(made.record);
            const Reference reference = calculate(made.record);
            const double sample = made.record.period * 1.000001;
            const double count = 100.0 / std::abs(made.record.setpoint.back() - made.record.setpoint.front());
            expectNear(figures.riseTime, reference.rise, sample, "rise");
            expectNear(figures.timeTo90, reference.to90, sample, "to 90 %");
            expectNear(figures.overshoot, reference.overshoot, count, "overshoot");
            expectNear(figures.settlingTime, reference.settling, sample, "settling");
            expectNear(figures.peakError, reference.peak, 1e-9, "peak");
            expectNear(figures.rmsError, reference.rms, 1e-6, "rms");
            expectNear(figures.timeInCurrentLimit, reference.inLimit * made.record.period, 1e-12, "limit");
            numbers += figures.riseTime.value ? 1 : 0;

            // What swings for long has to be found, at its frequency; what cannot swing must not.
            const bool swings = kind != Made::Saturated && made.damping < 1.0;
            const double tail = made.record.period * double(made.record.setpoint.size());
            if (figures.ringing.value) {
                EXPECT_TRUE(swings);
                EXPECT_NEAR(*figures.ringing.value, made.hertz, *figures.ringingResolution.value);
            } else if (kind == Made::Unsettled) {
                EXPECT_LT(tail * made.hertz, 6.0) << figures.ringing.reason.toStdString();
            }
            EXPECT_EQ(figures.ringing.value.has_value(), figures.ringingResolution.value.has_value());
            (figures.ringing.value ? rings : silent) += 1;
        }
    }
    for (const auto &[name, agreement] : agreements) // the table in the room's README
        std::printf("%-10s %3d numbers, largest difference %.3f of what is allowed\n", name.c_str(), agreement.first,
                    agreement.second);
    // The made-up records do hold all of it.
    EXPECT_GT(rings, 60);
    EXPECT_GT(silent, 60);
    EXPECT_GT(numbers, 200);
}

TEST(StepFigures, WhatIsNoStepHasNoNumbers)
{
    const StepRecord good = makeUp(Made::Clean, 1).record;
    StepRecord empty, still = good, back = good, lengths = good, holes = good, blind = good;
    still.setpoint.assign(good.setpoint.size(), 7.0);
    back.setpoint.back() = back.setpoint.front();
    lengths.measured.pop_back();
    holes.measured[5] = std::nan("");
    blind.torqueSetpoint.clear();
    for (const StepRecord &record : {empty, still, lengths, holes}) {
        const QJsonObject json = toJson(stepFigures(record));
        EXPECT_EQ(json.value("reason").toObject().size(), 9);
        for (const char *name : {"riseTime", "timeTo90", "overshoot", "settlingTime", "peakError", "rmsError",
                                 "timeInCurrentLimit", "ringing", "ringingResolution"})
            EXPECT_TRUE(json.contains(name) && json.value(name).isNull()) << name;
        EXPECT_EQ(figureLines(stepFigures(record)).size(), 9);
        EXPECT_EQ(figureLines(stepFigures(record), Reasons::Once).size(), 1) << "for people";
    }
    EXPECT_EQ(figureLines(stepFigures(back), Reasons::Once).size(), 9);
    const StepFigures returned = stepFigures(back);
    EXPECT_TRUE(returned.peakError.value && returned.timeInCurrentLimit.value);
    EXPECT_FALSE(returned.riseTime.value || returned.overshoot.value || returned.settlingTime.value);
    EXPECT_FALSE(stepFigures(blind).timeInCurrentLimit.value);
    blind = good;
    blind.currentLimit.reset();
    EXPECT_FALSE(stepFigures(blind).timeInCurrentLimit.value);
}

TEST(StepFigures, ChannelsOfACaptureAreChosenByControlModeAndMotion)
{
    CaptureRecord capture;
    capture.samplePeriod = 0.001;
    capture.channels = {channelOf("velreference", {0, 10, 10, 10}), channelOf("velmeas", {0, 5, 10, 10}),
                        channelOf("posreference", {0, 0, 0}), channelOf("posferror", {0, 0, 0})};
    EXPECT_EQ(stepRecordOf(capture).channel, "velmeas") << "the position setpoint stands";

    capture.channels[2] = channelOf("posreference", {0, 100, 100});
    capture.channels[3] = channelOf("posferror", {0, 100, 40});
    const StepRecord position = stepRecordOf(capture);
    EXPECT_EQ(position.channel, "posmeas");
    EXPECT_EQ(position.measured, (std::vector<double>{0, 0, 60}));

    capture.settings = withValues({}, {{"CM", 1}});
    EXPECT_EQ(stepRecordOf(capture).channel, "velmeas") << "velocity control";

    // The recorder's first word may be behind the step that started it: what was set before is known from the motion.
    capture.channels = {channelOf("posreference", {100, 100, 100}), channelOf("posmeas", {0, 40, 95})};
    capture.motion = {CaptureMotion::Kind::Step, 0, 100, 0, 0};
    EXPECT_FALSE(stepFigures(capture).timeTo90.value);
    capture.trigger = 2;
    const Figure figure = stepFigures(capture).timeTo90;
    ASSERT_TRUE(figure.value);
    EXPECT_NEAR(*figure.value, 0.001 * (1.0 + 50.0 / 55.0), 1e-12);

    capture.channels << channelOf("velreference", {0, 10, 5}) << channelOf("velmeas", {0, 5, 5});
    capture.settings = Parameters();
    EXPECT_EQ(stepRecordOf(capture).channel, "posmeas") << "it has moved, though no sample shows it";

    // Positions are 16-bit words.
    capture.channels = {channelOf("posreference", {32700, -32736, -32736}),
                        channelOf("posmeas", {32700, -32766, -32736})};
    EXPECT_EQ(stepRecordOf(capture).measured, (std::vector<double>{32700, 32770, 32800}));
    EXPECT_EQ(stepRecordOf(capture).setpoint.back(), 32800);
}

TEST(StepFigures, AreShownWithUnitsOrReasons)
{
    StepRecord record = makeUp(Made::Saturated, 1).record;
    record.unit = QStringLiteral("cnts");
    const StepFigures figures = stepFigures(record);
    const QList<FigureLine> lines = figureLines(figures);
    const QJsonObject json = toJson(figures);
    ASSERT_EQ(lines.size(), 9);
    for (const FigureLine &line : lines) {
        ASSERT_TRUE(json.contains(line.name)) << line.name.toStdString();
        EXPECT_EQ(line.isDefined, json.value(line.name).isDouble()) << line.name.toStdString();
        if (!line.isDefined) {
            EXPECT_EQ(line.value, json.value("reason").toObject().value(line.name).toString());
        }
    }
    EXPECT_EQ(lines[6].value, QString::number(*figures.timeInCurrentLimit.value * 1000, 'g', 4) + " ms");
    EXPECT_TRUE(lines[4].value.endsWith(" counts"));

    AxisSheet sheet;
    sheet.acceleration = {1.6e6, 3.2e3};
    EXPECT_EQ(axisLines(sheet, 10000).first().value, "160.00 ± 0.32 rev/s² per A");
    EXPECT_EQ(axisLines(sheet).first().value, "1.6e+06 ± 3.2e+03 counts/s² per A");
    sheet.refusal = QStringLiteral("Why.");
    ASSERT_EQ(axisLines(sheet).size(), 1);
    EXPECT_EQ(axisLines(sheet).first().value, "Why.");
}
