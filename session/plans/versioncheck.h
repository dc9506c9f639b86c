/// \file
/// Whether this program may work with a drive: identity numbers in, verdict out. Pure functions, any thread.
#ifndef VELBRIN_SESSION_VERSIONCHECK_H
#define VELBRIN_SESSION_VERSIONCHECK_H

#include <QString>

/// What was read from a drive to identify it, cleanly: numbers that came through noise are refused before they get
/// here. Companions are the oldest versions that the drive claims to be compatible with: a version is out of bounds
/// only when its companion is, too.
struct DriveIdentity
{
    int deviceType = 0;      ///< type id, register 6020
    int firmwareVersion = 0; ///< register 6010; the bootloader's version in firmware-upgrade mode
    int firmwareCompanion = 0;
    int coreVersion = 0; ///< register 6014; not used in firmware-upgrade mode
    int coreCompanion = 0;
    int protocolVersion = 0; ///< register 3
    int protocolCompanion = 0;
    bool firmwareUpgradeMode = false;

    bool operator==(const DriveIdentity &other) const;
};

/// Versions that a device family (type id / 1000) must have.
struct SupportedVersion
{
    int deviceFamily;
    int lowestCore;
    int highestCore;
    int lowestFirmware;
    int highestFirmware;
    int recommendedCore; ///< older core firmware is accepted with a warning
    // So far the same for every family
    int lowestBootloader = 1200;
    int highestBootloader = 1300;
    int lowestProtocol = 25;           ///< in normal mode
    int highestProtocol = 25;          ///< in both modes
    int lowestProtocolForUpgrade = 20; ///< a bootloader speaks less
};

struct VersionVerdict
{
    bool accepted = false;
    bool restartToDFU = false; ///< refused; restart the drive into firmware-upgrade mode, then tell the user
    QString errorText; ///< HTML for the user; with `accepted` a recommendation; empty when there is nothing to say.
                       ///< With `restartToDFU` it says that the drive has been restarted
    QString notRestartedText; ///< instead of errorText when it was not
    QString statusText;       ///< connection text of a refusal; empty when accepted
};

/// First record for the family of a type id, null when the family is not supported.
const SupportedVersion *supportedVersionOf(int deviceType);

/// The verdict. `coreVersion` and its companion need not be read for a family without a record.
VersionVerdict checkVersions(const DriveIdentity &drive);

#endif
