/// \file
/// The built-in virtual drives, behind a port name that the bus accepts.
#ifndef VELBRIN_DESK_VIRTUALPORT_H
#define VELBRIN_DESK_VIRTUALPORT_H

#include "workfolder.h"

#include <QString>
#include <memory>

namespace sim {
class VirtualBus;
}

/// A bus port's name must begin with "COM" or "/dev/tty", which a pseudo terminal's does not. So this works in a
/// private folder with a link "COM1" to it, with the data folder's "flot" and "help" beside it; nothing needs root.
/// Everything is gone with this object; what killed programs left is removed by the next.
class VirtualPort
{
public:
    enum class Pace {
        AsItGoes, ///< bytes are there at once
        RealLine, ///< as quick as a real line, no quicker
    };

    /// `drives` as on the command line, "MODEL[:LOAD][@ADDRESS],..."; without addresses they are 5, 6 and so on.
    /// Changes into the folder unless something failed.
    VirtualPort(const QString &drives, Pace pace);
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

/// What is wrong with the drives; empty when drives like these can live on one bus.
QString checkVirtualDrives(const QString &drives);

#endif
