// The commissioning report: what is in it, that it can be checked, and the stop test, which only listens.
#include "cliprocess.h"
#include "testfiles.h"

#include <QFile>
#include <QJsonObject>

using testing::Each;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int KVP = 202;
constexpr int absoluteSetpoint = 551;
constexpr int positionFeedback = 956;

using CliReport = CliFixture;

} // namespace

TEST_F(CliReport, IsWrittenAndCanBeChecked)
{
    bus().set(DriveAddress, KVP, 400);
    good(onDrive({"capture", "--channels", "posmeas,hvbusvolt", "--csv", "idle.csv"}));
    bus().clearReceived();
    const Ran ran =
        good(onDrive({"--json", "report", "r.html", "--capture", "idle.csv", "--note", "KVP=stiffer <belt>"}));
    const QJsonObject json = ran.json().object();
    EXPECT_EQ(json["captures"], 1);
    EXPECT_TRUE(json["stopTest"].isNull());
    const std::string page = contents("r.html").toStdString();
    for (const char *part : {"<tr class=\"differs\"><th scope=\"row\">KVP</th><td class=\"value\">400</td>", "240117",
                             "stiffer &lt;belt&gt;", "idle.csv", "<polyline", "Not done."})
        EXPECT_THAT(page, HasSubstr(part));
    EXPECT_THAT(sent(), Each(Not(testing::StartsWith("800a00000003")))) << "nothing is written";

    EXPECT_THAT(page, Not(HasSubstr("I/O side"))) << "this model has none";

    good(run({"report", "--verify", "r.html"}), "checksum\t" + json["checksum"].toString().toStdString() + "\n");
    put("r.html", contents("r.html").replace("<td class=\"value\">400</td>", "<td class=\"value\">360</td>"));
    const Ran check = failed(run({"--json", "report", "--verify", "r.html"}), HasSubstr("something was changed in it"));
    EXPECT_EQ(check.json().object()["valid"], false);
    for (const char *file : {"idle.csv", "missing.html", "."})
        EXPECT_EQ(run({"report", "--verify", file}).status, 1) << file;
}

TEST_F(CliReport, StopTestListensUntilTheStopIsPressed)
{
    write(absoluteSetpoint, 100000); // where it goes once it is enabled
    ASSERT_TRUE(enableByHand());
    RunningOnDrive process({"--json", "report", "r.html", "--stop-test", "--stop-seconds", "1"});
    ASSERT_TRUE(waitForPayload(armForFaultPayload));
    write(absoluteSetpoint, -100000);
    ASSERT_TRUE(
        bus().waitForRegister(DriveAddress, positionFeedback, [](std::int32_t counts) { return counts < 50000; }));
    bus().set(DriveAddress, faultRegister, trackingFault);
    const Ran ran = good(finish(process), testing::_, "Stop test: let the axis move, then press the machine's stop.\n");
    const QJsonObject stop = ran.json().object()["stopTest"].toObject();
    EXPECT_GT(stop["time"].toDouble(), 0.0);
    EXPECT_GT(stop["distance"].toDouble(), 10.0);
    EXPECT_THAT(contents("r.html").toStdString(), HasSubstr("Time to standstill</th><td>"));
}

TEST_F(CliReport, WithoutAStopThereIsNoReport)
{
    failed(onDrive({"report", "r.html", "--stop-test", "--stop-seconds", "0.1", "--time-out", "0.2"}),
           HasSubstr("The recorder was not triggered"));
    EXPECT_FALSE(QFile::exists("r.html"));
    EXPECT_EQ(onDrive({"report", "r.html", "--capture", "missing.html"}).status, 1);
    EXPECT_FALSE(QFile::exists("r.html"));
}
