#include "squarewave.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::vector<double> samples(SquareWave &wave, int count, double rate)
{
    std::vector<double> list;
    for (int i = 0; i < count; ++i)
        list.push_back(wave.next(rate));
    return list;
}

} // namespace

TEST(SquareWave, BeginsAtTargetOneWithTheBoundarySampleIncluded)
{
    SquareWave wave;
    wave.set(100, 0.5, -50, 1.0, true);
    // At 4 samples a second the clock reads 0.25, 0.5 (still target 1), 0.75, ...; 1.5 begins the next turn.
    EXPECT_EQ(samples(wave, 9, 4.0), (std::vector<double>{100, 100, -50, -50, -50, 100, 100, 100, -50}));
}

TEST(SquareWave, SwitchingOffIsToldOnceAndRestartsTheClock)
{
    SquareWave wave;
    EXPECT_FALSE(wave.set(0, 1, 0, 1, false)) << "there was nothing to stop";
    EXPECT_FALSE(wave.set(7, 0.5, 9, 0.5, true));
    EXPECT_TRUE(wave.isActive());
    samples(wave, 3, 4.0);
    for (const bool isTold : {true, false}) {
        EXPECT_EQ(wave.set(7, 0.5, 9, 0.5, false), isTold);
        EXPECT_FALSE(wave.isActive());
    }
    wave.set(7, 0.5, 9, 0.5, true);
    EXPECT_EQ(wave.next(4.0), 7.0) << "a start begins at target 1";
}

TEST(SquareWave, ChangingTargetsWhileActiveKeepsTheClock)
{
    SquareWave wave;
    wave.set(1, 0.5, 2, 0.5, true);
    samples(wave, 2, 4.0);
    EXPECT_FALSE(wave.set(10, 0.5, 20, 0.5, true));
    EXPECT_EQ(wave.next(4.0), 20.0);
    wave.stop();
    wave.set(10, 0.5, 20, 0.5, true);
    EXPECT_EQ(wave.next(4.0), 10.0);
}
