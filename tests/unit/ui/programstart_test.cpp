// The command line, and the folder that the program works in.
#include "datafolder.h"
#include "programoptions.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(ProgramOptions, VirtualDriveTakesAListOfModelsOrNone)
{
    EXPECT_EQ(parseProgramOptions({"velbrin", "--virtual-drive"}).virtualDrives, QStringList("keta"));
    const ProgramOptions two = parseProgramOptions({"velbrin", "--virtual-drive=keta,torva", "--port", "COM7"});
    EXPECT_EQ(two.virtualDrives, QStringList({"keta", "torva"}));
    EXPECT_EQ(two.port, "COM7");
    EXPECT_FALSE(two.debugValues);
    const ProgramOptions plain = parseProgramOptions({"velbrin", "--debug-values"});
    EXPECT_TRUE(plain.virtualDrives.isEmpty());
    EXPECT_TRUE(plain.debugValues);
    EXPECT_EQ(plain.error, "");
    EXPECT_EQ(plain.text, "");
}

TEST(ProgramOptions, WrongUsageIsNamed)
{
    EXPECT_TRUE(parseProgramOptions({"velbrin", "--virtual-drive=teapot"}).error.contains("teapot"));
    EXPECT_TRUE(parseProgramOptions({"velbrin", "--virtual-drive=keta:rubber"}).error.contains("rubber"));
    EXPECT_EQ(parseProgramOptions({"velbrin", "--virtual-drive=keta:flexible=45+noise@7,torva"}).error, "");
    EXPECT_TRUE(parseProgramOptions({"velbrin", "--nonsense"}).error.contains("nonsense"));
    EXPECT_TRUE(parseProgramOptions({"velbrin", "one.drc", "two.drc"}).error.contains("two.drc"));
    for (const QStringList &withTour : {QStringList{"--port", "COM7"}, QStringList{"one.drc"}, QStringList{}})
        EXPECT_TRUE(parseProgramOptions(QStringList{"velbrin", "--tour", "shots"} + withTour).error.contains("--tour"));
    EXPECT_TRUE(parseProgramOptions({"velbrin", "--virtual-drive", "--tour", "shots", "one.drc"}).error.contains("file"));
    EXPECT_EQ(parseProgramOptions({"velbrin", "--version"}).text, "velbrin 1.9.0\n");
    EXPECT_TRUE(parseProgramOptions({"velbrin", "--help"}).text.contains("--virtual-drive"));
}

TEST(ProgramOptions, SettingsFileIsFoundFromWhereTheProgramWasStarted)
{
    const ProgramOptions options = parseProgramOptions({"velbrin", "axis 1.drc"});
    EXPECT_EQ(options.error, "");
    EXPECT_EQ(options.file, QDir::current().absoluteFilePath("axis 1.drc")); // the program works elsewhere
    EXPECT_EQ(parseProgramOptions({"velbrin", "/tmp/a.drc"}).file, "/tmp/a.drc");
    EXPECT_EQ(parseProgramOptions({"velbrin"}).file, "");
}

class DataFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir::setCurrent(m_folder.path());
        qputenv("VELBRIN_DATA", m_folder.filePath("data").toLocal8Bit());
        QDir().mkpath("data/flot");
        QDir().mkpath("data/help");
        QFile script("data/flot/jquery.flot.js");
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    }
    void TearDown() override
    {
        qunsetenv("VELBRIN_DATA");
        QDir::setCurrent("/");
    }
    QTemporaryDir m_folder;
};

TEST_F(DataFolder, OwnOneGoesBeforeThatOfTheWorkingFolder)
{
    QDir().mkpath("downloads/flot");
    QFile script("downloads/flot/jquery.flot.js"); // somebody else's
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QDir::setCurrent("downloads"));
    EXPECT_TRUE(enterDataFolder());
    EXPECT_EQ(QDir::currentPath(), QDir(m_folder.filePath("data")).canonicalPath());
    ASSERT_TRUE(QDir::setCurrent(m_folder.filePath("downloads")));
    const VirtualDriveFolder folder("/dev/pts/99");
    EXPECT_EQ(QFileInfo("flot").symLinkTarget(), QDir(m_folder.filePath("data/flot")).canonicalPath());
}

TEST_F(DataFolder, VirtualDriveHasAPrivateOneThatGoesAway)
{
    QString made;
    {
        VirtualDriveFolder folder("/dev/pts/99");
        EXPECT_EQ(folder.error(), "");
        made = QDir::currentPath();
        EXPECT_NE(made, m_folder.path());
        EXPECT_EQ(QFileInfo("COM1").symLinkTarget(), "/dev/pts/99");
        EXPECT_TRUE(QFileInfo::exists("flot/jquery.flot.js"));
        EXPECT_TRUE(QFileInfo("help").isDir());
    }
    EXPECT_FALSE(QFileInfo::exists(made));
    EXPECT_EQ(QDir::currentPath(), m_folder.path());
    EXPECT_TRUE(QFileInfo::exists("data/flot/jquery.flot.js")); // links are removed, not what they point at
}
