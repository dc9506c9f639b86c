/// \file
/// What may be written to a drive, and what became of a write: plain functions over parameter lists.
#ifndef VELBRIN_SESSION_SETTINGSCHECKS_H
#define VELBRIN_SESSION_SETTINGSCHECKS_H

#include "editedsettings.h"

#include <QStringList>
#include <optional>

/// NAME=VALUE, value in display units.
struct Assignment
{
    QString name;
    double value = 0.0;
};

/// Empty when the text is no NAME=VALUE with a finite decimal number.
std::optional<Assignment> parseAssignment(const QString &text);

/// Why the drive named `modelName` would not take an assignment: it lacks the setting, the setting is read-only, the
/// value is outside the limits that the drive gave. Empty when it may be written.
QString refusal(const Parameters &drive, const Assignment &assignment, const QString &modelName);

/// What became of a write: the settings that were wanted otherwise than the drive had them `before`, told apart by what
/// it holds behind it.
struct ApplyResult
{
    QList<Difference> applied;  ///< with what the drive had
    QList<Difference> notTaken; ///< with what it has instead
};
ApplyResult applyResult(const Parameters &before, const Parameters &wanted, const Parameters &held,
                        const QString &modelName);
/// "3 applied", "2 applied, 1 not taken: KVP 4000 -> 3800": one line, by name.
QString applyLine(const ApplyResult &result);

/// A file that was saved without a drive, or from a model that lacks a setting, holds a mark (0 or -1, no limits) and
/// no value for it. Puts the drive's own records back there, so that no mark is ever written, and returns their names
/// as far as the model has them.
QStringList keepWhereFileHasNone(Parameters &loaded, const Parameters &drive, const QString &modelName);

#endif
