/// \file
/// Bus devices: one record per open port, with a transmit buffer, so that a packet leaves in one write, and a receive
/// buffer, so that a reply costs a few reads and not one a byte.
///
/// Handles are 0-9. Every function returns 0 for a handle that is out of range, not open, or no serial port. The table
/// is an unguarded global: one thread at a time.
#ifndef VELBRIN_BUSLIB_BUSDEVICE_H
#define VELBRIN_BUSLIB_BUSDEVICE_H

#include <cstdint>

constexpr int maxBusDevices = 10;
constexpr int transmitBufferSize = 128; ///< a full packet has 125 bytes
constexpr int receiveBufferSize = 256;

struct BusDevice
{
    std::uint8_t type = 0; ///< 1: serial port, the only kind
    std::uint8_t open = 0;
    std::int32_t port = 0; ///< file descriptor
    std::uint8_t transmitBuffer[transmitBufferSize] = {};
    std::int32_t transmitCount = 0;
    std::uint8_t receiveBuffer[receiveBufferSize] = {};
    std::int32_t receiveCount = 0; ///< bytes of the last read
    std::int32_t receiveNext = 0;  ///< the next of them to hand out
};

/// Clears type, open flag and buffers of every record; so they are at the start, too.
void zbBDinit();

/// Opens the lowest free device on a serial port at 460800 baud; the name must begin with "COM" or "/dev/tty". Returns
/// its handle, or -1 with errno saying why.
int zbBDOpen(const char *name);

/// Closes the port. Returns 1.
int zbBDClose(int handle);

/// Appends one byte to the transmit buffer. Returns 1, or 0 when 128 bytes are waiting already.
int zbBDWrite(int handle, std::uint8_t byte);

/// Sends the transmit buffer in one write. Returns 1 if all of it was taken; the buffer is empty afterwards either way.
int zbBDTransmit(int handle);

/// Reads one byte. Returns 0 if none came within the read time-out (at once if the port is gone).
int zbBDRead(int handle, std::uint8_t *byte);

/// The open flag.
int zbIsBDHandleOpen(int handle);

/// Empties the transmit buffer without sending.
void zbBDDropOutput(int handle);

/// Drops received bytes without waiting for more: those of the record and at most 64 KiB from the port. Returns how
/// many it were.
int zbBDDropInput(int handle);

/// 1 once the port is gone (see isPortGone).
int zbBDIsGone(int handle);

/// Asks for low latency; 1 if the driver says it took it (see requestLowLatency).
int zbBDLowLatency(int handle);

#endif
