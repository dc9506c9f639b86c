/// \file
/// Zetabus: the master's side of the serial drive bus. This header is the whole public interface.
///
/// The bus is half-duplex and multi-drop: the master sends one request packet to one drive address and waits for
/// exactly one reply packet. Work on a drive is batched: append items to the handle's queue, execute the queue (one
/// packet out, one packet in), then decode the return values in the order of the items.
///
/// **Threads**: none inside. The tables behind the handles are unguarded globals; make all calls from one thread at a
/// time. **Errors**: nothing throws and nothing is retried; every call returns a ZbStatus.
#ifndef VELBRIN_BUSLIB_ZETABUS_H
#define VELBRIN_BUSLIB_ZETABUS_H

#include <cstdint>
#include <cstdio>

// --- Status -----------------------------------------------------------------------------------------------------

/// OR of the ZB_ bits below. Results of several calls are combined by OR; the whole is a success only if it equals
/// ZB_OK. Calls on an open handle also OR their result into the handle's cumulative status.
using ZbStatus = std::uint32_t;

constexpr ZbStatus ZB_OK = 1;                ///< success
constexpr ZbStatus ZB_ERR_NODEVICE = 2;      ///< handle outside 0-9 or not open; never in a cumulative status
constexpr ZbStatus ZB_ERR_BUS = 4;           ///< a packet could not be transmitted
constexpr ZbStatus ZB_ERR_COMMUNICATION = 8; ///< no reply within the time-out, bad framing or checksum
constexpr ZbStatus ZB_ERR_PARAMETER = 16;    ///< invalid argument
constexpr ZbStatus ZB_ERR_LENGTH = 32;       ///< queue full, or return data exhausted

/// A bus: 0-9 from zbOpenBus, -1 where there is none.
using ZbHandle = int;

constexpr int ZB_MAX_BUSES = 10;        ///< buses that can be open at once
constexpr int ZB_MAX_PAYLOAD = 120;     ///< payload bytes of a request or reply
constexpr int ZB_BAUD_RATE = 460800;    ///< the bus always runs at this rate, 8N1
constexpr int ZB_MAX_TIMEOUT_MS = 5000; ///< largest value that zbSetTimeout takes

// --- Buses ------------------------------------------------------------------------------------------------------

/// Opens the bus on a serial port; `name` must begin with "COM" or "/dev/tty". Returns the lowest free handle, or -1
/// (other name EINVAL, port missing, no permission, in use by another program EBUSY, ten buses open EMFILE); errno says
/// why. The receive state and the cumulative status of a reused handle are left as they were: call
/// zbResetZB485variables.
ZbHandle zbOpenBus(const char *name);

/// Closes the bus. Returns ZB_ERR_NODEVICE always, also when it was open: a quirk that callers ignore.
ZbStatus zbCloseBus(ZbHandle handle);

/// Sets the read time-out of ports opened from now on, in ms, rounded down to tenths of a second when a port opens.
/// Returns ZB_ERR_PARAMETER above ZB_MAX_TIMEOUT_MS and changes nothing then.
ZbStatus zbSetTimeout(std::uint16_t milliseconds);

/// Puts the receive state, the queue and the flags of an open handle back to their initial values.
ZbStatus zbResetZB485variables(ZbHandle handle);

/// Reads and drops what is waiting on the line without waiting for more, at most 64 KiB. For a line on which a late
/// reply could answer the next request. `count` (may be null) is how many bytes it were. Returns ZB_OK or
/// ZB_ERR_NODEVICE.
ZbStatus zbDiscardInput(ZbHandle handle, int *count = nullptr);

/// Bytes that came in answer to the last request, whether they made a good reply or not: 0 tells silence from damage.
int zbBytesHeard(ZbHandle handle);

/// Non-zero once the adapter was pulled out (or the other end of a pseudo terminal closed); 0 on a line that is merely
/// quiet, and for a closed handle. Never waits. After it sends fail with ZB_ERR_BUS and receives with
/// ZB_ERR_COMMUNICATION, both at once: only closing helps.
int zbIsLineGone(ZbHandle handle);

// --- Queue ------------------------------------------------------------------------------------------------------

enum ZbQueueItem {
    ZB_QUEUE_VALUE32 = 0, ///< 4 bytes: write a signed 30-bit value to the selected register
    ZB_QUEUE_VALUE24 = 1, ///< 3 bytes: write a signed 22-bit value to the selected register
    ZB_QUEUE_ADDRESS = 2, ///< 2 bytes: select the register that the following values go to (14 bits)
};

/// Appends one item. ZB_ERR_PARAMETER for another kind, ZB_ERR_LENGTH when it does not fit in the 120 bytes; bits above
/// the value field are dropped. After an overflow later, shorter items may still be queued, and the next execution
/// exchanges nothing and still returns ZB_OK: check the status of every append.
ZbStatus zbAppendZBCommandToQueue(ZbHandle handle, int kind, long value);

/// Sends the queue to the drive at `address` for execution now, and receives its reply.
ZbStatus zbExecuteCommandQueue(ZbHandle handle, std::uint8_t address);

/// Sends the queue to the drive at `address` for timed execution from its command buffer, and receives its reply.
ZbStatus zbUploadCommandQueueToDeviceBuffer(ZbHandle handle, std::uint8_t address);

/// The round trip behind both. A failed send leaves the queue filled, a failed receive leaves it empty. Blocks for at
/// most 0.5 s in the send, one read time-out per byte of the reply and 2 s to drain a line that talks nonsense.
ZbStatus zbTransmitReceiveCommandQueue(ZbHandle handle, std::uint8_t address, std::uint8_t cmdid);

/// Decodes the next return value of the last reply into `value` (may be null). ZB_ERR_LENGTH and 0 at the end.
ZbStatus zbGetQueuedZBCommandReturnValue(ZbHandle handle, long *value);

/// Bytes of the last reply that are not decoded yet; 0 for a closed handle.
ZbStatus zbBytesReceived(ZbHandle handle, int *count);

/// Address of the drive that sent the last reply, which is not always the one that was asked: a late reply is accepted
/// as it stands. Has a meaning after an exchange that succeeded (255, a real address too, stands for none otherwise);
/// -1 for a handle that is not open.
int zbReplyAddress(ZbHandle handle);

// --- Parameters -------------------------------------------------------------------------------------------------

/// One parameter read: four items, 10 bytes. `parameterAddress` + 0x4000 reads the minimum, + 0x8000 the maximum.
ZbStatus zbAppendGetParamCommandToQueue(ZbHandle handle, std::int16_t parameterAddress);
/// Its result; `value` is written also when decoding failed.
ZbStatus zbGetQueuedGetParamReturnValue(ZbHandle handle, long *value);
/// One parameter write: two items, 6 bytes.
ZbStatus zbAppendSetParamCommandToQueue(ZbHandle handle, std::int16_t parameterAddress, long value);
/// Its result.
ZbStatus zbGetQueuedSetParamReturnValue(ZbHandle handle, long *value);

/// One packet each: append, execute, decode. Return the OR of all steps.
ZbStatus zbRead1Parameter(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA);
ZbStatus zbRead3Parameters(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA,
                           std::int16_t paramB, long *valueB, std::int16_t paramC, long *valueC);

/// The drive's 16-bit buffer clock, in 0.1 ms. Ask with an empty queue: the reply lands where the queued items are.
ZbStatus zbGetBufferClock(ZbHandle handle, std::uint8_t address, std::uint16_t *clock);

// --- Cumulative status and debug output -------------------------------------------------------------------------

/// ORs into a handle's cumulative status. Returns ZB_ERR_NODEVICE for a handle that is not open.
ZbStatus recordStatus(ZbHandle handle, ZbStatus bits);

/// Diagnostic lines up to a verbosity go to `stream` (null: none). 2 marks packets, 3 marks bytes.
void zbSetDebugOutput(int threshold, std::FILE *stream);

// --- Part of the library, and called by nobody in this program ---------------------------------------------------

/// Non-zero while the handle is open; 0 outside 0-9.
int zbIsHandleOpen(ZbHandle handle);

/// Library version, 0x20001.
int zbGetVersion();

/// One packet each, as zbRead1Parameter.
ZbStatus zbRead2Parameters(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA,
                           std::int16_t paramB, long *valueB);
ZbStatus zbSetParameter(ZbHandle handle, std::uint8_t address, std::int16_t parameter, long value);

/// Read and clear what recordStatus has collected.
ZbStatus getCumulativeStatus(ZbHandle handle);
ZbStatus resetCumulativeStatus(ZbHandle handle);

#endif
