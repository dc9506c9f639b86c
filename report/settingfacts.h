/// \file
/// What a report says of a setting beside its value: what it is called, its unit, and what a new drive has.
#ifndef VELBRIN_REPORT_SETTINGFACTS_H
#define VELBRIN_REPORT_SETTINGFACTS_H

#include "parameters.h"

#include <optional>

struct SettingFacts
{
    QString caption;
    QString unit;          ///< of the display value; empty where it has none
    double standard = 0.0; ///< what a drive has before anybody sets it, display units
    QStringList choices;   ///< what the values 0, 1, ... stand for; empty where the value is a number
};

/// Nothing for a name that is no writable setting.
std::optional<SettingFacts> settingFacts(const QString &name, bool isTorva);

/// A setting that is not as a new drive has it.
struct ChangedSetting
{
    SingleParam setting;
    SettingFacts facts;
};

/// Whether its value is another one than a new drive's, as it goes over the bus: what rounding makes is no difference.
bool differsFromStandard(const SingleParam &setting, const SettingFacts &facts);

/// The caption; where the value stands for a choice, its words behind it, and those of a new drive where it differs.
QString settingCaption(const SingleParam &setting, const SettingFacts &facts);

/// The writable settings that a drive of this type has, in the order of the list.
QList<SingleParam> settingsOfDrive(const Parameters &settings, int driveType);

/// Those of them that differ; the same ones wherever they are told.
QList<ChangedSetting> changedSettings(const Parameters &settings, int driveType);

#endif
