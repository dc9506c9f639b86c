// Tries without leaving the Testing page, captures that are opened again, and charts that have the window.
#include "testingfixture.h"

#include "testfiles.h"

#include "checksum.h"
#include "scopedesk.h"

#include <QRegularExpression>

namespace {

constexpr int KPP = 201, AFF = 221;

class Scope : public TestingFixture
{
protected:
    void capture(int target)
    {
        arm();
        stepTo(target);
        waitForPlot();
        ASSERT_TRUE(waitFor([this] { return !figures().isEmpty() && run("$('.scope-stale').length").toInt() == 0; }));
    }
    QTableWidget *tries() const { return control<QTableWidget>("triesTable"); }
    QString figures() const { return run("$('#scope-figures').text()").toString(); }
    QString cell(int row, const char *caption) const
    {
        for (int column = 0; column < tries()->columnCount(); ++column) {
            if (tries()->horizontalHeaderItem(column)->text() == caption)
                return tries()->item(row, column)->text();
        }
        return QString("no column %1").arg(caption);
    }
    void open(const QString &file)
    {
        m_answers.chooseFile(file);
        click("triesOpen");
    }
};

} // namespace

TEST_F(Scope, ATryIsChangedAppliedSteppedAndSeenOnThePageAndAnEarlierOneTakenBackAsAnEdit)
{
    tick({"ScopeTorqRef", "ScopePosRef", "ScopePosMeas"});
    choose(Change, "2500 Hz");
    enableDrive();
    capture(1000);
    EXPECT_TRUE(figures().contains("Overshoot0 %")) << qPrintable(figures());
    const int before = control<QSpinBox>("gainKPP")->value();
    EXPECT_EQ(before, bus().read(DriveAddress, KPP));

    control<QSpinBox>("gainKPP")->setValue(4 * before);
    ASSERT_TRUE(waitFor([this] { return button("gainsApply")->text() == "Apply settings (parameters changed)"; }));
    click("gainsApply");
    ASSERT_TRUE(driveHas(KPP, 4 * before));
    capture(0);
    ASSERT_EQ(tries()->rowCount(), 2);
    EXPECT_EQ(cell(0, "KPP"), QString::number(4 * before)) << "the newest on top";
    EXPECT_EQ(cell(1, "KPP"), QString::number(before));
    EXPECT_GT(cell(0, "Overshoot").section(' ', 0, 0).toDouble(), 20);
    EXPECT_EQ(cell(1, "Overshoot"), "0 %");

    tries()->selectRow(1);
    ASSERT_TRUE(waitFor([this] { return figures().contains("Overshoot0 %"); }));
    EXPECT_EQ(samples("Position", 1).last().y(), 1000);
    click("triesTake");
    EXPECT_EQ(control<QSpinBox>("KPP")->value(), before);
    EXPECT_TRUE(waitForPending(true));
    EXPECT_EQ(bus().read(DriveAddress, KPP), 4 * before) << "nothing is applied by itself";

    click("triesUnder"); // the selected one, under the newest
    EXPECT_TRUE(waitFor([this] { return samples("Position", 1).last().y() < 500; }));
    EXPECT_TRUE(waitFor([this] { return run("$('#scope-differences').text()").toString().contains("KPP"); }));
    EXPECT_EQ(bus().read(DriveAddress, faultBits), 0);
}

TEST_F(Scope, AxisSheetOfABackAndForthMoveProposesFeedForwardThatIsTakenAsAnEdit)
{
    tick({"ScopeTorqRef", "ScopeTorqMeas", "ScopePosRef", "ScopePosMeas"});
    choose(Change, "2500 Hz");
    enableDrive();
    control<QSpinBox>("stimulusTarget1")->setValue(1900);
    control<QSpinBox>("stimulusTarget2")->setValue(0);
    control<QDoubleSpinBox>("stimulusDelay1")->setValue(0.1);
    control<QDoubleSpinBox>("stimulusDelay2")->setValue(0.1);
    control<QCheckBox>("stimulusEnabled")->setChecked(true);
    ASSERT_TRUE(waitFor([this] { return std::abs(bus().read(DriveAddress, positionRegister)) > 500; }, 20000));
    click("ScopeCaptureNow");
    ASSERT_TRUE(waitFor([this] { return run("$('#scope-axis').length").toInt() == 1; }, 20000));
    control<QCheckBox>("stimulusEnabled")->setChecked(false);
    const QString sheet = run("$('#scope-axis').text()").toString();
    EXPECT_TRUE(sheet.contains("±")) << qPrintable(sheet);
    const int aff = control<QSpinBox>("AFF")->value();
    clickLink("tdext://scope/take-feed-forward");
    EXPECT_NE(control<QSpinBox>("AFF")->value(), aff);
    EXPECT_TRUE(waitForPending(true));
    EXPECT_EQ(bus().read(DriveAddress, AFF), aff);
}

TEST_F(Scope, ASavedPageShowsTheSamePictureAndFiguresWithoutADriveAndBadFilesChangeNothing)
{
    tick({"ScopeTorqRef", "ScopePosRef", "ScopePosMeas"});
    choose(Change, "2500 Hz");
    enableDrive();
    capture(1000);
    const QString figuresThen = figures();
    const QVector<QPointF> then = samples("Position", 1);
    const QString file = path("step.html");
    // The user's words on it, typed into its row.
    QTableWidgetItem *note = tries()->item(0, tries()->columnCount() - 1);
    tries()->editItem(note);
    auto *editor = tries()->viewport()->findChild<QLineEdit *>();
    ASSERT_NE(editor, nullptr);
    editor->setText("belt <b>loose");
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_TRUE(waitFor([this] { return run("$('body').text()").toString().contains("belt <b>loose"); }));
    m_answers.chooseFile(file);
    clickLink("tdext://exportpdf");
    ASSERT_TRUE(waitFor([&] { return QFile::exists(file); })) << qPrintable(shownMessage());
    EXPECT_LT(QFileInfo(file).size(), 1000000);
    m_window.reset();

    openWindow();
    goTo(testingPage);
    open(file);
    ASSERT_TRUE(waitFor([this] { return run("$('canvas.flot-base').length").toInt() > 0; }, 20000));
    ASSERT_TRUE(waitFor([&] { return figures() == figuresThen; })) << qPrintable(figures());
    EXPECT_EQ(samples("Position", 1), then);
    EXPECT_EQ(tries()->rowCount(), 1);
    EXPECT_EQ(cell(0, "Note"), "belt <b>loose");

    put(path("cut.json"), "{\"format\":\"velbrin-capture\",\"ver");
    open(path("cut.json"));
    ASSERT_TRUE(waitFor([this] { return shownMessage().contains("capture"); }));
    closeMessage();
    EXPECT_EQ(tries()->rowCount(), 1);
    EXPECT_EQ(samples("Position", 1), then);
}

TEST_F(Scope, ASeriesKeepsZoomCursorsAndPlaceOnThePage)
{
    tick({"ScopeTorqRef", "ScopePosMeas"});
    choose(Instantly, "20000 Hz");
    click("ScopeCaptureNow");
    waitForPlot();
    ASSERT_TRUE(waitFor([this] { return !figures().isEmpty(); }));
    const QString range = "(a => [velbrinScope.seenTime().from, velbrinScope.seenTime().to, a.min, a.max])"
                          "($('#Position').data('plot').getAxes().xaxis)";
    const QVariantList whole = run(range).toList();
    run("velbrinScope.showTime(0.01, 0.02); velbrinScope.setCursor(0, 0.015); window.scrollTo(0, 200)");
    const QString state = "[velbrinScope.seenTime(), velbrinScope.cursors, window.scrollY,"
                          " document.documentElement.scrollHeight, $('#Position').offset().top,"
                          " $('#Position').data('plot').getPlotOffset().left]";
    const QVariantList before = run(state).toList();
    ASSERT_EQ(before.size(), 6);
    auto *repeat = control<QCheckBox>("repeatCapture");
    repeat->setChecked(true);
    click("ScopeCaptureNow");
    ASSERT_TRUE(waitFor([this] { return tries()->rowCount() >= 4; }, 20000));
    repeat->setChecked(false);
    ASSERT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));
    // A row or two may have come to the list of captures, below the charts in this narrow pane.
    for (const int i : {0, 1, 2, 4, 5})
        EXPECT_EQ(run(state).toList().value(i), before[i]) << i;
    EXPECT_EQ(run(range).toList(), (QVariantList{0.01, 0.02, 0.01, 0.02}));
    clickLink("tdext://reloadplots");
    EXPECT_TRUE(waitFor([&] { return run(range).toList() == whole; }));
}

TEST_F(Scope, TheChartsTakeTheWindowAndGiveItBackAndEscStillDisables)
{
    press(Qt::Key_F11);
    EXPECT_TRUE(control<QWidget>("settingsPane")->isVisible()) << "there is no plot";
    tick({"ScopePosMeas"});
    choose(Instantly, "20000 Hz");
    enableDrive();
    click("ScopeCaptureNow");
    waitForPlot();
    press(Qt::Key_F11);
    EXPECT_FALSE(control<QWidget>("settingsPane")->isVisible());
    EXPECT_TRUE(waitFor([this] { return run("$('html').hasClass('scope-open')").toBool(); }));
    EXPECT_GT(view()->width(), m_window->width() - 40);
    press(Qt::Key_S, Qt::AltModifier); // a new capture from here
    ASSERT_TRUE(waitFor([this] { return tries()->rowCount() == 2; }, 20000));
    EXPECT_TRUE(run("$('html').hasClass('scope-open')").toBool());
    view()->setFocus();
    ASSERT_TRUE(waitFor([this] { return view()->isAncestorOf(QApplication::focusWidget()); }))
        << "the page has the keys";
    press(Qt::Key_Escape);
    EXPECT_TRUE(waitForWrite(softEnable, 0));
    EXPECT_TRUE(view()->isAncestorOf(QApplication::focusWidget())) << "and had them when it was pressed";
    clickLink("tdext://scope/open-out");
    EXPECT_TRUE(control<QWidget>("settingsPane")->isVisible());
    press(Qt::Key_F11);
    clickLink("tdext://showhelp");
    EXPECT_TRUE(control<QWidget>("settingsPane")->isVisible()) << "help has no way back of its own";
}

TEST_F(Scope, ReportHasTheMachineTheNotesTheChosenCaptureAndTheStopTest)
{
    tick({"ScopePosMeas", "ScopeVelMeas"});
    choose(Fault, "2500 Hz");
    enableDrive();
    arm();
    stepTo(1900);
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, positionRegister, [](int counts) { return counts > 300; }));
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.axis().inputs().safeTorqueOff = true; });
    waitForPlot();
    const QString file = path("report.html");
    m_answers.expect([](QWidget *dialog) {
        dialog->findChild<QLineEdit *>("reportMachine")->setText("Saw <b>7");
        auto *notes = dialog->findChild<QTableWidget *>("reportNotes");
        if (notes->rowCount() > 0)
            notes->item(0, 3)->setText("by hand");
        auto *stops = dialog->findChild<QComboBox *>("reportStopTest");
        EXPECT_EQ(stops->count(), 2);
        stops->setCurrentIndex(1);
        return QMetaObject::invokeMethod(dialog, "accept");
    });
    m_answers.chooseFile(file);
    click("triesReport");
    QFile report(file);
    ASSERT_TRUE(waitFor([&] { return report.exists(); })) << qPrintable(said());
    ASSERT_TRUE(report.open(QIODevice::ReadOnly)) << qPrintable(said());
    const QByteArray text = report.readAll();
    EXPECT_TRUE(text.contains("Saw &lt;b&gt;7"));
    EXPECT_TRUE(text.contains("<svg")) << "the capture that is shown is chosen";
    EXPECT_FALSE(text.contains("<script"));
    EXPECT_FALSE(text.contains("Not done."));
    const auto stop = QRegularExpression("Time to standstill</th><td>([\\d.]+) ms").match(text);
    EXPECT_GT(stop.captured(1).toDouble(), 1.0);
    EXPECT_TRUE(checkReportFile(file).problem.isEmpty());
}
