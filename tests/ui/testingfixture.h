/// \file
/// The Testing page of the real window: captures that are armed, awaited and looked at in the page's own charts.
#ifndef VELBRIN_TESTS_TESTINGFIXTURE_H
#define VELBRIN_TESTS_TESTINGFIXTURE_H

#include "windowfixture.h" // before Qt, whose keywords it uses as names

#include "flotfolder.h"

class TestingFixture : public WindowFixture
{
protected:
    enum Trigger { Rise, Change, Fault, Instantly };

    TestingFixture() { m_webEngine = HelpView::Engine::Allowed; }
    void SetUp() override
    {
        WindowFixture::SetUp();
        makeFlotFolder(".");
        ASSERT_NO_FATAL_FAILURE(openConnectedWindow());
        goTo(testingPage);
    }

    void enableDrive()
    {
        click("enable_drive");
        ASSERT_TRUE(waitFor([this] { return (m_state.statusRegister & statusBitRun) != 0; }));
    }
    /// Whether a panel shows a flag as set (a filled circle).
    static bool isSet(const QLabel *panel, const char *flag)
    {
        return panel->text().contains(QString("&#9679;&nbsp;&nbsp;") + flag);
    }
    QString captureText() const { return button("ScopeCaptureNow")->text(); }
    void tick(std::initializer_list<const char *> channels)
    {
        for (const char *all : {"ScopeTorqRef", "ScopeTorqMeas", "ScopeVelRef", "ScopeVelMeas"})
            control<QCheckBox>(all)->setChecked(false);
        for (const char *channel : channels)
            control<QCheckBox>(channel)->setChecked(true);
    }
    void choose(Trigger trigger, const char *rate)
    {
        control<QComboBox>("captureTrigger")->setCurrentIndex(trigger);
        auto *rates = control<QComboBox>("ScopeSampleRate");
        rates->setCurrentText(rate);
        EXPECT_EQ(rates->currentText(), rate);
    }
    /// Presses the button and waits until the drive's recorder waits for its trigger.
    void arm()
    {
        click("ScopeCaptureNow");
        ASSERT_TRUE(waitFor([this] { return bus().read(DriveAddress, scopeState) != 0; }));
        ASSERT_TRUE(waitFor([this] { return captureText() == "Scope waiting.."; }));
    }
    void waitForPlot()
    {
        ASSERT_TRUE(waitFor([this] { return captureText() == "Start capture"; }));
        ASSERT_TRUE(waitFor([this] { return run("$('canvas.flot-base').length").toInt() > 0; }))
            << qPrintable(connectionText() + ", " + shownMessage() + ", " + shownText().left(80));
    }
    /// Types a target and presses "Set Abs".
    void stepTo(int target)
    {
        control<QSpinBox>("stimulusTarget1")->setValue(target);
        click("setAbs1");
    }

    /// Samples (time in s, value as recorded) of a series in a chart of the plot on display, whatever its unit is
    /// there.
    QVector<QPointF> samples(const char *group, int series) const
    {
        const QString script("(c => c.times.map((t, k) => [t, c.values[k]]))"
                             "(velbrinScope.charts.find(chart => chart.id === '%1').channels[%2])");
        QVector<QPointF> result;
        for (const QVariant &point : run(script.arg(group).arg(series)).toList())
            result << QPointF(point.toList().value(0).toDouble(), point.toList().value(1).toDouble());
        return result;
    }
};

#endif
