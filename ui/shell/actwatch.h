/// \file
/// What became of what the user has just asked for, in words for the status bar.
#ifndef VELBRIN_UI_ACTWATCH_H
#define VELBRIN_UI_ACTWATCH_H

#include "capturestate.h"
#include "drivestate.h"

#include <QElapsedTimer>
#include <QObject>

/// Follows an enable and a clearing of faults until the polls show what they did, a capture until its end, and says so
/// when a fault takes the motor's power. A disable has a watch of its own (DisableWatch). User-interface thread.
class ActWatch : public QObject
{
    Q_OBJECT

public:
    explicit ActWatch(QObject *parent = nullptr);

    /// How long the drive may take to show an effect, ms. An enable may have to find the rotor angle first.
    static constexpr int enableLimitMs = 3000;
    static constexpr int clearLimitMs = 1500;

    void enableAsked() { ask(Act::Enable); }
    void clearFaultsAsked() { ask(Act::ClearFaults); }
    void captureCalledOff() { m_calledOff = true; }
    /// Something else was asked for, or there is nobody left to ask: nothing is awaited any more.
    void forget()
    {
        m_act = Act::None;
        m_isPowered = false;
    }

public slots:
    void statePolled(const DriveState &state);
    void plotReady() { m_plotCame = true; }
    void captureStateChanged(CaptureState state);

signals:
    void report(const QString &text);

private:
    enum class Act { None, Enable, ClearFaults };
    void ask(Act act);
    void lookForTrip(const DriveState &state);
    void lookForEnable(const DriveState &state);
    void lookForCleared(const DriveState &state);
    void finish(const QString &text);

    Act m_act = Act::None;
    QElapsedTimer m_since;
    bool m_isPowered = false; ///< as polled last
    CaptureState m_capture = CaptureState::Idle;
    bool m_plotCame = false;
    bool m_calledOff = false;
};

/// What keeps the drive from running, as its panels mark it: "Phys enable, STO active". Empty when nothing is marked.
QString reasonsForInactivity(const DriveState &state);

#endif
