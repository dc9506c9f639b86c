#include "cliprocess.h"

#include "pseudoterminal.h"

#include <QDir>
#include <QThread>

using testing::HasSubstr;

namespace {

using CliFailure = CliFixture;

class CliUpgradeMode : public CliFixture
{
    sim::BusOptions busOptions() const override { return {{{"keta", DriveAddress, true}}}; }
};

std::string terminalOutput(sim::PseudoTerminal &terminal)
{
    std::string text;
    for (sim::Bytes bytes = terminal.read(); !bytes.empty(); bytes = terminal.read())
        text.append(bytes.begin(), bytes.end());
    return text;
}

} // namespace

TEST(CliUsage, EndsWithTwoAndAReasonAndHelpWithZero)
{
    const Ran wrong = run({"--port", "COM1", "format"});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.out, "");
    EXPECT_EQ(wrong.err, "There is no command \"format\".\nvelbrin-cli --help tells more.\n");
    const Ran help = run({"scan", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out.toStdString(), testing::StartsWith("Usage: velbrin-cli ... scan\n"));
}

TEST(CliUsage, NothingIsSaidAboutABareLocale)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C"); // newer toolkits remark on it where the program does not see to it
    process.setProcessEnvironment(environment);
    start(process, {"--version"});
    const Ran ran = finish(process);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
}

TEST_F(CliFailure, PortThatIsNotThereEndsWithOneReason)
{
    for (const char *name : {"COM9", "/dev/ttyNOWHERE", "./COM1"}) {
        const Ran ran = run({"--port", name, "scan"});
        EXPECT_EQ(ran.status, 1) << name;
        EXPECT_EQ(ran.out, "");
        EXPECT_EQ(ran.err.count("Unable to connect. Possibly incompatible COM adapter selected"), 1);
    }
    const Ran ran = run({"--port", "COM9", "disable"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err.toStdString(),
                testing::EndsWith("The search for drives on COM9 failed, so none was disabled.\n"));
}

TEST_F(CliFailure, SilentDriveIsRefusedInPlainWords)
{
    bus().setFault({sim::LineFault::Deaf});
    Ran ran = onDrive({"read"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_NE(ran.err, "");
    EXPECT_FALSE(ran.err.contains('<') || ran.err.contains('&')) << ran.err.toStdString();

    ran = good(run({"--port", port(), "--json", "scan"}), "[\n]\n");
    EXPECT_EQ(ran.err, "No drive answers on COM1.\n");
}

TEST_F(CliFailure, LineLostWhileWritingSaysWhatMayHaveHappened)
{
    bus().setTurnAround(std::chrono::milliseconds(5)); // leaves time to pull the plug in the middle of 60 writes
    QProcess process;
    start(process, {"--port", port(), "--node", "5", "write", "KVP=400", "--to-flash"});
    ASSERT_TRUE(waitForPayload(bus(), "800a00000003")); // how the answers to writes are wanted, before the first
    bus().unplug();
    const Ran ran = failed(finish(process),
                           HasSubstr("may hold some of the new values in its working memory. Nothing was "
                                     "saved to its flash."),
                           "");
}

TEST_F(CliUpgradeMode, SettingsAndMotionAreRefusedAndScanAndStatusWork)
{
    Ran ran = run({"--port", port(), "scan"});
    EXPECT_EQ(ran.out, "255\tKETA\t11000\tupgrade\n");
    const QStringList drive = {"--port", port(), "--node", "255"};
    const QList<QStringList> settings = {{"read"}, {"save", "a.drc"}, {"write", "KVP=1"}};
    const QList<QStringList> motion = {{"enable"}, {"disable"}, {"home"}, {"clear-faults"}, {"setpoint", "1"}};
    for (const QStringList &command : settings + motion) {
        const std::string why = settings.contains(command) ? "has no settings" : "cannot move";
        failed(run(drive + command), HasSubstr("firmware-upgrade mode and " + why), "");
    }
    ran = good(run(drive + QStringList{"status"}));
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
    failed(finish(process), "The results could not be written.\n");
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
    failed(finish(process), "Interrupted.\n");
    EXPECT_TRUE(here.isEmpty());
}
