/// \file
/// Drive models by type id: names, families, capabilities. Pure functions, so that the session, the settings file and
/// the window can all ask.
#ifndef VELBRIN_MODEL_DEVICEMODEL_H
#define VELBRIN_MODEL_DEVICEMODEL_H

#include <QString>

/// What only some drive families can do. Values are fixed; any other value is held by no drive.
enum class DeviceCapability {
    RestartToDFU = 0,      ///< can be restarted into firmware-upgrade mode by the program (Keta)
    MeasureRL = 1,         ///< can measure motor resistance and inductance (Keta)
    ResetToFactory = 2,    ///< firmware upgrade can reset the settings (Keta)
    ControlModeChange = 3, ///< control mode can change while connected (Keta)
    IOSideFirmware = 4,    ///< has an I/O processor with firmware of its own (Torva)
};

/// Name of the drive with this type id (register 6020; family = id / 1000, model = id / 100, submodel = id % 10),
/// preceded by "Tarnwell Devices " when asked for. Unknown ids give "Unknown device type: " + id in the
/// language of the program, never prefixed.
QString deviceModelName(int typeId, bool withMakerPrefix);

bool isTorvaModel(int typeId);
bool isKetaModel(int typeId);
/// True for the Pro, Pro HC and ID 11400 models.
bool isKetaProModel(int typeId);
bool modelHasCapability(int typeId, DeviceCapability capability);

/// Control cycle base frequency of the family in Hz (17500 or 20000), or `fallback` for an unknown family.
float baseFrequencyOfModel(int typeId, float fallback);

#endif
