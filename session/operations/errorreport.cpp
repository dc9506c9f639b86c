#include "errorreport.h"

#include "errortexts.h"
#include "sessionregisters.h"
#include "sessiontext.h"

void ErrorReport::tell(MessageKind kind, const QString &text)
{
    emit m_out.error(text);
    emit m_out.message({kind, text});
}

void ErrorReport::finishTask()
{
    // Error bits that are already here would be lost in the answer to a second query: the drive has cleared its own.
    if (m_latch && m_data.connected && m_state.deviceErrors == 0)
        checkZBErrors();
    report();
    m_state.areOld = false;
}

void ErrorReport::checkZBErrors()
{
    m_state.deviceErrors = 0;
    m_line.appendRead(reg::ErrorBits);
    m_line.appendWrite(reg::ErrorBits, 0);
    m_line.execute();
    long bits = 0;
    m_line.fetchRead(&bits);
    m_line.fetchWrite();
    m_line.finishReply();
    m_state.deviceErrors = static_cast<quint32>(bits);
    // The drive has forgotten them now.
    if (m_state.areOld && m_state.deviceErrors != 0) {
        qCDebug(sessionLog) << "error bits from before this connection" << m_state.deviceErrors;
        m_state.deviceErrors = 0;
    }
}

void ErrorReport::dropOldErrorBits()
{
    long bits = 0;
    m_drive.readParameters(reg::ErrorBits, bits);
    if (!m_line.isClean() || bits == 0)
        return;
    qCDebug(sessionLog) << "error bits from before this connection" << bits;
    m_drive.writeSetting(reg::ErrorBits, 0);
}

QString ErrorReport::stringifyZBBusErrors(const SingleParam *param)
{
    const QString text = busErrorText(m_data.connected, m_line.status(), m_state.deviceErrors, param);
    m_line.clearStatus();
    m_state.deviceErrors = 0;
    if (!text.isEmpty()) {
        m_latch = true;
        m_queue.pushDisconnectFirst();
    }
    return text;
}

void ErrorReport::report(const SingleParam *param)
{
    if (m_line.isClean()) {
        tellRefusal(param);
        m_line.clearStatus();
        return;
    }
    const bool silent = m_line.wasSilent();
    const QString text = stringifyZBBusErrors(param);
    if (text.isEmpty() || m_state.lineReported)
        return;
    m_state.lineReported = true;
    tellLostLine(text + QStringLiteral("<br>") + lineTroubleText(silent));
}

/// A refusal is an answer: the line is fine and the connection goes on.
void ErrorReport::tellRefusal(const SingleParam *param)
{
    if (m_state.deviceErrors == 0 || !m_data.connected)
        return;
    m_latch = true;
    tell(MessageKind::Refused, refusedWriteText(m_state.deviceErrors, param));
    m_state.deviceErrors = 0;
}

void ErrorReport::tellLostLine(const QString &text)
{
    const bool unsafe = m_atStake.mayBeEnabled || m_atStake.stopIsUnconfirmed || m_atStake.isStreaming;
    QStringList parts;
    if (unsafe)
        parts << SessionText::tr("<b>The drive may still be powered.</b> Esc tries to disable it; the sure way is the "
                                 "machine's own stop.<br>");
    parts << text;
    // Told here: whether the stop behind the end of a connection gets through has no message of its own.
    if (m_atStake.isStreaming)
        parts << SessionText::tr("The test stimulus was running: the axis may go on moving for up to five seconds.");
    if (!m_atStake.brokenOffWrite.isEmpty())
        parts << m_atStake.brokenOffWrite;
    tell(m_atStake.stopIsUnconfirmed ? MessageKind::UnconfirmedStop : MessageKind::LineLost,
         parts.join(QStringLiteral("<br>")));
}

bool ErrorReport::reportWrite(const SingleParam &param, Reply reply)
{
    if (!m_latch && reply != Reply::Refused)
        return false;
    checkZBErrors();
    if (reply == Reply::Refused && m_state.deviceErrors == 0)
        m_state.deviceErrors = reg::ErrorCommandFailed;
    const bool refused = m_line.isClean() && m_state.deviceErrors != 0;
    report(&param);
    return refused;
}
