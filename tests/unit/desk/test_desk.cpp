// The folder that a program works in, what it finds there, and how a signal ends it.
#include "datafolder.h"
#include "quitsignals.h"
#include "utf8locale.h"
#include "virtualport.h"

#include "printqt.h"
#include "testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <clocale>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <langinfo.h>
#include <sys/stat.h>

namespace {

class Desk : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("TMPDIR", m_folder.path().toLocal8Bit());
        qputenv("VELBRIN_DATA", m_folder.filePath("data").toLocal8Bit());
        for (const char *folder : {"data", "downloads"}) {
            for (const char *part : {"flot", "help"})
                ASSERT_TRUE(QDir(m_folder.path()).mkpath(QString("%1/%2").arg(folder, part)));
            put(m_folder.filePath(QString("%1/flot/jquery.flot.js").arg(folder)), {});
        }
        ASSERT_TRUE(QDir::setCurrent(m_folder.filePath("downloads"))); // somebody else's
    }
    void TearDown() override
    {
        qunsetenv("VELBRIN_DATA");
        qunsetenv("TMPDIR");
        QDir::setCurrent("/");
    }

    QTemporaryDir m_folder;
};

/// As if nobody had touched it for two minutes.
void makeOld(const QString &folder)
{
    const timespec then = {std::time(nullptr) - 120, 0}, times[2] = {then, then};
    ASSERT_EQ(utimensat(AT_FDCWD, qPrintable(folder), times, 0), 0);
}

} // namespace

TEST_F(Desk, OwnDataGoBeforeThoseOfTheWorkingFolder)
{
    const QString own = QDir(m_folder.filePath("data")).canonicalPath();
    EXPECT_EQ(findDataFolder(), own);
    EXPECT_TRUE(enterDataFolder());
    EXPECT_EQ(QDir::currentPath(), own);

    ASSERT_TRUE(QFile::remove(m_folder.filePath("data/flot/jquery.flot.js"))); // as in the sources: a style sheet only
    ASSERT_TRUE(QDir::setCurrent("/"));
    EXPECT_NE(findDataFolder(), own);
}

TEST_F(Desk, VirtualDriveHasAPrivateFolderThatGoesAway)
{
    const QString before = QDir::currentPath();
    QString made;
    {
        const VirtualPort port("keta@7,torva", VirtualPort::Pace::RealLine);
        EXPECT_EQ(port.error(), "");
        made = QDir::currentPath();
        EXPECT_NE(made, before);
        EXPECT_TRUE(QFileInfo("COM1").symLinkTarget().startsWith("/dev/pts/"));
        EXPECT_EQ(QFileInfo("flot").symLinkTarget(), QDir(m_folder.filePath("data/flot")).canonicalPath());
        EXPECT_TRUE(QFileInfo("help").isDir());
    }
    EXPECT_FALSE(QFileInfo::exists(made));
    EXPECT_EQ(QDir::currentPath(), before);
    EXPECT_TRUE(QFileInfo::exists(m_folder.filePath("data/flot/jquery.flot.js"))) << "links go, not what they point at";

    EXPECT_NE(VirtualPort("teapot", VirtualPort::Pace::AsItGoes).error(), "");
    EXPECT_EQ(QDir::currentPath(), before);
}

TEST_F(Desk, FoldersOfKilledProgramsAreRemovedAndThoseInUseAreNot)
{
    const VirtualPort running("keta", VirtualPort::Pace::AsItGoes);
    makeOld(QDir::currentPath());
    QDir place(m_folder.path());
    ASSERT_TRUE(place.mkpath("velbrin-desk-killed"));
    makeOld(m_folder.filePath("velbrin-desk-killed"));
    ASSERT_TRUE(place.mkpath("velbrin-desk-justnw"));
    {
        const VirtualPort next("keta", VirtualPort::Pace::AsItGoes);
        EXPECT_FALSE(place.exists("velbrin-desk-killed"));
        EXPECT_TRUE(place.exists("velbrin-desk-justnw")) << "another program may be about to lock it";
        EXPECT_EQ(place.entryList({"velbrin-desk-*"}, QDir::Dirs).size(), 3);
    }
    EXPECT_TRUE(QFileInfo::exists(QFileInfo("COM1").symLinkTarget()));
}

TEST(QuitSignals, FirstSignalEndsTheEventLoopWhateverItIs)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        const QuitSignals quit;
        raise(signal);
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EQ(std::signal(signal, SIG_DFL), SIG_DFL) << "the second one ends the program at once";
    }
}

TEST(Utf8Locale, IsThereWhateverTheSystemSaysAndTheLanguageStays)
{
    for (const char *all : {"C", "POSIX", "C.UTF-8", "xx_XX"}) { // the last is not installed anywhere
        const auto begin = [all] {
            qputenv("LC_ALL", all);
            useUtf8();
            std::setlocale(LC_ALL, ""); // as the toolkit does
            const bool isUtf8 = QByteArray(nl_langinfo(CODESET)) == "UTF-8";
            const QByteArray language = qEnvironmentVariableIsSet("LC_ALL") ? qgetenv("LC_ALL") : qgetenv("LANG");
            std::_Exit(isUtf8 && language == all ? 0 : 1);
        };
        EXPECT_EXIT(begin(), testing::ExitedWithCode(0), "") << all; // a process of its own keeps its locale
    }
}
