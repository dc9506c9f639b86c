// When edits count as pending, what differs from the drive, and what a control's rounding does not change.
#include "editedsettings.h"
#include "withvalues.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Source = EditedSettings::Source;
constexpr int kvp = 0, cvl = 1, pif = 2;

Parameters valuesOf(double kvpValue, double cvlValue)
{
    Parameters list;
    for (const char *name : {"KVP", "CVL", "PIF"})
        list.addParameter(0, name, list.getParamCount() == cvl ? 100.0 : 1.0, 0.0, list.getParamCount() == pif, true,
                          "KETA");
    return withValues(list, {{"KVP", kvpValue}, {"CVL", cvlValue}});
}

/// As the window takes a list over.
EditedSettings settledOn(const Parameters &list, Source source = Source::Drive)
{
    EditedSettings settings(valuesOf(0, 0));
    settings.accept(list, source);
    settings.settle();
    return settings;
}

} // namespace

TEST(EditedSettings, AnEditIsPendingUntilUndoneOrApplied)
{
    EditedSettings settings(valuesOf(0, 0));
    settings.accept(valuesOf(1, 2), Source::Drive);
    EXPECT_FALSE(settings.isPending()); // nothing was ever settled: the list is only just there
    settings.settle();
    settings.edit(cvl, 3);
    EXPECT_TRUE(settings.isPending());
    settings.edit(cvl, 2);
    EXPECT_FALSE(settings.isPending());
    settings.edit(cvl, 3);
    settings.applied();
    EXPECT_FALSE(settings.isPending());
    EXPECT_FALSE(settings.isSaved());
    settings.edit(cvl, 2);
    EXPECT_TRUE(settings.isPending());

    settings = settledOn(valuesOf(NAN, 2));
    EXPECT_FALSE(settings.isPending()) << "what is no number is no edit for ever";
    settings.edit(kvp, 1);
    EXPECT_TRUE(settings.isPending());
}

TEST(EditedSettings, AFileIsPendingEvenWithoutADifferenceAndAcrossWhatASecondOneBrings)
{
    EditedSettings settings = settledOn(valuesOf(1, 2));
    for (int i = 0; i < 2; ++i) {
        settings.accept(valuesOf(1, 2), Source::File);
        EXPECT_TRUE(settings.isPending());
    }
    EXPECT_TRUE(settings.driveWasRead()); // the drive is still there
    settings.settle();
    EXPECT_FALSE(settings.isPending());
    EXPECT_TRUE(settings.isSaved()); // nothing was given to the drive
}

TEST(EditedSettings, OnlyAWholeReadOfThisConnectionCountsAsTheDrives)
{
    for (const Source source : {Source::BareCatalogue, Source::File, Source::PartOfDrive})
        EXPECT_FALSE(settledOn(valuesOf(1, 2), source).driveWasRead());
    EditedSettings settings = settledOn(valuesOf(1, 2));
    EXPECT_TRUE(settings.driveWasRead());
    settings.accept(valuesOf(1, 2), Source::PartOfDrive);
    EXPECT_FALSE(settings.driveWasRead());
    settings = settledOn(valuesOf(1, 2));
    settings.connectionChanged();
    EXPECT_FALSE(settings.driveWasRead());
}

TEST(EditedSettings, DifferencesAreWhatTheDriveWouldHoldOtherwise)
{
    const QString model = "KETA";
    EditedSettings settings = settledOn(valuesOf(1, 2));
    EXPECT_TRUE(settings.differences(model).isEmpty());
    settings.setDrive(valuesOf(1, 2));
    settings.edit(cvl, 2.004); // the drive counts in hundredths
    settings.edit(pif, 7);     // read-only
    EXPECT_TRUE(settings.differences(model).isEmpty());
    settings.edit(cvl, 2.01);
    settings.edit(kvp, 5);
    const auto found = settings.differences(model);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].name, "KVP");
    EXPECT_EQ(found[0].drive, 1);
    EXPECT_EQ(found[0].wanted, 5);
    EXPECT_EQ(found[1].name, "CVL");
    EXPECT_TRUE(settings.differences("OTHER").isEmpty()) << "no setting of that model";
    settings.connectionChanged();
    EXPECT_TRUE(settings.differences(model).isEmpty());
}
