#include "quitsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <csignal>
#include <unistd.h>

namespace {

constexpr int QUIT_SIGNALS[] = {SIGTERM, SIGINT, SIGHUP, SIGQUIT};
int writeEnd = -1;

// In a signal handler only a write is safe; the event loop reads it. Whoever asks a second time means at once.
void wakeEventLoop(int)
{
    for (int other : QUIT_SIGNALS)
        std::signal(other, SIG_DFL);
    const char byte = 1;
    const ssize_t written = write(writeEnd, &byte, 1);
    Q_UNUSED(written)
}

} // namespace

QuitSignals::QuitSignals(QObject *parent) : QObject(parent)
{
    if (pipe(m_pipe) != 0)
        return;
    writeEnd = m_pipe[1];
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    // Not quit(), which asks every window first, and does nothing while the box before the first window is open.
    connect(notifier, &QSocketNotifier::activated, qApp, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::exit(0);
    });
    for (int number : QUIT_SIGNALS)
        std::signal(number, wakeEventLoop);
}

QuitSignals::~QuitSignals()
{
    for (int number : QUIT_SIGNALS)
        std::signal(number, SIG_DFL);
    for (int end : m_pipe) {
        if (end >= 0)
            close(end);
    }
}
