#include "firmwarefile.h"
#include "testfiles.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

/// Header of a file for family 11 (type 11000) with an I/O image of 4 and a TC image of 2 bytes, then both images, then
/// the sum of the 22 bytes before it: 0x54+0x44+0x46+0x57 + 0x2c+0x01 + 0xf8+0x2a + 4 + 2 + 1+2+0xff+0x80 + 0x34+0x12.
const char sound[] = "54444657 2c01 f82a 04000000 02000000 0102ff80 3412 52040000";

class Firmware : public testing::Test
{
protected:
    QString load(const QByteArray &hex, int type = 11001)
    {
        put(path, QByteArray::fromHex(hex));
        return firmware.loadFile(path, type);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("drive.tdf");
    FirmwareFile firmware;
};

} // namespace

TEST_F(Firmware, HoldsBothImagesAsWordsIOSideFirst)
{
    ASSERT_EQ(load(sound, 11999), "");
    EXPECT_EQ(firmware.ioImage, (QList<quint16>{0x0201, 0x80ff}));
    EXPECT_EQ(firmware.tcImage, (QList<quint16>{0x1234}));
    EXPECT_EQ(firmware.fileVersion, 300);
    EXPECT_EQ(firmware.deviceType, 11000);
    EXPECT_EQ(firmware.ioImageLength, 4);
    EXPECT_EQ(firmware.tcImageLength, 2);
}

TEST_F(Firmware, FirstFlawInTheOrderOfTheHeaderIsNamed)
{
    const std::tuple<const char *, int, const char *> files[] = {
        {"54444657 2c01 f82a 00000000 00000000 84020000", 11001, ""},
        {"54444657 2c01 f82a ffffffff 00000080 00070000", 11001, ""}, // negative lengths
        // An odd length drops its last byte: the file is read as if it were not there.
        {"54444657 2c01 f82a 03000000 00000000 0102ff 89030000", 11001, "File corrupted"},
        {"54444657 2c01 f82a 03000000 00000000 0102 8a020000", 11001, ""},
        {"54444657 2c01 d107 00000000 00000000 3a020000", 2999, ""}, // 2001 and 2999 are one family
        {"", 11000, "Unknown file type"},
        {"544446", 11000, "Unknown file type"},
        {"57464454 2c01 f82a 00000000 00000000 84020000", 11000, "Unknown file type"}, // reversed
        {"54444657", 11000, "Unsupported FW file version"},
        {"54444657 2d01 f82a 00000000 00000000 85020000", 4000, "Unsupported FW file version"},
        {"54444657 2c01", 11000, "Selected firmware file not meant for the connected device type"},
        {"54444657 2c01 f82a 00000000 00000000 00000000", 4000,
         "Selected firmware file not meant for the connected device type"},
        {"54444657 2c01 cf07 00000000 00000000 38020000", 2000, // 1999
         "Selected firmware file not meant for the connected device type"},
        {"54444657 2c01 f82a", 11000, "File corrupted"},
        {"54444657 2c01 f82a 04000000 02000000 0102ff80 3412 52", 11000, "File corrupted"},
        {"54444657 2c01 f82a 04000000 02000000 0102ff80 3412 53040000", 11000, "File corrupted"},
        {"54444657 2c01 f82a 04000000 02000000 0102ff81 3412 52040000", 11000, "File corrupted"},
        {"54444657 2c01 f82a 00000000 00000000 84020000 00000000", 11000, "File corrupted"}, // trailing bytes
        {"54444657 2c01 f82a ffffff7f ffffff7f 84020000", 11000, "File corrupted"},          // absurd lengths
        {"54444657 2c01 f82a feffff7f 00000000 84020000", 11000, "File corrupted"},
    };
    for (const auto &[hex, type, message] : files)
        EXPECT_EQ(load(hex, type), message) << hex;
}

TEST_F(Firmware, ThatIsNoPlainFileOrFarTooLargeEndsAtOnce)
{
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &name : {path, folder.path(), pipe, QString("/dev/zero")}) // the first: not there
        EXPECT_EQ(firmware.loadFile(name, 11000), "Can't open file") << name.toStdString();

    load("54444657 2c01 f82a e8ffff3f e8ffff3f");
    ASSERT_TRUE(QFile::resize(path, 0x7fffffe4)) << "two images that fill 2 GB, as a sparse file";
    EXPECT_EQ(firmware.loadFile(path, 11000), "File corrupted");
}
