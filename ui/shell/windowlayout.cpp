#include "windowlayout.h"

#include <QMainWindow>
#include <QSettings>

namespace {

constexpr QSize firstSize(1300, 730);

QSettings windowSettings()
{
    return QSettings(QStringLiteral("Tarnwell Devices"), QStringLiteral("Velbrin"));
}

} // namespace

void restoreLayout(QMainWindow &window)
{
    const QSettings settings = windowSettings();
    if (!window.restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray()))
        window.resize(firstSize);
    window.restoreState(settings.value(QStringLiteral("windowState")).toByteArray(), 0);
}

void saveLayout(const QMainWindow &window)
{
    QSettings settings = windowSettings();
    settings.setValue(QStringLiteral("geometry"), window.saveGeometry());
    settings.setValue(QStringLiteral("windowState"), window.saveState(0));
}
