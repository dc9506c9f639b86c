#include "settingschecks.h"

#include "catalogue.h"
#include "printqt.h"
#include "withvalues.h"

#include <gtest/gtest.h>

namespace {

const QString keta = QStringLiteral("KETA");

/// The catalogue with one setting as a drive has it.
Parameters withSetting(const char *name, double value, double min, double max)
{
    Parameters list = withValues(driveParameterCatalogue(), {{name, value}});
    SingleParam param = list.getParam(QLatin1String(name));
    param.min = min;
    param.max = max;
    list.replaceParam(param);
    return list;
}

} // namespace

TEST(SettingsChecks, LimitsCountAsTheyGoOverTheBus)
{
    // 960 drive units at 50/3 a unit: 57.6, which no double is exactly.
    const Parameters drive = withSetting("FOC", 48, 10 / (50 / 3.0), 960 / (50 / 3.0));
    EXPECT_EQ(refusal(drive, {"FOC", 57.6}, keta), "");
    EXPECT_EQ(refusal(drive, {"FOC", 57.62}, keta), "") << "the same number for the drive";
    EXPECT_NE(refusal(drive, {"FOC", 57.7}, keta), "");
    EXPECT_NE(refusal(drive, {"FOC", 0.5}, keta), "");
}

TEST(SettingsChecks, MarkOfASettingThatWasNeverReadGivesWayToTheDrives)
{
    const Parameters drive = withSetting("KVP", 360, 0, 32767);
    for (const double mark : {0.0, -1.0}) {
        Parameters loaded = withSetting("KVP", mark, 0, 0);
        EXPECT_EQ(keepWhereFileHasNone(loaded, drive, keta), QStringList("KVP"));
        EXPECT_EQ(loaded.getParam("KVP").value, 360);
    }
    Parameters zero = withSetting("KVP", 0, 0, 32767);
    EXPECT_TRUE(keepWhereFileHasNone(zero, drive, keta).isEmpty()) << "a gain of zero is a value";
    EXPECT_EQ(zero.getParam("KVP").value, 0);
}

TEST(SettingsChecks, AssignmentsAreNamesAndFiniteNumbers)
{
    EXPECT_EQ(parseAssignment("HMV=-2000")->value, -2000);
    EXPECT_EQ(parseAssignment("AXS=2.5e-1")->value, 0.25);
    for (const char *text : {"", "=", "=5", "KVP", "KVP=", "KVP=1,5", "KVP=1 2", "KVP=inf", "KVP=nan", "KVP=0x10"})
        EXPECT_FALSE(parseAssignment(text)) << text;
}

TEST(ApplyResults, TellWhatTheDriveTookAndWhatItHasInstead)
{
    using Values = std::initializer_list<std::pair<const char *, double>>;
    const Parameters before = withValues(driveParameterCatalogue(), {{"KVP", 360}, {"KVI", 360}, {"MCC", 13}});
    const auto lineOf = [&before](Values wanted, Values held) {
        return applyLine(applyResult(before, withValues(before, wanted), withValues(before, held), "KETA"));
    };
    const Values all = {{"KVP", 400}, {"KVI", 500}, {"MCC", 14}};
    EXPECT_EQ(lineOf(all, all), "3 applied");
    EXPECT_EQ(lineOf({{"KVP", 4000}, {"KVI", 500}, {"MCC", 14}}, {{"KVP", 3800}, {"KVI", 500}, {"MCC", 14}}),
              "2 applied, 1 not taken: KVP 4000 -> 3800");
    EXPECT_EQ(lineOf({{"KVP", 400}}, {}), "0 applied, 1 not taken: KVP 400 -> 360");
    EXPECT_EQ(lineOf({{"KVI", 500}}, {{"KVI", 500}, {"MCC", 2.5}}), "1 applied, 1 not taken: MCC 13 -> 2.5")
        << "by another hand";
    EXPECT_EQ(lineOf({{"MCC", 13.0000001}}, {}), "Applied: the drive had these values already")
        << "the same on the bus";
}
