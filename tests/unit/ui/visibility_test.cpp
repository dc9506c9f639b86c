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

TEST(Visibility, PolesAndHallSensorsOnlyForMotorsWithMagnetPoles)
{
    VisibilityInputs in;
    for (const auto &[type, expected] : std::initializer_list<std::pair<int, bool>>{
             {-1, false}, {0, false}, {1, false}, {2, true}, {3, true}, {4, false}}) {
        in.motorType = type;
        EXPECT_EQ(shown(in, {"MPC", "MPCl", "MPCu", "FBH", "FBHl"}), expected) << type;
        EXPECT_EQ(shown(in, {"MTC", "MTCl", "MTCu"}), type != 4) << type;
        EXPECT_EQ(shown(in, {"MThelp"}), type == 4) << type;
    }
}

TEST(Visibility, ControlModeHidesWhatHasNoMeaningInIt)
{
    VisibilityInputs in;
    for (int mode : {0, 1, 2}) {
        in.controlMode = mode;
        EXPECT_EQ(shown(in, {"motionDynamicsGroup", "velgains", "FVT", "FVTl", "FVThvel"}), mode != 2) << mode;
        EXPECT_EQ(shown(in, {"homingGroup", "errorrec_posonly", "posgains", "FPT", "FPTl", "FPThpos"}), mode == 0)
            << mode;
    }
}

TEST(Visibility, DependentSettingsFollowTheirSwitch)
{
    VisibilityInputs in;
    EXPECT_FALSE(shown(in, {"homingSettingsGroup"}));
    EXPECT_FALSE(shown(in, {"FB2I", "FB2Il", "FB2R", "FB2Rl", "FB2Ru"}));
    in.homing = 2;
    in.velocityFeedback = 1;
    EXPECT_TRUE(shown(in, {"homingSettingsGroup"}));
    EXPECT_TRUE(shown(in, {"FB2I", "FB2Il", "FB2R", "FB2Rl", "FB2Ru"}));
    for (int input : {-1, 0, 1, 2, 3, 4, 5}) {
        in.setpointInput = input;
        EXPECT_EQ(shown(in, {"absInSettingGroup"}), input == 3 || input == 4) << input;
        EXPECT_EQ(hasSetpointOffset(input), input == 3 || input == 4) << input;
    }
}

TEST(Visibility, TorqueCompensationNeedsAdvancedSettingsAndAPro)
{
    const QStringList feedForward{"VFF", "VFFlabel", "AFF", "AFFlabel", "advancedSettingsNotice"};
    VisibilityInputs in;
    in.isKetaPro = true;
    EXPECT_FALSE(shown(in, feedForward));
    EXPECT_FALSE(shown(in, {"torqueCompensationGroup"}));
    in.showAdvanced = true;
    EXPECT_TRUE(shown(in, feedForward));
    EXPECT_TRUE(shown(in, {"torqueCompensationGroup"}));
    in.isKetaPro = false;
    EXPECT_TRUE(shown(in, feedForward));
    EXPECT_FALSE(shown(in, {"torqueCompensationGroup"}));
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
