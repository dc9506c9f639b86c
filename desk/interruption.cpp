#include "interruption.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <optional>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds afterTheFirst(2);
constexpr std::chrono::seconds afterTheSecond(6); // with a NoForce
constexpr timespec checkPeriod = {0, 50000000};

constexpr int stopSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

std::atomic<int> noForces{0};
std::atomic<bool> isOver{false};

sigset_t stopSet()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : stopSignals)
        sigaddset(&set, signal);
    return set;
}

/// As the signal would have ended it.
[[noreturn]] void endByForce(int signal)
{
    std::signal(signal, SIG_DFL);
    kill(getpid(), signal);
    const sigset_t set = stopSet();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
    _exit(128 + signal);
}

} // namespace

Interruption::Interruption()
    : m_pipe([this] {
          if (m_stop)
              m_stop();
      })
{
    std::signal(SIGPIPE, SIG_IGN);
    if (!m_pipe.isOpen())
        return;
    // Blocked here and so in every thread that follows; one thread waits for them, whatever the others are doing.
    const sigset_t set = stopSet();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    isOver = false;
    m_watch = std::thread([this] { watch(); });
}

Interruption::~Interruption()
{
    isOver = true;
    if (m_watch.joinable())
        m_watch.join();
    const sigset_t set = stopSet();
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

void Interruption::watch()
{
    const sigset_t set = stopSet();
    int last = 0;
    int count = 0;
    std::optional<Clock::time_point> end; // by force
    while (!isOver) {
        const int signal = sigtimedwait(&set, nullptr, &checkPeriod);
        const bool mayForce = noForces == 0;
        if (signal > 0) {
            last = signal;
            ++count;
            m_pipe.wake();
            if (count == 1)
                end = Clock::now() + afterTheFirst;
            else if (count == 2)
                end = Clock::now() + (mayForce ? std::chrono::seconds(0) : afterTheSecond);
        }
        if (end && Clock::now() >= *end && (mayForce || count > 1))
            endByForce(last);
    }
}

NoForce::NoForce()
{
    ++noForces;
}

NoForce::~NoForce()
{
    --noForces;
}
