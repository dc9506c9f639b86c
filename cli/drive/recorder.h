/// \file
/// The drive's recorder, step by step: arm it, wait until it is full, fetch what it holds. Nothing here moves an axis.
#ifndef VELBRIN_CLI_RECORDER_H
#define VELBRIN_CLI_RECORDER_H

#include "capturedata.h"

#include <QStringList>

#include <optional>

class DriveClient;

/// `rate` in Hz, `trigger` a row of the trigger list, `channels` of the sixteen in their order.
void armRecorder(DriveClient &client, double rate, int trigger, const QList<bool> &channels);

/// For at most so many seconds. False when it was not triggered and filled, and on every other failure; `messages` then
/// says what the session does not.
bool waitForRecorder(DriveClient &client, const QString &what, double seconds, QStringList &messages);

/// No value when the download failed or was interrupted.
std::optional<QList<CaptureData>> downloadRecorder(DriveClient &client);

#endif
