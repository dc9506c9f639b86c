#include "dividerrule.h"
#include "parameters.h"

#include <gtest/gtest.h>

namespace {

Parameters listOf(std::initializer_list<std::pair<const char *, double>> values)
{
    Parameters list;
    for (const auto &v : values) {
        SingleParam p;
        p.name = v.first;
        p.value = v.second;
        list.addParameter(p);
    }
    return list;
}

} // namespace

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
    Parameters list = listOf({{"DIV", 50}, {"MMS", 3000.9}, {"FBR", 4000.9}});
    EXPECT_TRUE(autoSetDIVvalue(list));
    EXPECT_EQ(list.getParam("DIV").value, 200.0);
    EXPECT_FALSE(autoSetDIVvalue(list));
}

TEST(DividerRule, LeavesAListThatLacksASettingAlone)
{
    for (Parameters list : {listOf({{"MMS", 3000}, {"FBR", 4000}}), listOf({{"DIV", 50}, {"FBR", 4000}}),
                            listOf({{"DIV", 50}, {"MMS", 3000}})}) {
        const double before = list.getParam("DIV").value;
        EXPECT_FALSE(autoSetDIVvalue(list));
        EXPECT_EQ(list.getParam("DIV").value, before);
    }
}
