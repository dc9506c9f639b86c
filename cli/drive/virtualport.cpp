#include "virtualport.h"

#include "virtualbus.h"

#include <QDir>

VirtualPort::VirtualPort(const QString &profiles)
    : m_folder(QStringLiteral("velbrin-cli-")), m_previous(QDir::currentPath())
{
    m_error = m_folder.error();
    if (!m_error.isEmpty())
        return;
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
