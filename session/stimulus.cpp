// Keeping the drive's command buffer filled with setpoints of the test stimulus.
#include "sessionregisters.h"
#include "sessionworker.h"
#include "streamplan.h"

void SessionWorker::streamStimulus(const TaskRequest &)
{
    if (!stimulusActive())
        return; // switched off while this task waited
    if (!m_stream.started)
        m_stream.step = 0;
    const bool first = m_stream.step == 0;
    long free = 0;
    if (!askAgain([&] { return readBufferFree(first, free); }) || !statusIsClean())
        return;
    if (first)
        m_stream.initialFree = static_cast<int>(free);
    qCDebug(sessionLog) << "buffree " << free;

    const int chunks = streamChunkCount(static_cast<int>(free), streamThreshold(m_stream.initialFree));
    for (int chunk = 0; chunk < chunks && !m_queue.isClosing(); ++chunk) {
        // A disable drops a waiting stream task; it ends one that runs, too.
        if (serveWaitingDisable() || !stimulusActive())
            return;
        uploadStreamChunk();
    }
    askAgain([this] { return m_line.readBufferClock() == ZB_OK; });
}

bool SessionWorker::readBufferFree(bool first, long &free)
{
    ZbStatus status = first ? m_line.appendWrite(reg::StreamPeriod, streamPeriod()) : ZB_OK;
    status |= m_line.appendRead(reg::BufferFree);
    status |= m_line.execute();
    if (first)
        status |= m_line.fetchWrite();
    status |= m_line.fetchRead(&free);
    status |= m_line.finishReply();
    return status == ZB_OK;
}

bool SessionWorker::stimulusActive() const
{
    std::lock_guard<std::mutex> lock(m_data.mutex);
    return m_data.stimulus.isActive();
}

void SessionWorker::uploadStreamChunk()
{
    m_stream.running = true;
    for (int i = 0; i < streamChunkItems; ++i) {
        m_line.append(nextStreamItem());
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

QueueItem SessionWorker::nextStreamItem()
{
    const int step = m_stream.step++;
    if (isStreamSetUpStep(step))
        return streamSetUp[step];
    // Not cleared by stopping: the drive keeps its return selection and target register, so that a later start in the
    // same connection goes on with setpoints.
    m_stream.started = true;
    return streamSetpointItem(m_session.getStimulus());
}
