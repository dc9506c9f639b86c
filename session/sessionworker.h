/// \file
/// The worker's side of a session: takes the queued tasks and hands each to its operation. Lives on Connection's
/// thread.
#ifndef VELBRIN_SESSION_SESSIONWORKER_H
#define VELBRIN_SESSION_SESSIONWORKER_H

#include "operations/bussearch.h"
#include "operations/capturerun.h"
#include "operations/drivecommands.h"
#include "operations/firmwareupgrade.h"
#include "operations/identification.h"
#include "operations/parametertransfer.h"
#include "operations/statusmonitor.h"
#include "operations/stimulusstream.h"
#include "operations/stopservice.h"

/// Loop and dispatch (sessionworker.cpp), and the life of a connection (connecting.cpp). A new task is a row in the
/// table of sessionworker.cpp.
class SessionWorker
{
public:
    SessionWorker(SessionData &data, TaskQueue &queue, SessionEvents &out);

    /// Performs tasks until the quit task.
    void run();

private:
    using Handler = void (*)(SessionWorker &worker, const TaskRequest &request);
    struct TaskRule;
    static const TaskRule *ruleOf(int task);

    void perform(const QueuedTask &entry);
    void connectionUpdate();
    bool poll();
    void quit();
    void doNothing() {}
    void updateStatus() { poll(); }
    void checkErrors();
    void setZero();

    // --- Connecting (connecting.cpp) ---
    void connectDrive(const ConnectRequest &request);
    bool judge(const DriveIdentity &drive);
    void setDeviceSpecificVariables(const DriveIdentity &drive);
    void refuse(MessageKind kind, const QString &statusText, const QString &errorText);
    void announceFirmwareUpgradeMode(int bootloaderVersion);
    void disconnectDrive();
    void resetDriveState();
    bool openLine(const QString &portName, int timeoutMs);
    void scanBus(const ScanRequest &request);

    // --- Settings files, which need no drive (settingsfiles.cpp) ---
    void saveSettingsFile(const SaveFileRequest &request);
    void loadSettingsFile(const LoadFileRequest &request);

    SessionData &m_data;
    TaskQueue &m_queue;
    SessionEvents &m_out;
    OperationContext m_context;

    StatusMonitor m_monitor;
    StopService m_stops;
    StimulusStream m_stream;
    ParameterTransfer m_transfer;
    CaptureRun m_capture;
    DriveCommands m_commands;
    FirmwareUpgrade m_upgrade;

    bool m_quit = false;
};

#endif
