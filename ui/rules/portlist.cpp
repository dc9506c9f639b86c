#include "portlist.h"

#include <QCoreApplication>
#include <QSerialPortInfo>

namespace {

// The USB identity of the Zetabus V2 adapter's serial chip.
constexpr int adapterVendor = 0x0403;
constexpr int adapterProduct = 0x6001;

QString tr(const char *text)
{
    return QCoreApplication::translate("MW", text);
}

bool isAdapter(const SerialPort &port)
{
    if (port.portName.contains(QLatin1String("COM")))
        return port.vendorId == adapterVendor && port.productId == adapterProduct;
    return port.portName.contains(QLatin1String("ttyUSB"));
}

/// Empty for a port that is not listed.
QString itemText(const SerialPort &port)
{
    if (port.portName.contains(QLatin1String("COM")))
        return isAdapter(port) ? tr("%1 Zetabus V2 adapter").arg(port.portName) : port.portName;
    if (port.portName.contains(QLatin1String("tty")))
        return isAdapter(port) ? tr("%1 Possibly Zetabus V2 adapter").arg(port.systemLocation) : port.systemLocation;
    return QString();
}

} // namespace

PortList portListOf(const QList<SerialPort> &ports)
{
    PortList list;
    for (const SerialPort &port : ports) {
        const QString text = itemText(port);
        if (text.isEmpty())
            continue;
        list.items.append(text);
        if (isAdapter(port) || list.current < 0)
            list.current = list.items.size() - 1;
    }
    return list;
}

void addVirtualDrive(PortList &list, const QString &portName)
{
    list.items.prepend(tr("%1 Virtual drive").arg(portName));
    list.current = 0;
}

void preselectPort(PortList &list, const QString &portName)
{
    for (int i = 0; i < list.items.size(); ++i) {
        if (list.items[i].section(QLatin1Char(' '), 0, 0) == portName) {
            list.current = i;
            return;
        }
    }
    list.items.prepend(portName);
    list.current = 0;
}

QList<SerialPort> serialPortsOfThisMachine()
{
    QList<SerialPort> ports;
    const auto infos = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &info : infos) {
        ports.append({info.portName(), info.systemLocation(), info.description(), info.manufacturer(),
                      info.hasVendorIdentifier() ? info.vendorIdentifier() : 0,
                      info.hasProductIdentifier() ? info.productIdentifier() : 0});
    }
    return ports;
}
