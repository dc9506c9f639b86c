#include "printqt.h"
#include "unitconversion.h"

#include <gtest/gtest.h>

namespace {

using Scale = UnitConversion::Scale;

/// 1000 lines and 10 mm a revolution: 400 counts a millimetre.
UnitConversion screwAxis()
{
    UnitConversion units;
    units.fbr = 1000;
    units.axs = 10;
    units.unit = QStringLiteral("mm");
    return units;
}

} // namespace

TEST(UnitConversion, CountsAndSetpointsBecomeUnitsOfTheAxis)
{
    UnitConversion units = screwAxis();
    EXPECT_EQ(units.velocityLabel(1), "= 6.25 mm/s");
    units.mul = 3;
    units.div = 4;
    EXPECT_DOUBLE_EQ(units.velocity(64), 64 * 6.25 / 4) << "a setpoint's is divided twice and multiplied once";
    EXPECT_DOUBLE_EQ(units.velocity(64, Scale::Setpoint), 64 * 6.25 / 4 * 3 / 4);
    EXPECT_DOUBLE_EQ(units.velocity(64, Scale::Raw), 64 * 6.25);
    EXPECT_DOUBLE_EQ(units.velocity(64, Scale::RawSetpoint), 64 * 6.25 * 3);
    EXPECT_EQ(units.positionLabel(4000), "= 7.5 mm");
    EXPECT_EQ(units.positionLabel(4000, Scale::Raw), "= 10 mm");
    EXPECT_EQ(units.scalingText(), "Setpoint scaling factor:\n3/4=75%");
    units.div = 200;
    EXPECT_EQ(units.accelerationLabel(320), "= 25000 mm/s²"); // 320 * 2500 * 2500 / 200 / 400

    // What is missing shows as such and not as a number.
    units.div = 0;
    EXPECT_EQ(units.velocityLabel(1), "= inf mm/s");
    EXPECT_EQ(units.velocityLabel(0), "= nan mm/s");
    units.fbr = 0;
    EXPECT_EQ(units.positionLabel(-1), "= -inf mm");
}

TEST(UnitConversion, SuffixOfTheLabelChoosesTheConversion)
{
    UnitConversion units = screwAxis();
    units.mul = 2;
    units.div = 4;
    const std::pair<const char *, const char *> expected[] = {
        {"HLLrpos", "= 0.5 mm"},    {"CVLrvel", "= 625 mm/s"}, {"CALracc", "= 1.5625e+06 mm/s²"}, {"FPThpos", "= 1 mm"},
        {"FVThvel", "= 2500 mm/s"}, {"XYZhacc", "ERROR"},      {"somethingElse", "ERROR"},
    };
    for (const auto &[label, text] : expected)
        EXPECT_EQ(units.labelBySuffix(400, QString::fromLatin1(label)), text) << label;
}

TEST(UnitConversion, LabelsThatFollowAControlAreToldByTheirNames)
{
    for (const char *name : {"HLLrpos", "CVLrvel", "CALracc", "FPThpos", "FVThvel", "XYZhacc"})
        EXPECT_TRUE(isUnitLabelName(QString::fromLatin1(name))) << name;
    for (const char *name : {"AXSr", "SCALINGr", "TSR1r", "CVLl", ""})
        EXPECT_FALSE(isUnitLabelName(QString::fromLatin1(name))) << name;
    EXPECT_EQ(controlOfUnitLabel(QStringLiteral("CVLrvel")), "CVL");
}

TEST(UnitConversion, SetpointIsShownAsWhatItCommandsInTheActiveMode)
{
    UnitConversion units = screwAxis();
    units.mul = 1;
    units.div = 2;
    ActiveScale active;
    active.cvl = 1000;
    active.mmc = 20;
    const std::pair<int, const char *> modes[] = {{0, "= 10.24 mm"},    // 8192 / 2 / 400
                                                  {1, "= 781.25 mm/s"}, // 500 / 2 * 6.25 * 1 / 2
                                                  {2, "= 5 A"},         // half of 20 A, halved again
                                                  {3, "no mode"},
                                                  {-1, "no mode"}};
    for (const auto &[mode, text] : modes) {
        active.controlMode = mode;
        EXPECT_EQ(units.setpointLabel(8192, active), text) << mode;
    }
}
