/// \file
/// Packets: command id, payload size (only where the id has bit 2 set), address, payload, checksum. Sending one, and
/// the state machine that reassembles a reply byte by byte. Internal to this folder and its tests.
#ifndef VELBRIN_BUSLIB_PACKET_H
#define VELBRIN_BUSLIB_PACKET_H

#include "zetabus.h"

#include <cstdint>

/// Command ids. Bits 1-2 imply the payload: 0 none, 2 exactly two bytes, 4 a size byte follows the id, 6 invalid.
/// An odd id is a reply. Only 36, 52 and 80 are sent.
enum ZbCommandId : std::uint8_t {
    ZBCMD_INSTANT_CMD = 36,              ///< execute the items now
    ZBCMD_INSTANT_CMD_RET = 37,          ///< one return value an item
    ZBCMD_BUFFERED_CMD = 52,             ///< store the items in the drive's command buffer
    ZBCMD_BUFFERED_CMD_RET = 53,         ///< reply to 52
    ZBCMD_BUFFERED_RETURN_DATA = 56,     ///< request for buffered return data
    ZBCMD_BUFFERED_RETURN_DATA_RET = 61, ///< reply to 56
    ZBCMD_GET_CLOCK = 80,                ///< read the buffer clock
    ZBCMD_GET_CLOCK_RET = 83,            ///< reply: 16 bits, low byte first
};

/// A drain gives up after this many bytes or this long: a line that babbles for ever must not hold the caller for ever.
constexpr int drainLimitBytes = 64 * 1024;
constexpr int drainLimitMs = 2000;

/// The name of a command id, "unknown cmdid" for any other number.
const char *cmdidToStr(std::uint8_t cmdid);

/// Sends one request in one write. ZB_OK, ZB_ERR_BUS or ZB_ERR_NODEVICE. The payload goes out whenever its length is
/// not zero, also for an id that implies none: the caller passes what the id implies.
ZbStatus zbSendZBCMD(ZbHandle handle, std::uint8_t cmdid, std::uint8_t address, std::uint8_t payloadLength,
                     const std::uint8_t *payload);

/// Reads one reply into the handle's packet buffer. ZB_OK, ZB_ERR_COMMUNICATION (silence, bad framing, bad checksum) or
/// ZB_ERR_NODEVICE. Blocks for at most one read time-out a byte, and after bad framing for one drain.
/// A reply from another address or with another id is accepted as it stands.
ZbStatus zbReceiveReturnPacket(ZbHandle handle);

/// Feeds one received byte to the state machine. ZB_OK while the packet is good so far; sets the packet-complete flag
/// with the last byte. Bad framing and a bad checksum go through zbReceiveErrorHandler with draining.
ZbStatus zbParseReturnData(ZbHandle handle, std::uint8_t byte);

/// Puts the receive side and the queue back to their initial values, after reading the line silent if `drain` is set,
/// and sets the packet-complete flag, so that a receive loop ends. Always ZB_ERR_COMMUNICATION for an open handle.
ZbStatus zbReceiveErrorHandler(ZbHandle handle, bool drain);

#endif
