/// \file
/// The built-in virtual drives, behind a port name that the bus accepts.
#ifndef VIRTUALPORT_H
#define VIRTUALPORT_H

#include "workfolder.h"

#include <QString>
#include <memory>

namespace sim {
class VirtualBus;
}

/// A bus port's name must begin with "COM" or "/dev/tty", which a pseudo terminal's does not. So this works in a
/// private folder with a link "COM1" to it; nothing needs root. Everything is gone with this object.
class VirtualPort
{
public:
    /// `profiles` as on the command line, "PROFILE[@ADDRESS],..."; without addresses they are 5, 6 and so on.
    explicit VirtualPort(const QString &profiles);
    ~VirtualPort();
    VirtualPort(const VirtualPort &) = delete;
    VirtualPort &operator=(const VirtualPort &) = delete;

    /// Empty when the drives are there.
    QString error() const { return m_error; }
    static QString portName() { return QStringLiteral("COM1"); }

private:
    WorkFolder m_folder;
    QString m_previous;
    QString m_error;
    std::unique_ptr<sim::VirtualBus> m_bus;
};

/// What is wrong with the profiles; empty when drives like these can live on one bus.
QString checkProfiles(const QString &profiles);

#endif
