#include "datafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const char *const linkedFolders[] = {"flot", "help"};

} // namespace

bool hasPlotScripts(const QString &folder)
{
    // The sources have a "flot" folder too, but with the style sheet only.
    return QFileInfo::exists(folder + QLatin1String("/flot/jquery.flot.js"));
}

QString findDataFolder()
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString candidates[] = {qEnvironmentVariable("VELBRIN_DATA"), program + QLatin1String("/../share/velbrin"),
                                  program + QLatin1String("/../data"), QDir::currentPath()};
    for (const QString &folder : candidates) {
        if (!folder.isEmpty() && hasPlotScripts(folder))
            return QDir(folder).canonicalPath();
    }
    return QString();
}

bool enterDataFolder()
{
    const QString folder = findDataFolder();
    return !folder.isEmpty() && QDir::setCurrent(folder);
}

void linkDataInto(const QString &folder)
{
    const QString data = findDataFolder();
    for (const char *name : linkedFolders) {
        const QString target = data + QLatin1Char('/') + QLatin1String(name);
        if (!data.isEmpty() && QFileInfo::exists(target))
            QFile::link(target, folder + QLatin1Char('/') + QLatin1String(name));
    }
}
