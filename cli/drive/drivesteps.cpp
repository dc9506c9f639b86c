#include "drivesteps.h"

#include "catalogue.h"
#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "plaintext.h"
#include "settingschecks.h"

#include <QJsonObject>

namespace {

QStringList found(const QString &verdict, const QList<NodeType> &nodes)
{
    QStringList lines(verdict);
    for (const NodeType &node : nodes)
        lines.append(nodeLine(node));
    return lines;
}

} // namespace

QString modelName(const DriveClient &client)
{
    return Connection::deviceModelName(client.deviceType(), false);
}

QString modeName(bool upgradeMode)
{
    return upgradeMode ? QStringLiteral("upgrade") : QStringLiteral("normal");
}

Table settingsTable(const Parameters &list, const QStringList &names)
{
    Table table{{"name", "value", "minimum", "maximum"}, {}};
    const auto add = [&table](const SingleParam &param) {
        table.rows.append({param.name, param.value, param.min, param.max});
    };
    for (const QString &name : names)
        add(list.getParam(name));
    for (int i = 0; names.isEmpty() && i < list.getParamCount(); ++i)
        add(list.getParam(i));
    return table;
}

QString nodeName(const NodeType &node)
{
    return node.unreadable ? tr("answers that cannot be read") : Connection::deviceModelName(node.deviceType, false);
}

QString nodeLine(const NodeType &node)
{
    return QStringLiteral("%1\t%2").arg(QString::number(node.address), nodeName(node));
}

std::optional<int> nodeOf(DriveClient &client, const CommandLine &line, Use use, QStringList &messages)
{
    if (line.node != 0)
        return line.node;
    const auto nodes = client.scan();
    if (!nodes)
        return std::nullopt;
    if (nodes->isEmpty()) {
        messages = QStringList(tr("No drive answers on %1.").arg(client.port()));
    } else if (use == Use::Act && line.virtualDrives.isEmpty()) {
        // A search tells who answers now, not who was meant: a drive that is switched off leaves another the only one.
        messages = found(
            tr("This command writes to a drive or moves it: name the drive with --node. The search found:"), *nodes);
    } else if (nodes->size() > 1 || nodes->first().unreadable) {
        messages = found(nodes->size() > 1 ? tr("There are several drives; choose one with --node:")
                                           : tr("The only address that answers cannot be read:"),
                         *nodes);
    } else {
        return nodes->first().address;
    }
    return std::nullopt;
}

bool connectToDrive(DriveClient &client, const CommandLine &line, Use use, QStringList &messages)
{
    const auto node = nodeOf(client, line, use, messages);
    return node && client.connectTo(*node);
}

std::optional<Parameters> readDrive(DriveClient &client, const CommandLine &line, Use use, QStringList &messages)
{
    if (!connectToDrive(client, line, use, messages))
        return std::nullopt;
    if (client.isInUpgradeMode()) {
        messages = QStringList(tr("The drive is in firmware-upgrade mode and has no settings there."));
        return std::nullopt;
    }
    const auto list = client.read();
    if (!list)
        messages = QStringList(tr("The drive's settings could not be read."));
    return list;
}

std::optional<EditedSettings> readToEdit(DriveClient &client, const CommandLine &line, Use use, QStringList &messages)
{
    const auto list = readDrive(client, line, use, messages);
    if (!list)
        return std::nullopt;
    EditedSettings settings(driveParameterCatalogue());
    settings.accept(*list, EditedSettings::Source::Drive);
    settings.setDrive(*list);
    return settings;
}

bool loadFile(const DriveClient &client, const QString &fileName, EditedSettings &settings, QStringList &messages)
{
    Parameters loaded = settings.drive();
    LoadOutcome outcome = LoadOutcome::Refused;
    const QString text = loaded.loadFromFile(fileName, &outcome);
    if (!text.isEmpty())
        messages.append(plainText(text));
    if (outcome == LoadOutcome::Refused)
        return false;
    const QStringList kept = keepWhereFileHasNone(loaded, settings.drive(), modelName(client));
    if (!kept.isEmpty())
        messages.append(tr("The file has no value for %1; the drive's own stays.").arg(kept.join(QLatin1String(", "))));
    settings.accept(loaded, EditedSettings::Source::File);
    return true;
}

Outcome applySettings(DriveClient &client, const CommandLine &line, const EditedSettings &settings,
                      const QStringList &names)
{
    const int errors = client.received().errors;
    const auto held = client.write(settings.edited());
    if (!held)
        return failed({tr("Broken off while writing: the drive may hold some of the new values in its working memory. "
                          "Nothing was saved to its flash.")});
    Outcome outcome;
    Table notTaken{{"name", "asked", "held"}, {}};
    const ApplyResult result = applyResult(settings.drive(), settings.edited(), *held, modelName(client));
    for (const Difference &difference : result.notTaken) {
        notTaken.rows.append({difference.name, difference.wanted, difference.drive});
        outcome.messages.append(
            tr("%1: %2 was not taken, the drive has %3.")
                .arg(difference.name, shortNumber(difference.wanted), shortNumber(difference.drive)));
    }
    // The session has told why, and there may be nothing to compare: an override's value goes to another register.
    if (client.received().errors != errors)
        outcome.status = ExitFailed;
    bool saved = false;
    if (!notTaken.rows.isEmpty() || outcome.status == ExitFailed) {
        outcome.status = ExitFailed;
        outcome.messages.append(line.has("to-flash") ? tr("The rest was applied; nothing was saved to flash.")
                                                     : tr("The rest was applied."));
    } else if (line.has("to-flash")) {
        saved = client.saveToFlash() && client.received().errors == errors;
        if (!saved) {
            outcome.status = ExitFailed;
            outcome.messages.append(tr("The settings were applied; whether they reached the flash is not known."));
        }
    }
    const Table shown = names.isEmpty() ? Table() : settingsTable(*held, names);
    outcome.results.lines = tabSeparated(shown);
    outcome.results.json =
        QJsonObject{{"parameters", toJson(shown)}, {"notTaken", toJson(notTaken)}, {"savedToFlash", saved}};
    return outcome;
}
