// Any bytes as a firmware file: refused with one of the reader's texts, or taken over to the last word.
#include "firmwarefile.h"
#include "memoryfile.h"

#include <QStringList>
#include <QtEndian>

#include <numeric>

namespace {

constexpr int headerSize = 16;
constexpr int checksumSize = 4;

void appendWords(const QList<quint16> &words, QByteArray *bytes)
{
    for (const quint16 word : words) {
        bytes->append(static_cast<char>(word & 0xff));
        bytes->append(static_cast<char>(word >> 8));
    }
}

QByteArray checksumOf(const QByteArray &bytes)
{
    const auto add = [](quint32 sum, char byte) { return sum + static_cast<quint8>(byte); };
    const quint32 sum = qToLittleEndian(std::accumulate(bytes.begin(), bytes.end(), quint32(0), add));
    return QByteArray(reinterpret_cast<const char *>(&sum), checksumSize);
}

/// Loads the bytes for a drive of this type. True when they were accepted.
bool load(const QByteArray &bytes, int connectedType)
{
    static const QStringList refusals = {"Unknown file type", "Unsupported FW file version",
                                         "Selected firmware file not meant for the connected device type",
                                         "File corrupted"};
    static MemoryFile file;
    file.write(bytes);
    FirmwareFile firmware;
    const QString said = firmware.loadFile(file.path(), connectedType);
    if (!said.isEmpty()) {
        require(refusals.contains(said), "a refusal is one of the known ones:", said);
        return false;
    }
    QByteArray expected = bytes.left(headerSize);
    appendWords(firmware.ioImage, &expected);
    appendWords(firmware.tcImage, &expected);
    expected += checksumOf(expected);
    require(bytes == expected, "an accepted file is its header, its images and their sum");
    require(firmware.ioImage.size() == std::max(firmware.ioImageLength / 2, 0), "the I/O image has its length");
    require(firmware.tcImage.size() == std::max(firmware.tcImageLength / 2, 0), "the TC image has its length");
    require(firmware.deviceType / 1000 == connectedType / 1000, "an accepted file is for the drive's family");
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    load(bytes, 11000);
    if (bytes.size() < headerSize + checksumSize)
        return 0;
    // A right sum is hardly ever hit by chance: behind it is where the lengths matter.
    const QByteArray summed = bytes.left(bytes.size() - checksumSize);
    load(summed + checksumOf(summed), qFromLittleEndian<qint16>(bytes.constData() + 6));
    // The bytes as two images behind a header that is right must be accepted, whatever they are.
    QByteArray sound = QByteArray::fromHex("544446572c01f82a");
    const quint32 length = qToLittleEndian<quint32>((size / 4) * 2);
    for (int image = 0; image < 2; ++image)
        sound.append(reinterpret_cast<const char *>(&length), sizeof length);
    sound += bytes.left(static_cast<int>(size / 4 * 4));
    require(load(sound + checksumOf(sound), 11001), "a sound file is accepted");
    return 0;
}
