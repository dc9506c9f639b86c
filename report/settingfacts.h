/// \file
/// What a report says of a setting beside its value: what it is called, its unit, and what a new drive has.
#ifndef SETTINGFACTS_H
#define SETTINGFACTS_H

#include <QString>

#include <optional>

struct SettingFacts
{
    QString caption;
    QString unit;          ///< of the display value; empty where it has none
    double standard = 0.0; ///< what a drive has before anybody sets it, display units
};

/// Nothing for a name that is no writable setting.
std::optional<SettingFacts> settingFacts(const QString &name, bool isTorva);

#endif
