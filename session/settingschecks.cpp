#include "settingschecks.h"

#include "catalogue.h"
#include "numbertext.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("SettingsChecks", text);
}

} // namespace

std::optional<Assignment> parseAssignment(const QString &text)
{
    const int equals = text.indexOf(QLatin1Char('='));
    bool isNumber = false;
    const double value = text.mid(equals + 1).trimmed().toDouble(&isNumber);
    if (equals < 1 || !isNumber || !std::isfinite(value))
        return std::nullopt;
    return Assignment{text.left(equals).trimmed(), value};
}

QString refusal(const Parameters &drive, const Assignment &assignment, const QString &modelName)
{
    const SingleParam param = drive.getParam(assignment.name);
    if (!param.supportedInDevice(modelName))
        return tr("%1 is not on this model (%2).").arg(param.name, modelName);
    if (param.readonly)
        return tr("%1 is read-only.").arg(param.name);
    // Compared as it goes over the bus: the limits as printed may be rounded.
    const double value = param.convertToDeviceScale(assignment.value);
    if (value < param.convertToDeviceScale(param.min) || value > param.convertToDeviceScale(param.max)) {
        return tr("%1=%2 is outside the drive's limits, %3 to %4.")
            .arg(param.name, shortNumber(assignment.value), shortNumber(param.min), shortNumber(param.max));
    }
    if (assignment.name.startsWith(QLatin1String("overrideAddr")) && isCommandToDrive(truncateToInt32(value)))
        return tr("%1=%2 is refused: that register is a command to the drive and not a setting.")
            .arg(param.name, shortNumber(assignment.value));
    return QString();
}

ApplyResult applyResult(const Parameters &before, const Parameters &wanted, const Parameters &held,
                        const QString &modelName)
{
    const Parameters catalogue = driveParameterCatalogue();
    ApplyResult result;
    result.notTaken = differences(held, wanted, catalogue, modelName);
    const auto refused = [&result](const QString &name) {
        return std::any_of(result.notTaken.cbegin(), result.notTaken.cend(),
                           [&name](const Difference &difference) { return difference.name == name; });
    };
    for (const Difference &difference : differences(before, wanted, catalogue, modelName)) {
        if (!refused(difference.name))
            result.applied.append(difference);
    }
    return result;
}

QString applyLine(const ApplyResult &result)
{
    if (result.notTaken.isEmpty())
        return result.applied.isEmpty() ? tr("Applied: the drive had these values already")
                                        : tr("%1 applied").arg(result.applied.size());
    QStringList names;
    for (const Difference &difference : result.notTaken)
        names.append(
            tr("%1 %2 -> %3").arg(difference.name, shortNumber(difference.wanted), shortNumber(difference.drive)));
    return tr("%1 applied, %2 not taken: %3")
        .arg(QString::number(result.applied.size()), QString::number(result.notTaken.size()),
             names.join(QLatin1String(", ")));
}

QStringList keepWhereFileHasNone(Parameters &loaded, const Parameters &drive, const QString &modelName)
{
    QStringList kept;
    for (int i = 0; i < loaded.getParamCount(); ++i) {
        const SingleParam fromFile = loaded.getParam(i);
        const SingleParam fromDrive = drive.getParam(i);
        const bool isMark =
            (fromFile.value == 0.0 || fromFile.value == -1.0) && fromFile.min == 0.0 && fromFile.max == 0.0;
        const bool hasLimits = fromDrive.min != 0.0 || fromDrive.max != 0.0;
        if (!isMark || !hasLimits)
            continue;
        loaded.replaceParam(fromDrive, i);
        if (!fromDrive.readonly && fromDrive.supportedInDevice(modelName))
            kept.append(fromDrive.name);
    }
    return kept;
}
