/// \file
/// Keeping the drive's command buffer filled with setpoints of the test stimulus.
#ifndef VELBRIN_SESSION_STIMULUSSTREAM_H
#define VELBRIN_SESSION_STIMULUSSTREAM_H

#include "operation.h"

/// Where the stream of a connection stands.
enum class Stream {
    Fresh,   ///< nothing was sent: the set-up items go first
    Running, ///< setpoints were sent, and no stop that was acknowledged
    Stopped, ///< the drive has forgotten its setpoints, but keeps the set-up
};

class StimulusStream : private Operation
{
public:
    explicit StimulusStream(OperationContext &context) : Operation(context) {}

    /// Fills the buffer up, while the stimulus is on.
    void streamStimulus();
    /// Stops it until acknowledged; false when that failed, which leaves it running.
    bool stop();
    Stream state() const { return m_stream.state; }
    /// For a new connection, or a drive that restarts and forgets its buffer and what was selected for it: switches the
    /// stimulus off.
    void reset();

private:
    bool readBufferFree(long &free);
    void uploadStreamChunk();
    QueueItem nextStreamItem(int index, bool fresh);
    void debug() const;

    struct
    {
        Stream state = Stream::Fresh;
        int initialFree = 0; ///< bytes free in the drive's buffer before anything was sent
    } m_stream;
};

#endif
