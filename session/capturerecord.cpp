#include "capturerecord.h"

#include "scopechannels.h"
#include "version.h"

DriveIdentity driveIdentity(const Parameters &settings, int deviceType, int address)
{
    const auto value = [&settings](const char *name) { return int(settings.getParam(QLatin1String(name)).value); };
    DriveIdentity drive;
    drive.model = deviceModelName(deviceType, true);
    drive.type = deviceType;
    drive.serial = value("HWSERIAL");
    drive.address = address;
    drive.firmware = value("TCFWVER");
    drive.ioFirmware = value("FWVER");
    drive.buildRevision = value("BUILDREVISION");
    return drive;
}

CaptureRecord captureRecord(const Connection &session, int address, const CaptureRequest &request,
                            const QList<CaptureData> &channels)
{
    const double base = session.maxScopeSampleRate();
    CaptureRecord record;
    record.channels = channels;
    record.rate = request.rate;
    record.samplePeriod = scopeSamplePeriod(base, scopeDivider(base, request.rate));
    record.trigger = scopeTriggerCode(request.trigger);
    record.motion = request.motion;
    record.settings = session.driveParameters();
    record.drive = driveIdentity(record.settings, session.deviceType(), address);
    record.program = QLatin1String(VELBRIN_VERSION);
    record.time = QDateTime::currentDateTime();
    record.note = request.note;
    return record;
}
