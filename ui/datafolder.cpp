#include "datafolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const char *const LINKED_FOLDERS[] = {"flot", "help"};

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
                                  program + QLatin1String("/../data")};
    for (const QString &folder : candidates) {
        if (!folder.isEmpty() && hasPlotScripts(folder))
            return QDir(folder).canonicalPath();
    }
    return QString();
}

bool enterDataFolder()
{
    const QString folder = findDataFolder();
    return folder.isEmpty() ? hasPlotScripts(QDir::currentPath()) : QDir::setCurrent(folder);
}

VirtualDriveFolder::VirtualDriveFolder(const QString &terminal)
    : m_folder(QStringLiteral("velbrin-ui-")), m_previous(QDir::currentPath())
{
    m_error = m_folder.error();
    if (!m_error.isEmpty())
        return;
    QString data = findDataFolder();
    if (data.isEmpty() && hasPlotScripts(m_previous))
        data = m_previous;
    for (const char *name : LINKED_FOLDERS) {
        const QString target = data + QLatin1Char('/') + QLatin1String(name);
        if (!data.isEmpty() && QFileInfo::exists(target))
            QFile::link(target, m_folder.filePath(QLatin1String(name)));
    }
    QFile port(terminal);
    if (!port.link(m_folder.filePath(portName())) || !QDir::setCurrent(m_folder.path()))
        m_error = port.errorString();
}

VirtualDriveFolder::~VirtualDriveFolder()
{
    QDir::setCurrent(m_previous);
}
