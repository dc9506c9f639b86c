#include "virtualport.h"

#include "virtualbus.h"

#include <QDir>

VirtualPort::VirtualPort(const QString &profiles)
    : m_folder(QDir::tempPath() + QLatin1String("/velbrin-XXXXXX")), m_previous(QDir::currentPath())
{
    if (!m_folder.isValid()) {
        m_error = m_folder.errorString();
        return;
    }
    sim::BusOptions options;
    m_error = QString::fromStdString(sim::parseDrives(profiles.toStdString(), options.drives));
    if (!m_error.isEmpty())
        return;
    options.linkPath = m_folder.filePath(portName()).toStdString();
    m_bus = std::make_unique<sim::VirtualBus>(options);
    m_error = QString::fromStdString(m_bus->start());
    if (m_error.isEmpty())
        QDir::setCurrent(m_folder.path());
}

VirtualPort::~VirtualPort()
{
    QDir::setCurrent(m_previous);
}

QString checkProfiles(const QString &profiles)
{
    std::vector<sim::DriveOptions> drives;
    return QString::fromStdString(sim::parseDrives(profiles.toStdString(), drives));
}
