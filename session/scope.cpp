// The drive's recorder: arming it and reading what it caught.
#include "scopechannels.h"
#include "sessionregisters.h"
#include "sessionworker.h"

#include <algorithm>
#include <utility>

void SessionWorker::startCapture(const TaskRequest &request)
{
    if (request.capture.enabledCount < 1) {
        tell(MessageKind::Note, Connection::tr("No scope channels selected. Select at least one."));
        return;
    }
    announceCapture(CaptureState::Waiting);
    // The download uses this copy: what is ticked while the recorder waits is for the next capture.
    m_capture.request = request.capture;
    initScope();
    m_capture.pending = statusIsClean();
    if (!m_capture.pending)
        announceCapture(CaptureState::Idle);
}

void SessionWorker::announceCapture(CaptureState state)
{
    switch (state) {
    case CaptureState::Idle:
        emit m_session.updateCaptureButtonText(Connection::tr("Start capture"));
        break;
    case CaptureState::Waiting:
        emit m_session.updateCaptureButtonText(Connection::tr("Scope waiting.."));
        break;
    case CaptureState::Downloading:
        emit m_session.updateCaptureButtonText(Connection::tr("Downloading.."));
        break;
    }
    emit m_session.captureStateChanged(state);
}

void SessionWorker::initScope()
{
    const double base = m_data.baseFrequency;
    const int divider = scopeDivider(base, m_capture.request.sampleRate);
    m_capture.samplePeriod = scopeSamplePeriod(base, divider);
    qCDebug(sessionLog) << "Samplerate value " << divider;
    m_line.appendWrite(reg::ScopeSources, scopeSourceMask(m_capture.request.channels));
    m_line.appendWrite(reg::ScopeDivider, divider);
    m_line.execute();
    m_line.fetchWrite();
    m_line.fetchWrite();
    m_line.finishReply();
    writeAndFetch(reg::ScopeState, m_capture.request.triggerCode);
}

void SessionWorker::downloadCapture(const TaskRequest &)
{
    // Armed anew while this waited: the recorder's memory is no longer what was to be read.
    if (m_capture.pending)
        return;
    // A picture of invented data is worse than none: without the whole memory there is no plot. A copy of a reply that
    // was still on the line may have been taken for the next one: then it is read once more, and the poll behind it
    // shows that the answers still belong to their questions.
    int strays = m_line.meter().strays;
    bool whole = downloadScope(scopeWordCount) && poll();
    if (whole && strays != m_line.meter().strays) {
        strays = m_line.meter().strays;
        whole = downloadScope(scopeWordCount) && poll() && strays == m_line.meter().strays;
    }
    if (whole)
        emit m_session.plotReady(m_capture.request.channels);
    announceCapture(CaptureState::Idle);
}

bool SessionWorker::selectScopeMemory()
{
    qCDebug(sessionLog, "SCOPE INIT SCOPE INIT SCOPE INIT SCOPE INIT SCOPE INIT ");
    for (const QueueItem &item : scopeDownloadSetUp)
        m_line.append(item);
    m_line.execute();
    for (std::size_t i = 0; i < scopeDownloadSetUp.size(); ++i)
        m_line.fetch(nullptr);
    qCDebug(sessionLog, "SCOPE READ SCOPE READ SCOPE READ SCOPE READ SCOPE READ SCOPE READ ");
    return statusIsClean();
}

bool SessionWorker::downloadScope(int words)
{
    const auto isEnabled = [](const CaptureData &channel) { return channel.enabled; };
    for (CaptureData &channel : m_capture.request.channels)
        channel.samples.clear();
    if (std::none_of(m_capture.request.channels.cbegin(), m_capture.request.channels.cend(), isEnabled) ||
        !selectScopeMemory())
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
    qCDebug(sessionLog, "SCOPE DONE SCOPE DONE SCOPE DONE SCOPE DONE");
    return true;
}

bool SessionWorker::downloadScopeWords(int first, int count)
{
    QList<qint16> words;
    bool again = false;
    const bool whole = askAgain([&] {
        // A stop that was served meanwhile has moved the write address: see downloadScope.
        return (!std::exchange(again, true) || selectScopeMemory()) && askScopeWords(first, count, words);
    });
    for (int i = 0; whole && i < count; ++i)
        storeCaptureSample(m_capture.request.channels, first + i, words.at(i), m_capture.samplePeriod);
    return whole && statusIsClean();
}

bool SessionWorker::askScopeWords(int first, int count, QList<qint16> &words)
{
    words.clear();
    for (int i = 0; i < count; ++i)
        m_line.append({QueueItem::Value24, first + i});
    ZbStatus status = m_line.execute();
    for (int i = 0; i < count && status == ZB_OK; ++i) {
        long word = 0;
        status |= m_line.fetch(&word);
        words << static_cast<qint16>(word);
    }
    status |= m_line.finishReply();
    return status == ZB_OK;
}
