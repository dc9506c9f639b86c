/// \file
/// Ctrl+C, and the other ways of being asked to stop, as a call on the main thread.
#ifndef VELBRIN_DESK_INTERRUPTION_H
#define VELBRIN_DESK_INTERRUPTION_H

#include "signalpipe.h"

#include <functional>
#include <thread>

/// Exists once, after the QCoreApplication and before any other thread. SIGINT, SIGTERM, SIGHUP and SIGQUIT wait while
/// it lives, until an event loop runs: a write to a drive is finished, the line closed and the virtual drive's folder
/// removed, instead of being cut in the middle of a packet. SIGPIPE is ignored: a closed pipe is a write that fails.
///
/// Where no event loop runs (a pipe whose reader has stopped, a terminal that is held), the first signal ends the
/// program after two seconds and the second at once, as if nobody had caught it. See NoForce for the exception.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    void callWhenAsked(const std::function<void()> &stop) { m_stop = stop; }

private:
    void watch();

    std::function<void()> m_stop;
    SignalPipe m_pipe;
    std::thread m_watch;
};

/// While one lives, a signal does not end the program by force: a stop is on its way to a drive, or an upgrade runs. A
/// second signal does all the same, six seconds later: far beyond what a stop takes on a line that works.
class NoForce
{
public:
    NoForce();
    ~NoForce();
    NoForce(const NoForce &) = delete;
    NoForce &operator=(const NoForce &) = delete;
};

#endif
