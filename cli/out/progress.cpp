#include "progress.h"

#include <cstdio>
#include <unistd.h>

Progress::Progress() : m_terminal(isatty(STDERR_FILENO) != 0)
{
    m_timer.setInterval(1000);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { draw(); });
}

void Progress::show(const QString &text)
{
    if (!m_terminal)
        return;
    m_text = text;
    m_since.start();
    m_timer.start();
    draw();
}

void Progress::update(const QString &text)
{
    if (text == m_text)
        return; // many a second would only flicker
    m_text = text;
    if (m_timer.isActive())
        draw();
}

void Progress::aside(const std::function<void()> &write)
{
    const bool wasShown = m_shown;
    if (wasShown)
        std::fputs("\r\033[K", stderr);
    write();
    if (wasShown)
        draw();
}

void Progress::note(const QString &text)
{
    aside([&text] { std::fprintf(stderr, "%s\n", qPrintable(text)); });
}

void Progress::clear()
{
    m_timer.stop();
    if (m_shown)
        std::fputs("\r\033[K", stderr);
    m_shown = false;
}

void Progress::draw()
{
    const qint64 seconds = m_since.elapsed() / 1000;
    std::fprintf(stderr, "\r\033[K%s...", qPrintable(m_text));
    if (seconds > 0)
        std::fprintf(stderr, " %lld s", static_cast<long long>(seconds));
    std::fflush(stderr);
    m_shown = true;
}
