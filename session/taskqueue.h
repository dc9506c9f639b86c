/// \file
/// The tasks that wait for the session's worker, in the order in which they will run.
#ifndef VELBRIN_SESSION_TASKQUEUE_H
#define VELBRIN_SESSION_TASKQUEUE_H

#include "task.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

/// Any thread. The lock is a leaf, held for a few instructions; the wait condition belongs to it, so that no wake-up is
/// lost between "empty" and "wait". A std::mutex because the thread sanitizer sees into it.
class TaskQueue
{
public:
    using Milliseconds = std::chrono::milliseconds;

    /// Queues a task by the rule for its kind and wakes the worker:
    /// - a disable goes to the front, and takes what would move the drive or enable it out of the queue;
    /// - a disconnect goes behind everything when a restart waits; otherwise it clears the queue except for what the
    ///   user has just chosen to be carried out (write, save to flash) and every stop;
    /// - a bus scan replaces a scan that waits;
    /// - anything else is appended.
    void push(QueuedTask entry);
    void push(SessionTasks::Task task);
    /// Queues the disconnect after an error (or when the drive has gone): at the head, behind waiting disables, stream
    /// stops and aborts of homing; once.
    void pushDisconnectFirst();
    /// Queues a disconnect, the files that still wait to be saved and the quit task; ends every pause from now on.
    void close();

    /// Takes the first task; false when there is none.
    bool take(QueuedTask &entry);
    /// Takes a waiting disable out of turn; false when there is none.
    bool takeDisable(QueuedTask &entry);

    bool isEmpty() const;
    bool contains(SessionTasks::Task task) const;
    /// The codes that wait, first to last.
    std::vector<int> codes() const;
    /// Whether `close` was called at least `grace` ago.
    bool isClosing(Milliseconds grace = Milliseconds(0)) const;

    /// Waits until a task waits, at most `limit`.
    void waitForTask(Milliseconds limit);
    enum class Wake { TimeOver, Disable, Closing };
    /// Waits until `deadline`, until a disable waits, or until the queue is closed.
    Wake pauseUntil(std::chrono::steady_clock::time_point deadline);

private:
    using Entries = std::deque<QueuedTask>;

    void insert(QueuedTask entry);
    Entries::iterator findDisable();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    Entries m_entries;
    bool m_closing = false;
    std::chrono::steady_clock::time_point m_closeTime;
};

#endif
