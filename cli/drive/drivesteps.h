/// \file
/// What several commands do with a drive: find it, read it, load a file over what was read, apply.
#ifndef VELBRIN_CLI_DRIVESTEPS_H
#define VELBRIN_CLI_DRIVESTEPS_H

#include "editedsettings.h"
#include "outcome.h"

#include <optional>

class DriveClient;
struct NodeType;
struct CommandLine;

/// Model name of the connected drive, as parameters know it.
QString modelName(const DriveClient &client);
/// "normal" or "upgrade".
QString modeName(bool upgradeMode);
/// Model of a drive that a search has found, or that its answers cannot be read.
QString nodeName(const NodeType &node);
/// Address and model of a drive that a search has found, tab separated.
QString nodeLine(const NodeType &node);
/// name, value, minimum, maximum of the named settings in their order; of all, in catalogue order, without names.
Table settingsTable(const Parameters &list, const QStringList &names);

/// What a command connects for.
enum class Use {
    Look, ///< reads
    Act,  ///< writes or moves: on a real bus the drive has to be named
};

/// Connects to the drive at nodeOf(). On failure `messages` says what the session does not.
bool connectToDrive(DriveClient &client, const CommandLine &line, Use use, QStringList &messages);

/// The bus address to work with: --node, or that of the only drive that answers, where that is enough.
std::optional<int> nodeOf(DriveClient &client, const CommandLine &line, Use use, QStringList &messages);

/// Connects and reads all settings.
std::optional<Parameters> readDrive(DriveClient &client, const CommandLine &line, Use use, QStringList &messages);

/// readDrive() as the start of edits.
std::optional<EditedSettings> readToEdit(DriveClient &client, const CommandLine &line, Use use, QStringList &messages);

/// Loads a file over the drive's settings. False when the file was refused; a warning is a message.
bool loadFile(const DriveClient &client, const QString &fileName, EditedSettings &settings, QStringList &messages);

/// Writes what is edited, reads it back, reports what the drive did not take, and saves to flash where that was asked
/// for and everything was taken. The result shows the settings named in `names`.
Outcome applySettings(DriveClient &client, const CommandLine &line, const EditedSettings &settings,
                      const QStringList &names);

#endif
