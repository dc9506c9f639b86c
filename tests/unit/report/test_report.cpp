// The report's page, its checksum, and what it says of the settings.
#include "report.h"
#include "savedpage.h"

#include "catalogue.h"
#include "chart.h"
#include "checksum.h"
#include "devicemodel.h"
#include "settingfacts.h"
#include "virtualdrive.h"
#include "withvalues.h"

#include "printqt.h"

#include <QElapsedTimer>

#include <algorithm>
#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int ketaType = 11000;

Parameters standardSettings()
{
    Parameters list = driveParameterCatalogue();
    for (int i = 0; i < list.getParamCount(); ++i) {
        const QString name = list.getParam(i).name;
        if (const auto facts = settingFacts(name, false))
            list = withValues(list, {{qPrintable(name), facts->standard}});
    }
    return list;
}

Report report()
{
    Report report;
    report.drive.model = "Keta";
    report.drive.type = ketaType;
    report.drive.serial = 17;
    report.settings = standardSettings();
    report.program = "1.9.0";
    report.time = QDateTime(QDate(2026, 11, 21), QTime(12, 0));
    return report;
}

/// `rows` samples of a position that goes there within `moving` of them, and of two more channels.
CaptureRecord record(int rows, int moving)
{
    CaptureRecord capture;
    capture.samplePeriod = 0.001;
    std::vector<double> positions;
    for (int i = 0; i < rows; ++i)
        positions.push_back(-1000.0 * std::min(1.0, double(i) / moving));
    for (const char *key : {"posmeas", "posreference", "torquemeas"}) {
        capture.channels.append(channelOf(key, positions, capture.samplePeriod));
        capture.channels.last().group = capture.channels.last().key.left(3);
    }
    return capture;
}

} // namespace

TEST(SettingFacts, DefaultsAreThoseOfTheVirtualDrives)
{
    const Parameters catalogue = driveParameterCatalogue();
    for (const char *profile : {"keta", "keta-pro", "torva"}) {
        sim::VirtualDrive drive(*sim::findProfile(profile));
        for (int i = 0; i < catalogue.getParamCount(); ++i) {
            const SingleParam setting = catalogue.getParam(i);
            const auto facts = settingFacts(setting.name, profile == std::string("torva"));
            EXPECT_EQ(facts.has_value(), !setting.readonly) << setting.name.toStdString();
            if (!facts || !setting.supportedInDevice(QString(profile).replace('-', ' ')))
                continue;
            EXPECT_EQ(setting.convertToDeviceScale(facts->standard), drive.read(setting.addr))
                << profile << " " << setting.name.toStdString();
            EXPECT_NE(facts->caption, "");
        }
    }
}

TEST(ReportPage, MarksWhatDiffersAndKeepsTextsFromActing)
{
    Report some = report();
    some.settings = withValues(some.settings, {{"KVP", 400}, {"CM", 2}});
    some.machine = "<script>1</script>";
    some.notes["KVP"] = "a </td><td class=\"value\">1</td> & \"b\"";
    some.captures = {{"<img src=x>.html", record(100, 50)}};
    some.captures[0].record.note = "<b>loud</b>";
    some.captures[0].record.channels[0].name = "<svg onload=1>";
    const QByteArray page = reportPage(some);
    const std::string text = page.toStdString();
    EXPECT_EQ(page.count("<tr class=\"differs\">"), 2);
    for (const char *part :
         {"<html lang=\"en\">", "Control mode: Torque control (new drive: Position control)",
          "Motor type: 3 phase AC or BLDC<",
          "<tr class=\"differs\"><th scope=\"row\">KVP</th><td class=\"value\">400</td>", "&lt;b&gt;loud"})
        EXPECT_THAT(text, HasSubstr(part));
    for (const char *never : {"<script", "<img", "<svg onload", "<b>", "href=", "TRF1"}) // the last: not on this model
        EXPECT_THAT(text, Not(HasSubstr(never)));
    EXPECT_EQ(checkReport(page).problem, "");
    EXPECT_EQ(checkReport(page).settings, printedSettings(some).size());
}

TEST(SavedPage, TellsWithoutScriptsWhatWasRecordedAndKeepsTextsFromActing)
{
    CaptureRecord capture = record(100, 50);
    capture.settings = withValues(report().settings, {{"KVP", 400}});
    capture.drive = report().drive;
    capture.time = QDateTime(QDate(2026, 3, 4), QTime(14, 2, 11));
    capture.note = "<script>1</script> at 100 % %DATETIME%";
    capture.motion = {CaptureMotion::Kind::SquareWave, 0, 1900, 0.1, 0.2};
    const std::string text = savedCapturePage(capture, captureFigures(capture)).toStdString();
    const std::string about =
        text.substr(text.find("class=\"about\""), text.rfind("<script") - text.find("class=\"about\""));
    for (const char *part :
         {"2026-03-04 14:02:11", "<td>17</td>", "&lt;script&gt;1&lt;/script&gt; at 100 % &#37;DATETIME%",
          "setpoint 0 for 0.1 s, 1900 for 0.2 s", "Overshoot", "<td>KVP</td><td>400</td>", "new drive: 360"})
        EXPECT_THAT(about, HasSubstr(part));
    EXPECT_THAT(about, Not(HasSubstr("<td>KVI</td><td>360</td><td></td><td>new drive"))) << "not changed";
    EXPECT_THAT(text, testing::ContainsRegex("<noscript>[^\001]*<svg")) << "a picture where no script draws";
}

TEST(ReportPage, ChecksumIsThatOfTheNumbersThatAreShown)
{
    // printf 'KVP=360\nAXS=0.5\n' | sha256sum
    EXPECT_EQ(settingsChecksum({{"KVP", "360"}, {"AXS", "0.5"}}),
              "9139526f9612177813a93f5f77af604f23e6fcacb0537331e91e11feef9c745e");
    const QByteArray page = reportPage(report());
    EXPECT_EQ(checkReport(page).problem, "");
    for (const auto &[before, after] : {std::pair("row\">KVP<", "row\">KVI<"), std::pair(">360</td>", ">361</td>")}) {
        QByteArray changed = page;
        changed.replace(changed.indexOf(before), qsizetype(strlen(before)), after);
        EXPECT_THAT(checkReport(changed).problem.toStdString(), HasSubstr("something was changed"));
    }
    const QByteArray sum = checkReport(page).checksum.toUtf8();
    QByteArray two = page;
    two.replace("</body>", "<code id=\"settings-checksum\">" + sum + "</code></body>");
    for (const QByteArray &other : {QByteArray(), QByteArray("<html></html>"), two})
        EXPECT_THAT(checkReport(other).problem.toStdString(), HasSubstr("no commissioning report"));
}

TEST(ReportPage, SaysWhatACaptureHasOtherThanTheDrive)
{
    Report some = report();
    some.captures = {{"a", record(100, 50)}, {"b", record(100, 50)}};
    some.captures[1].record.settings = withValues(some.settings, {{"KPP", 77}});
    some.captures[1].record.drive.serial = 18;
    const std::string text = reportPage(some).toStdString();
    for (const char *part : {"does not say with which drive and settings", "another drive: serial number 18",
                             "with other settings: KPP=77."})
        EXPECT_THAT(text, HasSubstr(part));
}

TEST(ReportPage, WithEightLargeCapturesStaysSmallAndQuick)
{
    Report some = report();
    for (int i = 0; i < 8; ++i)
        some.captures.append({QString::number(i), record(20000, 10000)});
    QElapsedTimer timer;
    timer.start();
    const QByteArray page = reportPage(some);
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_LT(page.size(), 1000000);
}

TEST(Chart, DrawsEachGroupOnceAndKeepsPeaksOfThinnedTraces)
{
    CaptureRecord capture = record(10000, 5000);
    capture.channels[2].samples[7777].second = 9000.0; // one sample, highest of its chart
    const QString svg = captureChart(capture);
    EXPECT_EQ(svg.count("<rect"), 2);
    EXPECT_EQ(svg.count("<polyline"), 3);
    EXPECT_LT(svg.size(), 60000);
    EXPECT_TRUE(svg.contains(",170.0 ")) << "the upper edge of the second chart";
    EXPECT_EQ(captureChart(CaptureRecord()), "");
}
