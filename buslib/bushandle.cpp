// The API of a bus: opening and closing it, its time-out, its cumulative status.
#include "busdevice.h"
#include "busrecord.h"
#include "debug.h"
#include "serialport.h"

#include <cerrno>
#include <cstring>

namespace {

constexpr int libraryVersion = 0x20001;

} // namespace

ZbHandle zbOpenBus(const char *name)
{
    ZbHandle handle = 0;
    while (handle < ZB_MAX_BUSES && busRecord(handle)->open)
        ++handle;
    if (handle == ZB_MAX_BUSES) {
        errno = EMFILE;
        return -1;
    }
    const int device = zbBDOpen(name);
    if (device == -1)
        return -1;
    BusState &bus = *busRecord(handle);
    bus.deviceHandle = static_cast<std::int8_t>(device);
    std::strncpy(bus.name, name, sizeof bus.name - 1);
    bus.name[sizeof bus.name - 1] = '\0';
    bus.open = 1;
    zbDebug(handle, 2, "low latency %s\n", zbBDLowLatency(device) ? "on" : "not available");
    return handle;
}

ZbStatus zbCloseBus(ZbHandle handle)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    bus->open = 0;
    zbBDClose(bus->deviceHandle);
    // The handle is closed by now, so this is always ZB_ERR_NODEVICE: kept, callers ignore the result of a close.
    return recordStatus(handle, ZB_OK);
}

int zbIsHandleOpen(ZbHandle handle)
{
    return openBus(handle) ? 1 : 0;
}

ZbStatus zbSetTimeout(std::uint16_t milliseconds)
{
    if (milliseconds > ZB_MAX_TIMEOUT_MS)
        return ZB_ERR_PARAMETER;
    setReadTimeout(milliseconds);
    return ZB_OK;
}

int zbGetVersion()
{
    return libraryVersion;
}

ZbStatus zbResetZB485variables(ZbHandle handle)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    resetReceiveSide(*bus);
    bus->packetComplete = 0;
    return recordStatus(handle, ZB_OK);
}

ZbStatus zbDiscardInput(ZbHandle handle, int *count)
{
    if (count)
        *count = 0;
    const BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    const int dropped = zbBDDropInput(bus->deviceHandle);
    if (count)
        *count = dropped;
    return recordStatus(handle, ZB_OK);
}

int zbBytesHeard(ZbHandle handle)
{
    const BusState *bus = openBus(handle);
    return bus ? bus->bytesHeard : 0;
}

int zbIsLineGone(ZbHandle handle)
{
    const BusState *bus = openBus(handle);
    return bus ? zbBDIsGone(bus->deviceHandle) : 0;
}

ZbStatus recordStatus(ZbHandle handle, ZbStatus bits)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    bus->cumulativeStatus |= bits;
    return bits;
}

ZbStatus getCumulativeStatus(ZbHandle handle)
{
    const BusState *bus = openBus(handle);
    return bus ? bus->cumulativeStatus : ZB_ERR_NODEVICE;
}

ZbStatus resetCumulativeStatus(ZbHandle handle)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    bus->cumulativeStatus = 0;
    return ZB_OK;
}
