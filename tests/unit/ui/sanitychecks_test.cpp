#include "printqt.h"
#include "sanitychecks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;

namespace {

SanityInputs quietSettings()
{
    SanityInputs in;
    in.homing = 1;
    in.homingThreshold = 1000;
    in.trackingThreshold = 2000;
    in.limitVelocity = 50;
    in.faultVelocity = 60;
    return in;
}

std::string warnings(const SanityInputs &in)
{
    return sanityWarnings(in).toStdString();
}

} // namespace

TEST(SanityChecks, SettingsThatGoTogetherSayNothing)
{
    EXPECT_EQ(warnings(quietSettings()), "");
}

TEST(SanityChecks, HardStopThresholdNearTheTrackingThresholdWarnsWhileHomingIsOn)
{
    SanityInputs in = quietSettings();
    in.homingThreshold = 1501; // times 4 / 3, cut to an integer: 2001
    EXPECT_THAT(warnings(in), HasSubstr("Parameter sanity check warnings:<ul><li>Homing hard stop threshold [HMH]"));
    EXPECT_THAT(warnings(in), Not(HasSubstr("[CVL]")));
    in.homingThreshold = 1500; // exactly 2000
    EXPECT_EQ(warnings(in), "");
    in.homingThreshold = 1000000000; // would overflow 32 bits
    EXPECT_THAT(warnings(in), HasSubstr("[HMH]"));
    in.homing = 0;
    EXPECT_EQ(warnings(in), "");
}

TEST(SanityChecks, OverSpeedThresholdNearTheVelocityLimitWarnsUnlessTorqueIsControlled)
{
    SanityInputs in = quietSettings();
    in.limitVelocity = 54.1;
    EXPECT_THAT(warnings(in), HasSubstr("Over speed fault threshold [FEV]"));
    EXPECT_THAT(warnings(in), Not(HasSubstr("[HMH]")));
    in.controlMode = 1;
    EXPECT_THAT(warnings(in), HasSubstr("</li></ul>"));
    in.controlMode = 2;
    EXPECT_EQ(warnings(in), "");
}

TEST(SanityChecks, BothWarningsStandInOneList)
{
    SanityInputs in = quietSettings();
    in.homingThreshold = 5000;
    in.limitVelocity = 100;
    EXPECT_THAT(warnings(in), HasSubstr("increase FPT.</li><li>Over speed"));
}

TEST(PairRules, PolesComeInPairs)
{
    EXPECT_EQ(evenPoleCount(7), 6);
    EXPECT_EQ(evenPoleCount(8), 8);
    EXPECT_EQ(evenPoleCount(1), 0);
    EXPECT_EQ(evenPoleCount(0), 0);
}

TEST(PairRules, TheOtherOfThePairFollowsTheOneThatWasEdited)
{
    EXPECT_EQ(orderedAfterLow(5.0, 4.0), std::make_pair(5.0, 5.0));
    EXPECT_EQ(orderedAfterHigh(5.0, 4.0), std::make_pair(4.0, 4.0));
    EXPECT_EQ(orderedAfterLow(4.0, 4.0), std::make_pair(4.0, 4.0));
    EXPECT_EQ(orderedAfterHigh(-3, 4), std::make_pair(-3, 4));
}

TEST(UnderVoltageWarning, EachFamilyHasItsOwnLimit)
{
    EXPECT_TRUE(underVoltageWarning(QStringLiteral("Tarnwell Devices Torva 4000"), 69.99).visible);
    EXPECT_FALSE(underVoltageWarning(QStringLiteral("Tarnwell Devices TORVA"), 70).visible);
    EXPECT_TRUE(underVoltageWarning(QStringLiteral("keta pro"), 19.99).visible);
    EXPECT_FALSE(underVoltageWarning(QStringLiteral("KETA"), 20).visible);
    EXPECT_THAT(underVoltageWarning(QStringLiteral("Torva"), 60).text.toStdString(),
                HasSubstr("operating Torva under 70 VDC"));
    EXPECT_THAT(underVoltageWarning(QStringLiteral("Keta"), 60).text.toStdString(),
                HasSubstr("operating Keta under 20 VDC"));
}

TEST(UnderVoltageWarning, OtherModelsHaveNone)
{
    const SupplyWarning warning = underVoltageWarning(QStringLiteral("N/A"), 1);
    EXPECT_FALSE(warning.visible);
    EXPECT_TRUE(warning.text.isEmpty());
}
