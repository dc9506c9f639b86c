#include "busrecord.h"
#include "debug.h"
#include "packet.h"

namespace {

// How an item kind is encoded: its length, the bits of its value field and the mark in the top two bits.
struct ItemFormat
{
    int bytes;
    std::uint32_t valueMask;
    std::uint32_t mark;
};

constexpr ItemFormat itemFormats[] = {
    {4, 0x3FFFFFFF, 0x00000000}, // ZB_QUEUE_VALUE32
    {3, 0x003FFFFF, 0x00400000}, // ZB_QUEUE_VALUE24
    {2, 0x00003FFF, 0x00008000}, // ZB_QUEUE_ADDRESS
};
constexpr int itemKinds = sizeof itemFormats / sizeof itemFormats[0];

// How a return value is decoded, by the top two bits of its first byte.
struct ReturnFormat
{
    int bytes;
    int valueBits;
    const char *name;
};

constexpr ReturnFormat returnFormats[] = {
    {4, 30, "RET32B"},
    {3, 22, "RET24B"},
    {2, 14, "RET16B"},
    {1, 6, "RET_OTHER"},
};

long signExtended(std::uint32_t field, int bits)
{
    const std::uint32_t sign = 1u << (bits - 1);
    const std::uint32_t value = field & ((sign << 1) - 1);
    return static_cast<long>(value ^ sign) - static_cast<long>(sign);
}

// The reader hands its lines to zbDebug with handle and verbosity exchanged: they are named after bus 4 and appear only
// while that is open and the reading handle is not above the threshold. Kept on purpose.
constexpr ZbHandle readerDebugHandle = 4;

} // namespace

ZbStatus zbAppendZBCommandToQueue(ZbHandle handle, int kind, long value)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    if (kind < 0 || kind >= itemKinds)
        return recordStatus(handle, ZB_ERR_PARAMETER);
    const ItemFormat &format = itemFormats[kind];
    if (bus->queueWriteLength + format.bytes > ZB_MAX_PAYLOAD) {
        bus->queueOverflow = 1;
        return recordStatus(handle, ZB_ERR_LENGTH);
    }
    const std::uint32_t item = (static_cast<std::uint32_t>(value) & format.valueMask) | format.mark;
    for (int shift = 8 * (format.bytes - 1); shift >= 0; shift -= 8)
        bus->packetBuffer[bus->queueWriteLength++] = static_cast<std::uint8_t>(item >> shift);
    return recordStatus(handle, ZB_OK);
}

ZbStatus zbExecuteCommandQueue(ZbHandle handle, std::uint8_t address)
{
    return zbTransmitReceiveCommandQueue(handle, address, ZBCMD_INSTANT_CMD);
}

ZbStatus zbUploadCommandQueueToDeviceBuffer(ZbHandle handle, std::uint8_t address)
{
    return zbTransmitReceiveCommandQueue(handle, address, ZBCMD_BUFFERED_CMD);
}

ZbStatus zbTransmitReceiveCommandQueue(ZbHandle handle, std::uint8_t address, std::uint8_t cmdid)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    // After an overflow nothing is exchanged and the result is still ZB_OK: the append's status has told it.
    const bool exchange = !bus->queueOverflow;
    if (exchange) {
        const auto length = static_cast<std::uint8_t>(bus->queueWriteLength);
        const ZbStatus status = zbSendZBCMD(handle, cmdid, address, length, bus->packetBuffer);
        if (status != ZB_OK)
            return recordStatus(handle, status);
    }
    bus->queueWriteLength = 0;
    bus->returnReadIndex = 0;
    if (exchange) {
        const ZbStatus status = zbReceiveReturnPacket(handle);
        if (status != ZB_OK)
            return recordStatus(handle, status);
    }
    bus->queueOverflow = 0;
    return recordStatus(handle, ZB_OK);
}

ZbStatus zbGetQueuedZBCommandReturnValue(ZbHandle handle, long *value)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    if (bus->returnReadIndex >= bus->expectedPayloadSize || bus->returnReadIndex >= ZB_MAX_PAYLOAD) {
        if (value)
            *value = 0;
        zbDebug(readerDebugHandle, handle, "Packet receive error, return data coudn't be parsed\n");
        return recordStatus(handle, ZB_ERR_LENGTH);
    }
    const std::uint8_t *item = bus->packetBuffer + bus->returnReadIndex;
    const ReturnFormat &format = returnFormats[item[0] >> 6];
    std::uint32_t field = 0;
    for (int i = 0; i < format.bytes; ++i)
        field = (field << 8) | item[i];
    const long decoded = signExtended(field, format.valueBits);
    zbDebug(readerDebugHandle, handle, "%s: %ld\n", format.name, decoded);
    bus->returnReadIndex = static_cast<std::uint16_t>(bus->returnReadIndex + format.bytes);
    if (value)
        *value = decoded;
    return recordStatus(handle, ZB_OK);
}

ZbStatus zbBytesReceived(ZbHandle handle, int *count)
{
    const BusState *bus = openBus(handle);
    if (count)
        *count = bus ? bus->expectedPayloadSize - bus->returnReadIndex : 0;
    return bus ? recordStatus(handle, ZB_OK) : ZB_ERR_NODEVICE;
}

int zbReplyAddress(ZbHandle handle)
{
    const BusState *bus = openBus(handle);
    return bus ? bus->receivedAddress : -1;
}

ZbStatus zbGetBufferClock(ZbHandle handle, std::uint8_t address, std::uint16_t *clock)
{
    ZbStatus status = zbSendZBCMD(handle, ZBCMD_GET_CLOCK, address, 0, nullptr);
    if (status != ZB_OK)
        return recordStatus(handle, status);
    status = zbReceiveReturnPacket(handle);
    if (status != ZB_OK)
        return recordStatus(handle, status);
    BusState *bus = openBus(handle);
    if (clock)
        *clock = static_cast<std::uint16_t>(bus->packetBuffer[0] | (bus->packetBuffer[1] << 8));
    bus->payloadIndex = 0;
    return recordStatus(handle, ZB_OK);
}
