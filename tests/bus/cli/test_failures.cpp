#include "cliprocess.h"

#include "pseudoterminal.h"

#include <QDir>
#include <QThread>

#include <utime.h>

using testing::HasSubstr;

namespace {

class CliFailure : public VirtualBusFixture
{
};

class CliUpgradeMode : public VirtualBusFixture
{
    sim::BusOptions busOptions() const override
    {
        sim::BusOptions options;
        options.drives = {{"keta", DriveAddress, true}};
        return options;
    }
};

std::string terminalOutput(sim::PseudoTerminal &terminal)
{
    std::string text;
    for (sim::Bytes bytes = terminal.read(); !bytes.empty(); bytes = terminal.read())
        text.append(bytes.begin(), bytes.end());
    return text;
}

} // namespace

TEST(CliUsage, WhatMakesNoSenseEndsWithTwoAndAReason)
{
    const struct
    {
        QStringList arguments;
        const char *reason;
    } wrong[] = {
        {{}, "Either --port NAME or --virtual-drive is needed."},
        {{"scan"}, "Either --port NAME or --virtual-drive is needed."},
        {{"--port", "COM1", "--virtual-drive", "scan"}, "Either --port NAME or --virtual-drive is needed."},
        {{"--port", "COM1"}, "There is no command."},
        {{"--port", "COM1", "format"}, "There is no command \"format\"."},
        {{"--port", "COM1", "scan", "--fast"}, "Unknown option 'fast'."},
        {{"--port", "COM1", "--node", "0", "read"}, "--node takes a bus address from 1 to 255."},
        {{"--port", "COM1", "--node", "x", "read"}, "--node takes a bus address from 1 to 255."},
        {{"--port", "COM1", "read", "--to-flash"}, "\"read\" does not take --to-flash."},
        {{"--port", "COM1", "read", "KVX"}, "There is no setting named \"KVX\"."},
        {{"--port", "COM1", "write"}, "Usage: velbrin-cli ... write NAME=VALUE... [--to-flash]"},
        {{"--port", "COM1", "write", "KVP"}, "\"KVP\" is not of the form NAME=VALUE with a number."},
        {{"--port", "COM1", "write", "KVP=fast"}, "\"KVP=fast\" is not of the form NAME=VALUE with a number."},
        {{"--port", "COM1", "write", "KVP=nan"}, "\"KVP=nan\" is not of the form NAME=VALUE with a number."},
        {{"--port", "COM1", "write", "KVP=1", "KVP=2"}, "KVP is given twice."},
        {{"--port", "COM1", "write", "kvp=1"}, "There is no setting named \"kvp\"."},
        {{"--port", "COM1", "save"}, "Usage: velbrin-cli ... save FILE.drc"},
        {{"--port", "COM1", "load", "a.drc", "b.drc"}, "Usage: velbrin-cli ... load FILE.drc [--to-flash]"},
        {{"--virtual-drive=kat", "scan"}, "\"kat\""},
        {{"--virtual-drive=keta:rubber", "scan"}, "\"rubber\""},
        {{"--port", "COM1", "--port", "COM2", "scan"}, "--port is given twice."},
        {{"--port"}, "--port needs a value."},
        {{"--port", "--json", "scan"}, "--port needs a value."},
        {{"--port", "COM1", "--json=yes", "scan"}, "--json takes no value."},
        {{"--port", "COM1", "--watch", "read"}, "\"read\" does not take --watch."},
        {{"--port", "COM1", "--pause-scale", "2", "scan"}, "--pause-scale takes a factor from 0 to 1."},
        {{"--port", "COM1", "setpoint"}, "Usage: velbrin-cli ... setpoint VALUE [--incremental]"},
        {{"--port", "COM1", "setpoint", "1e3"}, "\"1e3\" is no whole number"},
        {{"--port", "COM1", "setpoint", "-536870913"}, "\"-536870913\" is no whole number"},
        {{"--port", "COM1", "home", "--time-out", "soon"}, "--time-out takes seconds"},
        {{"firmware-info"}, "Usage: velbrin-cli ... firmware-info FILE.tdf"},
    };
    for (const auto &each : wrong) {
        const Ran ran = run(each.arguments);
        EXPECT_EQ(ran.status, 2) << each.arguments.join(' ').toStdString();
        EXPECT_EQ(ran.out, "");
        EXPECT_THAT(ran.err.toStdString(), HasSubstr(each.reason));
    }
}

TEST(CliUsage, HelpNamesEveryCommandAndEachHasItsOwn)
{
    const Ran ran = run({"--help"});
    EXPECT_EQ(ran.status, 0);
    for (const char *command : {"scan", "read", "write", "save", "load", "compare", "status", "enable", "disable",
                                "clear-faults", "home", "setpoint", "capture", "flash", "restart", "firmware-info"}) {
        EXPECT_THAT(ran.out.toStdString(), HasSubstr(std::string("\n  ") + command + " "));
        const Ran own = run({command, "--help"});
        EXPECT_EQ(own.status, 0);
        EXPECT_THAT(own.out.toStdString(), testing::StartsWith(std::string("Usage: velbrin-cli ... ") + command));
        for (const QString &line : own.lines() + ran.lines())
            EXPECT_LT(line.size(), 120) << line.toStdString();
    }
    EXPECT_FALSE(ran.out.contains("pause-scale"));
    EXPECT_EQ(run({"--version"}).out, "velbrin-cli 1.9.0\n");
}

TEST_F(CliFailure, PortThatIsNotThereEndsWithOneReason)
{
    for (const char *name : {"COM9", "/dev/ttyNOWHERE", "./COM1"}) {
        const Ran ran = run({"--port", name, "scan"});
        EXPECT_EQ(ran.status, 1) << name;
        EXPECT_EQ(ran.out, "");
        EXPECT_EQ(ran.err.count("Unable to connect. Possibly incompatible COM adapter selected"), 1);
    }
}

TEST_F(CliFailure, SilentDriveIsRefusedInPlainWords)
{
    sim::LineFault deaf;
    deaf.kind = sim::LineFault::Deaf;
    bus().setFault(deaf);
    Ran ran = onDrive({"read"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_NE(ran.err, "");
    EXPECT_FALSE(ran.err.contains('<') || ran.err.contains('&')) << ran.err.toStdString();

    ran = run({"--port", port(), "--json", "scan"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, "[\n]\n");
    EXPECT_EQ(ran.err, "No drive answers on COM1.\n");
}

TEST_F(CliFailure, LineLostWhileWritingSaysWhatMayHaveHappened)
{
    bus().setTurnAround(std::chrono::milliseconds(5)); // leaves time to pull the plug in the middle of 60 writes
    QProcess process;
    start(process, {"--port", port(), "--node", "5", "write", "KVP=400", "--to-flash"});
    ASSERT_TRUE(bus().waitForReceived([](const sim::ReceivedRequests &requests) {
        return !requests.empty() && requests.back().packet.payload == sim::Bytes{0x80, 0x0a, 0x00, 0x00, 0x00, 0x03};
    }));
    bus().unplug();
    const Ran ran = finish(process);
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err.toStdString(), HasSubstr("may hold some of the new values in its working memory. Nothing was "
                                                 "saved to its flash."));
}

TEST_F(CliUpgradeMode, SettingsAreRefusedAndScanAndStatusWork)
{
    Ran ran = run({"--port", port(), "scan"});
    EXPECT_EQ(ran.out, "255\tKETA\t11000\tupgrade\n");
    const QStringList drive = {"--port", port(), "--node", "255"};
    for (const QStringList &command :
         {QStringList{"read"}, QStringList{"save", "a.drc"}, QStringList{"write", "KVP=1"}}) {
        ran = run(drive + command);
        EXPECT_EQ(ran.status, 1);
        EXPECT_EQ(ran.out, "");
        EXPECT_THAT(ran.err.toStdString(), HasSubstr("firmware-upgrade mode and has no settings"));
    }
    ran = run(drive + QStringList{"status"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_TRUE(ran.lines().contains("Mode\tupgrade")) << ran.out.toStdString();
}

TEST_F(CliFailure, ProgressIsShownOnATerminalOnly)
{
    sim::PseudoTerminal terminal;
    ASSERT_EQ(terminal.open(), "");
    QProcess process;
    process.setStandardErrorFile(QString::fromStdString(terminal.name()));
    start(process, {"--port", port(), "--node", "5", "read", "KVP"});
    const Ran ran = finish(process);
    EXPECT_EQ(ran.out, "KVP\t360\t0\t32767\n");
    const std::string shown = terminalOutput(terminal);
    EXPECT_THAT(shown, HasSubstr("Reading the drive's settings..."));
    EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K")) << "the line stays behind";

    EXPECT_EQ(onDrive({"read", "KVP"}).err, "");
}

TEST_F(CliFailure, FullDiskIsNoSuccess)
{
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    start(process, {"--port", port(), "--node", "5", "read"});
    const Ran ran = finish(process);
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "The results could not be written.\n");
}

TEST(CliInterrupted, LeavesNothingBehind)
{
    PrivateFolder place;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", QDir::currentPath());
    QProcess process;
    process.setProcessEnvironment(environment);
    start(process, {"--virtual-drive", "scan"});
    QDir here(QDir::currentPath());
    const auto bringsItsFolder = [&here] {
        for (int i = 0; i < 3000 && here.entryList({"velbrin-*"}, QDir::Dirs).isEmpty(); ++i)
            QThread::msleep(10);
        return !here.entryList({"velbrin-*"}, QDir::Dirs).isEmpty();
    };
    ASSERT_TRUE(bringsItsFolder());
    process.terminate();
    const Ran ran = finish(process);
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "Interrupted.\n");
    EXPECT_TRUE(here.isEmpty());

    // A killed one cannot tidy up; the next one does, but leaves a folder that is in use.
    start(process, {"--virtual-drive", "status", "--watch"});
    ASSERT_TRUE(bringsItsFolder());
    ASSERT_TRUE(process.waitForReadyRead(20000));
    const QString folder = here.entryList({"velbrin-*"}, QDir::Dirs).first();
    const auto age = [&folder] {
        const utimbuf longAgo = {1000000000, 1000000000};
        ASSERT_EQ(utime(qPrintable(folder), &longAgo), 0);
    };
    const auto runAnother = [&environment] {
        QProcess another;
        another.setProcessEnvironment(environment);
        start(another, {"--virtual-drive", "--node", "5", "read", "KVP"});
        EXPECT_EQ(finish(another).status, 0);
    };
    age();
    runAnother();
    EXPECT_EQ(here.entryList({"velbrin-*"}, QDir::Dirs), QStringList(folder));
    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    age();
    runAnother();
    EXPECT_TRUE(here.isEmpty());
}
