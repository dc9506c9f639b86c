#include "settingchanges.h"

#include <QCoreApplication>

namespace {

constexpr double muchMore = 3.0;

/// Limits whose wrong decimal point costs a motor or a drive.
constexpr const char *dangerousLimits[] = {"MMC", "MCC", "HMT", "FOC", "FOV", "FUV"};

bool isDangerous(const QString &name)
{
    for (const char *limit : dangerousLimits) {
        if (name == QLatin1String(limit))
            return true;
    }
    return false;
}

} // namespace

QStringList growthWarnings(const QList<SettingChange> &changes)
{
    QStringList warnings;
    for (const SettingChange &change : changes) {
        if (isDangerous(change.name) && change.afterNumber > muchMore * change.beforeNumber)
            warnings << QCoreApplication::translate("SettingChanges", "%1 grows more than threefold: %2 -> %3.")
                            .arg(change.caption, change.before, change.after);
    }
    return warnings;
}
