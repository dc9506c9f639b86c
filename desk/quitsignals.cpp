#include "quitsignals.h"

#include <QCoreApplication>
#include <csignal>

namespace {

constexpr int quitSignals[] = {SIGTERM, SIGINT, SIGHUP, SIGQUIT};
const SignalPipe *pipeToWake = nullptr;

void setHandlers(void (*handler)(int))
{
    for (const int number : quitSignals)
        std::signal(number, handler);
}

// Whoever asks a second time means at once.
void wakeEventLoop(int)
{
    setHandlers(SIG_DFL);
    pipeToWake->wake();
}

} // namespace

// Not quit(), which asks every window first, and does nothing while the box before the first window is open.
QuitSignals::QuitSignals() : m_pipe([] { QCoreApplication::exit(0); })
{
    if (!m_pipe.isOpen())
        return;
    pipeToWake = &m_pipe;
    setHandlers(wakeEventLoop);
}

QuitSignals::~QuitSignals()
{
    setHandlers(SIG_DFL);
}
