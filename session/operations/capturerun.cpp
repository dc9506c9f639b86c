#include "capturerun.h"

#include "scopechannels.h"

#include <algorithm>
#include <utility>

void CaptureRun::startCapture(const ScopeRequest &request)
{
    if (request.enabledCount < 1) {
        m_errors.tell(MessageKind::Note, SessionText::tr("No scope channels selected. Select at least one."));
        return;
    }
    announceCapture(CaptureState::Waiting);
    m_run.request = request;
    initScope();
    m_run.pending = m_line.isClean();
    if (!m_run.pending)
        announceCapture(CaptureState::Idle);
}

void CaptureRun::callOffCapture()
{
    if (!m_run.pending) // full already, or never armed: then there is nothing to take back
        return;
    m_run.pending = false;
    m_drive.writeAndFetch(reg::ScopeState, 0);
    announceCapture(CaptureState::Idle);
}

void CaptureRun::announceCapture(CaptureState state)
{
    switch (state) {
    case CaptureState::Idle:
        emit m_out.updateCaptureButtonText(SessionText::tr("Start capture"));
        break;
    case CaptureState::Waiting:
        emit m_out.updateCaptureButtonText(SessionText::tr("Scope waiting.."));
        break;
    case CaptureState::Downloading:
        emit m_out.updateCaptureButtonText(SessionText::tr("Downloading.."));
        break;
    }
    emit m_out.captureStateChanged(state);
}

void CaptureRun::initScope()
{
    const double base = m_data.baseFrequency;
    const int divider = scopeDivider(base, m_run.request.sampleRate);
    m_run.samplePeriod = scopeSamplePeriod(base, divider);
    qCDebug(sessionLog) << "Samplerate value " << divider;
    m_line.appendWrite(reg::ScopeSources, scopeSourceMask(m_run.request.channels));
    m_line.appendWrite(reg::ScopeDivider, divider);
    m_line.execute();
    m_line.fetchWrite();
    m_line.fetchWrite();
    m_line.finishReply();
    m_drive.writeAndFetch(reg::ScopeState, m_run.request.triggerCode);
}

void CaptureRun::lookForEnd(const DriveState &state)
{
    qCDebug(sessionLog) << "Pend scope " << m_run.pending << state.scopeState;
    if (!m_run.pending || state.scopeState != 0)
        return;
    m_run.pending = false;
    announceCapture(CaptureState::Downloading);
    m_queue.push(SessionTasks::TaskDownloadScope);
}

void CaptureRun::reset()
{
    if (m_run.pending)
        announceCapture(CaptureState::Idle);
    m_run = {};
}

void CaptureRun::downloadCapture()
{
    // Armed anew while this waited: the recorder's memory is no longer what was to be read.
    if (m_run.pending)
        return;
    // A picture of invented data is worse than none: without the whole memory there is no plot. A copy of a reply that
    // was still on the line may have been taken for the next one: then it is read once more, and the poll behind it
    // shows that the answers still belong to their questions.
    int strays = m_line.meter().strays;
    bool whole = downloadScope(scopeWordCount) && m_poll();
    if (whole && strays != m_line.meter().strays) {
        strays = m_line.meter().strays;
        whole = downloadScope(scopeWordCount) && m_poll() && strays == m_line.meter().strays;
    }
    if (whole)
        emit m_out.plotReady(m_run.request.channels);
    announceCapture(CaptureState::Idle);
}

bool CaptureRun::selectScopeMemory()
{
    qCDebug(sessionLog, "SCOPE INIT SCOPE INIT SCOPE INIT SCOPE INIT SCOPE INIT ");
    for (const QueueItem &item : scopeDownloadSetUp)
        m_line.append(item);
    m_line.execute();
    for (std::size_t i = 0; i < scopeDownloadSetUp.size(); ++i)
        m_line.fetch(nullptr);
    qCDebug(sessionLog, "SCOPE READ SCOPE READ SCOPE READ SCOPE READ SCOPE READ SCOPE READ ");
    return m_line.isClean();
}

bool CaptureRun::downloadScope(int words)
{
    const auto isEnabled = [](const CaptureData &channel) { return channel.enabled; };
    for (CaptureData &channel : m_run.request.channels)
        channel.samples.clear();
    if (std::none_of(m_run.request.channels.cbegin(), m_run.request.channels.cend(), isEnabled) || !selectScopeMemory())
        return false;
    for (int first = 0; first < words; first += scopeChunkWords) {
        if (m_pauses.isClosing())
            return false;
        // A disable has moved the write address: the addresses that follow would go to the enable register.
        if (m_pauses.serveWaitingDisable() && !selectScopeMemory())
            return false;
        const int count = std::min(scopeChunkWords, words - first);
        if (!downloadScopeWords(first, count))
            return false;
    }
    qCDebug(sessionLog, "SCOPE DONE SCOPE DONE SCOPE DONE SCOPE DONE");
    return true;
}

bool CaptureRun::downloadScopeWords(int first, int count)
{
    QList<qint16> words;
    bool again = false;
    const bool whole = m_drive.askAgain(DriveAccess::Read, [&] {
        // A stop that was served meanwhile has moved the write address: see downloadScope.
        return (!std::exchange(again, true) || selectScopeMemory()) && askScopeWords(first, count, words);
    });
    for (int i = 0; whole && i < count; ++i)
        storeCaptureSample(m_run.request.channels, first + i, words.at(i), m_run.samplePeriod);
    return whole && m_line.isClean();
}

bool CaptureRun::askScopeWords(int first, int count, QList<qint16> &words)
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
