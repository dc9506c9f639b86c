/// \file
/// The tasks of a session, and what each of them takes along.
#ifndef VELBRIN_SESSION_TASK_H
#define VELBRIN_SESSION_TASK_H

#include "capturedata.h"
#include "parameters.h"

#include <QList>
#include <QString>
#include <variant>

/// Names and numbers of the tasks; Connection takes them over, so that callers write Connection::TaskConnect.
struct SessionTasks
{
    enum Task {
        TaskNone = 0,
        TaskConnect = 1,
        TaskDisconnect = 2,
        TaskSetParams = 3,
        TaskGetParams = 4,
        TaskUpdateStatus = 5,
        TaskInitScope = 6,
        TaskDownloadScope = 7,
        TaskQuit = 8,
        TaskCheckErrors = 9,
        TaskClearFaults = 10,
        TaskApplyEnableState = 11,
        TaskStimulus = 12,
        TaskSaveToFlash = 14,
        TaskStartHoming = 15,
        TaskAbortHoming = 16,
        TaskSaveSettingsFile = 21,
        TaskLoadSettingsFile = 22,
        TaskScanBus = 23,
        TaskFlashFirmware = 24,
        TaskRestartDrive = 25,
        TaskStopStimulus = 26,
        TaskSetAbsoluteSetpoint = 27,
        TaskSetIncrementalSetpoint = 28,
        TaskRestartToDFU = 29,
        TaskMeasure = 30,
        TaskSetZero = 31,
        TaskCallOffCapture = 32, ///< disarms the recorder; nothing while none is armed
    };
};

// What was asked, copied at the moment of asking: nothing that is asked later changes what already waits. A task sees
// its own request and no other.

struct ConnectRequest
{
    QString portName;
    int nodeAddress = 5;
};

struct ScanRequest
{
    QString portName;
};

struct EnableRequest
{
    bool enable = false;
    bool force = false; ///< only with `enable`
};

struct SetpointRequest
{
    int setpoint = 0; ///< setpoint units
};

struct WriteRequest
{
    Parameters parameters;
};

/// The choice for one capture.
struct ScopeRequest
{
    double sampleRate = 17500.0; ///< wanted, Hz
    int triggerCode = 1;
    QList<CaptureData> channels; ///< the whole channel list with its enabled flags
    int enabledCount = 0;
};

struct SaveFileRequest
{
    QString fileName;
    Parameters parameters;
};

struct LoadFileRequest
{
    QString fileName;
};

struct FlashRequest
{
    QString fileName;
    bool resetToFactory = false;
};

/// Nothing for the tasks that take nothing along.
using TaskRequest = std::variant<std::monostate, ConnectRequest, ScanRequest, EnableRequest, SetpointRequest,
                                 WriteRequest, ScopeRequest, SaveFileRequest, LoadFileRequest, FlashRequest>;

struct QueuedTask
{
    SessionTasks::Task task = SessionTasks::TaskNone;
    TaskRequest request;

    /// Enabling or disabling without a request counts as disabling.
    bool isDisable() const { return task == SessionTasks::TaskApplyEnableState && !isEnable(); }
    bool isEnable() const
    {
        const auto *wanted = std::get_if<EnableRequest>(&request);
        return task == SessionTasks::TaskApplyEnableState && wanted && wanted->enable;
    }
};

#endif
