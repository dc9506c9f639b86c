/// \file
/// What a firmware file holds, whatever drive it is for.
#ifndef VELBRIN_CLI_FIRMWAREINFO_H
#define VELBRIN_CLI_FIRMWAREINFO_H

#include "results.h"

#include <QString>

struct FirmwareInfo
{
    bool isFirmware = false; ///< begins like one; otherwise nothing below but `problem` means anything
    int formatVersion = 0;
    int deviceType = 0;      ///< type id; a file suits the whole family (thousands)
    QString family;          ///< "Torva", "Keta", or "unknown"
    qint64 ioImageBytes = 0; ///< I/O side, or the only image of a drive with one processor
    qint64 coreImageBytes = 0;
    enum class Checksum { Right, Wrong, NotChecked } checksum = Checksum::NotChecked; ///< a file cut short has none
    QString problem; ///< why no drive would take it; empty when one would
};

FirmwareInfo readFirmwareInfo(const QString &fileName);

Results toResults(const FirmwareInfo &info);

#endif
