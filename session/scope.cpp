// The drive's recorder: arming it and reading what it caught.
#include "scopechannels.h"
#include "sessionregisters.h"
#include "sessionworker.h"

#include <algorithm>

void SessionWorker::startCapture(const TaskRequest &request)
{
    if (request.capture.enabledCount < 1) {
        emit m_session.error(Connection::tr("No scope channels selected. Select at least one."));
        return;
    }
    emit m_session.updateCaptureButtonText(Connection::tr("Scope waiting.."));
    // The download uses this copy: what is ticked while the recorder waits is for the next capture.
    m_capture = request.capture;
    initScope();
    m_capturePending = statusIsClean();
    if (!m_capturePending)
        emit m_session.updateCaptureButtonText(Connection::tr("Start capture"));
}

void SessionWorker::initScope()
{
    const double base = m_data.baseFrequency;
    const int divider = scopeDivider(base, m_capture.sampleRate);
    m_samplePeriod = scopeSamplePeriod(base, divider);
    qCDebug(sessionLog) << "Samplerate value " << divider;
    m_line.appendWrite(reg::ScopeSources, scopeSourceMask(m_capture.channels));
    m_line.appendWrite(reg::ScopeDivider, divider);
    m_line.execute();
    m_line.fetchWrite();
    m_line.fetchWrite();
    m_line.finishReply();
    writeAndFetch(reg::ScopeState, m_capture.triggerCode);
}

void SessionWorker::downloadCapture(const TaskRequest &)
{
    // Armed anew while this waited: the recorder's memory is no longer what was to be read.
    if (m_capturePending)
        return;
    for (CaptureData &channel : m_capture.channels)
        channel.samples.clear();
    // A picture of invented data is worse than none: without the whole memory there is no plot.
    if (downloadScope(scopeWordCount))
        emit m_session.plotReady(m_capture.channels);
    emit m_session.updateCaptureButtonText(Connection::tr("Start capture"));
}

bool SessionWorker::selectScopeMemory()
{
    for (const QueueItem &item : scopeDownloadSetUp)
        m_line.append(item);
    m_line.execute();
    for (std::size_t i = 0; i < scopeDownloadSetUp.size(); ++i)
        m_line.fetch(nullptr);
    return statusIsClean();
}

bool SessionWorker::downloadScope(int words)
{
    const auto isEnabled = [](const CaptureData &channel) { return channel.enabled; };
    if (std::none_of(m_capture.channels.cbegin(), m_capture.channels.cend(), isEnabled) || !selectScopeMemory())
        return false;
    for (int first = 0; first < words; first += scopeChunkWords) {
        if (m_queue.isClosing())
            return false;
        // A disable has moved the write address: the addresses that follow would go to the enable register.
        if (serveWaitingDisable() && !selectScopeMemory())
            return false;
        const int count = std::min(scopeChunkWords, words - first);
        if (!downloadScopeWords(first, count))
            return false;
    }
    return true;
}

bool SessionWorker::downloadScopeWords(int first, int count)
{
    for (int i = 0; i < count; ++i)
        m_line.append({QueueItem::Value24, first + i});
    m_line.execute();
    for (int i = 0; i < count; ++i) {
        long word = 0;
        m_line.fetch(&word);
        if (!statusIsClean())
            return false;
        storeCaptureSample(m_capture.channels, first + i, static_cast<qint16>(word), m_samplePeriod);
    }
    m_line.finishReply();
    return statusIsClean();
}
