#include "drivewords.h"

#include "clitext.h"
#include "statustexts.h"

QStringList activeFaults(const DriveState &drive)
{
    QStringList names;
    for (const DriveFlag &flag : faultFlagsOf(drive)) {
        if (flag.isSet)
            names.append(flag.label);
    }
    return names;
}

QStringList inactivityReasons(const DriveState &drive)
{
    QStringList reasons;
    for (const DriveFlag &flag : inputFlagsOf(drive) + statusFlagsOf(drive) + faultFlagsOf(drive)) {
        if (flag.isReason)
            reasons.append(
                QStringLiteral("%1 (%2)").arg(flag.label, flag.isSet ? QStringLiteral("on") : QStringLiteral("off")));
    }
    return reasons;
}

QString inactivityText(const DriveState &drive)
{
    const QStringList reasons = inactivityReasons(drive);
    if (reasons.isEmpty())
        return QString();
    return tr("Reason for inactivity: %1.").arg(reasons.join(QLatin1String(", ")));
}

QString stateWord(const DriveState &drive)
{
    if (drive.isFaultStopped())
        return QStringLiteral("fault");
    if (drive.isHoming())
        return QStringLiteral("homing");
    if (drive.isRunning())
        return QStringLiteral("running");
    return drive.isEnabled() ? QStringLiteral("waiting") : QStringLiteral("disabled");
}
