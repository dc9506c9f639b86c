/// \file
/// From a signal handler, or a thread without an event loop, into the event loop.
#ifndef VELBRIN_DESK_SIGNALPIPE_H
#define VELBRIN_DESK_SIGNALPIPE_H

#include <functional>
#include <memory>

class QSocketNotifier;

/// A pipe that is read by the event loop of the thread that made it. Where no pipe is to be had, nothing wakes.
class SignalPipe
{
public:
    /// `awake` is called by the event loop, once for each wake() that got through.
    explicit SignalPipe(std::function<void()> awake);
    ~SignalPipe();
    SignalPipe(const SignalPipe &) = delete;
    SignalPipe &operator=(const SignalPipe &) = delete;

    bool isOpen() const { return m_ends[1] >= 0; }
    /// Any thread, and a signal handler too: it only writes. A pipe that is full already wakes.
    void wake() const;

private:
    std::function<void()> m_awake;
    int m_ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
};

#endif
