#include "printqt.h"
#include "sanitychecks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

/// Homing on, hard stop threshold, tracking threshold, velocity limit, over-speed threshold, control mode.
SanityInputs settings(int homing, double homingThreshold, double limitVelocity, int controlMode = 0)
{
    SanityInputs in;
    in.homing = homing;
    in.homingThreshold = homingThreshold;
    in.trackingThreshold = 2000;
    in.limitVelocity = limitVelocity;
    in.faultVelocity = 60;
    in.controlMode = controlMode;
    return in;
}

} // namespace

TEST(SanityChecks, ThresholdsTooNearToAnotherWarn)
{
    const struct
    {
        SanityInputs in;
        bool hardStop, overSpeed;
    } rows[] = {
        {settings(1, 1000, 50), false, false},
        {settings(1, 1501, 50), true, false}, // times 4 / 3, cut to an integer: 2001
        {settings(1, 1500, 50), false, false},
        {settings(1, 1000000000, 50), true, false}, // would overflow 32 bits
        {settings(0, 1000000000, 50), false, false},
        {settings(1, 1000, 54.1), false, true},
        {settings(1, 1000, 54.1, 1), false, true},
        {settings(1, 1000, 54.1, 2), false, false}, // torque is controlled
        {settings(1, 5000, 100), true, true},
    };
    for (const auto &row : rows) {
        const QString text = sanityWarnings(row.in);
        EXPECT_EQ(text.contains("Homing hard stop threshold [HMH]"), row.hardStop) << &row - rows;
        EXPECT_EQ(text.contains("Over speed fault threshold [FEV]"), row.overSpeed) << &row - rows;
        EXPECT_EQ(text.isEmpty(), !row.hardStop && !row.overSpeed) << &row - rows;
        EXPECT_TRUE(text.isEmpty() ||
                    (text.startsWith("Parameter sanity check warnings:<ul><li>") && text.contains("</li></ul>")));
    }
}

TEST(PairRules, PolesComeInPairsAndTheOtherOfAPairFollowsTheOneThatWasEdited)
{
    EXPECT_EQ(evenPoleCount(7), 6);
    EXPECT_EQ(evenPoleCount(8), 8);
    EXPECT_EQ(evenPoleCount(1), 0);
    EXPECT_EQ(evenPoleCount(0), 0);
    EXPECT_EQ(orderedAfterLow(5.0, 4.0), std::make_pair(5.0, 5.0));
    EXPECT_EQ(orderedAfterHigh(5.0, 4.0), std::make_pair(4.0, 4.0));
    EXPECT_EQ(orderedAfterLow(4.0, 4.0), std::make_pair(4.0, 4.0));
    EXPECT_EQ(orderedAfterHigh(-3, 4), std::make_pair(-3, 4));
}

TEST(UnderVoltageWarning, EachFamilyHasItsOwnLimitAndOtherModelsNone)
{
    const std::tuple<const char *, double, bool, const char *> rows[] = {
        {"Tarnwell Devices Torva 4000", 69.99, true, "operating Torva under 70 VDC"},
        {"Tarnwell Devices TORVA", 70, false, ""},
        {"keta pro", 19.99, true, "operating Keta under 20 VDC"},
        {"KETA", 20, false, ""},
        {"N/A", 1, false, ""},
    };
    for (const auto &[model, volts, visible, text] : rows) {
        const SupplyWarning warning = underVoltageWarning(model, volts);
        EXPECT_EQ(warning.visible, visible) << model;
        EXPECT_THAT(warning.text.toStdString(), HasSubstr(text)) << model;
    }
    EXPECT_TRUE(underVoltageWarning("N/A", 1).text.isEmpty());
}
