// The state file: what is kept, and what damaged files do.
#include "simoptions.h"
#include "statefile.h"

#include "registers.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
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

    ASSERT_EQ(saveState(path, drives({{"torva", 7}})), "") << "the other's section stays";
    Drives again = drives({{"keta", 3}});
    ASSERT_EQ(loadState(path, again), "");
    EXPECT_EQ(again[0]->read(reg::VelocityP), 411);
}

TEST_F(StateFile, MissingFileIsAnEmptyOneAndADamagedOneIsToldAndNothingTakenOver)
{
    Drives none = drives({{"keta", 5}});
    EXPECT_EQ(loadState(path, none), "");
    EXPECT_EQ(none[0]->read(reg::VelocityP), 360);
    const char *const good = "velbrin-sim state 1\ndrive keta 5\n202=400\n";
    const std::pair<std::string, const char *> damaged[] = {
        {"", "not a state file"},
        {"hello\n", "not a state file"},
        {std::string(2000000, '\xA5'), "not a state file"},
        {std::string(good) + "nonsense\n", "line 4"},
        {std::string(good) + "202=\n", "line 4"},
        {std::string(good) + "202=4x\n", "line 4"},
        {"velbrin-sim state 1\n202=400\n", "line 2"},
        {std::string(good) + "drive keta\n", "line 4"},
    };
    for (const auto &[text, message] : damaged) {
        write(text);
        Drives list = drives({{"keta", 5}});
        const std::string error = loadState(path, list);
        EXPECT_THAT(error, HasSubstr(message));
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

TEST_F(StateFile, PlantedLinksAreNotWrittenThroughAndOwnOnesAreKept)
{
    const std::string victim = path + ".victim";
    std::ofstream(victim) << "precious";
    Drives list = drives({{"keta", 5}});
    // Where the temporary will be.
    ASSERT_EQ(symlink(victim.c_str(), (path + ".new").c_str()), 0);
    EXPECT_EQ(saveState(path, list), "");
    std::string contents;
    std::getline(std::ifstream(victim), contents);
    EXPECT_EQ(contents, "precious");
    EXPECT_EQ(loadState(path, list), "");

    // One's own link to a state file elsewhere.
    const std::string link = path + ".link";
    ASSERT_EQ(symlink(path.c_str(), link.c_str()), 0);
    list[0]->write(reg::VelocityP, 433);
    list[0]->write(reg::Command, 1);
    EXPECT_EQ(saveState(link, list), "");
    Drives again = drives({{"keta", 5}});
    EXPECT_EQ(loadState(path, again), "");
    EXPECT_EQ(again[0]->read(reg::VelocityP), 433) << "written behind the link, which is still one";

    // somebody else's: only root can make one for a test.
    constexpr uid_t somebody = 65534;
    if (lchown(link.c_str(), somebody, somebody) == 0) {
        EXPECT_THAT(saveState(link, list), HasSubstr("belongs to somebody else"));
        EXPECT_THAT(loadState(link, list), HasSubstr("belongs to somebody else"));
    }
    std::remove(link.c_str());
    std::remove(victim.c_str());
}
