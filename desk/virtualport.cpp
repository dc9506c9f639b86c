#include "virtualport.h"

#include "datafolder.h"
#include "virtualbus.h"

#include <QDir>

VirtualPort::VirtualPort(const QString &drives, Pace pace)
    : m_folder(QStringLiteral("velbrin-desk-")), m_previous(QDir::currentPath()), m_error(m_folder.error())
{
    if (!m_error.isEmpty())
        return;
    sim::BusOptions options;
    m_error = QString::fromStdString(sim::parseDrives(drives.toStdString(), options.drives));
    if (!m_error.isEmpty())
        return;
    options.lineRate = pace == Pace::RealLine;
    options.linkPath = m_folder.filePath(portName()).toStdString();
    m_bus = std::make_unique<sim::VirtualBus>(options);
    m_error = QString::fromStdString(m_bus->start());
    if (!m_error.isEmpty())
        return;
    linkDataInto(m_folder.path());
    QDir::setCurrent(m_folder.path());
}

VirtualPort::~VirtualPort()
{
    QDir::setCurrent(m_previous);
}

QString checkVirtualDrives(const QString &drives)
{
    std::vector<sim::DriveOptions> parsed;
    return QString::fromStdString(sim::parseDrives(drives.toStdString(), parsed));
}
