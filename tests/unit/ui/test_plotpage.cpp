// The plot page in the engine that shows it.
#include "plotpagefixture.h"

#include "pageprocesses.h"

#include <QProcess>

#include <csignal>

TEST_F(PlotPage, DrawsEveryChannelWithItsPointsAndALegendAlsoFromAPageOfManyMegabytes)
{
    const QString page = pageOf(16, 8000);
    ASSERT_GT(page.size(), 2200000);
    show(page);
    EXPECT_EQ(run("$('canvas.flot-base').length").toInt(), 7) << "one chart a group";
    EXPECT_EQ(run("$('.scope-legend button').length").toInt(), 16);
    EXPECT_EQ(run("$('.flot-base').parent().find('.legend').length").toInt(), 0) << "nothing covers a curve";
    EXPECT_TRUE(run("$('[data-chart=Velocity]').text()").toString().contains("Velocity achieved [vel]"));
    EXPECT_TRUE(run("$('#Velocity + p').text()").toString().startsWith("vel = counts per control cycle"));
    EXPECT_EQ(run("$('#Torque').data('plot').getData().length").toInt(), 4);
    EXPECT_EQ(run("$('#Torque').data('plot').getData()[3].data.length").toInt(), 8000);
    EXPECT_NEAR(axis("Torque", "xaxis.max"), 7999 / 17500.0, 1e-6);
}

TEST_F(PlotPage, ZoomsIntoWhatIsSelectedWithTheMouse)
{
    show(5, 400);
    const double width = axis("Torque", "xaxis.max");
    zoomIn();
    const double left = axis("Torque", "xaxis.min");
    EXPECT_NEAR(left, width / 2, width / 20);
    EXPECT_NEAR(axis("Torque", "xaxis.max"), left + width * 100 / 800, width / 40);
    EXPECT_LT(axis("Torque", "yaxis.max"), 0.2);
    EXPECT_GT(axis("Torque", "yaxis.min"), -0.8);
    // Again and again: never narrower than the clamp, so never an empty range.
    const QPoint middle = middleOf("#Torque canvas");
    for (int i = 0; i < 8; ++i)
        drag(middle, middle + QPoint(6, 6));
    EXPECT_GT(axis("Torque", "xaxis.max") - axis("Torque", "xaxis.min"), 0.99e-5);
}

TEST_F(PlotPage, FollowsTheWidthOfThePaneKeepingTheZoom)
{
    show(2, 400);
    zoomIn();
    const double zoomed = axis("Torque", "xaxis.max");
    for (const int width : {400, 500, 830, 1100}) {
        const int beside = width < 1000 ? 80 : 440; // from 1000 on the tables stand beside the charts
        view.resize(width, 700);
        ASSERT_TRUE(waitFor([&] { return run("window.innerWidth").toInt() == width; }, 10000)) << width;
        EXPECT_TRUE(waitFor(
            [&] { return run("$('#Torque').data('plot').getCanvas().clientWidth").toInt() > width - beside; }, 10000))
            << width;
        EXPECT_LE(run("document.documentElement.scrollWidth").toInt(), width);
        EXPECT_EQ(axis("Torque", "xaxis.max"), zoomed);
    }
}

TEST_F(PlotPage, ANewCaptureIsDrawnIntoThePageThatStandsAndKeepsTheZoomOfTheSameChannels)
{
    show(5, 400);
    zoomIn();
    const double left = axis("Torque", "xaxis.min");
    run("window.stillHere = true");
    show(pageOf(5, 800));
    EXPECT_TRUE(run("window.stillHere").toBool()) << "the page was loaded anew";
    EXPECT_EQ(run("$('#Torque').data('plot').getData()[0].data.length").toInt(), 800);
    EXPECT_EQ(axis("Torque", "xaxis.min"), left);
    const double zoomed = axis("Torque", "xaxis.max");
    zoomIn(); // the page's own mouse still works, once
    EXPECT_LT(axis("Torque", "xaxis.max"), zoomed);

    show(pageOf(5, 800, "Another channel"));
    EXPECT_TRUE(run("window.stillHere").toBool());
    EXPECT_EQ(axis("Torque", "xaxis.min"), 0);
    zoomIn();
    show(pageOf(5, 800, "Another channel"), HelpView::Zoom::Reset);
    EXPECT_EQ(axis("Torque", "xaxis.min"), 0);
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

TEST_F(PlotPage, PicturesShowTheZoom)
{
    show(5, 400);
    const QImage whole = picture(1100);
    EXPECT_EQ(picture(1100), whole);
    zoomIn();
    EXPECT_NE(picture(1100), whole);
}

TEST_F(PlotPage, PicturesAreAsWideAsAskedFor)
{
    show(2, 100);
    for (const auto &[asked, wide] : {std::pair(1100, 1100), {2000, 1100}, {801, 801}, {100, 400}}) {
        const QImage image = picture(asked);
        EXPECT_EQ(image.width(), wide);
        EXPECT_GT(image.height(), 2 * 400);
        EXPECT_EQ(image.pixel(wide - 1, 0), image.pixel(0, 0)) << "the heading goes from edge to edge";
    }
}

TEST(PictureWidth, IsTheSameOnScaledScreens)
{
    for (const char *scale : {"1.75", "1.1", "3"}) {
        SCOPED_TRACE(scale);
        qputenv("QT_SCALE_FACTOR", scale); // read when the application is made, so the test above runs once more
        EXPECT_EQ(QProcess::execute(QCoreApplication::applicationFilePath(),
                                    {"--gtest_filter=PlotPage.PicturesAreAsWideAsAskedFor", "--gtest_brief=1"}),
                  0);
        qunsetenv("QT_SCALE_FACTOR");
    }
}

TEST_F(PlotPage, APictureWhoseProcessDiesIsGivenUpAtOnce)
{
    show(16, 5000);
    const std::vector<pid_t> former = pageProcesses();
    QSignalSpy saved(&view, &HelpView::pictureSaved);
    view.savePng(folder.filePath("no.png"));
    std::vector<pid_t> drawing;
    ASSERT_TRUE(waitFor([&] {
        for (const pid_t process : pageProcesses()) {
            if (std::count(former.begin(), former.end(), process) == 0)
                drawing.push_back(process);
        }
        return !drawing.empty();
    }));
    QElapsedTimer sinceDeath;
    sinceDeath.start();
    for (const pid_t process : drawing)
        kill(process, SIGKILL);
    ASSERT_TRUE(saved.count() == 1 || saved.wait(30000));
    EXPECT_LT(sinceDeath.elapsed(), 10000) << "not when its time is over";
    EXPECT_TRUE(saved[0][0].toString().contains("ended unexpectedly")) << qPrintable(saved[0][0].toString());
    EXPECT_FALSE(QFile::exists(folder.filePath("no.png")));
    EXPECT_EQ(run("$('a.waiting').length").toInt(), 0) << "the plot stands, and can be saved again";
}

TEST_F(PlotPage, ChartsShareOneTimeAxisByDragWheelAndKeys)
{
    showScope();
    view.setFocus();
    zoomIn();
    const auto shared = [this](const char *limit) {
        EXPECT_EQ(axis("Torque", limit), axis("Position", limit));
        return axis("Torque", limit);
    };
    const double left = shared("xaxis.min"), right = shared("xaxis.max");
    EXPECT_GT(left, 0.1);
    EXPECT_GT(axis("Position", "yaxis.max"), 80) << "values are zoomed in the chart that was dragged in, only";
    EXPECT_EQ(run("$('#Torque').data('plot').getPlotOffset().left").toInt(),
              run("$('#Position').data('plot').getPlotOffset().left").toInt());

    const QPoint middle = middleOf("#Torque canvas");
    QWheelEvent wheel(middle, surface()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(surface(), &wheel);
    ASSERT_TRUE(waitFor([&] { return axis("Torque", "xaxis.max") < right; }, 5000)) << "the wheel shows less";
    EXPECT_NEAR((shared("xaxis.max") - shared("xaxis.min")) / (right - left), 0.8, 0.01);
    key(Qt::Key_Minus);
    EXPECT_NEAR(shared("xaxis.max") - shared("xaxis.min"), right - left, 1e-6);
    const double before = shared("xaxis.min");
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(shared("xaxis.min") - before, (right - left) / 10, 1e-6);
    key(Qt::Key_0);
    EXPECT_EQ(shared("xaxis.min"), 0);
    EXPECT_NEAR(shared("xaxis.max"), 0.499, 1e-9);
}

TEST_F(PlotPage, CursorsTellValuesAndDifferencesInMachineUnitsAndRawWords)
{
    showScope();
    view.setFocus();
    run("velbrinScope.setCursor(0, 0.1002)"); // on the sample next to it
    run("velbrinScope.setCursor(1, 0.3)");
    EXPECT_EQ(textOf("#scope-cursors tr:eq(1)"), "Time100 ms300 ms200 ms");
    EXPECT_EQ(textOf("#scope-cursors tr:eq(4)"), "Position achieved [degrees]185436");
    EXPECT_EQ(textOf("#scope-cursors p"), "1 / \u0394t = 5 Hz");
    key(Qt::Key_U); // raw words of the recorder
    EXPECT_EQ(textOf("#scope-cursors tr:eq(2)"), "Torque achieved [raw]200600400");
    EXPECT_EQ(textOf("#scope-cursors tr:eq(4)"), "Position achieved [raw]200600400");
    EXPECT_GT(axis("Position", "yaxis.max"), 998);
    key(Qt::Key_Left);
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(textOf("#scope-cursors tr:eq(1)"), "Time100 ms289 ms189 ms");

    // By mouse: a click sets the first, Shift and a click the second, and a cursor is dragged, which selects nothing.
    const QPoint middle = middleOf("#Torque canvas");
    input("click", [&] { QTest::mouseClick(surface(), Qt::LeftButton, {}, middle); });
    const double clicked = run("velbrinScope.cursors[0]").toDouble();
    EXPECT_NEAR(clicked, 0.26, 0.03);
    drag(middle, middle + QPoint(100, 0));
    EXPECT_GT(run("velbrinScope.cursors[0]").toDouble(), clicked + 0.04);
    EXPECT_EQ(axis("Torque", "xaxis.min"), 0) << "nothing was selected";
    key(Qt::Key_C);
    EXPECT_TRUE(textOf("#scope-cursors").contains("Click into a chart"));
}

TEST_F(PlotPage, ANewCaptureKeepsZoomCursorsUnitsAndHiddenChannelsAndAnOlderOneLiesUnderIt)
{
    showScope();
    run("velbrinScope.showTime(0.1, 0.2); velbrinScope.setCursor(0, 0.15); velbrinScope.setUnits(1)");
    run("$('[data-chart=Position] button').first().click()");
    const QJsonArray values{0, 5000, 0};
    const QJsonObject difference{{"name", "<b>KVP"}, {"older", "1"}, {"present", "2"}};
    showScope({{"overlay", QJsonObject{{"title", "12:00:00"},
                                       {"period", 0.1},
                                       {"channels", QJsonObject{{"posmeas", values}}},
                                       {"differences", QJsonArray{difference}}}},
               {"note", "<img src=x onerror=alert(1)>"}});
    EXPECT_EQ(axis("Torque", "xaxis.min"), 0.1);
    EXPECT_EQ(run("velbrinScope.cursors[0]").toDouble(), 0.15);
    EXPECT_EQ(textOf("[aria-pressed=true][id^=scope-units]"), "Raw words");
    EXPECT_FALSE(run("$('#Position').data('plot').getData()[0].lines.show").toBool());
    EXPECT_GT(axis("Position", "yaxis.max"), 5000) << "the older one has to fit in, too";
    EXPECT_EQ(textOf("#scope-differences tr:eq(1)"), "<b>KVP12") << "text, never markup";
    EXPECT_EQ(run("$('#scope-panel img, #scope-panel b').length").toInt(), 0);
    EXPECT_EQ(textOf("#scope-note p"), "<img src=x onerror=alert(1)>");

    const QJsonObject rise{{"caption", "Rise"}, {"value", "12 ms"}, {"isDefined", true}};
    view.updateScope({{"figures", QJsonArray{rise}}});
    EXPECT_EQ(textOf("#scope-figures td"), "Rise12 ms");
    const QJsonObject error{
        {"brief", "RMS"}, {"value", "20 counts"}, {"isDefined", true}, {"number", 20}, {"unit", "cnts"}};
    view.updateScope({{"figures", QJsonArray{error}}});
    EXPECT_EQ(textOf("#scope-summary"), "RMS 20 counts") << "a raw word has no fractions";
    run("velbrinScope.setUnits(0)");
    EXPECT_EQ(textOf("#scope-summary"), "RMS 1.8 degrees") << "in the unit of the charts";
    EXPECT_EQ(axis("Torque", "xaxis.min"), 0.1) << "figures move nothing";
    view.updateScope({{"overlay", QJsonValue()}});
    EXPECT_LT(axis("Position", "yaxis.max"), 1100);
}

TEST_F(PlotPage, OpenedOutTheChartsFitTheWindowAlsoWithSixteenChannels)
{
    show(16, 125);
    view.resize(1400, 900);
    ASSERT_TRUE(waitFor([this] { return run("window.innerWidth").toInt() == 1400; }));
    view.updateScope({{"isOpenedOut", true}});
    EXPECT_LE(run("$('#Last').offset().top + $('#Last').height()").toInt(), 7 * (150 + 40) + 120);
}
