#include "outputfile.h"
#include "testfiles.h"
#include "withvalues.h"

#include "captureplotter.h"
#include "printqt.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

TEST(OutputFile, LeavesTheOldOneWhereTheDiskIsFull)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("old.csv");
    const CaptureData channel = channelOf("posmeas", std::vector<double>(100, 1.0));
    put(name, "old");
    {
        const SmallDisk disk;
        OutputFile file(name);
        ASSERT_EQ(file.open(), "");
        EXPECT_TRUE(file.write(QByteArray(200, 'x')).startsWith("Error writing to " + name + ": "));
        EXPECT_FALSE(CapturePlotter().saveCaptureDataCSV({channel}, name));
    }
    EXPECT_EQ(contents(name), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("old.csv"));

    OutputFile full("/dev/full");
    ASSERT_EQ(full.open(), "");
    EXPECT_EQ(full.write("x"), "Error writing to /dev/full: Full disk.");
}

TEST(OutputFile, DoesNotWaitForTheReaderOfAPipe)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    OutputFile unread(name);
    EXPECT_EQ(unread.open(), name + " cannot be written: nobody reads from this pipe.");

    QFile reader(name);
    ASSERT_TRUE(reader.open(QIODevice::ReadWrite | QIODevice::Unbuffered)); // the one way not to wait for a writer
    OutputFile read(name);
    ASSERT_EQ(read.open(), "");
    EXPECT_EQ(read.write("samples"), "");
    EXPECT_EQ(reader.read(7), "samples");
}
