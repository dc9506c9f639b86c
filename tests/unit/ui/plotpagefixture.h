/// \file
/// A plot page in the engine that shows it: pages that are made up, looks into them, and the user's mouse and keys.
#ifndef VELBRIN_TESTS_PLOTPAGEFIXTURE_H
#define VELBRIN_TESTS_PLOTPAGEFIXTURE_H

#include "captureplotter.h"
#include "flotfolder.h"
#include "pagescript.h"
#include "parameters.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

inline QStringList complaints; ///< of the page's scripts

class PlotPage : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        makeFlotFolder(folder.path());
        QDir::setCurrent(folder.path());
        complaints.clear();
        before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &text) {
            if (context.category && qstrcmp(context.category, "js") == 0)
                complaints << text;
        });
        view.resize(900, 700);
        view.show();
        view.activateWindow();
    }
    void TearDown() override
    {
        EXPECT_EQ(complaints.join("; ").toStdString(), "");
        qInstallMessageHandler(before);
        QDir::setCurrent("/");
    }

    static CaptureData channel(const QString &key, const QString &name, const char *group, int samples, double period,
                               const std::function<double(int)> &value)
    {
        CaptureData c;
        c.enabled = true;
        c.key = key;
        c.name = name;
        c.group = group;
        for (int k = 0; k < samples; ++k)
            c.samples.append({k * period, value(k)});
        return c;
    }
    static QString pageOf(int channels, int samples, const char *firstName = "Channel 0 [A]")
    {
        static const char *const groups[] = {"Torque",   "Velocity", "Other", "Torque",
                                             "Position", "PWM",      "Debug", "Last"};
        QList<CaptureData> captures;
        for (int i = 0; i < channels; ++i) {
            const QString name = i == 0 ? firstName : i == 1 ? "Velocity achieved" : QString("Channel %1 [A]").arg(i);
            captures << channel(QString("key%1").arg(i), name, groups[i % 8], samples, 1 / 17500.0,
                                [i](int k) { return std::sin(k * 0.01 * (i + 1)); });
        }
        Parameters parameters; // as wide as a drive's: the longest names and values there are
        for (int i = 0; i < 14; ++i)
            parameters.addParameter(1, QString("BUILDREVISION%1").arg(i), 1, 0, false, true, "Keta");
        return CapturePlotter().generatePlotPage(captures, parameters.getParamsHTMLList(), "KETA");
    }

    void show(const QString &page, HelpView::Zoom zoom = HelpView::Zoom::Keep, const QJsonObject &scope = {})
    {
        view.showPlot(page, QUrl("file:///" + QDir::currentPath() + "/flot/examples/"), zoom, scope);
        ASSERT_TRUE(waitFor([this] { return run("window.velbrinView && velbrinView.drawn").toBool(); }, 15000));
    }
    void show(int channels, int samples) { show(pageOf(channels, samples)); }

    QImage picture(int wide)
    {
        QSignalSpy saved(&view, &HelpView::pictureSaved);
        view.savePng(folder.filePath("p.png"), wide);
        EXPECT_TRUE(saved.wait(30000));
        EXPECT_EQ(saved.value(0).value(0).toString().toStdString(), "");
        return QImage(folder.filePath("p.png"));
    }

    QVariant run(const QString &script) { return runScript(&view, script); }
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
    /// Returns when the page has had it. A script takes another way into the page: on a busy machine it overtakes
    /// input.
    void input(const char *event, const std::function<void()> &send)
    {
        run(QString("window.hadInput = false; window.addEventListener('%1', () => { window.hadInput = true; },"
                    " {capture: true, once: true})")
                .arg(event));
        send();
        ASSERT_TRUE(waitFor([this] { return run("window.hadInput").toBool(); })) << event;
    }
    void drag(const QPoint &from, const QPoint &to)
    {
        input("mousedown", [&] { QTest::mousePress(surface(), Qt::LeftButton, {}, from); });
        for (const QPoint &at : {from + (to - from) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, surface()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            input("mousemove", [&] { QCoreApplication::sendEvent(surface(), &move); });
        }
        input("mouseup", [&] { QTest::mouseRelease(surface(), Qt::LeftButton, {}, to); });
    }
    void zoomIn() { drag(middleOf("#Torque canvas"), middleOf("#Torque canvas") + QPoint(100, 60)); }

    /// Three channels of two groups as a drive records them, with what the program says about them.
    void showScope(const QJsonObject &more = {})
    {
        QList<CaptureData> captures;
        QJsonArray channels;
        const struct
        {
            const char *key, *name, *unit, *group;
            double scale;
        } rows[] = {{"torquemeas", "Torque achieved [A]", "A", "Torque", 1 / 560.0},
                    {"posreference", "Position setpoint", "cnts", "Position", 1},
                    {"posmeas", "Position achieved", "cnts", "Position", 1}};
        for (const auto &row : rows) {
            captures << channel(row.key, row.name, row.group, 500, 0.001, [&](int k) { return row.scale * k * 2; });
            captures.last().unit = row.unit;
            captures.last().scale = row.scale;
            channels << QJsonObject{
                {"key", row.key}, {"name", row.name}, {"unit", row.unit}, {"group", row.group}, {"scale", row.scale}};
        }
        const QJsonObject degrees{{"cnts", QJsonObject{{"factor", 0.09}, {"unit", "degrees"}}}};
        QJsonObject scope{{"channels", channels},
                          {"units", QJsonArray{QJsonObject{{"name", "Machine"}, {"units", degrees}}}}};
        for (auto member = more.begin(); member != more.end(); ++member)
            scope.insert(member.key(), member.value());
        show(CapturePlotter().generatePlotPage(captures, QString(), "KETA"), HelpView::Zoom::Keep, scope);
    }
    double axis(const char *chart, const char *limit)
    {
        return run(QString("$('#%1').data('plot').getAxes().%2").arg(chart, limit)).toDouble();
    }
    QString textOf(const char *element) { return run(QString("$('%1').text()").arg(element)).toString(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        input("keyup", [&] { QTest::keyClick(surface(), key, modifiers); });
    }

    QTemporaryDir folder;
    QtMessageHandler before = nullptr;
    HelpView view;
};

#endif
