// Time and distance to standstill, and back-and-forth moves.
#include "capturefigures.h"
#include "stopfigures.h"
#include "withvalues.h"

#include "printqt.h"

#include <gmock/gmock.h>

namespace {

CaptureRecord positions(const std::vector<double> &counts, const char *key = "posmeas")
{
    CaptureRecord capture;
    capture.samplePeriod = 0.002;
    capture.channels.append(channelOf(key, counts, capture.samplePeriod));
    return capture;
}

std::vector<double> made(int rows, double (*at)(int))
{
    std::vector<double> counts;
    for (int i = 0; i < rows; ++i)
        counts.push_back(at(i));
    return counts;
}

} // namespace

TEST(StopFigures, TellTimeAndDistanceOrWhyNot)
{
    const std::tuple<std::vector<double>, std::optional<double>, std::optional<double>, const char *> rows[] = {
        // 20 counts a sample until sample 40, then one count of noise: within 2 counts of the end from sample 40 on.
        {made(100, [](int i) { return i < 40 ? 100.0 + 20.0 * i : 900.0 + i % 2; }), 0.080, 800.0, ""},
        {made(100, [](int i) { return i < 40 ? -20.0 * i : -800.0; }), 0.080, 800.0, ""},
        // The 16-bit position runs over on the way: 32700 + 80 counts are -32756.
        {made(100, [](int i) { return i < 4 ? 32700.0 + 20.0 * i : -32756.0; }), 0.008, 80.0, ""},
        {made(100, [](int i) { return 20.0 * i; }), {}, {}, "still moving"},
        {made(100, [](int i) { return i < 95 ? 20.0 * i : 1900.0; }), {}, {}, "still moving"},
        {made(100, [](int i) { return 5.0 + i % 2; }), {}, {}, "did not move"},
        {{}, {}, {}, "not recorded"},
    };
    for (const auto &[counts, time, distance, reason] : rows) {
        const StopFigures figures = stopFigures(positions(counts));
        EXPECT_EQ(figures.time.value.has_value(), time.has_value()) << reason;
        EXPECT_NEAR(figures.time.value.value_or(0.0), time.value_or(0.0), 0.002);
        EXPECT_NEAR(figures.distance.value.value_or(0.0), distance.value_or(0.0), 2.0);
        EXPECT_THAT(figures.time.reason.toStdString(), testing::HasSubstr(reason));
        EXPECT_EQ(toJson(figures)["time"].isNull(), !time.has_value());
    }
}

TEST(CaptureFigures, OvershootIsNoWayBack)
{
    const auto overshooting = made(100, [](int i) {
        return i < 30 ? 40.0 * i : i < 60 ? 1200.0 - 6.0 * (i - 30) : 1020.0;
    });
    const auto there = made(100, [](int i) { return i < 50 ? 0.0 : 1000.0; });
    const auto thereAndBack = made(100, [](int i) { return i < 30 || i > 60 ? 0.0 : 1000.0; });
    EXPECT_FALSE(movesBackAndForth(positions(overshooting)));
    EXPECT_FALSE(movesBackAndForth(positions(there, "posreference")));
    EXPECT_TRUE(movesBackAndForth(positions(thereAndBack, "posreference")));
    EXPECT_FALSE(movesBackAndForth(positions({}, "torquemeas")));
    CaptureRecord wave = positions(there);
    wave.motion.kind = CaptureMotion::Kind::SquareWave;
    EXPECT_TRUE(captureFigures(wave).axis.has_value());
}
