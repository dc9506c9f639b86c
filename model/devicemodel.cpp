#include "devicemodel.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DeviceModel)
};

struct ModelName
{
    int model; ///< type id / 100
    const char *name;
    const char *submodel0; ///< suffix where type id % 10 is 0
    const char *submodel1;
    const char *otherSubmodel;
};

constexpr ModelName modelNames[] = {
    {40, "TORVA", "", "", ""},
    {50, "TORVA R", "", "", ""},
    {60, "TORVA S", "", "", ""},
    {110, "KETA", "", " Pro", " Unknown submodel"},
    {112, "KETA", " HC", " Pro HC", " Unknown HC submodel"},
    {114, "KETA Pro (ID 11400)", "", "", ""},
};

bool nameContains(int typeId, const char *key)
{
    return deviceModelName(typeId, false).contains(QLatin1String(key), Qt::CaseInsensitive);
}

} // namespace

QString deviceModelName(int typeId, bool withMakerPrefix)
{
    for (const ModelName &m : modelNames) {
        if (m.model != typeId / 100)
            continue;
        const int submodel = typeId % 10;
        const char *suffix = submodel == 0 ? m.submodel0 : submodel == 1 ? m.submodel1 : m.otherSubmodel;
        const QString prefix = withMakerPrefix ? QStringLiteral("Tarnwell Devices ") : QString();
        return prefix + QLatin1String(m.name) + QLatin1String(suffix);
    }
    return Text::tr("Unknown device type: %1").arg(typeId);
}

bool isTorvaModel(int typeId)
{
    return nameContains(typeId, "TORVA");
}

bool isKetaModel(int typeId)
{
    return nameContains(typeId, "KETA");
}

bool isKetaProModel(int typeId)
{
    return nameContains(typeId, "KETA PRO");
}

bool modelHasCapability(int typeId, DeviceCapability capability)
{
    switch (capability) {
    case DeviceCapability::RestartToDFU:
    case DeviceCapability::MeasureRL:
    case DeviceCapability::ResetToFactory:
    case DeviceCapability::ControlModeChange:
        return isKetaModel(typeId);
    case DeviceCapability::IOSideFirmware:
        return isTorvaModel(typeId);
    }
    return false;
}

float baseFrequencyOfModel(int typeId, float fallback)
{
    switch (typeId / 1000) {
    case 4:
    case 5:
    case 6:
        return 17500.0F;
    case 11:
        return 20000.0F;
    default:
        return fallback;
    }
}
