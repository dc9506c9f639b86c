// The command line.
#include "programoptions.h"

#include <QDir>
#include <gtest/gtest.h>

TEST(ProgramOptions, VirtualDriveTakesAListOfModelsOrNone)
{
    EXPECT_EQ(parseProgramOptions({"velbrin", "--virtual-drive"}).virtualDrives, "keta");
    const ProgramOptions two = parseProgramOptions({"velbrin", "--virtual-drive=keta,torva", "--port", "COM7"});
    EXPECT_EQ(two.virtualDrives, "keta,torva");
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
    EXPECT_TRUE(
        parseProgramOptions({"velbrin", "--virtual-drive", "--tour", "shots", "one.drc"}).error.contains("file"));
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
