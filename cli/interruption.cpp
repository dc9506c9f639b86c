#include "interruption.h"

#include <csignal>
#include <unistd.h>

namespace {

int pipeEnds[2] = {-1, -1};

constexpr int stopSignals[] = {SIGINT, SIGTERM, SIGHUP};

extern "C" void wakeMainThread(int)
{
    const char byte = 0;
    // Nothing can be done about a full pipe, and it is enough that one byte is in it.
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
}

} // namespace

Interruption::Interruption()
{
    std::signal(SIGPIPE, SIG_IGN);
    if (pipe(pipeEnds) != 0)
        return;
    for (const int signal : stopSignals)
        std::signal(signal, wakeMainThread);
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
}

Interruption::~Interruption()
{
    for (const int signal : stopSignals)
        std::signal(signal, SIG_DFL);
    m_notifier.reset();
    close(pipeEnds[0]);
    close(pipeEnds[1]);
}

void Interruption::callWhenAsked(const std::function<void()> &stop)
{
    if (!m_notifier)
        return;
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [stop] {
        char byte = 0;
        if (read(pipeEnds[0], &byte, 1) == 1)
            stop();
    });
}
