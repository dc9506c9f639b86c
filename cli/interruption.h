/// \file
/// Ctrl+C, and the other ways of being asked to stop, as a call on the main thread.
#ifndef INTERRUPTION_H
#define INTERRUPTION_H

#include <QSocketNotifier>
#include <functional>
#include <memory>

/// Exists once, after the QCoreApplication. A write to a drive is then finished and the line closed before the program
/// ends, instead of being cut in the middle of a packet. Ignores SIGPIPE: a closed pipe is a write that fails.
class Interruption
{
public:
    Interruption();
    ~Interruption();

    /// What SIGINT, SIGTERM and SIGHUP call; with none the program ends at once.
    static void connectTo(std::function<void()> handler);

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

#endif
