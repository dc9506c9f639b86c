#include "virtualport.h"

#include "virtualbus.h"

#include <QDir>
#include <QStringList>

namespace {

constexpr int firstAddress = 5;

std::vector<sim::DriveOptions> driveOptions(const QString &profiles)
{
    std::vector<sim::DriveOptions> drives;
    for (const QString &text : profiles.split(QLatin1Char(','))) {
        sim::DriveOptions drive;
        drive.profile = text.section(QLatin1Char('@'), 0, 0).toStdString();
        drive.address = text.contains(QLatin1Char('@')) ? text.section(QLatin1Char('@'), 1).toInt()
                                                        : firstAddress + int(drives.size());
        drives.push_back(drive);
    }
    return drives;
}

} // namespace

VirtualPort::VirtualPort(const QString &profiles)
    : m_folder(QStringLiteral("velbrin-cli-")), m_previous(QDir::currentPath())
{
    m_error = m_folder.error();
    if (!m_error.isEmpty())
        return;
    sim::BusOptions options;
    options.drives = driveOptions(profiles);
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
    return QString::fromStdString(sim::checkDrives(driveOptions(profiles)));
}
