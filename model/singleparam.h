/// \file
/// One drive setting: its identity on the bus, its scaling and its value in display units.
#ifndef VELBRIN_MODEL_SINGLEPARAM_H
#define VELBRIN_MODEL_SINGLEPARAM_H

#include <QMetaType>
#include <QString>

/// `value` cut toward zero. What does not fit becomes the nearest end of the range, NaN becomes 0: the cast alone would
/// be undefined.
int truncateToInt32(double value);

/// A plain value. Display value = (device value + offset) / scaling; device values are signed 32-bit integers.
/// A fresh record is read-only and claims every model family until its builder says otherwise.
class SingleParam
{
public:
    SingleParam() = default;

    /// (deviceValue + offset) / scaling, not rounded.
    double convertToGUIScale(double deviceValue) const;
    /// guiValue * scaling - offset, rounded to the nearest integer, halves away from zero.
    double convertToDeviceScale(double guiValue) const;
    /// Whether the drive model named `modelName` (deviceModelName without the maker's prefix) has this parameter: true
    /// when the name begins, without regard to case, with one of the pieces of `devices`. An empty piece fits all.
    bool supportedInDevice(const QString &modelName) const;

    double value = 0.0;   ///< current value, display units
    double min = 0.0;     ///< lowest value the drive accepts, display units
    double max = 0.0;     ///< highest value the drive accepts, display units
    int addr = 0;         ///< register on the drive; the low 16 bits go on the wire
    double scaling = 1.0; ///< divisor from device units to display units
    double offset = 0.0;  ///< added to the device value before dividing
    QString name;         ///< mnemonic, e.g. "KVP": the key by which the program finds the parameter
    bool auxFlag = true;  ///< shown in the user interface; not stored in settings files
    bool readonly = true; ///< informative: never written to the drive
    QString devices = QStringLiteral("Torva,Keta,Keta Pro"); ///< model name prefixes, separated by commas
    QString group; ///< object name of the container that is hidden where the model lacks the parameter
};

Q_DECLARE_METATYPE(SingleParam)

#endif
