// What a drive's settings are, and changing them; and the search for drives.
#include "commandgroups.h"

#include "catalogue.h"
#include "clitext.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "plaintext.h"
#include "settingschecks.h"

#include <QJsonObject>

namespace {

Table nodeTable(const QList<NodeType> &nodes)
{
    Table table{{"address", "model", "typeId", "mode"}, {}};
    for (const NodeType &node : nodes) {
        if (node.unreadable)
            table.rows.append({node.address, QString(), QVariant(), QStringLiteral("unreadable")});
        else
            table.rows.append({node.address, Connection::deviceModelName(node.deviceType, false), node.deviceType,
                               modeName(node.firmwareUpgradeMode)});
    }
    return table;
}

Outcome scan(DriveClient &client, const CommandLine &)
{
    const auto nodes = client.scan();
    if (!nodes)
        return failed();
    Outcome outcome{ExitDone, toResults(nodeTable(*nodes)), {}};
    if (nodes->isEmpty())
        outcome.messages.append(tr("No drive answers on %1.").arg(client.port()));
    return outcome;
}

Outcome read(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    const auto list = readDrive(client, line, Use::Look, messages);
    if (!list)
        return failed(messages);
    for (const QString &name : line.arguments) {
        if (!list->getParam(name).supportedInDevice(modelName(client)))
            messages.append(tr("%1 is not on this model (%2).").arg(name, modelName(client)));
    }
    return {ExitDone, toResults(settingsTable(*list, line.arguments)), messages};
}

Outcome write(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    auto settings = readToEdit(client, line, Use::Act, messages);
    if (!settings)
        return failed(messages);
    QStringList names;
    for (const QString &text : line.arguments) {
        const Assignment assignment = *parseAssignment(text);
        const QString reason = refusal(settings->drive(), assignment, modelName(client));
        if (!reason.isEmpty())
            messages.append(reason);
        settings->edit(assignment.name, assignment.value);
        names.append(assignment.name);
    }
    if (!messages.isEmpty())
        return failed(messages + QStringList(tr("Nothing was written.")));
    return applySettings(client, line, *settings, names);
}

Outcome save(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    const auto list = readDrive(client, line, Use::Look, messages);
    if (!list)
        return failed(messages);
    const QString fileName = line.arguments.first();
    const QString problem = list->saveToFile(fileName);
    if (!problem.isEmpty())
        return failed({plainText(problem)});
    return {ExitDone, {{}, QJsonObject{{"file", fileName}, {"parameters", list->getParamCount()}}}, {}};
}

Outcome load(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    auto settings = readToEdit(client, line, Use::Act, messages);
    if (!settings)
        return failed(messages);
    if (!loadFile(client, line.arguments.first(), *settings, messages))
        return failed(messages + QStringList(tr("Nothing was written.")));
    QStringList changed;
    for (const Difference &difference : settings->differences(modelName(client)))
        changed.append(difference.name);
    Outcome outcome = applySettings(client, line, *settings, changed);
    outcome.messages = messages + outcome.messages;
    return outcome;
}

Outcome compare(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    auto settings = readToEdit(client, line, Use::Look, messages);
    if (!settings || !loadFile(client, line.arguments.first(), *settings, messages))
        return failed(messages);
    Table table{{"name", "drive", "file"}, {}};
    for (const Difference &difference : settings->differences(modelName(client)))
        table.rows.append({difference.name, difference.drive, difference.wanted});
    return {table.rows.isEmpty() ? ExitDone : ExitDifferent, toResults(table), messages};
}

// --- Arguments that can be judged without a drive -----------------------------------------------------------------

QString unknownName(const QStringList &names)
{
    const Parameters catalogue = driveParameterCatalogue();
    for (const QString &name : names) {
        if (catalogue.getParam(name).name != name)
            return tr("There is no setting named \"%1\".").arg(name);
    }
    return QString();
}

QString checkNames(const CommandLine &line)
{
    return unknownName(line.arguments);
}

QString checkAssignments(const CommandLine &line)
{
    QStringList names;
    for (const QString &text : line.arguments) {
        const auto assignment = parseAssignment(text);
        if (!assignment)
            return tr("\"%1\" is not of the form NAME=VALUE with a number.").arg(text);
        if (names.contains(assignment->name))
            return tr("%1 is given twice.").arg(assignment->name);
        names.append(assignment->name);
    }
    return unknownName(names);
}

} // namespace

QList<Command> settingsCommands()
{
    static const char *const toFlash = "Save to the drive's flash what was applied.";
    return {
        Command("scan", scan).says("the drives: address, model, type id, normal or upgrade", R"(
Asks the bus addresses 1 to 20 and 251 to 255, which takes 2.5 s. One line a drive, tab separated: address, model, type
id, "normal" or "upgrade" (in firmware-upgrade mode). An address whose answers cannot be read (two drives on it, a bad
line) has neither model nor type id and is called "unreadable".)"),
        Command("read", read)
            .takes("[NAME...]", 0, Command::anyNumber)
            .says("all settings or those named: name, value, minimum, maximum", R"(
One line a setting, tab separated: name, value, minimum, maximum; in display units, as in settings files.)")
            .checks(checkNames),
        Command("write", write)
            .takes("NAME=VALUE... [--to-flash]", 1, Command::anyNumber)
            .says("check, apply, read again, report what was not taken", R"(
Values in display units. Nothing is written when one of them is read-only, not on this model or outside the limits that
the drive gave. Prints what the drive holds then, as "read" does. Settings that are in effect on an enabled drive change
how it moves at once.)")
            .flag("to-flash", toFlash)
            .checks(checkAssignments),
        Command("save", save).takesFile("FILE.drc").says("read the settings and save them to a file", R"(
Reads all settings and saves them to a settings file, which the window opens too.)"),
        Command("load", load)
            .takesFile("FILE.drc [--to-flash]")
            .says("apply a file, read again, report what was not taken", R"(
Applies a settings file and prints what has changed, as "read" does. A setting for which the file has no value keeps the
drive's own.)")
            .flag("to-flash", toFlash),
        Command("compare", compare)
            .takesFile("FILE.drc")
            .says("what differs between drive and file: name, drive, file", R"(
One line a difference, tab separated: name, the drive's value, the file's; exit status 3 when there is any.)"),
    };
}
