#include "taskqueue.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

bool isMotion(const QueuedTask &entry)
{
    switch (entry.task) {
    case SessionTasks::TaskStimulus:
    case SessionTasks::TaskStartHoming:
    case SessionTasks::TaskSetAbsoluteSetpoint:
    case SessionTasks::TaskSetIncrementalSetpoint:
    case SessionTasks::TaskMeasure:
        return true;
    case SessionTasks::TaskApplyEnableState:
        return entry.isEnable();
    default:
        return false;
    }
}

bool isStop(const QueuedTask &entry)
{
    return entry.isDisable() || entry.task == SessionTasks::TaskStopStimulus ||
           entry.task == SessionTasks::TaskAbortHoming;
}

bool survivesDisconnect(const QueuedTask &entry)
{
    return isStop(entry) || entry.task == SessionTasks::TaskSetParams || entry.task == SessionTasks::TaskSaveToFlash;
}

bool isRestart(const QueuedTask &entry)
{
    return entry.task == SessionTasks::TaskRestartDrive || entry.task == SessionTasks::TaskRestartToDFU;
}

template <typename Entries, typename Condition> void removeIf(Entries &entries, Condition condition)
{
    entries.erase(std::remove_if(entries.begin(), entries.end(), condition), entries.end());
}

/// Leaves one stop of each kind, the first; there is never more than one disable.
template <typename Entries> void removeRepeatedStops(Entries &entries)
{
    for (const SessionTasks::Task task : {SessionTasks::TaskStopStimulus, SessionTasks::TaskAbortHoming}) {
        bool found = false;
        removeIf(entries,
                 [&found, task](const QueuedTask &entry) { return entry.task == task && std::exchange(found, true); });
    }
}

} // namespace

void TaskQueue::push(QueuedTask entry)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        insert(std::move(entry));
    }
    m_changed.notify_all();
}

void TaskQueue::push(SessionTasks::Task task)
{
    QueuedTask entry;
    entry.task = task;
    push(std::move(entry));
}

void TaskQueue::insert(QueuedTask entry)
{
    if (entry.isDisable()) {
        // A machine that is told to stop must not be set going again by what waited, and an auto-repeating Esc must
        // not pile up: one disable does.
        removeIf(m_entries, [](const QueuedTask &e) { return isMotion(e) || e.isDisable(); });
        m_entries.push_front(std::move(entry));
        return;
    }
    if (entry.task == SessionTasks::TaskDisconnect) {
        const bool behindRestart = std::any_of(m_entries.begin(), m_entries.end(), isRestart);
        // What the user has just chosen when asked on the way out, and every stop, is still carried out.
        if (!behindRestart)
            removeIf(m_entries, [](const QueuedTask &e) { return !survivesDisconnect(e); });
    } else if (entry.task == SessionTasks::TaskScanBus) {
        removeIf(m_entries, [](const QueuedTask &e) { return e.task == SessionTasks::TaskScanBus; });
    }
    m_entries.push_back(std::move(entry));
}

void TaskQueue::pushDisconnectFirst()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        // Even on a bad line a waiting stop is tried before the port is given up.
        removeRepeatedStops(m_entries); // each may cost a time-out
        const auto rest = std::stable_partition(m_entries.begin(), m_entries.end(), isStop);
        if (rest == m_entries.end() || rest->task != SessionTasks::TaskDisconnect) {
            QueuedTask disconnect;
            disconnect.task = SessionTasks::TaskDisconnect;
            m_entries.insert(rest, disconnect);
        }
    }
    m_changed.notify_all();
}

void TaskQueue::close()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_closing)
            return;
        m_closing = true;
        m_closeTime = std::chrono::steady_clock::now();
        // A disconnect would drop a file that was asked for; the program's end writes it.
        Entries files;
        std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(files),
                     [](const QueuedTask &e) { return e.task == SessionTasks::TaskSaveSettingsFile; });
        removeIf(m_entries, [](const QueuedTask &e) { return e.task == SessionTasks::TaskSaveSettingsFile; });
        QueuedTask entry;
        entry.task = SessionTasks::TaskDisconnect;
        insert(entry);
        m_entries.insert(m_entries.end(), files.begin(), files.end());
        entry.task = SessionTasks::TaskQuit;
        insert(entry);
    }
    m_changed.notify_all();
}

bool TaskQueue::take(QueuedTask &entry)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_entries.empty())
        return false;
    entry = std::move(m_entries.front());
    m_entries.pop_front();
    return true;
}

TaskQueue::Entries::iterator TaskQueue::findDisable()
{
    return std::find_if(m_entries.begin(), m_entries.end(), [](const QueuedTask &e) { return e.isDisable(); });
}

bool TaskQueue::takeDisable(QueuedTask &entry)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = findDisable();
    if (found == m_entries.end())
        return false;
    entry = std::move(*found);
    m_entries.erase(found);
    return true;
}

bool TaskQueue::isEmpty() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.empty();
}

bool TaskQueue::contains(SessionTasks::Task task) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_entries.begin(), m_entries.end(), [task](const QueuedTask &e) { return e.task == task; });
}

std::vector<int> TaskQueue::codes() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<int> result;
    for (const QueuedTask &entry : m_entries)
        result.push_back(entry.task);
    return result;
}

bool TaskQueue::isClosing(Milliseconds grace) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_closing && std::chrono::steady_clock::now() - m_closeTime >= grace;
}

void TaskQueue::waitForTask(Milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, limit, [this] { return !m_entries.empty(); });
}

TaskQueue::Wake TaskQueue::pauseUntil(std::chrono::steady_clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto disturbed = [this] { return m_closing || findDisable() != m_entries.end(); };
    if (!m_changed.wait_until(lock, deadline, disturbed))
        return Wake::TimeOver;
    return findDisable() != m_entries.end() ? Wake::Disable : Wake::Closing;
}
