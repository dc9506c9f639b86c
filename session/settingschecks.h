/// \file
/// What may be written to a drive and what differs: plain functions over parameter lists.
#ifndef SETTINGSCHECKS_H
#define SETTINGSCHECKS_H

#include "parameters.h"

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

/// A setting that stands differently in two lists, in display units.
struct Difference
{
    QString name;
    double first = 0.0;
    double second = 0.0;
};

/// The writable settings of the model that differ once they are converted to what goes over the bus: a difference that
/// rounding makes is none.
QList<Difference> differences(const Parameters &first, const Parameters &second, const QString &modelName);

/// What became of a write: the settings that were wanted otherwise than the drive had them, told apart by what it holds
/// behind it. `first` is what was wanted; `second` what the drive had, or, where it did not take it, what it has.
struct ApplyResult
{
    QList<Difference> applied;
    QList<Difference> notTaken;
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
