// Saving a plot from the window, as a picture and as numbers, where it can be written and where it can't.
#include "testingfixture.h"

namespace {

class SavePlot : public TestingFixture
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(TestingFixture::SetUp());
        tick({"ScopeTorqRef", "ScopeVelMeas", "ScopePosMeas"});
        choose(Instantly, "20000 Hz");
        click("ScopeCaptureNow");
        waitForPlot();
    }
    void save(const QString &name)
    {
        if (QFileInfo::exists(name)) {
            m_answers.expect(
                [name](QWidget *dialog) { return Answerer::answerFileDialog(dialog, name, Qt::QueuedConnection); });
            m_answers.press("Yes"); // replace it
        } else {
            m_answers.chooseFile(name);
        }
        clickLink("tdext://exportpdf");
    }
};

/// Rows of the picture in which the blue of a first series is found, as bands with at least 40 rows between them.
int bandsOfInk(const QImage &image)
{
    int bands = 0;
    for (int y = 0, last = -1000; y < image.height(); ++y) {
        for (int x = 0; x < image.width() && last != y; ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.blue() <= 150 || c.blue() - c.red() <= 130)
                continue;
            bands += y - last > 100;
            last = y;
        }
    }
    return bands;
}

} // namespace

TEST_F(SavePlot, PictureHoldsAllChartsAt1100PixelsWhateverThePaneAndTheLinkIsGreyUntilItIsWritten)
{
    const QString link = "$('a.waiting').length";
    for (const int width : {1300, 2400}) {
        m_window->resize(width, 700);
        const QSize before = view()->size();
        const QString file = path(width == 1300 ? "narrow.PNG" : "wide.png");
        QSignalSpy saved(view(), &HelpView::pictureSaved);
        save(file);
        EXPECT_TRUE(view()->isSaving());
        EXPECT_EQ(run(link).toInt(), 1);
        ASSERT_TRUE(saved.wait(30000));
        EXPECT_TRUE(waitFor([&] { return run(link).toInt() == 0; }));
        const QImage image(file);
        EXPECT_EQ(image.width(), 1100);
        EXPECT_GT(image.height(), 3 * 400);
        EXPECT_GE(bandsOfInk(image), 3);
        EXPECT_EQ(view()->size(), before) << "nothing on the screen moves";
    }
    EXPECT_EQ(shownMessage(), QString());
}

TEST_F(SavePlot, ClosingWaitsForThePicture)
{
    save(path("late.png"));
    m_window->close();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(said(), "The graphs are being written; the window closes when that is done");
    EXPECT_TRUE(waitFor([this] { return !m_window->isVisible(); }, 30000));
    EXPECT_EQ(QImage(path("late.png")).width(), 1100);
}

TEST_F(SavePlot, WhatCannotBeWrittenIsSaid)
{
    ASSERT_TRUE(QFile::link("/dev/full", path("full.png")));
    ASSERT_TRUE(QFile::link("/dev/full", path("full.csv")));
    for (const QString &name :
         {QString("/proc/graphs.png"), QString("/proc/graphs.csv"), path("full.png"), path("full.csv")}) {
        SCOPED_TRACE(qPrintable(name));
        save(name);
        ASSERT_TRUE(waitForMessage());
        EXPECT_TRUE(shownMessage().startsWith("Error writing graphs to file " + name));
        closeMessage();
    }

    // Another ending writes nothing, and the status bar tells which there are.
    save(path("graphs.txt"));
    EXPECT_FALSE(QFile::exists(path("graphs.txt")));
    EXPECT_EQ(shownMessage(), QString());
    EXPECT_EQ(said(), "Nothing saved: give the file a name that ends in .png, .csv or .html");
    m_window->statusBar()->clearMessage();
    save(QString());
    EXPECT_EQ(said(), QString());
}
