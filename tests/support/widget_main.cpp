#include "enginestart.h"
#include "testhome.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    TestHome home;
    // The same window everywhere: what a developer's desktop does with it must not decide a test.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleTest(&argc, argv);
    // In a container the system may refuse the engine its sandbox. Tests show it their own pages only.
    if (!whyEngineCannotStart().isEmpty())
        setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 0);
    prepareEngine();
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
