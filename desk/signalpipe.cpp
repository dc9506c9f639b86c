#include "signalpipe.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>
#include <utility>

SignalPipe::SignalPipe(std::function<void()> awake) : m_awake(std::move(awake))
{
    if (pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] {
        char byte = 0;
        if (read(m_ends[0], &byte, 1) == 1)
            m_awake();
    });
}

SignalPipe::~SignalPipe()
{
    m_notifier.reset();
    for (const int end : m_ends) {
        if (end >= 0)
            close(end);
    }
}

void SignalPipe::wake() const
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(m_ends[1], &byte, 1);
}
