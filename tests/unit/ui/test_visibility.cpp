#include "visibility.h"

#include <QMap>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

/// Whether every one of the objects is shown; a mixture or a name without a rule fails the test.
bool shown(const VisibilityInputs &in, const QStringList &objects)
{
    QMap<QString, bool> visible;
    for (const ObjectVisibility &object : visibilityOf(in)) {
        EXPECT_FALSE(visible.contains(object.objectName)) << "two rules: " << qPrintable(object.objectName);
        visible.insert(object.objectName, object.visible);
    }
    int count = 0;
    for (const QString &object : objects) {
        EXPECT_TRUE(visible.contains(object)) << "no rule: " << qPrintable(object);
        count += visible.value(object) ? 1 : 0;
    }
    EXPECT_TRUE(count == 0 || count == objects.size()) << qPrintable(objects.join(','));
    return count > 0;
}

} // namespace

TEST(Visibility, EverySwitchShowsWhatHasAMeaningThen)
{
    using In = VisibilityInputs;
    const struct
    {
        const char *rule;
        std::function<void(In &, int)> set;
        std::vector<int> values, shownFor;
        QStringList objects;
    } rows[] = {
        {"magnet poles", [](In &in, int type) { in.motorType = type; }, {-1, 0, 1, 2, 3, 4}, {2, 3},
         {"MPC", "MPCl", "MPCu", "FBH", "FBHl"}},
        {"thermal model", [](In &in, int type) { in.motorType = type; }, {-1, 0, 1, 2, 3, 4}, {-1, 0, 1, 2, 3},
         {"MTC", "MTCl", "MTCu"}},
        {"no motor type", [](In &in, int type) { in.motorType = type; }, {-1, 0, 1, 2, 3, 4}, {4}, {"MThelp"}},
        {"motion", [](In &in, int mode) { in.controlMode = mode; }, {0, 1, 2}, {0, 1},
         {"motionDynamicsGroup", "velgains", "FVT", "FVTl", "FVThvel"}},
        {"position", [](In &in, int mode) { in.controlMode = mode; }, {0, 1, 2}, {0},
         {"homingGroup", "errorrec_posonly", "posgains", "FPT", "FPTl", "FPThpos"}},
        {"homing", [](In &in, int homing) { in.homing = homing; }, {0, 1, 2}, {1, 2}, {"homingSettingsGroup"}},
        {"second feedback", [](In &in, int device) { in.velocityFeedback = device; }, {0, 1}, {1},
         {"FB2I", "FB2Il", "FB2R", "FB2Rl", "FB2Ru"}},
        {"setpoint offset", [](In &in, int input) { in.setpointInput = input; }, {-1, 0, 1, 2, 3, 4, 5}, {3, 4},
         {"absInSettingGroup"}},
        {"advanced", [](In &in, int both) { in.showAdvanced = both & 1; in.isKetaPro = both & 2; }, {0, 1, 2, 3}, {1, 3},
         {"VFF", "VFFlabel", "AFF", "AFFlabel", "advancedSettingsNotice"}},
        {"cogging", [](In &in, int both) { in.showAdvanced = both & 1; in.isKetaPro = both & 2; }, {0, 1, 2, 3}, {3},
         {"torqueCompensationGroup"}},
    };
    for (const auto &row : rows) {
        for (const int value : row.values) {
            In in;
            row.set(in, value);
            const bool expected = std::count(row.shownFor.begin(), row.shownFor.end(), value) > 0;
            EXPECT_EQ(shown(in, row.objects), expected) << row.rule << ' ' << value;
        }
    }
}

TEST(Visibility, AppliesToTheObjectsThatAreThere)
{
    QWidget root;
    auto *group = new QWidget(&root);
    group->setObjectName("homingSettingsGroup");
    VisibilityInputs in;
    applyVisibility(&root, in);
    EXPECT_TRUE(group->isHidden());
    in.homing = 1;
    applyVisibility(&root, in);
    EXPECT_FALSE(group->isHidden());
}
