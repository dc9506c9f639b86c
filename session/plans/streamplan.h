/// \file
/// The stimulus stream: how much is sent to the drive's command buffer, and what. Pure functions, any thread.
#ifndef VELBRIN_SESSION_STREAMPLAN_H
#define VELBRIN_SESSION_STREAMPLAN_H

#include "queueitem.h"

#include <array>

constexpr double streamRate = 50.0;  ///< setpoints per second that the drive executes
constexpr double streamLead = 5.0;   ///< seconds of setpoints kept waiting in the drive
constexpr int streamItemBytes = 4;   ///< room that a stored item takes in the drive's buffer
constexpr int streamChunkItems = 30; ///< items of one upload
constexpr int streamChunkBytes = streamItemBytes * streamChunkItems;

/// First items of the first upload of a connection: 2-byte return values that tell the free bytes, setpoint register
/// selected. The drive keeps these for the rest of the connection, so that a later start does not repeat them.
extern const std::array<QueueItem, 5> streamSetUp;

/// Period for register 8, in 0.1 ms.
int streamPeriod(double rate = streamRate);

/// An upload of one chunk is due while this many bytes are free: the buffer's size less the lead, and at least a chunk.
int streamThreshold(int initialFree, double lead = streamLead, double rate = streamRate);

/// Chunks to upload when `free` bytes are free: one while `threshold` <= free, each taking a chunk's bytes.
int streamChunkCount(int free, int threshold);

/// Whether the item at this step (0 for the first of a stream) is one of streamSetUp, otherwise it is a setpoint.
constexpr bool isStreamSetUpStep(int step)
{
    return step >= 0 && step < 5;
}

/// Value item for a setpoint, truncated towards zero. A setpoint beyond the 22 bits of the item is limited to them: cut
/// off bits would be a jump to somewhere else.
QueueItem streamSetpointItem(double setpoint);

#endif
