#include "scopechannels.h"

#include <gtest/gtest.h>

namespace {

const int busVoltage = 8, fluxVoltage = 15;

} // namespace

TEST(ScopeChannels, AreSixteenDisabledAndEmpty)
{
    const QList<CaptureData> channels = scopeChannels();
    constexpr double amperes = 1 / 560.0, percent = 0.006103515625, percentOfVoltage = 0.0061038881767686;
    const struct
    {
        const char *key;
        quint32 bit;
        double scale;
    } rows[] = {{"torqueref", 0x2, amperes},           {"torquemeas", 0x4, amperes},
                {"velreference", 0x8, 1},              {"velmeas", 0x10, 1},
                {"posreference", 0x20, 1},             {"posmeas", 0x40, 1},
                {"posferror", 0x80, 1},                {"outputvolt", 0x100, percentOfVoltage},
                {"hvbusvolt", 0x200, 0.01},            {"pwm1", 0x10000, percent},
                {"pwm2", 0x20000, percent},            {"pwm3", 0x40000, percent},
                {"debug", 0x80000, 1},                 {"debug2", 0x100000, 1},
                {"fluxcurrent", 0x800000, amperes},    {"fluxvoltage", 0x1000000, percentOfVoltage}};
    ASSERT_EQ(channels.size(), int(std::size(rows)));
    for (int i = 0; i < channels.size(); ++i) {
        EXPECT_EQ(channels[i].key, rows[i].key);
        EXPECT_EQ(channels[i].sourceBit, rows[i].bit) << rows[i].key;
        EXPECT_DOUBLE_EQ(channels[i].scale, rows[i].scale) << rows[i].key;
        EXPECT_FALSE(channels[i].enabled) << rows[i].key;
        EXPECT_TRUE(channels[i].samples.isEmpty()) << rows[i].key;
    }
    EXPECT_EQ(channels[14].group, "Torque") << "the flux current shares the axis of the torque";
    EXPECT_EQ(channels[6].group, "PositionFerror");
}

TEST(ScopeChannels, SelectionShorterThanTheListKeepsTheRestUncounted)
{
    QList<CaptureData> channels = scopeChannels();
    channels[0].enabled = channels[fluxVoltage].enabled = true;
    EXPECT_EQ(selectScopeChannels(channels, {false, true, true}), 2);
    EXPECT_FALSE(channels[0].enabled);
    EXPECT_TRUE(channels[1].enabled);
    EXPECT_TRUE(channels[fluxVoltage].enabled);
    EXPECT_EQ(scopeSourceMask(channels), 0x1000000u + 0x4u + 0x8u);

    EXPECT_EQ(selectScopeChannels(channels, QList<bool>(20, true)), 16);
    EXPECT_EQ(selectScopeChannels(channels, {}), 0);
}

TEST(ScopeRates, DividersOfTheOfferedRates)
{
    const struct
    {
        double rate;
        int torva, keta;
    } cases[] = {{17500, 0, 0},  {10000, 1, 1}, {5000, 3, 3},  {2500, 6, 7},
                 {1250, 13, 15}, {500, 34, 39}, {250, 69, 79}, {100, 174, 199}};
    for (const auto &c : cases) {
        EXPECT_EQ(scopeDivider(17500.0, c.rate), c.torva) << c.rate;
        EXPECT_EQ(scopeDivider(20000.0, c.rate), c.keta) << c.rate;
    }
    EXPECT_DOUBLE_EQ(scopeSamplePeriod(17500.0, 1), 2.0 / 17500.0);
    EXPECT_DOUBLE_EQ(scopeSamplePeriod(20000.0, 0), 1.0 / 20000.0);

    // Impossible ones stay within what the drive takes.
    for (double rate : {1e9, 40000.0, 0.0, -5.0})
        EXPECT_EQ(scopeDivider(17500.0, rate), 0) << rate;
    EXPECT_EQ(scopeDivider(17500.0, 1e-12), 536870911);
}

TEST(ScopeDownload, OnlyTheBusVoltageIsUnsigned)
{
    for (int i = 0; i < 16; ++i) {
        QList<CaptureData> channels = scopeChannels();
        channels[i].enabled = true;
        storeCaptureSample(channels, 0, static_cast<qint16>(0xFFFF), 1.0);
        const double expected = i == busVoltage ? 655.35 : -channels[i].scale;
        EXPECT_DOUBLE_EQ(channels[i].samples[0].second, expected) << i;
    }
}
