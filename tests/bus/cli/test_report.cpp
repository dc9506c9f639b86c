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
constexpr int AbsoluteSetpoint = 551;

using CliReport = CliFixture;

void replaceIn(const char *name, const QByteArray &before, const QByteArray &after)
{
    QByteArray bytes = contents(name);
    ASSERT_TRUE(bytes.contains(before));
    bytes.replace(bytes.indexOf(before), before.size(), after);
    put(name, bytes);
}

} // namespace

TEST_F(CliReport, IsWrittenAndCanBeChecked)
{
    bus().set(DriveAddress, KVP, 400);
    ASSERT_EQ(onDrive({"capture", "--channels", "posmeas,hvbusvolt", "--csv", "idle.csv"}).status, 0);
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
    EXPECT_THAT(payloads(bus().received()), Each(Not(testing::StartsWith("800a00000003")))) << "nothing is written";

    EXPECT_THAT(page, Not(HasSubstr("I/O side"))) << "this model has none";

    Ran check = run({"report", "--verify", "r.html"});
    EXPECT_EQ(check.status, 0) << check.err.toStdString();
    EXPECT_EQ(check.out, "checksum\t" + json["checksum"].toString() + "\n");
    replaceIn("r.html", "<td class=\"value\">400</td>", "<td class=\"value\">360</td>");
    check = run({"--json", "report", "--verify", "r.html"});
    EXPECT_EQ(check.status, 1);
    EXPECT_EQ(check.json().object()["valid"], false);
    EXPECT_THAT(check.err.toStdString(), HasSubstr("something was changed in it"));
    for (const char *file : {"idle.csv", "missing.html", "."})
        EXPECT_EQ(run({"report", "--verify", file}).status, 1) << file;
}

TEST_F(CliReport, StopTestListensUntilTheStopIsPressed)
{
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) {
        drive.write(SoftEnable, 1);
        drive.write(AbsoluteSetpoint, 100000);
    });
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, Status, [](std::int32_t bits) { return bits & Running; }));
    QProcess process;
    start(process,
          {"--port", port(), "--node", "5", "--json", "report", "r.html", "--stop-test", "--stop-seconds", "1"});
    ASSERT_TRUE(waitForPayload(bus(), ArmForFaultPayload));
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.write(AbsoluteSetpoint, -100000); });
    constexpr int Position = 956;
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, Position, [](std::int32_t counts) { return counts < 50000; }));
    bus().set(DriveAddress, Faults, TrackingFault);
    const Ran ran = good(finish(process));
    EXPECT_EQ(ran.err, "Stop test: let the axis move, then press the machine's stop.\n");
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
