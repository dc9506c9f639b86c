#include "packet.h"

#include "busdevice.h"
#include "busrecord.h"
#include "checksum.h"
#include "debug.h"
#include "serialport.h"

#include <chrono>

namespace {

/// From the first byte to the last; the bus itself needs 3 ms, the rest is for a busy machine.
constexpr std::chrono::milliseconds longestReply(500);

constexpr std::uint8_t payloadBits = 6;
constexpr std::uint8_t payloadNone = 0;
constexpr std::uint8_t payloadTwoBytes = 2;
constexpr std::uint8_t payloadVariable = 4;

constexpr std::uint8_t firstNamedId = 36;
constexpr int namedIds = 48;

struct NameTable
{
    const char *names[namedIds] = {};

    constexpr NameTable()
    {
        names[ZBCMD_INSTANT_CMD - firstNamedId] = "ZBCMD_INSTANT_CMD";
        names[ZBCMD_INSTANT_CMD_RET - firstNamedId] = "ZBCMD_INSTANT_CMD_RET";
        names[ZBCMD_BUFFERED_CMD - firstNamedId] = "ZBCMD_BUFFERED_CMD";
        names[ZBCMD_BUFFERED_CMD_RET - firstNamedId] = "ZBCMD_BUFFERED_CMD_RET";
        names[ZBCMD_BUFFERED_RETURN_DATA - firstNamedId] = "ZBCMD_BUFFERED_RETURN_DATA";
        names[ZBCMD_BUFFERED_RETURN_DATA_RET - firstNamedId] = "ZBCMD_BUFFERED_RETURN_DATA_RET";
        names[ZBCMD_GET_CLOCK - firstNamedId] = "ZBCMD_GET_CLOCK";
        names[ZBCMD_GET_CLOCK_RET - firstNamedId] = "ZBCMD_GET_CLOCK_RET";
    }
};

constexpr NameTable commandNames;

// One request on its way into the transmit buffer.
class PacketWriter
{
public:
    PacketWriter(ZbHandle handle, int device) : m_handle(handle), m_device(device) {}

    void append(const char *label, std::uint8_t byte)
    {
        m_checksum = calcCRC16(byte, m_checksum);
        appendRaw(label, byte);
    }

    bool finish()
    {
        appendRaw("CRC ", static_cast<std::uint8_t>(m_checksum >> 8));
        appendRaw("CRC ", static_cast<std::uint8_t>(m_checksum & 0xFF));
        if (m_failed) {
            zbBDDropOutput(m_device); // or every later packet would begin with this one
            return false;
        }
        return zbBDTransmit(m_device) != 0;
    }

private:
    void appendRaw(const char *label, std::uint8_t byte)
    {
        const bool sent = zbBDWrite(m_device, byte) != 0;
        zbDebug(m_handle, 3, "%s", label);
        if (sent)
            zbDebug(m_handle, 3, "  sent byte %02x\n", byte);
        else
            zbDebug(m_handle, 3, "  sending byte %02x failed\n", byte);
        m_failed = m_failed || !sent;
    }

    ZbHandle m_handle;
    int m_device;
    std::uint16_t m_checksum = 0;
    bool m_failed = false;
};

void drainLine(int device)
{
    using clock = std::chrono::steady_clock;
    const auto deadline = clock::now() + std::chrono::milliseconds(drainLimitMs);
    std::uint8_t dropped = 0;
    for (int count = 0; count < drainLimitBytes && clock::now() < deadline; ++count)
        if (!zbBDRead(device, &dropped))
            return; // silent for one read time-out, or the port is gone
}

ZbStatus framingError(ZbHandle handle)
{
    return recordStatus(handle, zbReceiveErrorHandler(handle, true));
}

// Returns false for an id whose size bits are invalid.
bool startPacket(BusState &bus, std::uint8_t cmdid)
{
    bus.receivedCommandId = cmdid;
    switch (cmdid & payloadBits) {
    case payloadNone:
        bus.expectedPayloadSize = 0;
        bus.receiveState = ReceiveAddress;
        return true;
    case payloadTwoBytes:
        bus.expectedPayloadSize = 2;
        bus.receiveState = ReceiveAddress;
        return true;
    case payloadVariable:
        bus.expectedPayloadSize = payloadSizeUnknown;
        bus.receiveState = ReceivePayloadSize;
        return true;
    default:
        return false;
    }
}

// Returns false for a byte beyond the packet buffer. The announced size is not looked at before: a reply that is too
// long fails at its 121st byte.
bool storePayload(BusState &bus, std::uint8_t byte)
{
    if (bus.payloadIndex >= ZB_MAX_PAYLOAD)
        return false;
    bus.packetBuffer[bus.payloadIndex++] = byte;
    if (bus.payloadIndex >= bus.expectedPayloadSize)
        bus.receiveState = ReceiveChecksumFirst;
    return true;
}

// Returns false if the checksum is wrong.
bool finishPacket(BusState &bus, std::uint8_t byte)
{
    bus.receivedChecksum = static_cast<std::uint16_t>((bus.receivedChecksum << 8) | byte);
    if (bus.receivedChecksum != bus.runningChecksum)
        return false;
    bus.packetComplete = 1;
    bus.payloadIndex = 0;
    bus.runningChecksum = 0;
    bus.receiveState = ReceiveCommandId;
    return true;
}

bool parseByte(BusState &bus, std::uint8_t byte)
{
    if (bus.receiveState != ReceiveChecksumFirst && bus.receiveState != ReceiveChecksumSecond)
        bus.runningChecksum = calcCRC16(byte, bus.runningChecksum);
    switch (bus.receiveState) {
    case ReceiveCommandId:
        return startPacket(bus, byte);
    case ReceivePayloadSize:
        bus.expectedPayloadSize = byte;
        bus.receiveState = ReceiveAddress;
        return true;
    case ReceiveAddress:
        bus.receivedAddress = byte;
        bus.receiveState = bus.expectedPayloadSize <= bus.payloadIndex ? ReceiveChecksumFirst : ReceivePayload;
        return true;
    case ReceivePayload:
        return storePayload(bus, byte);
    case ReceiveChecksumFirst:
        bus.receivedChecksum = byte;
        bus.receiveState = ReceiveChecksumSecond;
        return true;
    default:
        return finishPacket(bus, byte);
    }
}

} // namespace

const char *cmdidToStr(std::uint8_t cmdid)
{
    const int index = cmdid - firstNamedId;
    const bool named = index >= 0 && index < namedIds && commandNames.names[index];
    return named ? commandNames.names[index] : "unknown cmdid";
}

ZbStatus zbSendZBCMD(ZbHandle handle, std::uint8_t cmdid, std::uint8_t address, std::uint8_t payloadLength,
                     const std::uint8_t *payload)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    zbDebug(handle, 2, "> %s (id=%d, addr=%d, payload=%d)\n", cmdidToStr(cmdid), cmdid, address, payloadLength);
    PacketWriter packet(handle, bus->deviceHandle);
    packet.append("ID ", cmdid);
    if (cmdid & payloadVariable)
        packet.append("Nparams ", payloadLength);
    packet.append("ADDR ", address);
    for (int i = 0; i < payloadLength; ++i)
        packet.append("DATA ", payload[i]);
    return recordStatus(handle, packet.finish() ? ZB_OK : ZB_ERR_BUS);
}

ZbStatus zbReceiveReturnPacket(ZbHandle handle)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    zbDebug(handle, 3, "  Reading reply packet\n");
    bus->bytesHeard = 0;
    const auto limit = std::chrono::steady_clock::now() + std::chrono::milliseconds(readTimeout()) + longestReply;
    do {
        std::uint8_t byte = 0;
        if (!zbBDRead(bus->deviceHandle, &byte)) {
            zbReceiveErrorHandler(handle, false);
            zbDebug(handle, 3, "  zbRawCommand RX read byte failed\n");
            return recordStatus(handle, ZB_ERR_COMMUNICATION);
        }
        zbDebug(handle, 3, "  got byte %02x \n", byte);
        ++bus->bytesHeard;
        // Noise that trickles in would restart the wait with every byte, for minutes.
        if (std::chrono::steady_clock::now() > limit)
            return recordStatus(handle, zbReceiveErrorHandler(handle, true));
        const ZbStatus status = zbParseReturnData(handle, byte);
        if (status != ZB_OK)
            return recordStatus(handle, status);
    } while (!bus->packetComplete);
    zbDebug(handle, 2, "< %s (id=%d, addr=%d, payload=%d)\n", cmdidToStr(bus->receivedCommandId),
            bus->receivedCommandId, bus->receivedAddress, bus->expectedPayloadSize);
    return recordStatus(handle, ZB_OK);
}

ZbStatus zbParseReturnData(ZbHandle handle, std::uint8_t byte)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    bus->packetComplete = 0;
    bus->previousReceiveState = bus->receiveState;
    return parseByte(*bus, byte) ? recordStatus(handle, ZB_OK) : framingError(handle);
}

ZbStatus zbReceiveErrorHandler(ZbHandle handle, bool drain)
{
    BusState *bus = openBus(handle);
    if (!bus)
        return ZB_ERR_NODEVICE;
    if (drain)
        drainLine(bus->deviceHandle);
    resetReceiveSide(*bus);
    bus->packetComplete = 1;
    return recordStatus(handle, ZB_ERR_COMMUNICATION);
}
