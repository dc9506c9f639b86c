#include "firmwarefile.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <numeric>

namespace {

constexpr quint32 magic = 0x57464454; // "TDFW"
constexpr int supportedVersion = 300;
constexpr int headerSize = 16;
constexpr int checksumSize = 4;
constexpr qint64 largestFile = 16 << 20;

template <typename T> T numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

/// The words of the image that begins at `begin`, as many of them as the file has.
QList<quint16> wordsAt(const QByteArray &bytes, qint64 begin, qint32 length)
{
    QList<quint16> words;
    const qint64 end = std::min<qint64>(begin + std::max(length / 2, 0) * qint64(2), bytes.size());
    for (qint64 at = begin; at + 1 < end; at += 2)
        words.append(numberAt<quint16>(bytes, static_cast<int>(at)));
    return words;
}

} // namespace

QString FirmwareFile::loadFile(const QString &fileName, int connectedType)
{
    m_refusal = read(fileName, connectedType);
    switch (m_refusal) {
    case Refusal::None:
        return QString();
    case Refusal::CannotOpen:
        return tr("Can't open file");
    case Refusal::UnknownType:
        return tr("Unknown file type");
    case Refusal::UnsupportedVersion:
        return tr("Unsupported FW file version");
    case Refusal::OtherDeviceType:
        return tr("Selected firmware file not meant for the connected device type");
    case Refusal::Corrupted:
        break;
    }
    return tr("File corrupted");
}

FirmwareFile::Refusal FirmwareFile::read(const QString &fileName, int connectedType)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return Refusal::CannotOpen;

    // A header that is cut short reads as if zeros followed.
    QByteArray bytes = file.read(headerSize);
    const QByteArray header = bytes + QByteArray(headerSize - bytes.size(), '\0');
    if (numberAt<quint32>(header, 0) != magic)
        return Refusal::UnknownType;
    fileVersion = numberAt<qint16>(header, 4);
    deviceType = numberAt<qint16>(header, 6);
    ioImageLength = numberAt<qint32>(header, 8);
    tcImageLength = numberAt<qint32>(header, 12);
    if (fileVersion != supportedVersion)
        return Refusal::UnsupportedVersion;
    if (deviceType / 1000 != connectedType / 1000)
        return Refusal::OtherDeviceType;
    const qint64 fileSize = file.size();
    if (fileSize > largestFile)
        return Refusal::Corrupted;

    bytes += file.read(fileSize); // room for no more than there is
    const qint64 tcBegin = headerSize + std::max(ioImageLength / 2, 0) * qint64(2);
    const qint64 tcEnd = tcBegin + std::max(tcImageLength / 2, 0) * qint64(2);
    ioImage += wordsAt(bytes, headerSize, ioImageLength);
    tcImage += wordsAt(bytes, tcBegin, tcImageLength);
    if (bytes.size() != tcEnd + checksumSize)
        return Refusal::Corrupted;
    const quint32 sum = std::accumulate(bytes.cbegin(), bytes.cend() - checksumSize, quint32(0),
                                        [](quint32 total, char byte) { return total + static_cast<quint8>(byte); });
    if (sum != numberAt<quint32>(bytes, static_cast<int>(tcEnd)))
        return Refusal::Corrupted;
    return Refusal::None;
}
