/// \file
/// What the list of serial ports on the Connect page shows, and which entry is chosen at first. A pure function over
/// plain values, so that two adapters, a Windows name or no port at all can be tried without hardware.
#ifndef VELBRIN_UI_PORTLIST_H
#define VELBRIN_UI_PORTLIST_H

#include <QList>
#include <QString>
#include <QStringList>

/// One serial port as the system enumerates it.
struct SerialPort
{
    QString portName;       ///< e.g. "ttyUSB0" or "COM3"
    QString systemLocation; ///< e.g. "/dev/ttyUSB0"
    QString description;    ///< what the adapter calls itself
    QString manufacturer;
    int vendorId = 0; ///< USB vendor, 0 when unknown
    int productId = 0;
};

/// Items of the port list; the first word of an item is the port's name.
struct PortList
{
    QStringList items;
    int current = -1; ///< the last recognised adapter, else the first item; -1 in an empty list
};

/// Ports that are neither a Windows port ("COM") nor a Unix device ("tty") are left out.
PortList portListOf(const QList<SerialPort> &ports);

/// Puts the item of the virtual drive's port in front and chooses it.
void addVirtualDrive(PortList &list, const QString &portName);

/// Chooses the item of this port; a port that is not in the list is added in front, as a typed one would be.
void preselectPort(PortList &list, const QString &portName);

/// The serial ports of this machine, in the system's order.
QList<SerialPort> serialPortsOfThisMachine();

#endif
