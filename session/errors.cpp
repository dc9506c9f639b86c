// What went wrong: asking a second time, the drive's error bits, and the one text that ends a connection.
#include "errortexts.h"
#include "sessionregisters.h"
#include "sessionworker.h"

void SessionWorker::tell(MessageKind kind, const QString &text)
{
    emit m_session.error(text);
    emit m_session.message({kind, text});
}

bool SessionWorker::statusIsClean() const
{
    return (m_line.status() & ~ZB_OK) == 0;
}

bool SessionWorker::askAgain(const std::function<bool()> &ask)
{
    const BusLine::Mark before = m_line.mark();
    if (ask())
        return true;
    if (!m_asksAgain || !m_line.mayRepeat())
        return false;
    const BusLine::Mark failed = m_line.mark();
    m_line.forgive({before.status, failed.failures});
    if (!letLateRepliesPass()) {
        m_line.forgive(failed);
        return false;
    }
    m_line.countRepeat();
    const BusLine::Mark repeat = m_line.mark(); // a stop that was served meanwhile may have failed
    if (!ask())
        return false;
    m_line.forgive({repeat.status, before.failures});
    return true;
}

/// A reply that is merely late must not answer what is asked next. A stop does not wait for it; false where that cannot
/// be served in here, so that what is being done has to end for it.
bool SessionWorker::letLateRepliesPass()
{
    const auto deadline = std::chrono::steady_clock::now() + m_line.lateness();
    for (;;) {
        switch (m_queue.pauseUntil(deadline)) {
        case TaskQueue::Wake::TimeOver:
            return true;
        case TaskQueue::Wake::Disable:
            if (!isConnected())
                return false;
            serveWaitingDisable();
            break;
        case TaskQueue::Wake::Closing:
            return false;
        }
    }
}

void SessionWorker::checkZBErrors()
{
    m_deviceErrors = 0;
    m_line.appendRead(reg::ErrorBits);
    m_line.appendWrite(reg::ErrorBits, 0);
    m_line.execute();
    long bits = 0;
    m_line.fetchRead(&bits);
    m_line.fetchWrite();
    m_line.finishReply();
    m_deviceErrors = static_cast<quint32>(bits);
    // What is there when a connection begins is another master's doing, or our own of before the latch was set. The
    // drive has forgotten it now.
    if (m_errorsAreOld && m_deviceErrors != 0) {
        qCDebug(sessionLog) << "error bits from before this connection" << m_deviceErrors;
        m_deviceErrors = 0;
    }
}

/// So that no later write gets the blame for what was there when the connection began.
void SessionWorker::dropOldErrorBits()
{
    long bits = 0;
    readParameters(reg::ErrorBits, bits);
    if (!statusIsClean() || bits == 0)
        return;
    qCDebug(sessionLog) << "error bits from before this connection" << bits;
    writeSetting(reg::ErrorBits, 0);
}

QString SessionWorker::stringifyZBBusErrors(const SingleParam *param)
{
    const QString text = busErrorText(isConnected(), m_line.status(), m_deviceErrors, param);
    m_line.clearStatus();
    m_deviceErrors = 0;
    if (!text.isEmpty()) {
        m_errorLatch = true;
        m_queue.pushDisconnectFirst();
    }
    return text;
}

void SessionWorker::reportErrors(const SingleParam *param)
{
    if (statusIsClean()) {
        tellRefusal(param);
        m_line.clearStatus();
        return;
    }
    const bool silent = m_line.wasSilent();
    const QString text = stringifyZBBusErrors(param);
    if (text.isEmpty() || m_communicationReported)
        return;
    m_communicationReported = true;
    tellLostLine(text + QStringLiteral("<br>") + lineTroubleText(silent));
}

/// A refusal is an answer: the line is fine and the connection goes on.
void SessionWorker::tellRefusal(const SingleParam *param)
{
    if (m_deviceErrors == 0 || !isConnected())
        return;
    m_errorLatch = true;
    tell(MessageKind::Refused, refusedWriteText(m_deviceErrors, param));
    m_deviceErrors = 0;
}

void SessionWorker::tellLostLine(const QString &text)
{
    const bool unsafe = m_mayBeEnabled || m_stopIsUnconfirmed;
    QStringList parts;
    if (unsafe)
        parts << Connection::tr("<b>The drive may still be powered.</b> Esc tries to disable it; the sure way is the "
                                "machine's own stop.<br>");
    parts << text;
    if (!m_brokenOffWrite.isEmpty())
        parts << m_brokenOffWrite;
    tell(m_stopIsUnconfirmed ? MessageKind::UnconfirmedStop : MessageKind::LineLost,
         parts.join(QStringLiteral("<br>")));
}

bool SessionWorker::reportWrite(const SingleParam &param, Reply reply)
{
    if (!m_errorLatch && reply != Reply::Refused)
        return false;
    checkZBErrors();
    if (reply == Reply::Refused && m_deviceErrors == 0)
        m_deviceErrors = reg::ErrorCommandFailed;
    const bool refused = statusIsClean() && m_deviceErrors != 0;
    reportErrors(&param);
    return refused;
}

void SessionWorker::checkErrors(const TaskRequest &)
{
    checkZBErrors();
}
