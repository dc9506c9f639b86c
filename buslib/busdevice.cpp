#include "busdevice.h"

#include "serialport.h"
#include "zetabus.h"

#include <cerrno>
#include <cstring>

namespace {

constexpr std::uint8_t serialPortType = 1;
constexpr int dropLimit = 64 * 1024;

BusDevice devices[maxBusDevices];

BusDevice *openDevice(int handle)
{
    if (handle < 0 || handle >= maxBusDevices)
        return nullptr;
    BusDevice &device = devices[handle];
    return device.open && device.type == serialPortType ? &device : nullptr;
}

bool hasPortPrefix(const char *name)
{
    return name && (std::strncmp(name, "COM", 3) == 0 || std::strncmp(name, "/dev/tty", 8) == 0);
}

void clearBuffers(BusDevice &device)
{
    device.transmitCount = 0;
    device.receiveCount = 0;
    device.receiveNext = 0;
}

} // namespace

void zbBDinit()
{
    for (BusDevice &device : devices) {
        device.type = 0;
        device.open = 0;
        clearBuffers(device);
    }
}

int zbBDOpen(const char *name)
{
    int handle = 0;
    while (handle < maxBusDevices && devices[handle].open)
        ++handle;
    if (handle == maxBusDevices) {
        errno = EMFILE;
        return -1;
    }
    if (!hasPortPrefix(name)) {
        errno = EINVAL;
        return -1;
    }
    BusDevice &device = devices[handle];
    device.port = OpenComport(name, ZB_BAUD_RATE);
    if (device.port == -1)
        return -1;
    clearBuffers(device);
    device.type = serialPortType;
    device.open = 1;
    return handle;
}

int zbBDClose(int handle)
{
    BusDevice *device = openDevice(handle);
    if (!device)
        return 0;
    CloseComport(device->port);
    clearBuffers(*device);
    device->open = 0;
    return 1;
}

int zbBDWrite(int handle, std::uint8_t byte)
{
    BusDevice *device = openDevice(handle);
    if (!device || device->transmitCount >= transmitBufferSize)
        return 0;
    device->transmitBuffer[device->transmitCount++] = byte;
    return 1;
}

int zbBDTransmit(int handle)
{
    BusDevice *device = openDevice(handle);
    if (!device)
        return 0;
    const int count = device->transmitCount;
    device->transmitCount = 0;
    return SendBuf(device->port, device->transmitBuffer, count) == count ? 1 : 0;
}

int zbBDRead(int handle, std::uint8_t *byte)
{
    BusDevice *device = openDevice(handle);
    if (!device)
        return 0;
    if (device->receiveNext >= device->receiveCount) {
        device->receiveNext = 0;
        device->receiveCount = PollComport(device->port, device->receiveBuffer, receiveBufferSize);
        if (device->receiveCount <= 0) {
            device->receiveCount = 0;
            return 0;
        }
    }
    *byte = device->receiveBuffer[device->receiveNext++];
    return 1;
}

int zbIsBDHandleOpen(int handle)
{
    return handle >= 0 && handle < maxBusDevices ? devices[handle].open : 0;
}

void zbBDDropOutput(int handle)
{
    if (BusDevice *device = openDevice(handle))
        device->transmitCount = 0;
}

int zbBDDropInput(int handle)
{
    BusDevice *device = openDevice(handle);
    if (!device)
        return 0;
    const int readAhead = device->receiveCount - device->receiveNext;
    device->receiveCount = 0;
    device->receiveNext = 0;
    return readAhead + dropPortInput(device->port, dropLimit);
}

int zbBDIsGone(int handle)
{
    const BusDevice *device = openDevice(handle);
    return device && isPortGone(device->port) ? 1 : 0;
}

int zbBDLowLatency(int handle)
{
    const BusDevice *device = openDevice(handle);
    return device && requestLowLatency(device->port) ? 1 : 0;
}
