#include "firmwareinfo.h"

#include "clitext.h"
#include "devicemodel.h"
#include "firmwarefile.h"

#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr qint64 headerBytes = 16;
constexpr qint64 checksumBytes = 4;

/// Only the thousands count.
QString familyName(int fileType)
{
    const int typeId = fileType / 1000 * 1000;
    if (isTorvaModel(typeId))
        return QStringLiteral("Torva");
    return isKetaModel(typeId) ? QStringLiteral("Keta") : QStringLiteral("unknown");
}

qint64 imageBytes(qint32 length)
{
    return std::max(length / 2, 0) * qint64(2);
}

QString checksumWord(FirmwareInfo::Checksum checksum)
{
    const char *const words[] = {"right", "wrong", "not checked"};
    return QLatin1String(words[int(checksum)]);
}

} // namespace

FirmwareInfo readFirmwareInfo(const QString &fileName)
{
    // The reader wants to know the drive's family. The first reading tells the file's own, the second looks at the
    // rest.
    FirmwareFile header;
    FirmwareInfo info;
    info.problem = header.loadFile(fileName, 0);
    info.isFirmware = header.fileVersion != 0 || header.deviceType != 0 || header.ioImageLength != 0;
    if (!info.isFirmware)
        return info;
    FirmwareFile file;
    info.problem = file.loadFile(fileName, header.deviceType);
    info.formatVersion = header.fileVersion;
    info.deviceType = header.deviceType;
    info.family = familyName(header.deviceType);
    info.ioImageBytes = imageBytes(header.ioImageLength);
    info.coreImageBytes = imageBytes(header.tcImageLength);

    const qint64 size = QFileInfo(fileName).size();
    const qint64 expected = headerBytes + info.ioImageBytes + info.coreImageBytes + checksumBytes;
    const bool isRead = info.problem.isEmpty() || file.refusal() == FirmwareFile::Refusal::Corrupted;
    if (isRead && size == expected)
        info.checksum = info.problem.isEmpty() ? FirmwareInfo::Checksum::Right : FirmwareInfo::Checksum::Wrong;
    else if (isRead)
        info.problem += QLatin1String(": ") + tr("it has %1 bytes, its header says %2").arg(size).arg(expected);
    if (info.problem.isEmpty() && info.ioImageBytes == 0)
        info.problem = tr("The file does not contain a firmware");
    return info;
}

Results toResults(const FirmwareInfo &info)
{
    if (!info.isFirmware)
        return {};
    Results results;
    results.lines = QStringList{tr("Format version\t%1").arg(info.formatVersion),
                                tr("Device type\t%1").arg(info.deviceType),
                                tr("Device family\t%1").arg(info.family),
                                tr("I/O image\t%1 bytes").arg(info.ioImageBytes),
                                tr("TarnwellCore image\t%1 bytes").arg(info.coreImageBytes),
                                tr("Checksum\t%1").arg(checksumWord(info.checksum))};
    results.json = QJsonObject{{"formatVersion", info.formatVersion},
                               {"deviceType", info.deviceType},
                               {"family", info.family},
                               {"ioImageBytes", info.ioImageBytes},
                               {"coreImageBytes", info.coreImageBytes},
                               {"checksum", checksumWord(info.checksum)},
                               {"problem", info.problem}};
    return results;
}
