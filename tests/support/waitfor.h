/// \file
/// Waiting for a condition while the event loop really runs.
#ifndef VELBRIN_TESTS_WAITFOR_H
#define VELBRIN_TESTS_WAITFOR_H

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <functional>

/// Looks every 5 ms until the condition holds or the limit is over. QTest::qWaitFor sleeps between short looks at the
/// event queue, which the web engine, busy with events of its own, turns into seconds.
inline bool waitFor(const std::function<bool()> &condition, int limitMs = 10000)
{
    QElapsedTimer waited;
    waited.start();
    while (!condition()) {
        if (waited.elapsed() > limitMs)
            return false;
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

#endif
