// The state file and the command line of velbrin-sim.
#include "statefile.h"
#include "simoptions.h"

#include "registers.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace sim;
using testing::HasSubstr;

namespace {

class StateFile : public testing::Test
{
protected:
    StateFile()
    {
        char folder[] = "/tmp/velbrin-state-XXXXXX";
        m_folder = mkdtemp(folder);
        path = m_folder + "/drives.state";
    }
    ~StateFile() override
    {
        std::remove(path.c_str());
        std::remove((path + ".new").c_str());
        rmdir(m_folder.c_str());
    }
    static Drives drives(std::initializer_list<DriveOptions> list)
    {
        Drives made;
        for (const DriveOptions &drive : list)
            made.push_back(std::make_unique<VirtualDrive>(*findProfile(drive.profile), drive.address));
        return made;
    }
    void write(const std::string &text) { std::ofstream(path) << text; }

    std::string path;

private:
    std::string m_folder;
};

std::string parse(std::initializer_list<const char *> arguments, SimOptions &options)
{
    std::vector<char *> pointers{const_cast<char *>("velbrin-sim")};
    for (const char *argument : arguments)
        pointers.push_back(const_cast<char *>(argument));
    const int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    return parseArguments(count, pointers.data(), options);
}

} // namespace

TEST_F(StateFile, KeepsEveryDrivesFlash)
{
    Drives before = drives({{"keta", 3}, {"torva", 7}});
    before[0]->write(reg::VelocityP, 411);
    before[0]->write(reg::Command, 1);
    before[1]->write(reg::VelocityP, 99);
    before[1]->write(reg::Command, 1);
    before[1]->powerUpInUpgradeMode();
    before[1]->write(reg::UpgradeCommand, Bootloader::Erase);
    ASSERT_EQ(saveState(path, before), "");

    Drives after = drives({{"torva", 7}, {"keta", 3}, {"keta", 4}});
    ASSERT_EQ(loadState(path, after), "");
    EXPECT_EQ(after[1]->read(reg::VelocityP), 411);
    EXPECT_EQ(after[2]->read(reg::VelocityP), 360) << "unknown to the file";
    EXPECT_TRUE(after[0]->isInUpgradeMode()) << "its upgrade was cut off";
    EXPECT_EQ(after[0]->flash().settings.at(reg::VelocityP), 99);
}

TEST_F(StateFile, KeepsSectionsOfDrivesThatAreNotThere)
{
    Drives first = drives({{"keta", 3}});
    first[0]->write(reg::VelocityP, 411);
    first[0]->write(reg::Command, 1);
    ASSERT_EQ(saveState(path, first), "");
    ASSERT_EQ(saveState(path, drives({{"torva", 7}})), "");
    Drives again = drives({{"keta", 3}});
    ASSERT_EQ(loadState(path, again), "");
    EXPECT_EQ(again[0]->read(reg::VelocityP), 411);
}

TEST_F(StateFile, MissingFileIsAnEmptyOne)
{
    Drives list = drives({{"keta", 5}});
    EXPECT_EQ(loadState(path, list), "");
    EXPECT_EQ(list[0]->read(reg::VelocityP), 360);
}

TEST_F(StateFile, DamagedFileIsToldAndNothingTakenOver)
{
    const char *const good = "velbrin-sim state 1\ndrive keta 5\n202=400\n";
    const struct
    {
        std::string text;
        const char *message;
    } damaged[] = {
        {"", "not a state file"},
        {"hello\n", "not a state file"},
        {std::string(2000000, '\xA5'), "not a state file"},
        {std::string(good) + "nonsense\n", "line 4"},
        {std::string(good) + "202=\n", "line 4"},
        {std::string(good) + "202=4x\n", "line 4"},
        {"velbrin-sim state 1\n202=400\n", "line 2"},
        {std::string(good) + "drive keta\n", "line 4"},
    };
    for (const auto &file : damaged) {
        write(file.text);
        Drives list = drives({{"keta", 5}});
        const std::string error = loadState(path, list);
        EXPECT_THAT(error, HasSubstr(file.message));
        EXPECT_THAT(error, HasSubstr(path));
        EXPECT_EQ(list[0]->read(reg::VelocityP), 360);
    }
    write(good);
    Drives list = drives({{"keta", 5}});
    EXPECT_EQ(loadState(path, list), "");
    EXPECT_EQ(list[0]->read(reg::VelocityP), 400);
}

TEST_F(StateFile, FolderIsNoStateFileAndAFailedSaveKeepsTheOld)
{
    Drives list = drives({{"keta", 5}});
    EXPECT_THAT(loadState("/tmp", list), HasSubstr("not a file"));
    EXPECT_NE(saveState("/nowhere/at/all", list), "");
    write("velbrin-sim state 1\ndrive keta 5\n202=400\n");
    mkdir((path + ".new").c_str(), 0700); // the temporary cannot be made
    EXPECT_NE(saveState(path, list), "");
    ASSERT_EQ(loadState(path, list), "");
    EXPECT_EQ(list[0]->read(reg::VelocityP), 400);
    rmdir((path + ".new").c_str());
}

TEST(Options, DescribeTheBus)
{
    SimOptions options;
    ASSERT_EQ(parse({"--drive",
                     "torva@7",
                     "--drive",
                     "keta",
                     "--drive=keta-pro",
                     "--link",
                     "COM1",
                     "--state",
                     "s",
                     "--set",
                     "6010=1077",
                     "--set",
                     "950=0x1000@7",
                     "--line-rate",
                     "--turn-around",
                     "250",
                     "--fault",
                     "cut=7+3x2",
                     "--bootloader",
                     "1205"},
                    options),
              "");
    ASSERT_EQ(options.bus.drives.size(), 3u);
    EXPECT_EQ(options.bus.drives[0].address, 7);
    EXPECT_EQ(options.bus.drives[1].address, 5);
    EXPECT_EQ(options.bus.drives[2].address, 6) << "the next free one";
    EXPECT_EQ(options.bus.linkPath, "COM1");
    EXPECT_EQ(options.bus.stateFile, "s");
    EXPECT_TRUE(options.bus.lineRate);
    EXPECT_EQ(options.bus.turnAround.count(), 250);
    ASSERT_EQ(options.presets.size(), 2u);
    EXPECT_EQ(options.presets[1].value, 0x1000);
    EXPECT_EQ(options.presets[1].drive, 7);
    ASSERT_EQ(options.faults.size(), 1u);
    EXPECT_EQ(options.faults[0].kind, LineFault::Cut);
    EXPECT_EQ(options.faults[0].at, 7);
    EXPECT_EQ(options.faults[0].skip, 3);
    EXPECT_EQ(options.faults[0].count, 2);
    EXPECT_EQ(options.bootloaderVersion, 1205);
}

TEST(Options, WithoutAnyThereIsOneKeta)
{
    SimOptions options;
    ASSERT_EQ(parse({}, options), "");
    ASSERT_EQ(options.bus.drives.size(), 1u);
    EXPECT_EQ(options.bus.drives[0].profile, "keta");
    EXPECT_EQ(options.bus.drives[0].address, 5);
}

TEST(Options, WrongOnesAreTold)
{
    const std::initializer_list<const char *> wrong[] = {
        {"--drive", "keta9"},
        {"--drive", "keta@0"},
        {"--drive", "keta@251"},
        {"--drive", "keta@x"},
        {"--drive", "keta@5", "--drive", "torva@5"},
        {"--drive"},
        {"--set", "6010"},
        {"--set", "6010=x"},
        {"--set", "=1"},
        {"--set", "1=9999999999"},
        {"--fault", "fire"},
        {"--fault", "cut="},
        {"--fault", "=3"},
        {"--fault", "cut=1234567"},
        {"--fault", "dropx1x2"},
        {"--fault", "drop+-1"},
        {"--nonsense"},
        {"more"},
        {"--bootloader", "new"},
        {"--turn-around", "-1"},
        {"--upgrade-mode", "--drive", "keta", "--drive", "torva"},
    };
    for (const auto &arguments : wrong) {
        SimOptions options;
        EXPECT_NE(parse(arguments, options), "") << *arguments.begin();
    }
}
