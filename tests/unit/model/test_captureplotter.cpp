#include "captureplotter.h"
#include "testfiles.h"
#include "withvalues.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QLocale>
#include <QTemporaryDir>

namespace {

CaptureData channel(const char *name, const char *key, const char *group, const std::vector<double> &values)
{
    CaptureData c = channelOf(key, values, 2 / 17500.0);
    c.name = QString::fromLatin1(name);
    c.group = QString::fromLatin1(group);
    return c;
}

/// Two torque channels around a disabled one, velocity, then torque again, which has one sample less.
QList<CaptureData> recurring()
{
    QList<CaptureData> captures = {
        channel("Torque setpoint [A]", "torqueref", "Torque", {0.00001, -1 / 560.0, 7}),
        channel("Torque achieved [A]", "torquemeas", "Torque", {1, 2, 3}),
        channel("Velocity achieved", "velmeas", "Velocity", {1234567, -0.5, 7}),
        channel("Flux current", "fluxcurrent", "Torque", {655.35, 0}),
        channel("Debug 1", "debug", "Debug", {1}),
    };
    captures[1].enabled = captures[4].enabled = false;
    return captures;
}

/// A locale that writes a decimal comma, for as long as this lives.
struct DecimalComma
{
    DecimalComma() { QLocale::setDefault(QLocale(QLocale::German)); }
    ~DecimalComma() { QLocale::setDefault(QLocale::c()); }
};

} // namespace

TEST(CapturePlotter, PageRepeatsTheScriptOfAGroupThatRecurs)
{
    const DecimalComma locale;
    QString page = CapturePlotter().generatePlotPage(recurring(), "<h2>Parameters</h2> %1", "KETA 5% %2");
    const char *const parts[] = {
        "<!DOCTYPE HTML PUBLIC",
        "<link href=\"../css/plotlayout.css\"",
        "\"../excanvas.min.js\"",
        "\"../jquery.js\"",
        "\"../jquery.flot.js\"",
        "\"../jquery.flot.selection.js\"",
        "\"../jquery.flot.resize.js\"",
        "<h1>Velbrin servo scope</h1>\nKETA 5% %2&nbsp;&nbsp;|&nbsp;&nbsp;",
        "<a href=\"tdext://exportpdf\">Save as file</a>&nbsp;&nbsp;|&nbsp;&nbsp;<a "
        "href=\"tdext://reloadplots\">Restore "
        "zoom</a>&nbsp;&nbsp;|&nbsp;&nbsp;<a href=\"tdext://showhelp\">Switch to help "
        "browser</a>&nbsp;&nbsp;|&nbsp;&nbsp;Click and drag on graph to zoom</p>\n<div id=\"Torque\" "
        "style=\"width:100%;height:400px;\"></div>\n<div id=\"Velocity\" style=\"width:100%;height:400px;\"></div>\n"
        "<script type=\"text/javascript\">\n$(function () {\n    var options = {",
        "\nvar torqueref=[[0,1e-05],[0.000114286,-0.00178571]];\n"
        "var velmeas=[[0,1.23457e+06],[0.000114286,-0.5]];\n"
        "var fluxcurrent=[[0,655.35],[0.000114286,0]];\n"
        "var Torque=$.plot($(\"#Torque\"),[{ data: torqueref, label: \"Torque setpoint [A]\"} , "
        "{ data: fluxcurrent, label: \"Flux current\"} ], options);\n"
        "$(\"#Torque\").bind(\"plotselected\", function (event, ranges) {\n",
        "    Torque = $.plot($(\"#Torque\"), [{ data: torqueref, label: \"Torque setpoint [A]\"} , ",
        "var Velocity=$.plot($(\"#Velocity\"),",
        "var Torque=$.plot($(\"#Torque\"),",
        "\t\n});\n</script>\n<h2>Parameters</h2> %1\n</body>\n</html>\n",
    };
    qsizetype from = 0;
    for (const QString part : parts) {
        const qsizetype at = page.indexOf(part, from);
        ASSERT_GE(at, from) << part.toStdString();
        from = at + part.size();
    }
    EXPECT_EQ(from, page.size());
    EXPECT_EQ(page.count("$.plot($(\"#"), 6) << "three scripts, each of which plots again when zoomed";
    EXPECT_FALSE(page.contains("torquemeas") || page.contains("%D"));

    // It shows when it was made, and no chart without a channel.
    const QDateTime before = QDateTime::currentDateTime();
    page = CapturePlotter().generatePlotPage({}, "", "KETA");
    const int at = page.indexOf("KETA&nbsp;&nbsp;|&nbsp;&nbsp;") + 29;
    const QDateTime shown = QDateTime::fromString(page.mid(at, 19), "dd.MM.yyyy hh:mm:ss");
    EXPECT_LE(qAbs(before.secsTo(shown)), 60);
    EXPECT_FALSE(page.contains("<div") || page.contains("$.plot($")) << "no channel, no chart";
}

TEST(CapturePlotter, CsvHasAsManyRowsAsTheShortestChannel)
{
    const DecimalComma locale;
    const QTemporaryDir folder;
    const QString path = folder.filePath("capture.csv");
    ASSERT_TRUE(CapturePlotter().saveCaptureDataCSV(recurring(), path));
    EXPECT_EQ(contents(path), "Time;Torque setpoint [A];Velocity achieved;Flux current\n"
                              "0;1e-05;1.23457e+06;655.35\n"
                              "0.000114286;-0.00178571;-0.5;0\n");
    ASSERT_TRUE(CapturePlotter().saveCaptureDataCSV({}, path));
    EXPECT_EQ(contents(path), "Time\n");

    EXPECT_FALSE(CapturePlotter().saveCaptureDataCSV(recurring(), folder.path()));
    EXPECT_FALSE(CapturePlotter().saveCaptureDataCSV(recurring(), folder.filePath("gone/capture.csv")));
    EXPECT_FALSE(CapturePlotter().saveCaptureDataCSV(recurring(), "/dev/full"));
}
