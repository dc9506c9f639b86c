/// \file
/// A capture's samples together with everything that the session knows about how they came to be.
#ifndef VELBRIN_SESSION_CAPTURERECORD_H
#define VELBRIN_SESSION_CAPTURERECORD_H

#include "capture.h"
#include "connection.h"

/// What the recorder and the axis were asked for.
struct CaptureRequest
{
    double rate = 0.0; ///< Hz, as asked for
    int trigger = 0;   ///< row of the trigger list, see Connection::setupCapture
    CaptureMotion motion;
    QString note; ///< the user's
};

/// The settings are those of Connection::driveParameters; whoever wants all of them in the record reads the drive
/// before. `address` is the drive's on the bus. Any thread.
CaptureRecord captureRecord(const Connection &session, int address, const CaptureRequest &request,
                            const QList<CaptureData> &channels);

/// Who the drive is, from the settings that were read of it.
DriveIdentity driveIdentity(const Parameters &settings, int deviceType, int address);

#endif
