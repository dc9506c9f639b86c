// The plot page in the engine that shows it.
#include "captureplotter.h"
#include "flotfolder.h"
#include "parameters.h"

#include <gtest/gtest.h>

#include <QEventLoop>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

#include <cmath>

namespace {

/// Keeps what the page's scripts complain about.
class Page : public QWebPage
{
public:
    using QWebPage::QWebPage;
    QStringList complaints;

protected:
    void javaScriptConsoleMessage(const QString &message, int line, const QString &) override
    {
        complaints.append(message + QStringLiteral(" in line ") + QString::number(line));
    }
};

class PlotPage : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        makeFlotFolder(folder.path());
        view.setPage(page);
        view.page()->setLinkDelegationPolicy(QWebPage::DelegateAllLinks);
        view.resize(900, 700);
        view.show();
    }

    void show(int channels, int samples)
    {
        static const char *const groups[] = {"Torque",   "Velocity", "Other", "Torque",
                                             "Position", "PWM",      "Debug", "Last"};
        QList<CaptureData> captures;
        for (int i = 0; i < channels; ++i) {
            CaptureData c;
            c.enabled = true;
            c.name = i == 1 ? QString("Velocity achieved") : QString("Channel %1 [A]").arg(i);
            c.key = QString("key%1").arg(i);
            c.group = groups[i % 8];
            for (int k = 0; k < samples; ++k)
                c.samples.append({k / 17500.0, std::sin(k * 0.01 * (i + 1))});
            captures.append(c);
        }
        QSignalSpy loaded(&view, &QWebView::loadFinished);
        view.setHtml(CapturePlotter().generatePlotPage(captures, parameterListing(), "KETA"),
                     QUrl("file:///" + folder.path() + "/flot/examples/"));
        // With the scripts still in the engine's memory it is loaded already, but drawn a turn of the event loop later.
        ASSERT_TRUE(!loaded.isEmpty() || loaded.wait(30000));
        run("$(function () { window.drawn = true; })");
        ASSERT_TRUE(QTest::qWaitFor([this] { return run("window.drawn").toBool(); }, 30000));
        EXPECT_EQ(page->complaints.join("; ").toStdString(), "");
    }

    /// As wide as a drive's: the longest names and values there are.
    static QString parameterListing()
    {
        Parameters parameters;
        for (int i = 0; i < 14; ++i) {
            SingleParam p;
            p.name = QString("BUILDREVISION%1").arg(i);
            p.value = -1234567.891;
            parameters.addParameter(p);
        }
        return parameters.getParamsHTMLList();
    }

    QVariant run(const QString &script) { return page->mainFrame()->evaluateJavaScript(script); }
    double torqueAxis(const char *limit)
    {
        return run(QString("$('#Torque').data('plot').getAxes().%1").arg(limit)).toDouble();
    }

    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
    }

    QTemporaryDir folder;
    QWebView view;
    Page *page = new Page(&view);
};

} // namespace

TEST_F(PlotPage, DrawsEveryChannelWithItsPointsAndALegend)
{
    show(16, 125);
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 7) << "one chart a group";
    EXPECT_EQ(run("$('.legend text').length").toInt(), 16);
    EXPECT_TRUE(run("$('#Velocity .legend').text()").toString().contains("Velocity achieved [vel]"));
    EXPECT_TRUE(run("$('#Velocity + p').text()").toString().startsWith("vel = counts per control cycle"));
    EXPECT_EQ(run("$('#Torque').data('plot').getData().length").toInt(), 4);
    EXPECT_EQ(run("$('#Torque').data('plot').getData()[3].data.length").toInt(), 125);
    EXPECT_NEAR(torqueAxis("xaxis.max"), 124 / 17500.0, 1e-6);
}

TEST_F(PlotPage, ZoomsIntoWhatIsSelectedWithTheMouse)
{
    show(5, 400);
    const QPoint middle = page->mainFrame()->findFirstElement("#Torque canvas").geometry().center();
    const double width = torqueAxis("xaxis.max");
    drag(middle, middle + QPoint(100, 60));
    const double left = torqueAxis("xaxis.min");
    EXPECT_NEAR(left, width / 2, width / 20);
    EXPECT_NEAR(torqueAxis("xaxis.max"), left + width * 100 / 800, width / 40);
    EXPECT_LT(torqueAxis("yaxis.max"), 0.2);
    EXPECT_GT(torqueAxis("yaxis.min"), -0.8);

    // Again and again: never narrower than the clamp, so never an empty range.
    for (int i = 0; i < 8; ++i)
        drag(middle, middle + QPoint(6, 6));
    EXPECT_GT(torqueAxis("xaxis.max") - torqueAxis("xaxis.min"), 0.99e-5);
    EXPECT_EQ(run("$('#Torque .legend').length").toInt(), 1);
    EXPECT_EQ(page->complaints.join("; ").toStdString(), "");
}

TEST_F(PlotPage, FollowsTheWidthOfThePaneKeepingTheZoom)
{
    show(2, 400);
    const QPoint middle = page->mainFrame()->findFirstElement("#Torque canvas").geometry().center();
    drag(middle, middle + QPoint(100, 60));
    const double zoomed = torqueAxis("xaxis.max");
    for (const int width : {400, 500, 830, 1100}) {
        page->setViewportSize(QSize(width, 700));
        EXPECT_EQ(page->mainFrame()->scrollBarMaximum(Qt::Horizontal), 0) << width;
        EXPECT_LE(page->mainFrame()->contentsSize().width(), width);
        EXPECT_GT(run("$('#Torque').data('plot').getCanvas().clientWidth").toInt(), width - 80);
        EXPECT_EQ(torqueAxis("xaxis.max"), zoomed);
    }
}

TEST_F(PlotPage, LinksAreHandedToTheProgram)
{
    show(1, 10);
    QSignalSpy clicked(&view, &QWebView::linkClicked);
    QStringList targets;
    for (const QWebElement &link : page->mainFrame()->findAllElements("a"))
        QTest::mouseClick(&view, Qt::LeftButton, {}, link.geometry().center());
    for (const QList<QVariant> &click : clicked)
        targets.append(click.first().toUrl().toString());
    EXPECT_EQ(targets, (QStringList{"tdext://exportpdf", "tdext://reloadplots", "tdext://showhelp"}));
}

TEST_F(PlotPage, WithoutSamplesOrChannelsIsStillAPage)
{
    show(3, 0);
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 3);
    show(2, 1);
    show(0, 0);
    EXPECT_EQ(run("$('h1').text()").toString(), "Velbrin servo scope");
}
