/// \file
/// What the threads of a session share: the requests of the setters, and what is known about the drive.
#ifndef VELBRIN_SESSION_SESSIONDATA_H
#define VELBRIN_SESSION_SESSIONDATA_H

#include "drivestate.h"
#include "squarewave.h"
#include "task.h"

#include <QLoggingCategory>
#include <atomic>
#include <mutex>

/// The session's marker lines. Off unless asked for: QT_LOGGING_RULES="velbrin.session.debug=true".
Q_DECLARE_LOGGING_CATEGORY(sessionLog)

/// Bus address of a drive in firmware-upgrade mode, whatever its own address is.
constexpr int firmwareUpgradeNode = 255;

/// What the setters of Connection have stored.
struct Wanted
{
    ConnectRequest connect; ///< its port is that of a scan, too
    EnableRequest enable;
    SetpointRequest setpoint;
    ScopeRequest capture;
    QString settingsFileName;
    FlashRequest flash;
    Parameters parameters; ///< the session's list

    /// A copy of what a task takes along.
    TaskRequest requestOf(SessionTasks::Task task) const;
};

struct SessionData
{
    /// Guards the plain members below it. Held to copy something in or out, never across bus traffic or a file.
    mutable std::mutex mutex;
    Wanted wanted;
    unsigned parameterHandOvers = 0; ///< counts setParams: a read that was overtaken by one leaves the list alone
    SquareWave stimulus;
    Parameters drive; ///< see Connection::driveParameters
    LineMeter lineMeter;
    QString targetPort; ///< of the drive that a disable goes to while none is connected; empty when none is known
    int targetNode = 0;
    int watchedParameter = 0;
    bool debugValuesShown = false;

    std::atomic<bool> workerEnded{false};
    std::atomic<bool> connected{false};
    std::atomic<bool> driveWasRead{false};   ///< something of it, in this connection
    std::atomic<bool> valuesComplete{false}; ///< see Connection::valuesAreComplete
    std::atomic<bool> firmwareUpgradeMode{false};
    std::atomic<int> deviceType{0};
    std::atomic<int> positionFeedback{0};
    std::atomic<float> baseFrequency{17500.0F}; ///< Hz; a drive of an unknown family inherits the last one's
    std::atomic<double> pauseScale{1.0};
    std::atomic<int> replyTimeoutMs{1000};

    /// With the scale for tests.
    std::chrono::steady_clock::duration scaled(std::chrono::milliseconds length) const
    {
        const std::chrono::duration<double, std::milli> scaledLength = length * pauseScale.load();
        return std::chrono::duration_cast<std::chrono::steady_clock::duration>(scaledLength);
    }
    bool stimulusIsActive() const
    {
        std::lock_guard<std::mutex> lock(mutex);
        return stimulus.isActive();
    }
    Parameters driveParameters() const
    {
        std::lock_guard<std::mutex> lock(mutex);
        return drive;
    }
    Parameters parameters() const
    {
        std::lock_guard<std::mutex> lock(mutex);
        return wanted.parameters;
    }
};

/// Takes the type of the drive out of a set: it belongs to nobody any more. The record keeps its address, or the type
/// could not be read at the next connection.
inline void clearDeviceType(Parameters &list)
{
    SingleParam type = list.getParam(QStringLiteral("HWTYPE"));
    if (type.name == QLatin1String("NULL"))
        return;
    type.value = type.min = type.max = 0.0;
    list.replaceParam(type);
}

#endif
