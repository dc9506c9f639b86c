/// \file
/// Ctrl+C, and the other ways of being asked to stop, as a call on the main thread.
#ifndef INTERRUPTION_H
#define INTERRUPTION_H

#include <QSocketNotifier>
#include <functional>
#include <memory>

/// Exists once, after the QCoreApplication. SIGINT, SIGTERM and SIGHUP wait while it lives, until an event loop runs: a
/// write to a drive is finished, the line closed and the virtual drive's folder removed, instead of being cut in the
/// middle of a packet. SIGPIPE is ignored: a closed pipe is a write that fails.
class Interruption
{
public:
    Interruption();
    ~Interruption();

    void callWhenAsked(const std::function<void()> &stop);

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

#endif
