#include "dividerrule.h"
#include "withvalues.h"

#include <gtest/gtest.h>

TEST(DividerRule, TakesTheFirstStepAboveTheLimit)
{
    const std::tuple<int, int, int> cases[] = {
        {10000, 6000, 25}, // x = 20.48
        {8000, 3000, 200}, // x = 51.2
        {4000, 3000, 200}, // x = 102.4
        {9000, 3000, 50},  // x = 45.5
        {1500, 3000, 400}, // x = 273.1
        {1000, 3000, 800}, // x = 409.6
        {1000, 100, 800},  {0, 3000, 800}, {1000, 0, 800}, {0, 0, 800}, {2000000000, 2000000000, 25},
    };
    for (const auto &[resolution, speed, divider] : cases)
        EXPECT_EQ(dividerValue(resolution, speed), divider) << resolution << " lines at " << speed << " rpm";
}

TEST(DividerRule, SetsTheDividerAndTellsWhetherItChanged)
{
    Parameters list = withValues({}, {{"DIV", 50}, {"MMS", 3000.9}, {"FBR", 4000.9}});
    EXPECT_TRUE(autoSetDIVvalue(list));
    EXPECT_EQ(list.getParam("DIV").value, 200.0);
    EXPECT_FALSE(autoSetDIVvalue(list));

    // Nor does a list change that lacks one of them.
    for (Parameters lacking :
         {withValues({}, {{"MMS", 3000}, {"FBR", 4000}}), withValues({}, {{"DIV", 50}, {"FBR", 4000}}),
          withValues({}, {{"DIV", 50}, {"MMS", 3000}})}) {
        const double before = lacking.getParam("DIV").value;
        EXPECT_FALSE(autoSetDIVvalue(lacking));
        EXPECT_EQ(lacking.getParam("DIV").value, before);
    }
}
