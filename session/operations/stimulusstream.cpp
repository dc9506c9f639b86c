#include "stimulusstream.h"

#include "streamplan.h"

void StimulusStream::streamStimulus()
{
    if (!m_data.stimulusIsActive())
        return; // switched off while this task waited
    const bool fresh = m_stream.state == Stream::Fresh;
    long free = 0;
    if (!m_drive.askAgain(fresh ? DriveAccess::Setting : DriveAccess::Read, [&] { return readBufferFree(free); }) ||
        !m_line.isClean())
        return;
    if (fresh)
        m_stream.initialFree = static_cast<int>(free);
    qCDebug(sessionLog) << "buffree " << free;

    const int chunks = streamChunkCount(static_cast<int>(free), streamThreshold(m_stream.initialFree));
    for (int chunk = 0; chunk < chunks && !m_pauses.isClosing(); ++chunk) {
        // A disable drops a waiting stream task; it ends one that runs, too.
        if (m_pauses.serveWaitingDisable() || !m_data.stimulusIsActive())
            return;
        uploadStreamChunk();
    }
    m_drive.askAgain(DriveAccess::Read, [this] { return m_line.readBufferClock() == ZB_OK; });
}

bool StimulusStream::readBufferFree(long &free)
{
    const bool fresh = m_stream.state == Stream::Fresh;
    ZbStatus status = fresh ? m_line.appendWrite(reg::StreamPeriod, streamPeriod()) : ZB_OK;
    status |= m_line.appendRead(reg::BufferFree);
    status |= m_line.execute();
    if (fresh)
        status |= m_line.fetchWrite();
    status |= m_line.fetchRead(&free);
    status |= m_line.finishReply();
    return status == ZB_OK;
}

void StimulusStream::uploadStreamChunk()
{
    const bool fresh = m_stream.state == Stream::Fresh;
    m_stream.state = Stream::Running;
    m_atStake.isStreaming = true;
    for (int i = 0; i < streamChunkItems; ++i) {
        m_line.append(nextStreamItem(i, fresh));
        debug();
    }
    m_line.upload();
    debug();
    while (m_line.bytesLeft() > 1) {
        long value = 0;
        if (m_line.fetch(&value) != ZB_OK)
            break;
        qCDebug(sessionLog) << "retval " << value << " bytesleft " << m_line.bytesLeft();
    }
    qCDebug(sessionLog, "Filled");
}

/// The drive keeps its return selection and target register when the stream is stopped: they are sent once.
QueueItem StimulusStream::nextStreamItem(int index, bool fresh)
{
    if (fresh && isStreamSetUpStep(index))
        return streamSetUp[index];
    std::lock_guard<std::mutex> lock(m_data.mutex);
    return streamSetpointItem(m_data.stimulus.next(streamRate));
}

bool StimulusStream::stop()
{
    const bool acknowledged = m_drive.sendStop(reg::SystemCommand, reg::CommandStopStream);
    if (acknowledged) {
        m_atStake.isStreaming = false;
        if (m_stream.state == Stream::Running)
            m_stream.state = Stream::Stopped;
    }
    return acknowledged;
}

void StimulusStream::reset()
{
    m_stream = {};
    m_atStake.isStreaming = false;
    std::lock_guard<std::mutex> lock(m_data.mutex);
    m_data.stimulus.stop();
}

void StimulusStream::debug() const
{
    if (!m_line.isClean())
        qCDebug(sessionLog) << "status" << m_line.status();
}
