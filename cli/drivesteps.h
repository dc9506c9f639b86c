/// \file
/// What several commands do with a drive: find it, read it, load a file over what was read, apply.
#ifndef DRIVESTEPS_H
#define DRIVESTEPS_H

#include "outcome.h"
#include "parameters.h"

#include <optional>

class DriveClient;
struct CommandLine;

/// Model name of the connected drive, as parameters know it.
QString modelName(const DriveClient &client);
/// "normal" or "upgrade".
QString modeName(bool upgradeMode);
/// name, value, minimum, maximum of the named settings in their order; of all, in catalogue order, without names.
Table settingsTable(const Parameters &list, const QStringList &names);

/// Connects to --node, or to the only drive that answers. On failure `messages` says what the session does not.
bool connectToDrive(DriveClient &client, const CommandLine &line, QStringList &messages);

/// Connects and reads all settings.
std::optional<Parameters> readDrive(DriveClient &client, const CommandLine &line, QStringList &messages);

/// Loads a file over the drive's list. No value when the file was refused; a warning is a message.
std::optional<Parameters> loadFile(const DriveClient &client, const QString &fileName, const Parameters &drive,
                                   QStringList &messages);

/// Writes `wanted`, reads it back, reports what the drive did not take, and saves to flash where that was asked for and
/// everything was taken. The result shows the settings named in `names`.
Outcome applySettings(DriveClient &client, const CommandLine &line, const Parameters &wanted, const QStringList &names);

#endif
