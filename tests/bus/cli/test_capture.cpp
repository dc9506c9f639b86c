// Captures: what moves, what is saved, and that nothing stays in motion.
#include "cliprocess.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

#include <sys/stat.h>

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

namespace {

const char *const stopStreamPayload = "822a00000004";
/// A stimulus while the capture waits for a fault that does not come.
const QStringList movingForEver = {"capture", "--enable",   "--channels",    "posmeas", "--trigger",
                                   "fault",   "--stimulus", "0,0.1,100,0.1", "--csv",   "none.csv"};

class CliCapture : public CliFixture
{
protected:
    void TearDown() override
    {
        qunsetenv("VELBRIN_DATA");
        CliFixture::TearDown();
    }
    bool isOff() { return bus().read(DriveAddress, softEnable) == 0 && !isRunning(); }
};

/// A data folder with everything but the last of the plot page's scripts; the test's end forgets it.
void putScripts()
{
    qputenv("VELBRIN_DATA", QDir::current().filePath("data").toLocal8Bit());
    ASSERT_TRUE(QDir().mkpath("data/flot/css"));
    put("data/flot/css/plotlayout.css", "h1 { color: red; }");
    put("data/flot/jquery.js", "var jquery = '</script>';");
    put("data/flot/jquery.flot.js", "var flot = 1;");
    put("data/flot/jquery.flot.selection.js", "");
}

/// A column of a capture file, without its name.
std::vector<double> column(const QByteArray &csv, int index)
{
    std::vector<double> values;
    for (const QByteArray &line : csv.split('\n').mid(1)) {
        if (!line.isEmpty())
            values.push_back(line.split(';').value(index).toDouble());
    }
    return values;
}

} // namespace

TEST_F(CliCapture, RecordsAStepThatItMakesAndLeavesTheDriveDisabled)
{
    const Ran ran = good(onDrive({"capture", "--enable", "--channels", "posmeas,posreference", "--rate", "10000",
                                  "--step", "1000", "--csv", "step.csv"}));
    ASSERT_EQ(ran.lines().size(), 2);
    EXPECT_TRUE(ran.lines()[0].startsWith("posreference\tcnts\t1000\t")) << ran.lines()[0].toStdString();
    EXPECT_TRUE(ran.lines()[1].startsWith("posmeas\tcnts\t1000\t0\t0\t")) << ran.lines()[1].toStdString();
    const QByteArray csv = contents("step.csv");
    EXPECT_EQ(csv.split('\n').first(), "Time;Position setpoint;Position achieved");
    ASSERT_EQ(column(csv, 0).size(), 1000u);
    EXPECT_DOUBLE_EQ(column(csv, 0).back(), 0.0999);
    EXPECT_NEAR(column(csv, 2).back(), 1000, 10);
    EXPECT_THAT(sent(), Contains(enablePayload));
    EXPECT_TRUE(isOff());
}

TEST_F(CliCapture, MovesNothingUnlessAskedTo)
{
    const QString all = "torqueref,torquemeas,velreference,velmeas,posreference,posmeas,posferror,outputvolt,hvbusvolt,"
                        "pwm1,pwm2,pwm3,debug,debug2,fluxcurrent,fluxvoltage";
    const Ran ran = good(onDrive({"--json", "capture", "--channels", all, "--csv", "all.csv"}));
    const QJsonObject json = ran.json().object();
    EXPECT_EQ(json["sampleRate"], 20000);
    EXPECT_EQ(json["channels"].toArray().size(), 16);
    EXPECT_EQ(column(contents("all.csv"), 16).size(), 125u);
    EXPECT_EQ(column(contents("all.csv"), 9).front(), 48.0) << "supply voltage";
    EXPECT_THAT(sent(), Not(Contains(enablePayload)));

    bus().clearReceived();
    for (const QStringList &excitation : {QStringList{"--step", "10"}, QStringList{"--stimulus", "0,1,10,1"}}) {
        failed(onDrive(QStringList{"capture", "--channels", "posmeas", "--csv", "none.csv"} + excitation),
               HasSubstr("The drive is not enabled, so nothing would move"));
        EXPECT_FALSE(QFile::exists("none.csv"));
    }
    EXPECT_EQ(packetsIn(bus().received(), 52), 0) << "buffered setpoints";
    EXPECT_THAT(sent(), Each(Not(testing::StartsWith("8227")))) << "no setpoint";
    EXPECT_THAT(sent(), Each(Not(testing::StartsWith("9393")))) << "not armed";
}

TEST_F(CliCapture, FollowsAStimulusAndStopsItAtTheEnd)
{
    good(onDrive({"capture", "--enable", "--channels", "posreference", "--rate", "4000", "--stimulus",
                  "100,0.1,200,0.1", "--csv", "wave.csv"}));
    std::vector<double> levels = column(contents("wave.csv"), 1);
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    ASSERT_GE(levels.size(), 5u); // half a second, and perhaps a moment before the first
    for (std::size_t i = levels.size() - 5; i + 1 < levels.size(); ++i)
        EXPECT_EQ(levels[i] + levels[i + 1], 300) << "100 and 200 by turns";
    EXPECT_THAT(sent(), testing::IsSupersetOf({stopStreamPayload, disablePayload}));
    EXPECT_TRUE(isOff());
}

TEST_F(CliCapture, InterruptedStimulusIsStoppedAndTheDriveDisabled)
{
    for (const int signal : {SIGINT, SIGTERM, SIGQUIT}) {
        write(551, 0);
        ASSERT_TRUE(bus().waitForRegister(DriveAddress, setpointInUse, 0));
        bus().clearReceived();
        RunningOnDrive process(movingForEver);
        ASSERT_TRUE(bus().waitForRegister(DriveAddress, setpointInUse, 100)) << "the motor does not move";
        ASSERT_TRUE(isRunning());
        sendSignal(process, signal);
        failed(finish(process), "Interrupted.\n");
        EXPECT_THAT(sent(), Contains(stopStreamPayload));
        EXPECT_EQ(bus().read(DriveAddress, 6), 2048) << "setpoints are still waiting in the drive";
        EXPECT_TRUE(isOff());
        EXPECT_FALSE(QFile::exists("none.csv"));
    }
}

TEST_F(CliCapture, DisableThatIsNotConfirmedIsNoSuccess)
{
    RunningOnDrive process({"capture", "--enable", "--channels", "posmeas", "--stimulus", "100,0.1,200,0.1", "--rate",
                            "2000", "--csv", "wave.csv"});
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, setpointInUse, 200));
    refuseWrites(softEnable);
    failed(finish(process), AllOf(HasSubstr("The drive shows that it is still enabled."),
                                  HasSubstr("The drive is not known to be disabled.")));
    EXPECT_EQ(column(contents("wave.csv"), 1).size(), 2000u) << "what was captured is kept";
}

TEST_F(CliCapture, TellsAllThatItKnowsInJsonAndInThePage)
{
    putScripts();
    put("data/flot/jquery.flot.resize.js", "");
    const Ran ran = good(
        onDrive({"--json", "capture", "--enable", "--channels", "posreference,posmeas", "--rate", "5000", "--step",
                 "1000", "--note", "first <try>", "--html", "step.html", "--csv", "step.csv", "--format", "comma"}));
    const QJsonObject json = ran.json().object();
    EXPECT_EQ(json["sampleRate"], 5000);
    EXPECT_EQ(json["settings"].toArray().isEmpty(), false);
    EXPECT_EQ(json["drive"].toObject()["serial"], 240117);
    EXPECT_EQ(json["drive"].toObject()["address"], 5);
    EXPECT_EQ(json["motion"].toObject()["kind"], "step");
    EXPECT_EQ(json["motion"].toObject()["to"], 1000);
    EXPECT_EQ(json["note"], "first <try>");
    EXPECT_EQ(json["program"], "1.9.0");
    EXPECT_EQ(json["channels"].toArray()[1].toObject()["values"].toArray().size(), 1000);
    const QJsonObject figures = json["figures"].toObject();
    EXPECT_NEAR(figures["timeTo90"].toDouble(), 0.032, 0.005) << "the time that the motor's defaults take";
    EXPECT_EQ(figures["peakError"], 1000);
    EXPECT_TRUE(figures["ringing"].isNull());
    EXPECT_NE(figures["reason"].toObject()["ringing"], QJsonValue());

    EXPECT_THAT(contents("step.csv").toStdString(),
                testing::StartsWith("Time,Position setpoint,Position achieved\ns,cnts,cnts\n0.000000000,"));
    put("step.json", ran.out.toUtf8());
    for (const char *file : {"step.html", "step.json"})
        EXPECT_EQ(run({"figures", file, "--json"}).json().object()["figures"].toObject(), figures) << file;
    // Columns do not say what was asked for: where the recorder's first word is behind the step, nothing is defined.
    const bool beginsBefore = contents("step.csv").split('\n').value(2).startsWith("0.000000000,0.");
    const QJsonObject columns = run({"figures", "step.csv", "--json"}).json().object();
    EXPECT_EQ(columns["figures"].toObject()["overshoot"], beginsBefore ? figures["overshoot"] : QJsonValue());
    EXPECT_FALSE(columns.contains("axisSheet")) << "it went one way only";
    EXPECT_THAT(run({"figures", "step.csv"}).out.toStdString(),
                HasSubstr(beginsBefore ? "Peak tracking error\t1000 counts\n" : "the setpoint does not change"));
    EXPECT_EQ(run({"figures", "missing.html"}).status, 1);
}

TEST_F(CliCapture, AMoveThereAndBackHasAnAxisSheet)
{
    const Ran ran = good(onDrive({"--json", "capture", "--enable", "--channels", "posmeas,torquemeas", "--rate", "2500",
                                  "--stimulus", "0,0.15,1200,0.15"}));
    const QJsonObject sheet = ran.json().object()["axisSheet"].toObject();
    EXPECT_TRUE(sheet["refusal"].isNull()) << sheet["refusal"].toString().toStdString();
    EXPECT_GT(sheet["acceleration"].toObject()["value"].toDouble(), 0.0);
}

TEST_F(CliCapture, WithoutATriggerEndsAndTouchesNoFile)
{
    put("old.csv", "old");
    failed(onDrive({"capture", "--enable", "--channels", "posmeas", "--trigger", "fault", "--time-out", "0.2", "--csv",
                    "old.csv"}),
           "The recorder was not triggered and filled within 0.2 s. Nothing was captured.\n");
    EXPECT_EQ(contents("old.csv"), "old");
    EXPECT_EQ(QDir().entryList({"*.csv*"}, QDir::Files), QStringList("old.csv")) << "a file begun and left behind";
    EXPECT_TRUE(isOff());
}

TEST_F(CliCapture, FileThatCannotBeWrittenStopsItBeforeAnythingMoves)
{
    failed(onDrive({"capture", "--enable", "--channels", "posmeas", "--step", "1", "--csv", "/nowhere/a.csv"}),
           HasSubstr("/nowhere/a.csv cannot be written: "));
    EXPECT_TRUE(bus().received().empty());

    ASSERT_EQ(mkfifo("pipe", 0600), 0); // that nobody reads
    failed(onDrive({"capture", "--enable", "--channels", "posmeas", "--csv", "pipe"}),
           HasSubstr("pipe cannot be written: nobody reads from this pipe.\n"));
    EXPECT_TRUE(bus().received().empty());

    failed(onDrive({"capture", "--channels", "posmeas", "--rate", "20001", "--csv", "none.csv"}),
           "--rate is at most 20000 Hz on this drive.\n");

    failed(onDrive({"capture", "--channels", "posmeas", "--csv", "/dev/full"}),
           "Error writing to /dev/full: Full disk.\n");
}

TEST_F(CliCapture, PlotPageHoldsAllThatItNeeds)
{
    putScripts();
    ASSERT_TRUE(QDir().mkpath("flot"));
    put("flot/jquery.flot.js", "var strangers = 1;"); // a folder of downloads: the program's own goes first
    const QStringList arguments = {"capture", "--channels", "posmeas", "--html", "page.html"};
    failed(onDrive(arguments), HasSubstr("jquery.flot.resize.js cannot be read"));
    EXPECT_FALSE(QFile::exists("page.html"));

    put("data/flot/jquery.flot.resize.js", "var resize = 1;");
    good(onDrive(arguments));
    const std::string page = contents("page.html").toStdString();
    for (const char *part : {"h1 { color: red; }", "var jquery = '<\\/script>';", "var flot = 1;", "var resize = 1;",
                             "var posmeas=[[0,", "Tarnwell Devices KETA", "KVP"})
        EXPECT_THAT(page, HasSubstr(part));
    for (const char *part : {"../", "tdext:", "src=", "strangers"})
        EXPECT_THAT(page, Not(HasSubstr(part)));
}

TEST_F(CliCapture, LostLineSaysThatTheDriveMayStillRunOrDisablesItThroughANewOpening)
{
    for (const bool comesBack : {true, false}) { // the second leaves the drive enabled
        RunningOnDrive process(movingForEver);
        ASSERT_TRUE(bus().waitForRegister(DriveAddress, setpointInUse, 100));
        bus().unplug();
        if (comesBack) {
            ASSERT_EQ(bus().plugIn(), "");
        }
        const Ran ran = failed(finish(process), testing::_);
        EXPECT_EQ(ran.err.contains("has not confirmed that it is disabled. It may still be running or start to"),
                  !comesBack);
        EXPECT_EQ(bus().read(DriveAddress, softEnable), !comesBack) << ran.err.toStdString();
        EXPECT_FALSE(QFile::exists("none.csv"));
        EXPECT_TRUE(!comesBack || waitUntilRunning(false)) << "the end of a controlled stop";
        bus().powerCycle();
    }
}
