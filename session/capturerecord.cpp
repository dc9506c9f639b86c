#include "capturerecord.h"

#include "scopechannels.h"
#include "version.h"

DriveIdentity driveIdentity(const Parameters &settings, int deviceType, int address)
{
    const QString model = deviceModelName(deviceType, false);
    // What the model lacks holds a mark and no number.
    const auto value = [&settings, &model](const char *name) {
        const SingleParam found = settings.getParam(QLatin1String(name));
        return found.supportedInDevice(model) && found.value > 0.0 ? int(found.value) : 0;
    };
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
