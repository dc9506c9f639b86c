#include "cliprocess.h"

#include "waitfor.h"

#include <QDir>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

using CliFailure = CliFixture;

class CliUpgradeMode : public CliFixture
{
    sim::BusOptions busOptions() const override { return {{{"keta", DriveAddress, true}}}; }
};

} // namespace

TEST(CliUsage, EndsWithTwoAndAReasonAndHelpWithZero)
{
    ended(2, run({"--port", "COM1", "format"}), "",
          "There is no command \"format\".\nvelbrin-cli --help tells more.\n");
    good(run({"scan", "--help"}), testing::StartsWith("Usage: velbrin-cli ... scan\n"));
}

TEST(CliUsage, NothingIsSaidAboutABareLocale)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C"); // newer toolkits remark on it where the program does not see to it
    process.setProcessEnvironment(environment);
    start(process, {"--version"});
    good(finish(process), testing::_, "");
}

TEST_F(CliFailure, PortThatIsNotThereEndsWithOneReason)
{
    for (const char *name : {"COM9", "/dev/ttyNOWHERE", "./COM1"}) {
        const Ran ran = failed(run({"--port", name, "scan"}), testing::_, "");
        EXPECT_EQ(ran.err.count("Unable to connect. Possibly incompatible COM adapter selected"), 1);
    }
    failed(run({"--port", "COM9", "disable"}),
           testing::EndsWith("The search for drives on COM9 failed, so none was disabled.\n"));
}

TEST_F(CliFailure, SilentDriveIsRefusedInPlainWords)
{
    bus().setFault({sim::LineFault::Deaf});
    failed(onDrive({"read"}), AllOf(Not(""), Not(HasSubstr("<")), Not(HasSubstr("&"))), "");
    good(run({"--port", port(), "--json", "scan"}), "[\n]\n", "No drive answers on COM1.\n");
}

TEST_F(CliFailure, LineLostWhileWritingSaysWhatMayHaveHappened)
{
    bus().setTurnAround(std::chrono::milliseconds(5)); // leaves time to pull the plug in the middle of 60 writes
    RunningOnDrive process({"write", "KVP=400", "--to-flash"});
    ASSERT_TRUE(waitForPayload("800a00000003")); // how the answers to writes are wanted, before the first
    bus().unplug();
    failed(finish(process),
           HasSubstr("may hold some of the new values in its working memory. Nothing was saved to its flash."), "");
}

TEST_F(CliUpgradeMode, SettingsAndMotionAreRefusedAndScanAndStatusWork)
{
    EXPECT_EQ(run({"--port", port(), "scan"}).out, "255\tKETA\t11000\tupgrade\n");
    const QStringList drive = {"--port", port(), "--node", "255"};
    const QList<QStringList> settings = {{"read"}, {"save", "a.drc"}, {"write", "KVP=1"}};
    const QList<QStringList> motion = {{"enable"}, {"disable"}, {"home"}, {"clear-faults"}, {"setpoint", "1"}};
    for (const QStringList &command : settings + motion) {
        const std::string why = settings.contains(command) ? "has no settings" : "cannot move";
        failed(run(drive + command), HasSubstr("firmware-upgrade mode and " + why), "");
    }
    good(run(drive + QStringList{"status"}), HasSubstr("\nMode\tupgrade\n"));
}

TEST_F(CliFailure, ProgressIsShownOnATerminalOnly)
{
    sim::PseudoTerminal terminal;
    ASSERT_EQ(terminal.open(), "");
    QProcess process;
    process.setStandardErrorFile(QString::fromStdString(terminal.name()));
    start(process, toDrive({"read", "KVP"}));
    good(finish(process), "KVP\t360\t0\t32767\n");
    const std::string shown = shownOn(terminal);
    EXPECT_THAT(shown, HasSubstr("Reading the drive's settings..."));
    EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K")) << "the line stays behind";

    EXPECT_EQ(onDrive({"read", "KVP"}).err, "");
}

TEST_F(CliFailure, FullDiskIsNoSuccess)
{
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    start(process, toDrive({"read"}));
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
    const auto bringsItsFolder = [&here] { return !here.entryList({"velbrin-*"}, QDir::Dirs).isEmpty(); };
    ASSERT_TRUE(waitFor(bringsItsFolder, 30000));
    process.terminate();
    failed(finish(process), "Interrupted.\n");
    EXPECT_TRUE(here.isEmpty());
}
