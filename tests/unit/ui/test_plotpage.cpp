// The plot page in the engine that shows it.
#include "captureplotter.h"
#include "flotfolder.h"
#include "pagescript.h"
#include "parameters.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>
#include <csignal>
#include <unistd.h>

namespace {

QStringList complaints; ///< of the page's scripts

void keepComplaints(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (context.category && qstrcmp(context.category, "js") == 0)
        complaints << text;
}

/// The processes below this one that draw pages: children of the engine's own first process.
std::vector<pid_t> pageProcesses()
{
    std::vector<std::vector<pid_t>> generations{{getpid()}, {}, {}};
    for (int i = 0; i < 2; ++i) {
        for (const QString &entry : QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs)) {
            QFile stat("/proc/" + entry + "/stat");
            const QByteArray line = stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
            const pid_t parent = line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toInt();
            if (std::count(generations[i].begin(), generations[i].end(), parent) > 0)
                generations[i + 1].push_back(entry.toInt());
        }
    }
    return generations[2];
}

class PlotPage : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        makeFlotFolder(folder.path());
        QDir::setCurrent(folder.path());
        complaints.clear();
        before = qInstallMessageHandler(keepComplaints);
        view.resize(900, 700);
        view.show();
        view.activateWindow();
    }
    void TearDown() override
    {
        qInstallMessageHandler(before);
        QDir::setCurrent("/");
    }

    static QString pageOf(int channels, int samples, int parameters = 14, const char *firstName = "Channel 0 [A]")
    {
        static const char *const groups[] = {"Torque",   "Velocity", "Other", "Torque",
                                             "Position", "PWM",      "Debug", "Last"};
        QList<CaptureData> captures;
        for (int i = 0; i < channels; ++i) {
            CaptureData c;
            c.enabled = true;
            c.name = i == 0 ? QString(firstName) : i == 1 ? QString("Velocity achieved") : QString("Channel %1 [A]").arg(i);
            c.key = QString("key%1").arg(i);
            c.group = groups[i % 8];
            for (int k = 0; k < samples; ++k)
                c.samples.append({k / 17500.0, std::sin(k * 0.01 * (i + 1))});
            captures.append(c);
        }
        return CapturePlotter().generatePlotPage(captures, parameterListing(parameters), "KETA");
    }

    /// As wide as a drive's: the longest names and values there are.
    static QString parameterListing(int count)
    {
        Parameters parameters;
        for (int i = 0; i < count; ++i) {
            SingleParam p;
            p.name = QString("BUILDREVISION%1").arg(i);
            p.value = -1234567.891;
            parameters.addParameter(p);
        }
        return parameters.getParamsHTMLList();
    }

    void show(const QString &page, HelpView::Zoom zoom = HelpView::Zoom::Keep)
    {
        view.showPlot(page, QUrl("file:///" + QDir::currentPath() + "/flot/examples/"), zoom);
        ASSERT_TRUE(waitFor([this] { return run("window.velbrinView && velbrinView.drawn").toBool(); }, 15000));
        EXPECT_EQ(complaints.join("; ").toStdString(), "");
    }
    void show(int channels, int samples) { show(pageOf(channels, samples)); }

    QVariant run(const QString &script) { return runScript(&view, script); }
    double torqueAxis(const char *limit)
    {
        return run(QString("$('#Torque').data('plot').getAxes().%1").arg(limit)).toDouble();
    }
    QPoint middleOf(const char *element)
    {
        const QVariantList middle =
            run(QString("(function (r) { return [r.left + r.width / 2, r.top + r.height / 2]; })"
                        "(document.querySelector(\"%1\").getBoundingClientRect())")
                    .arg(element))
                .toList();
        return {middle.value(0).toInt(), middle.value(1).toInt()};
    }
    /// Where the engine takes the mouse from.
    QWidget *surface() { return view.focusProxy()->focusProxy() ? view.focusProxy()->focusProxy() : view.focusProxy(); }
    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(surface(), Qt::LeftButton, {}, from);
        for (const QPoint &at : {from + (to - from) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, surface()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(surface(), &move);
            runScript(&view, "1"); // the page has seen it
        }
        QTest::mouseRelease(surface(), Qt::LeftButton, {}, to);
        runScript(&view, "1");
    }
    void zoomIn() { drag(middleOf("#Torque canvas"), middleOf("#Torque canvas") + QPoint(100, 60)); }

    QTemporaryDir folder;
    QtMessageHandler before = nullptr;
    HelpView view;
};

} // namespace

TEST_F(PlotPage, DrawsEveryChannelWithItsPointsAndALegendAlsoFromAPageOfManyMegabytes)
{
    const QString page = pageOf(16, 8000);
    ASSERT_GT(page.size(), 2200000);
    show(page);
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 7) << "one chart a group";
    EXPECT_EQ(run("$('.legend text').length").toInt(), 16);
    EXPECT_TRUE(run("$('#Velocity .legend').text()").toString().contains("Velocity achieved [vel]"));
    EXPECT_TRUE(run("$('#Velocity + p').text()").toString().startsWith("vel = counts per control cycle"));
    EXPECT_EQ(run("$('#Torque').data('plot').getData().length").toInt(), 4);
    EXPECT_EQ(run("$('#Torque').data('plot').getData()[3].data.length").toInt(), 8000);
    EXPECT_NEAR(torqueAxis("xaxis.max"), 7999 / 17500.0, 1e-6);
}

TEST_F(PlotPage, ZoomsIntoWhatIsSelectedWithTheMouse)
{
    show(5, 400);
    const double width = torqueAxis("xaxis.max");
    zoomIn();
    const double left = torqueAxis("xaxis.min");
    EXPECT_NEAR(left, width / 2, width / 20);
    EXPECT_NEAR(torqueAxis("xaxis.max"), left + width * 100 / 800, width / 40);
    EXPECT_LT(torqueAxis("yaxis.max"), 0.2);
    EXPECT_GT(torqueAxis("yaxis.min"), -0.8);

    // Again and again: never narrower than the clamp, so never an empty range.
    const QPoint middle = middleOf("#Torque canvas");
    for (int i = 0; i < 8; ++i)
        drag(middle, middle + QPoint(6, 6));
    EXPECT_GT(torqueAxis("xaxis.max") - torqueAxis("xaxis.min"), 0.99e-5);
    EXPECT_EQ(run("$('#Torque .legend').length").toInt(), 1);
    EXPECT_EQ(complaints.join("; ").toStdString(), "");
}

TEST_F(PlotPage, FollowsTheWidthOfThePaneKeepingTheZoom)
{
    show(2, 400);
    zoomIn();
    const double zoomed = torqueAxis("xaxis.max");
    for (const int width : {400, 500, 830, 1100}) {
        view.resize(width, 700);
        ASSERT_TRUE(waitFor([&] { return run("window.innerWidth").toInt() == width; }, 10000)) << width;
        EXPECT_TRUE(waitFor(
            [&] { return run("$('#Torque').data('plot').getCanvas().clientWidth").toInt() > width - 80; }, 10000))
            << width;
        EXPECT_LE(run("document.documentElement.scrollWidth").toInt(), width);
        EXPECT_EQ(torqueAxis("xaxis.max"), zoomed);
    }
}

TEST_F(PlotPage, ANewCaptureIsDrawnIntoThePageThatStandsAndKeepsTheZoomOfTheSameChannels)
{
    show(5, 400);
    zoomIn();
    const double left = torqueAxis("xaxis.min");
    run("window.stillHere = true");
    show(pageOf(5, 800));
    EXPECT_TRUE(run("window.stillHere").toBool()) << "the page was loaded anew";
    EXPECT_EQ(run("$('#Torque').data('plot').getData()[0].data.length").toInt(), 800);
    EXPECT_EQ(torqueAxis("xaxis.min"), left);
    const double zoomed = torqueAxis("xaxis.max");
    zoomIn(); // the page's own mouse still works, once
    EXPECT_LT(torqueAxis("xaxis.max"), zoomed);

    show(pageOf(5, 800, 14, "Another channel"));
    EXPECT_TRUE(run("window.stillHere").toBool());
    EXPECT_EQ(torqueAxis("xaxis.min"), 0);
    zoomIn();
    show(pageOf(5, 800, 14, "Another channel"), HelpView::Zoom::Reset);
    EXPECT_EQ(torqueAxis("xaxis.min"), 0);
    EXPECT_EQ(complaints.join("; ").toStdString(), "");
}

TEST_F(PlotPage, LinksAreHandedToTheProgram)
{
    show(1, 10);
    QSignalSpy clicked(&view, &HelpView::linkClicked);
    QStringList targets;
    run("$('body').prepend('<p><a id=\"out\" href=\"http://wiki.tarnwell.example/wiki/X\">x</a> "
        "<a id=\"window\" target=\"_blank\" href=\"http://wiki.tarnwell.example/wiki/Y\">y</a></p>')");
    for (const char *link : {"a[href*=exportpdf]", "a[href*=reloadplots]", "a[href*=showhelp]", "#out", "#window"}) {
        QTest::mouseClick(surface(), Qt::LeftButton, {}, middleOf(link));
        ASSERT_TRUE(clicked.count() > targets.size() || clicked.wait(10000)) << link;
        targets << clicked.last().first().toUrl().toString();
    }
    EXPECT_EQ(targets, (QStringList{"tdext://exportpdf", "tdext://reloadplots", "tdext://showhelp",
                                    "http://wiki.tarnwell.example/wiki/X", "http://wiki.tarnwell.example/wiki/Y"}));
    EXPECT_EQ(run("$('h1').text()").toString(), "Velbrin servo scope") << "the page stays";
}

TEST_F(PlotPage, WithoutSamplesOrChannelsIsStillAPage)
{
    show(3, 0);
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 3);
    show(2, 1);
    show(0, 0);
    EXPECT_EQ(run("$('h1').text()").toString(), "Velbrin servo scope");
}

TEST_F(PlotPage, PicturesShowTheZoomAndAFullDiskLeavesTheOldOne)
{
    show(5, 400);
    const auto picture = [this](const char *name) {
        const QString file = folder.filePath(name);
        QSignalSpy saved(&view, &HelpView::pictureSaved);
        view.savePng(file);
        EXPECT_TRUE(saved.wait(30000));
        EXPECT_EQ(saved.value(0).value(0).toString().toStdString(), "");
        return QImage(file);
    };
    const QImage whole = picture("whole.png");
    EXPECT_EQ(picture("again.png"), whole);
    zoomIn();
    EXPECT_NE(picture("zoomed.png"), whole);

    for (const char *impossible : {"/proc/plot.png", "/nowhere/plot.png"}) {
        QSignalSpy saved(&view, &HelpView::pictureSaved);
        view.savePng(impossible);
        ASSERT_TRUE(saved.wait(30000));
        EXPECT_TRUE(saved[0][0].toString().startsWith(QString("Error writing graphs to file ") + impossible));
    }
}

TEST_F(PlotPage, AnEngineThatDiesIsSaidInWordsAndStartsAgain)
{
    show(2, 10);
    const auto *note = view.findChild<QLabel *>("helpViewNote");
    EXPECT_FALSE(note->isVisible());
    const std::vector<pid_t> processes = pageProcesses();
    ASSERT_FALSE(processes.empty());
    for (const pid_t process : processes)
        kill(process, SIGKILL);
    ASSERT_TRUE(waitFor([&] { return note->isVisible(); }, 20000));
    EXPECT_TRUE(note->text().contains("has ended unexpectedly"));
    EXPECT_TRUE(note->text().contains("tdext://exportpdf")) << "as text it can still be saved";
    QSignalSpy clicked(&view, &HelpView::linkClicked);
    emit const_cast<QLabel *>(note)->linkActivated("tdext://exportpdf");
    EXPECT_EQ(clicked.count(), 1);
    QSignalSpy saved(&view, &HelpView::pictureSaved);
    view.savePng(folder.filePath("no.png"));
    ASSERT_EQ(saved.count(), 1);
    EXPECT_TRUE(saved[0][0].toString().contains("no plot is shown"));
    emit const_cast<QLabel *>(note)->linkActivated("restart:");
    EXPECT_TRUE(waitFor([this] { return run("$('canvas.flot-base').length").toInt() == 2; }, 20000));
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
