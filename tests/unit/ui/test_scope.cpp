// What becomes of captures before anything is drawn: which are kept, what the page is told, what a file is written as.
#include "capturesaving.h"
#include "filework.h"
#include "gainspanel.h"
#include "numberbox.h"
#include "scopecontext.h"
#include "scopedesk.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QUrl>

namespace {

Parameters settings(std::initializer_list<std::pair<const char *, double>> values)
{
    Parameters list;
    for (const auto &value : values) {
        SingleParam p;
        p.name = value.first;
        p.value = value.second;
        p.readonly = p.name == "TEMP";
        list.addParameter(p);
    }
    return list;
}

CaptureRecord record(const Parameters &settings = {})
{
    CaptureRecord capture;
    capture.settings = settings;
    capture.samplePeriod = 0.001;
    capture.time = QDateTime(QDate(2026, 3, 4), QTime(14, 2, 11));
    for (const char *key : {"posreference", "posmeas"}) {
        CaptureData channel;
        channel.key = channel.name = key;
        channel.unit = "cnts";
        channel.group = "Position";
        channel.enabled = true;
        for (int k = 0; k < 200; ++k)
            channel.samples.append({k * 0.001, k < 20 ? 0.0 : 1000.0});
        capture.channels << channel;
    }
    return capture;
}

} // namespace

TEST(CaptureHistory, KeepsTheLastHundredAndNeverDropsWhatIsShownOrLiesUnderIt)
{
    CaptureHistory history;
    EXPECT_EQ(history.shown(), nullptr);
    const int first = history.add(record());
    const int second = history.add(record());
    EXPECT_FALSE(history.layUnder(second)) << "under itself";
    EXPECT_FALSE(history.layUnder(99));
    EXPECT_TRUE(history.layUnder(first));
    for (int i = 0; i < 200; ++i)
        history.add(record());
    EXPECT_EQ(history.all().size(), CaptureHistory::kept);
    ASSERT_NE(history.under(), nullptr);
    EXPECT_EQ(history.under()->id, first);
    EXPECT_EQ(history.find(second), nullptr);
    EXPECT_FALSE(history.show(second));
    const int last = history.shown()->id;
    EXPECT_TRUE(history.show(first)) << "they change places";
    EXPECT_EQ(history.under()->id, last);
    EXPECT_TRUE(history.layUnder(0));
    EXPECT_EQ(history.under(), nullptr);
}

TEST(CaptureHistory, SettingsThatDifferAreWritableAndKnownInBoth)
{
    const Parameters older = settings({{"KVP", 100}, {"KVI", 5}, {"TEMP", 20}, {"GONE", 1}});
    const Parameters present = settings({{"KVI", 5}, {"KVP", 0.1}, {"TEMP", 30}, {"NEW", 1}});
    const auto differences = settingDifferences(older, present);
    ASSERT_EQ(differences.size(), 1);
    EXPECT_EQ(differences[0].name, "KVP");
    EXPECT_EQ(settingText(differences[0].older) + " " + settingText(differences[0].present), "100 0.1");
}

TEST(ScopeContext, TellsThePageChannelsUnitsCapturesAndWhatLiesUnder)
{
    CaptureHistory history;
    EXPECT_TRUE(scopeContext(history).isEmpty());
    const int first = history.add(record(settings({{"KVP", 100}, {"FBR", 2500}, {"PIF", 2500}})), "a<b>.html");
    for (int i = 0; i < 9; ++i)
        history.add(record(settings({{"KVP", 200}, {"FBR", 2500}, {"PIF", 2500}})));
    history.layUnder(first);
    const QJsonObject scope = scopeContext(history);
    EXPECT_EQ(scope["channels"].toArray().size(), 2);
    EXPECT_EQ(scope["captures"].toArray().size(), 8) << "the last eight";
    EXPECT_EQ(scope["captures"][0]["title"], "14:02:11");
    EXPECT_EQ(scope["captures"][0]["isShown"], true);
    EXPECT_EQ(scope["overlay"]["title"], "a<b>.html (2026-03-04 14:02:11)");
    EXPECT_EQ(scope["overlay"]["channels"]["posmeas"].toArray().size(), 200);
    EXPECT_EQ(scope["overlay"]["differences"].toArray().size(), 1);
    EXPECT_TRUE(scope["figures"].isNull()) << "not worked out yet";
}

TEST(ScopeContext, UnitsFollowTheFeedbackResolutionAndTheMachine)
{
    const auto factor = [](const QJsonValue &system, const char *unit) {
        return system["units"][unit]["factor"].toDouble();
    };
    const QJsonArray units = unitSystems(record(settings({{"FBR", 2500}, {"PIF", 2500}, {"AXS", 5}, {"AXT", 0}})));
    ASSERT_EQ(units.size(), 2);
    EXPECT_DOUBLE_EQ(factor(units[0], "vel"), 0.25) << "2500 cycles of 1 count are a quarter of 10000 counts";
    EXPECT_DOUBLE_EQ(factor(units[0], "cnts"), 0.036);
    EXPECT_DOUBLE_EQ(factor(units[1], "cnts"), 0.0005);
    EXPECT_EQ(units[1]["units"]["vel"]["unit"], "mm/s");
    EXPECT_EQ(unitSystems(record(settings({{"FBR", 2500}, {"AXS", 5}, {"AXT", 3}}))).size(), 1);
    EXPECT_EQ(unitSystems(record())[0].toObject()["name"], "As recorded") << "columns of text tell no resolution";
}

TEST(ScopeDesk, WorksFiguresOutBesideTheWindowAndFollowsOnlyItsOwnLinks)
{
    ScopeDesk desk;
    QSignalSpy plots(&desk, &ScopeDesk::plotReady), news(&desk, &ScopeDesk::scopeChanged);
    QSignalSpy wanted(&desk, &ScopeDesk::settingsWanted), out(&desk, &ScopeDesk::openOutWanted);
    desk.captured(record());
    EXPECT_EQ(plots.count(), 1);
    EXPECT_EQ(news.count(), 0) << "not within the call";
    ASSERT_TRUE(news.wait(10000));
    const QJsonArray lines = news[0][0].toJsonObject()["figures"].toArray();
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines[2].toObject()["caption"], "Overshoot");
    EXPECT_EQ(lines[2].toObject()["value"], "0 %");

    EXPECT_FALSE(desk.follow(QUrl("tdext://exportpdf")));
    EXPECT_FALSE(desk.follow(QUrl("http://scope/show/1")));
    EXPECT_TRUE(desk.follow(QUrl("tdext://scope/open-out")));
    EXPECT_EQ(out.count(), 1);
    EXPECT_TRUE(desk.follow(QUrl("tdext://scope/show/77")));
    EXPECT_TRUE(desk.follow(QUrl("tdext://scope/take-feed-forward")));
    EXPECT_EQ(wanted.count(), 0) << "there is no axis sheet";
    EXPECT_EQ(plots.count(), 1);
}

TEST(CaptureSaving, EndingAndFilterChooseTheFormatAndWhatIsWrittenCanBeOpenedAgain)
{
    const QStringList filters = captureFilters().split(";;");
    ASSERT_EQ(filters.size(), 4);
    EXPECT_EQ(captureFormatOf("a.PNG", filters[1]), CaptureFormat::Picture);
    EXPECT_EQ(captureFormatOf("a.csv", filters[0]), CaptureFormat::Columns);
    EXPECT_EQ(captureFormatOf("a.csv", filters[2]), CaptureFormat::Commas);
    EXPECT_EQ(captureFormatOf("a.Html", filters[0]), CaptureFormat::Page);
    EXPECT_EQ(captureFormatOf("a.txt", filters[2]), CaptureFormat::None);

    // Beside the window's thread, and written also when nobody is left to hear of it.
    QTemporaryDir folder;
    auto files = std::make_unique<FileWork>();
    QThread *writer = nullptr;
    files->begin(folder.filePath("late"), [&writer](const QString &name) {
        writer = QThread::currentThread();
        QFile file(name);
        return file.open(QIODevice::WriteOnly) ? QString() : file.errorString();
    });
    files.reset();
    EXPECT_TRUE(QFile::exists(folder.filePath("late")));
    EXPECT_NE(writer, QThread::currentThread());

    KeptCapture capture;
    capture.record = record();
    ScopeDesk desk;
    desk.setKnownChannels(record().channels);
    for (const CaptureFormat format : {CaptureFormat::Columns, CaptureFormat::Commas}) {
        const QString name = folder.filePath("capture.csv");
        EXPECT_EQ(saveCapture(capture, format, name), "");
        EXPECT_EQ(desk.openFile(name), "");
        ASSERT_NE(desk.history().shown(), nullptr);
        EXPECT_EQ(desk.history().shown()->record.channels.last().samples.at(100).second, 1000.0);
        EXPECT_EQ(saveCapture(capture, format, "/nowhere/capture.csv").isEmpty(), false);
    }
}

TEST(GainsPanel, HasTheValuesAndLimitsOfTheTuningPageAndGivesThemBack)
{
    QWidget window;
    auto *kvp = new WholeNumberBox(&window);
    kvp->setObjectName("KVP");
    kvp->setRange(0, 32767);
    kvp->setValue(360);
    GainsPanel panel(&window, &window);
    auto *here = panel.findChild<QSpinBox *>("gainKVP");
    ASSERT_NE(here, nullptr);
    EXPECT_EQ(panel.findChild<QSpinBox *>("gainAFF"), nullptr) << "this window has none";
    EXPECT_EQ(here->value(), 360);
    here->setValue(500);
    EXPECT_EQ(kvp->value(), 500);
    kvp->setValue(200);
    EXPECT_EQ(here->value(), 200);
    kvp->setRange(0, 100); // a drive was read
    panel.refresh();
    EXPECT_EQ(here->maximum(), 100);
    EXPECT_EQ(here->value(), 100);
}
