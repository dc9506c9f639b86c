// A web engine that cannot start, or dies: said in words, and started again.
#include "captureplotter.h"
#include "pageprocesses.h"
#include "pagescript.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>

#include <csignal>

TEST(HelpViewEngine, ThatDiesIsSaidInWordsAndStartsAgain)
{
    HelpView view;
    view.show();
    view.showPlot(CapturePlotter().generatePlotPage({}, QString(), "KETA"), QUrl("file:///nowhere/"),
                  HelpView::Zoom::Keep);
    const auto isShown = [&view] { return pageText(&view).startsWith("Velbrin servo scope"); };
    ASSERT_TRUE(waitFor(isShown, 20000));
    auto *note = view.findChild<QLabel *>("helpViewNote");
    EXPECT_FALSE(note->isVisible());
    const std::vector<pid_t> processes = pageProcesses();
    ASSERT_FALSE(processes.empty());
    for (const pid_t process : processes)
        kill(process, SIGKILL);
    ASSERT_TRUE(waitFor([&] { return note->isVisible(); }, 20000));
    EXPECT_TRUE(note->text().contains("has ended unexpectedly"));
    EXPECT_TRUE(note->text().contains("tdext://exportpdf")) << "as text it can still be saved";
    QSignalSpy clicked(&view, &HelpView::linkClicked);
    emit note->linkActivated("tdext://exportpdf");
    EXPECT_EQ(clicked.count(), 1);
    QSignalSpy saved(&view, &HelpView::pictureSaved);
    view.savePng("no.png");
    ASSERT_EQ(saved.count(), 1);
    EXPECT_TRUE(saved[0][0].toString().contains("no plot is shown"));
    emit note->linkActivated("restart:");
    EXPECT_TRUE(waitFor(isShown, 20000));
    EXPECT_FALSE(note->isVisible());
}

TEST(HelpViewEngine, ThatCannotStartIsSaidInWords)
{
    qputenv("QTWEBENGINEPROCESS_PATH", "/nowhere/QtWebEngineProcess");
    HelpView view;
    view.show();
    const auto *note = view.findChild<QLabel *>("helpViewNote");
    EXPECT_TRUE(waitFor([&] { return note->isVisible(); }, 10000));
    EXPECT_TRUE(note->text().contains("its program /nowhere/QtWebEngineProcess is missing"));
    bool answered = false;
    view.runScript("1", [&](const QVariant &value) { answered = !value.isValid(); });
    EXPECT_TRUE(answered);
    qunsetenv("QTWEBENGINEPROCESS_PATH");
}
