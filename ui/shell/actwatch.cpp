#include "actwatch.h"

#include "statustexts.h"

#include <QStringList>

namespace {

QStringList faultNames(const DriveState &state)
{
    QStringList names;
    const QList<DriveFlag> flags = faultFlagsOf(state);
    for (const DriveFlag &flag : flags) {
        if (flag.isSet)
            names << flag.label;
    }
    return names;
}

} // namespace

QString reasonsForInactivity(const DriveState &state)
{
    QStringList reasons;
    const QList<DriveFlag> flags = faultFlagsOf(state) + statusFlagsOf(state) + inputFlagsOf(state);
    for (const DriveFlag &flag : flags) {
        if (flag.isReason)
            reasons << flag.label;
    }
    return reasons.join(QLatin1String(", "));
}

ActWatch::ActWatch(QObject *parent) : QObject(parent) {}

void ActWatch::ask(Act act)
{
    m_act = act;
    m_since.start();
}

void ActWatch::statePolled(const DriveState &state)
{
    // A poll that was on its way when the user pressed says nothing about it.
    const auto age = std::chrono::steady_clock::now() - state.when;
    if (m_act == Act::None || std::chrono::duration_cast<std::chrono::milliseconds>(age).count() >= m_since.elapsed())
        return;
    if (m_act == Act::Enable)
        lookForEnable(state);
    else
        lookForCleared(state);
}

void ActWatch::lookForEnable(const DriveState &state)
{
    if (state.isRunning() && state.faultRegister == 0)
        return finish(tr("Enabled: the motor is powered"));
    if (state.faultRegister != 0 && !state.isRunning() && state.isFaultStopped())
        return finish(tr("Not enabled: the drive has a fault: %1").arg(faultNames(state).join(QLatin1String(", "))));
    if (m_since.elapsed() < enableLimitMs)
        return;
    const QString reasons = reasonsForInactivity(state);
    finish(reasons.isEmpty() ? tr("The enable was sent, but the motor is not powered")
                             : tr("The enable was sent, but the motor is not powered. Look at: %1").arg(reasons));
}

void ActWatch::lookForCleared(const DriveState &state)
{
    if (state.faultRegister == 0)
        finish(tr("Faults cleared"));
    else if (m_since.elapsed() >= clearLimitMs)
        finish(tr("Not cleared: %1. The cause is still there").arg(faultNames(state).join(QLatin1String(", "))));
}

void ActWatch::finish(const QString &text)
{
    m_act = Act::None;
    emit report(text);
}

void ActWatch::captureStateChanged(CaptureState state)
{
    if (state == CaptureState::Waiting) {
        m_plotCame = false;
        m_calledOff = false;
        emit report(tr("Capture armed: it waits for its trigger"));
    }
    if (state == CaptureState::Idle && m_capture != CaptureState::Idle) {
        if (m_plotCame)
            emit report(tr("Capture finished"));
        else if (m_calledOff)
            emit report(tr("Capture called off"));
        else
            emit report(tr("The capture has failed: the drive's record could not be read"));
    }
    m_capture = state;
}
