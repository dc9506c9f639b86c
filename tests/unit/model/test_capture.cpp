// A capture that goes into a file and comes back, and files that are none.
#include "capturefile.h"
#include "capturejson.h"
#include "capturepage.h"
#include "captureplotter.h"
#include "capturetext.h"
#include "testfiles.h"
#include "withvalues.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QTemporaryDir>

#include <functional>

namespace {

CaptureData channel(const char *key, const char *name, const char *unit, double scale, const std::vector<double> &words)
{
    CaptureData c = channelOf(key, words, 8 / 17500.0);
    for (auto &sample : c.samples)
        sample.second *= scale;
    c.name = QString::fromUtf8(name);
    c.unit = QString::fromLatin1(unit);
    c.group = QStringLiteral("Torque");
    c.scale = scale;
    return c;
}

const char evil[] = "</script></SCRIPT ><script>alert(1)</script><!-- \"'\\ &amp; \xE2\x80\xA8 ä";

CaptureRecord capture()
{
    CaptureRecord c;
    c.channels = {channel("torqueref", "Torque setpoint [A]", "A", 1 / 560.0, {0, 1, -17, 17920, 5}),
                  channel("posmeas", "Position achieved", "cnts", 1.0, {0, 1, 1000, -32768}),
                  channel("debug", "Debug 1", "a.u.", 1.0, {})};
    c.channels[2].enabled = false;
    c.channels[0].sourceBit = 0x80000002u;
    c.channels[1].isUnsigned = true;
    c.rate = 2500;
    c.samplePeriod = 8 / 17500.0;
    c.trigger = 2;
    c.motion = {CaptureMotion::Kind::SquareWave, -500, 1000, 0.25, 0.5};
    c.drive = {QString::fromUtf8(evil), 4000, 240117, 5, 1090, 1091, 27576290};
    c.program = QStringLiteral("1.9.0");
    c.time = QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6, 789), Qt::OffsetFromUTC, 5400);
    c.note = QString::fromUtf8(evil) + QLatin1Char('\n');
    SingleParam limit;
    limit.name = QStringLiteral("MMC");
    limit.addr = 411;
    limit.scaling = 1000;
    limit.value = 32.001;
    limit.max = 35;
    limit.readonly = false;
    c.settings.addParameter(limit);
    return c;
}

/// All that a block says: two captures are the same when their blocks are.
QByteArray blockOf(const CaptureRecord &c)
{
    return QJsonDocument(captureToJson(c)).toJson();
}

QString read(const QByteArray &bytes, CaptureRecord *into)
{
    QTemporaryDir folder;
    const QString file = folder.filePath("a capture");
    put(file, bytes);
    return readCaptureFile(file, capture().channels, into);
}

/// The block with one member changed.
QByteArray changed(const std::function<void(QJsonObject &)> &change)
{
    QJsonObject block = captureToJson(capture());
    change(block);
    return QJsonDocument(block).toJson();
}

void changeFirst(QJsonObject &block, const char *list, const char *member, const QJsonValue &value)
{
    QJsonArray array = block.value(QLatin1String(list)).toArray();
    QJsonObject first = array.first().toObject();
    first.insert(QLatin1String(member), value);
    array.replace(0, first);
    block.insert(QLatin1String(list), array);
}

} // namespace

TEST(Capture, ComesBackFromItsBlockAndItsPageToTheLastBit)
{
    const CaptureRecord original = capture();
    const QByteArray page = capturePage(original, {{"figures", 5}}).toUtf8();
    for (const QByteArray &bytes : {blockOf(original), page, "\xef\xbb\xbf" + blockOf(original)}) {
        CaptureRecord copy;
        ASSERT_EQ(read(bytes, &copy), QString());
        EXPECT_EQ(blockOf(copy), blockOf(original));
        ASSERT_EQ(copy.channels.size(), 2);
        EXPECT_EQ(copy.channels[0].samples, original.channels[0].samples);
        EXPECT_EQ(copy.channels[1].samples, original.channels[1].samples);
        EXPECT_EQ(copy.channels[0].sourceBit, 0x80000002u);
        EXPECT_EQ(copy.note, original.note);
        EXPECT_EQ(copy.time, original.time);
        EXPECT_EQ(copy.setting("MMC", 0), 32.001);
        EXPECT_EQ(copy.setting("KVP", -1), -1);
        EXPECT_EQ(copy.motion.toTime, 0.5);
        EXPECT_EQ(copy.drive.ioFirmware, 1091);
    }
    // The texts are text: no script but the page's own, the block is one element.
    EXPECT_FALSE(page.contains("alert(1)</script>"));
    EXPECT_EQ(page.count("<script>alert"), 0);
    EXPECT_EQ(page.count("id=\"velbrin-capture\""), 1);
    const QByteArray block = captureBlockOf(page);
    EXPECT_FALSE(block.isEmpty() || block.contains('<') || block.contains('>') || block.contains('&'));
    EXPECT_TRUE(page.trimmed().endsWith("</html>"));
}

TEST(Capture, NamesOfAForeignFileAreNoScriptInThePage)
{
    CaptureRecord foreign;
    ASSERT_EQ(read(changed([](QJsonObject &block) { changeFirst(block, "channels", "name", QString::fromUtf8(evil)); }),
                   &foreign),
              QString());
    const QString page = capturePage(foreign);
    EXPECT_TRUE(page.contains(
        "label: \"&lt;/script&gt;&lt;/SCRIPT &gt;&lt;script&gt;alert(1)&lt;/script&gt;&lt;!-- &quot;'&#92; &amp;amp;"));
    EXPECT_FALSE(page.contains("<script>alert"));
}

TEST(Capture, DamagedForeignAndNewerFilesEndInOneSentenceAndChangeNothing)
{
    const QByteArray good = blockOf(capture());
    const auto with = [](const char *member, const QJsonValue &value) {
        return changed([=](QJsonObject &block) { block.insert(QLatin1String(member), value); });
    };
    const auto inFirst = [](const char *list, const char *member, const QJsonValue &value) {
        return changed([=](QJsonObject &block) { changeFirst(block, list, member, value); });
    };
    const std::pair<QByteArray, const char *> rows[] = {
        {"", "empty"},
        {good.left(good.size() / 2), "damaged"},
        {"{}", "not a capture"},
        {"[1,2]", "not a capture"},
        {"<html><body>nothing</body></html>", "holds no capture"},
        {capturePage(capture()).toUtf8().left(capturePage(capture()).size() - 400), "damaged"},
        {QByteArray(3000, '\0'), "not a capture"},
        {QByteArray(9 << 20, ' '), "too large"},
        {QByteArray(1 << 20, '\n'), "too large"},
        {"{" + QByteArray(100000, '['), "damaged"},
        {with("version", 2), "newer"},
        {with("version", "1"), "damaged"},
        {with("format", "other"), "not a capture"},
        {with("samplePeriod", 0), "samplePeriod"},
        {with("samplePeriod", 1e-300), "samplePeriod"}, // millions of samples in every window of the analysis
        {with("rate", 1e300), "rate"},
        {with("trigger", 1.5), "trigger"},
        {with("time", "yesterday"), "time"},
        {with("note", QString(20001, 'x')), "note"},
        {with("drive", 3), "drive"},
        {with("motion", QJsonObject()), "kind"},
        {with("channels", QJsonObject()), "channels"},
        {with("channels", QJsonArray{1}), "channels"},
        {inFirst("channels", "key", "posmeas"), "key"},
        {inFirst("channels", "key", "a;alert(1)"), "key"},
        {inFirst("channels", "key", "Torque"), "key"},
        {inFirst("channels", "key", "class"), "key"}, // no variable of a script
        {inFirst("channels", "group", ""), "group"},
        {inFirst("channels", "values", QJsonArray{1, "2"}), "values"},
        {inFirst("channels", "values", QJsonArray{QJsonValue()}), "values"},
        {inFirst("channels", "values", QJsonArray{1e200}), "values"}, // its square is no number
        {inFirst("channels", "scale", 0), "scale"},
        {inFirst("channels", "sourceBit", -1), "sourceBit"},
        {inFirst("settings", "name", "<b>"), "name"},
        {inFirst("settings", "scaling", 0), "scaling"},
        {inFirst("settings", "value", "1"), "value"},
        {QByteArray(good).replace("32.001", "1e999"), "damaged"},
        {"Time;Torque setpoint [A]\n0;1\n", "fewer than two"},
        {"Time;Torque setpoint [A]\n0;1\n1;x\n", "line 3"},
        {"Time;Torque setpoint [A]\n0;1\n1;2;3\n", "line 3"},
        {"Time;Torque setpoint [A]\n0;1\n1;2\n1.5;3\n", "evenly"},
        {"Time;Torque setpoint [A]\n0;1\n1e-20;2\n", "evenly"},
        {"Time;Torque setpoint [A]\n0;1\n1;2e200\n", "line 3"},
        {"Time;Torque setpoint [A];Torque setpoint [A]\n0;1;1\n1;2;2\n", "repeats"},
        {"Time;Speed\n0;1\n1;2\n", "column 2"},
        {"Date;Torque setpoint [A]\n0;1\n1;2\n", "does not name"},
    };
    for (const auto &[bytes, says] : rows) {
        SCOPED_TRACE(bytes.left(60).toStdString() + " / " + says);
        CaptureRecord before = capture();
        const QString problem = read(bytes, &before);
        EXPECT_TRUE(problem.contains(QLatin1String(says))) << problem.toStdString();
        EXPECT_FALSE(problem.contains('<') || problem.contains('\n'));
        EXPECT_EQ(blockOf(before), good);
    }
    CaptureRecord before = capture();
    for (const char *name : {"/nowhere/at/all", "/dev/zero", "/tmp"})
        EXPECT_NE(readCaptureFile(name, {}, &before), QString()) << name;
    EXPECT_EQ(blockOf(before), good);
}

TEST(Capture, TextFilesAreReadByTheirCaptions)
{
    CaptureRecord original = capture();
    original.channels[0].samples.clear();
    original.channels[1].samples.clear();
    for (int i = 0; i < 900; ++i) {
        original.channels[0].samples.append({i * original.samplePeriod, (i * 37 % 30000 - 15000) / 560.0});
        original.channels[1].samples.append({i * original.samplePeriod, i * 7.0 - 3000});
    }
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray comma = captureToText(original.channels);
    EXPECT_TRUE(comma.startsWith("Time,Torque setpoint [A],Position achieved\ns,A,cnts\n"
                                 "0.000000000,-26.785714,-3000.000000\n0.000457143,-26.719643,-2993.000000\n"));
    QTemporaryDir folder;
    const QString csv = folder.filePath(QStringLiteral("c.csv"));
    ASSERT_TRUE(CapturePlotter().saveCaptureDataCSV(original.channels, csv));
    const QByteArray semicolons = contents(csv);
    for (const QByteArray &bytes : {comma, semicolons, QByteArray(semicolons).replace("\n", "\r\n")}) {
        CaptureRecord copy;
        ASSERT_EQ(read(bytes, &copy), QString());
        ASSERT_EQ(copy.channels.size(), 2);
        EXPECT_EQ(copy.channels[1].key, "posmeas");
        EXPECT_EQ(copy.channels[0].unit, "A");
        EXPECT_NEAR(copy.samplePeriod, original.samplePeriod, 1e-5 * original.samplePeriod);
        ASSERT_EQ(copy.channels[0].samples.size(), 900);
        for (int i = 0; i < 900; ++i) {
            EXPECT_NEAR(copy.channels[0].samples[i].second, original.channels[0].samples[i].second, 0.5 / 560);
            EXPECT_EQ(copy.channels[1].samples[i].second, original.channels[1].samples[i].second);
        }
        EXPECT_EQ(copy.trigger, 0);
        EXPECT_EQ(copy.settings.getParamCount(), 0);
    }
    QLocale::setDefault(QLocale::c());
    // A name may hold the separator.
    CaptureData odd = original.channels[0];
    odd.name = QStringLiteral("Torque, \"set\"");
    const QByteArray text = captureToText({odd});
    EXPECT_TRUE(text.startsWith("Time,\"Torque, \"\"set\"\"\"\n"));
    CaptureRecord copy;
    EXPECT_EQ(captureFromText(text, {odd}, &copy), QString());
    EXPECT_EQ(captureToText({}), QByteArray("Time\ns\n"));
}
