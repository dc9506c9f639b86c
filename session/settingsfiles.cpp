// Saving the session's parameter list to a settings file, and loading one. Needs no drive.
#include "sessionworker.h"

void SessionWorker::saveSettingsFile(const SaveFileRequest &request)
{
    const QString message = request.parameters.saveToFile(request.fileName);
    if (!message.isEmpty())
        m_context.errors.tell(MessageKind::FileFailed, message);
    else
        emit m_out.settingsFileSaved(request.fileName, request.parameters);
}

void SessionWorker::loadSettingsFile(const LoadFileRequest &request)
{
    // The list as it is now, not as it was when the file was asked for: a full read may have come in between.
    Parameters list = m_data.parameters();
    LoadOutcome outcome = LoadOutcome::Refused;
    const QString message = list.loadFromFile(request.fileName, &outcome);
    const bool taken = outcome != LoadOutcome::Refused;
    if (!message.isEmpty())
        m_context.errors.tell(taken ? MessageKind::FileWarning : MessageKind::FileFailed, message);
    if (!taken)
        return;
    {
        std::lock_guard<std::mutex> lock(m_data.mutex);
        m_data.wanted.parameters = list;
    }
    emit m_out.parametersRetreived(list, true);
}
