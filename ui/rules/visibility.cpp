#include "visibility.h"

#include <QWidget>

namespace {

using In = VisibilityInputs;

bool hasPoles(const In &in)
{
    return in.motorType == 2 || in.motorType == 3;
}
bool isStepper(const In &in)
{
    return in.motorType == 4;
}
bool isNoStepper(const In &in)
{
    return !isStepper(in);
}
bool movesToVelocity(const In &in)
{
    return in.controlMode != 2;
}
bool movesToPosition(const In &in)
{
    return in.controlMode == 0;
}
bool homes(const In &in)
{
    return in.homing != 0;
}
bool isAnalog(const In &in)
{
    return hasSetpointOffset(in.setpointInput);
}
bool hasSecondSensor(const In &in)
{
    return in.velocityFeedback != 0;
}
bool isAdvanced(const In &in)
{
    return in.showAdvanced;
}
bool isAdvancedPro(const In &in)
{
    return in.showAdvanced && in.isKetaPro;
}

struct Rule
{
    bool (*visible)(const In &);
    QVector<const char *> objects;
};
const Rule rules[] = {
    {hasPoles, {"MPC", "MPCl", "MPCu", "FBH", "FBHl"}},
    {isNoStepper, {"MTC", "MTCu", "MTCl"}},
    {isStepper, {"MThelp"}},
    {movesToVelocity, {"motionDynamicsGroup", "velgains", "FVTl", "FVT", "FVThvel"}},
    {movesToPosition, {"homingGroup", "errorrec_posonly", "posgains", "FPTl", "FPT", "FPThpos"}},
    {homes, {"homingSettingsGroup"}},
    {isAnalog, {"absInSettingGroup"}},
    {hasSecondSensor, {"FB2I", "FB2R", "FB2Il", "FB2Rl", "FB2Ru"}},
    {isAdvanced, {"VFFlabel", "VFF", "AFFlabel", "AFF", "advancedSettingsNotice"}},
    {isAdvancedPro, {"torqueCompensationGroup"}},
};

} // namespace

bool hasSetpointOffset(int setpointInput)
{
    return setpointInput == 3 || setpointInput == 4;
}

QVector<ObjectVisibility> visibilityOf(const VisibilityInputs &in)
{
    QVector<ObjectVisibility> all;
    for (const Rule &rule : rules)
        for (const char *object : rule.objects)
            all.append({QString::fromLatin1(object), rule.visible(in)});
    return all;
}

void applyVisibility(QWidget *root, const VisibilityInputs &in)
{
    for (const ObjectVisibility &object : visibilityOf(in))
        if (QWidget *widget = root->findChild<QWidget *>(object.objectName))
            widget->setVisible(object.visible);
}
