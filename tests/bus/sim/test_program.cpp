// velbrin-sim: its arguments, and how a user starts it: a process of its own.
#include "simoptions.h"
#include "testline.h"
#include "virtualbusfixture.h"

#include <QProcess>
#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <sstream>
#include <string>

using namespace std::chrono_literals;
using sim::Bytes;
using sim::LineFault;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;

namespace {

/// The program, with its output to read. Killed at the end if it still runs.
class Program
{
public:
    explicit Program(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(VELBRIN_BINARY_DIR "/bin/velbrin-sim", arguments);
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    std::string line()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead())
            continue;
        return m_process.readLine().trimmed().toStdString();
    }
    /// Exit status, 128 + signal when a signal ended it.
    int end(int signal = 0)
    {
        if (signal)
            ::kill(pid_t(m_process.processId()), signal);
        m_process.waitForFinished();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : 128 + m_process.exitCode();
    }

private:
    QProcess m_process;
};

class VelbrinSim : public testing::Test
{
protected:
    PrivateFolder m_folder;
};

/// As a shell would split them.
std::string parse(const std::string &line, sim::SimOptions &options)
{
    std::istringstream words("velbrin-sim " + line);
    std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return sim::parseArguments(static_cast<int>(arguments.size()), pointers.data(), options);
}

} // namespace

TEST(Options, DescribeTheBus)
{
    sim::SimOptions options;
    ASSERT_EQ(parse("--drive torva:poles=3@7 --drive keta --drive=keta-pro --load flexible=45+noise --link COM1 "
                    "--state s --set 6010=1077 "
                    "--set 950=0x1000@7 --line-rate --turn-around 250 --fault cut=7+3x2 --bootloader 1205",
                    options),
              "");
    using D = sim::DriveOptions;
    ASSERT_THAT(options.bus.drives, ElementsAre(Field(&D::address, 7), Field(&D::address, 5), Field(&D::address, 6)));
    EXPECT_EQ(options.bus.drives[0].machine.polePairs, 3.0);
    EXPECT_EQ(options.bus.drives[0].machine.springHz, 0.0) << "a load of its own takes the place of the common one";
    EXPECT_EQ(options.bus.drives[1].machine.springHz, 45.0);
    EXPECT_EQ(options.bus.drives[2].machine.encoderNoise, 2.0);
    EXPECT_EQ(options.bus.linkPath, "COM1");
    EXPECT_EQ(options.bus.stateFile, "s");
    EXPECT_TRUE(options.bus.lineRate);
    EXPECT_EQ(options.bus.turnAround.count(), 250);
    ASSERT_EQ(options.presets.size(), 2u);
    EXPECT_EQ(options.presets[1].value, 0x1000);
    EXPECT_EQ(options.presets[1].drive, 7);
    ASSERT_EQ(options.faults.size(), 1u);
    const LineFault fault = options.faults[0];
    EXPECT_EQ(std::tuple(fault.kind, fault.at, fault.skip, fault.count), std::tuple(LineFault::Cut, 7, 3, 2));
    EXPECT_EQ(options.bootloaderVersion, 1205);
    ASSERT_EQ(parse("", options), "");
    ASSERT_EQ(options.bus.drives.size(), 1u) << "the former arguments are forgotten";
    EXPECT_EQ(options.bus.drives[0].profile, "keta");
    EXPECT_EQ(options.bus.drives[0].address, 5);
}

TEST(Options, WrongOnesAreTold)
{
    const QString wrong =
        "--drive keta9 | --drive keta@0 | --drive keta@251 | --drive keta@x | "
        "--drive keta@5 --drive torva@5 | --drive keta, | --drive keta: | --drive keta:rubber@5 | "
        "--load rubber | --load noise= | --drive | --set 6010 | --set 6010=x | --set =1 | "
        "--set 1=9999999999 | --fault fire | --fault cut= | --fault =3 | --fault cut=1234567 | "
        "--fault dropx1x2 | --fault drop+-1 | --nonsense | more | --bootloader new | --turn-around -1 | "
        "--upgrade-mode --drive keta --drive torva";
    for (const QString &arguments : wrong.split(" | ")) {
        sim::SimOptions options;
        EXPECT_NE(parse(arguments.toStdString(), options), "") << qPrintable(arguments);
    }
}

TEST(Options, EveryKindOfLineFaultCanBeNamedAndIsInTheHelp)
{
    for (const LineFault::Kind kind : LineFault::allKinds()) {
        LineFault fault;
        EXPECT_EQ(sim::parseLineFault(LineFault::name(kind) + "=3+4x5", fault), "");
        EXPECT_EQ(fault.kind, kind);
        EXPECT_THAT(sim::helpText(), HasSubstr("\n  " + LineFault::name(kind) + " "));
    }
}

TEST_F(VelbrinSim, PrintsItsPortServesItAndRemovesItsLink)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        Program program({"--link", "COM1", "--drive", "torva@7", "--set", "6010=1077"});
        const std::string port = program.line();
        EXPECT_EQ(std::filesystem::read_symlink("COM1").string(), port);
        TestLine line("COM1");
        // Read of 6010 at address 7, in four bytes.
        line.send({0x24, 0x0A, 0x07, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x7A, 0xFF, 0xFF});
        // That was a wrong checksum, and no answer; this is a right one.
        const Bytes good = line.exchange(
            {0x24, 0x0A, 0x07, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x7A, 0x83, 0x75}, 21);
        ASSERT_EQ(good.size(), 21u);
        EXPECT_EQ(Bytes(good.begin() + 15, good.begin() + 19), (Bytes{0x00, 0x00, 0x04, 0x35}));
        EXPECT_EQ(program.end(signal), 0);
        EXPECT_FALSE(std::filesystem::is_symlink("COM1"));
    }
}

TEST_F(VelbrinSim, WhatItCannotDoEndsWithItsStatusAndAWord)
{
    std::ofstream("broken.state") << "no state\n";
    Program running({"--link", "COM1"});
    const std::string port = running.line();
    const std::tuple<QStringList, int, std::string> rows[] = {
        {{"--help"}, 0, "Usage"},
        {{"--version"}, 0, "velbrin-sim "},
        {{"--drive", "toaster"}, 2, "toaster"},
        {{"--state", "broken.state"}, 1, "broken.state"},
        {{"--set", "9999=1"}, 1, "9999"},
        {{"--write-firmware", "/nowhere/x.tdf"}, 1, "/nowhere/x.tdf"},
        {{"--link", "COM1"}, 1, "COM1: a virtual drive that is running has this name (" + port + ")"},
    };
    for (const auto &[arguments, status, word] : rows) {
        Program program(arguments);
        EXPECT_THAT(program.line(), HasSubstr(word));
        EXPECT_EQ(program.end(), status) << word;
    }
    EXPECT_EQ(std::filesystem::read_symlink("COM1").string(), port);
}

TEST_F(VelbrinSim, KilledHalfWayThroughAnUpgradeItComesUpInUpgradeMode)
{
    const Bytes erase{0x24, 0x06, 0xFF, 0x80, 0xBF, 0x00, 0x00, 0x00, 0x01, 0xEF, 0xFF}; // 191 := 1 at 255
    const Bytes readFaults{0x24, 0x0A, 0xFF, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x02, 0x28, 0x25, 0x7B};
    {
        Program program({"--link", "COM1", "--state", "drive.state", "--upgrade-mode"});
        program.line();
        EXPECT_EQ(TestLine("COM1").exchange(erase, 13).size(), 13u);
        EXPECT_EQ(program.end(SIGKILL), 128 + SIGKILL);
    }
    Program program({"--link", "COM1", "--state", "drive.state"}); // over the dead link, too
    const std::string port = program.line(); // it is up
    EXPECT_EQ(port, std::filesystem::read_symlink("COM1").string());
    const Bytes reply = TestLine("COM1").exchange(readFaults, 21);
    ASSERT_EQ(reply.size(), 21u);
    EXPECT_EQ(Bytes(reply.begin() + 15, reply.begin() + 19), (Bytes{0x00, 0x00, 0x01, 0x20}));
}

TEST_F(VelbrinSim, WritesAFirmwareFileForEachProfile)
{
    for (const std::string profile : {"keta", "keta-pro", "keta-hc", "torva"}) {
        Program program({"--drive", profile.c_str(), "--write-firmware", "new.tdf"});
        EXPECT_EQ(program.end(), 0);
        std::ifstream file("new.tdf", std::ios::binary);
        const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
        ASSERT_GT(bytes.size(), 20u);
        const auto number = [&](std::size_t at) {
            return bytes[at] | bytes[at + 1] << 8 | bytes[at + 2] << 16 | std::uint32_t(bytes[at + 3]) << 24;
        };
        EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "TDFW");
        EXPECT_EQ(bytes.size(), 16 + number(8) + number(12) + 4);
        EXPECT_GT(number(8), 0u);
        EXPECT_EQ(number(12) > 0, profile == "torva") << "a core image for two processors only";
    }
}
