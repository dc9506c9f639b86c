/// \file
/// The serial port, as plain POSIX calls on a file descriptor: 8 data bits, no parity, one stop bit, raw, no flow
/// control. Nothing here knows about packets.
///
/// Every call blocks for a bounded time: a read for one read time-out, a write for at most `writeLimitMs`. One thread
/// at a time per port. Where -1 is returned, errno says why.
#ifndef VELBRIN_BUSLIB_SERIALPORT_H
#define VELBRIN_BUSLIB_SERIALPORT_H

#include <cstdint>

/// Read time-out of ports opened from now on, in ms (500 at first); a port takes it as whole tenths of a second,
/// rounded down (below 100 a read never waits). Set through zbSetTimeout, 0-5000.
void setReadTimeout(std::uint16_t milliseconds);
std::uint16_t readTimeout();

/// How long a write may wait for room in the port's output buffer, in ms. A packet of 125 bytes takes 2.7 ms on the
/// line, so this only ever passes on a port that no longer sends.
constexpr int writeLimitMs = 500;

/// Opens `path` exclusively and drops what is left over in its input. Returns the descriptor, or -1 after a line on
/// standard error (EBUSY: another program holds it). A rate that is not one of the termios rates prints
/// "invalid baudrate" on standard output and returns 1, which is no descriptor of ours: a quirk, no caller passes one.
int OpenComport(const char *path, int baudrate);

/// Reads what is there, at most `length` bytes, waiting one read time-out for the first. Returns the count, 0 on
/// silence or when the port is gone (then at once), -1 on failure.
int PollComport(int port, std::uint8_t *buffer, int length);

/// Returns 1 if the write FAILED and 0 if it succeeded: the sense is inverted, and kept.
int SendByte(int port, std::uint8_t byte);

/// Writes all bytes. Returns `length`; less when the port took no more within `writeLimitMs` (what it holds unsent is
/// dropped then); -1 if it took none.
int SendBuf(int port, const std::uint8_t *buffer, int length);

/// Gives up exclusive use, drops unsent output and closes. Returns the result of close().
int CloseComport(int port);

/// 1 if the CTS modem line is asserted, else 0.
int IsCTSEnabled(int port);

/// True once the adapter was pulled out (or the other end of a pseudo terminal closed). Reading alone cannot tell this
/// from a quiet line: both give no byte. Never waits.
bool isPortGone(int port);

/// Asks the driver to hand over received bytes at once (a USB adapter otherwise holds them back for up to 16 ms).
/// Best effort. Returns whether the driver says it took the setting: some accept it and ignore it.
bool requestLowLatency(int port);

/// Drops what waits in the port's input without waiting for more, at most `limit` bytes. Returns how many it were.
int dropPortInput(int port, int limit);

#endif
