#include "sessiondata.h"

Q_LOGGING_CATEGORY(sessionLog, "velbrin.session", QtInfoMsg)

TaskRequest Wanted::requestOf(SessionTasks::Task task) const
{
    switch (task) {
    case SessionTasks::TaskConnect:
        return connect;
    case SessionTasks::TaskScanBus:
        return ScanRequest{connect.portName};
    case SessionTasks::TaskApplyEnableState:
        // A disable forces nothing.
        return EnableRequest{enable.enable, enable.enable && enable.force};
    case SessionTasks::TaskSetAbsoluteSetpoint:
    case SessionTasks::TaskSetIncrementalSetpoint:
        return setpoint;
    case SessionTasks::TaskSetParams:
        return WriteRequest{parameters};
    case SessionTasks::TaskInitScope:
        return capture;
    case SessionTasks::TaskSaveSettingsFile:
        return SaveFileRequest{settingsFileName, parameters};
    case SessionTasks::TaskLoadSettingsFile:
        return LoadFileRequest{settingsFileName};
    case SessionTasks::TaskFlashFirmware:
        return flash;
    default:
        return {};
    }
}
