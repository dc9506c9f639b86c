/// \file
/// Bus records: one per handle, with the protocol state, the command queue and the cumulative status. Internal
/// to this folder and its tests; users include zetabus.h.
#ifndef VELBRIN_BUSLIB_BUSRECORD_H
#define VELBRIN_BUSLIB_BUSRECORD_H

#include "zetabus.h"

#include <cstdint>

/// States of the receive state machine, in the order of a packet: command id, size, address, payload, checksum.
enum ReceiveState : std::uint32_t {
    ReceiveCommandId = 0,
    ReceiveAddress = 1,
    ReceivePayloadSize = 2,
    ReceivePayload = 3,
    ReceiveChecksumFirst = 4,
    ReceiveChecksumSecond = 5,
};

constexpr std::int16_t payloadSizeUnknown = -1;
constexpr std::uint8_t noAddress = 255;
constexpr std::uint16_t noChecksum = 0xFFFF;

/// A return value that begins on the last payload byte is decoded from up to three bytes behind it.
constexpr int packetBufferPadding = 3;

struct BusState
{
    std::int8_t deviceHandle = 0;
    std::uint8_t open = 0;
    std::uint32_t previousReceiveState = ReceiveCommandId;
    std::uint32_t receiveState = ReceiveCommandId;
    std::int16_t expectedPayloadSize = payloadSizeUnknown; ///< kept after a reply: bounds the return values
    std::int16_t payloadIndex = 0;                         ///< next payload byte to store
    std::uint8_t packetBuffer[ZB_MAX_PAYLOAD + packetBufferPadding] = {}; ///< queued items, then the reply's payload
    std::uint8_t receivedCommandId = 0;
    std::uint8_t receivedAddress = noAddress;
    std::uint16_t runningChecksum = 0;
    std::uint16_t receivedChecksum = noChecksum;
    int bytesHeard = 0;              ///< in the last receive, good or bad
    std::uint8_t packetComplete = 0; ///< a reply was assembled, or an error ended it
    std::uint8_t queueOverflow = 0;  ///< an item did not fit
    char name[64] = {};
    std::uint16_t queueWriteLength = 0;
    std::uint16_t returnReadIndex = 0;
    std::uint32_t cumulativeStatus = 0;
};

/// Closes every record and puts it to its initial values, which it has at the start, too.
void zbBusesInit();

/// The record of a handle 0-9, open or not, else null.
BusState *busRecord(ZbHandle handle);

/// The record of an open handle, else null.
BusState *openBus(ZbHandle handle);

/// Puts receive state, queue write length, return read index and overflow flag to their initial values.
void resetReceiveSide(BusState &bus);

#endif
