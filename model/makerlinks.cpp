#include "makerlinks.h"

#include <QSettings>

namespace {

QString configured(const char *variable, const char *settingsKey, const char *fallback)
{
    QString address = qEnvironmentVariable(variable);
    if (address.isEmpty()) {
        const QSettings settings(QStringLiteral("Tarnwell Devices"), QStringLiteral("Velbrin"));
        address = settings.value(QLatin1String(settingsKey)).toString();
    }
    if (address.isEmpty())
        address = QLatin1String(fallback);
    while (address.endsWith(QLatin1Char('/')))
        address.chop(1);
    return address;
}

} // namespace

QString makerWikiBase()
{
    return configured("VELBRIN_WIKI", "wikiBase", "https://wiki.tarnwell.example");
}

QString makerWikiPage(const QString &path)
{
    return makerWikiBase() + path;
}

QString makerUpdateServer()
{
    return configured("VELBRIN_UPDATE_SERVER", "updateServer", "http://update.tarnwell.example");
}
