#include "commands.h"

#include "catalogue.h"
#include "commandline.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "plaintext.h"
#include "settingschecks.h"
#include "statusreport.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Commands", text);
}

Table nodeTable(const QList<NodeType> &nodes)
{
    Table table{{"address", "model", "typeId", "mode"}, {}};
    for (const NodeType &node : nodes)
        table.rows.append({node.address, Connection::deviceModelName(node.deviceType, false), node.deviceType,
                           modeName(node.firmwareUpgradeMode)});
    return table;
}

// --- Commands -----------------------------------------------------------------------------------------------------

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
    const auto list = readDrive(client, line, messages);
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
    const auto drive = readDrive(client, line, messages);
    if (!drive)
        return failed(messages);
    Parameters wanted = *drive;
    QStringList names;
    for (const QString &text : line.arguments) {
        const Assignment assignment = *parseAssignment(text);
        const QString reason = refusal(*drive, assignment, modelName(client));
        if (!reason.isEmpty())
            messages.append(reason);
        SingleParam param = wanted.getParam(assignment.name);
        param.value = assignment.value;
        wanted.replaceParam(param);
        names.append(assignment.name);
    }
    if (!messages.isEmpty())
        return failed(messages + QStringList(tr("Nothing was written.")));
    return applySettings(client, line, wanted, names);
}

Outcome save(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    const auto list = readDrive(client, line, messages);
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
    const auto drive = readDrive(client, line, messages);
    if (!drive)
        return failed(messages);
    const auto wanted = loadFile(client, line.arguments.first(), *drive, messages);
    if (!wanted)
        return failed(messages + QStringList(tr("Nothing was written.")));
    QStringList changed;
    for (const Difference &difference : differences(*drive, *wanted, modelName(client)))
        changed.append(difference.name);
    Outcome outcome = applySettings(client, line, *wanted, changed);
    outcome.messages = messages + outcome.messages;
    return outcome;
}

Outcome compare(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    const auto drive = readDrive(client, line, messages);
    if (!drive)
        return failed(messages);
    const auto file = loadFile(client, line.arguments.first(), *drive, messages);
    if (!file)
        return failed(messages);
    Table table{{"name", "drive", "file"}, {}};
    for (const Difference &difference : differences(*drive, *file, modelName(client)))
        table.rows.append({difference.name, difference.first, difference.second});
    return {table.rows.isEmpty() ? ExitDone : ExitDifferent, toResults(table), messages};
}

Outcome status(DriveClient &client, const CommandLine &line)
{
    QStringList messages;
    if (!connectToDrive(client, line, messages))
        return failed(messages);
    const auto list = client.read();
    const auto live = client.liveState();
    if (!list || !live)
        return failed({tr("The drive's state could not be read.")});

    return {ExitDone, statusReport(client, *list, *live), {}};
}

// --- Arguments that can be judged without a drive -----------------------------------------------------------------

QString checkNames(const QStringList &names)
{
    const Parameters catalogue = driveParameterCatalogue();
    for (const QString &name : names) {
        if (catalogue.getParam(name).name != name)
            return tr("There is no setting named \"%1\".").arg(name);
    }
    return QString();
}

QString checkAssignments(const QStringList &texts)
{
    QStringList names;
    for (const QString &text : texts) {
        const auto assignment = parseAssignment(text);
        if (!assignment)
            return tr("\"%1\" is not of the form NAME=VALUE with a number.").arg(text);
        if (names.contains(assignment->name))
            return tr("%1 is given twice.").arg(assignment->name);
        names.append(assignment->name);
    }
    return checkNames(names);
}

} // namespace

const QList<Command> &commandTable()
{
#define TEXT(text) QT_TRANSLATE_NOOP("CommandLine", text)
    static const QList<Command> table = {
        {"scan", "", TEXT("the drives: address, model, type id, normal or upgrade"), 0, 0, false, false, scan, nullptr},
        {"read", "[NAME...]", TEXT("all settings or those named: name, value, minimum, maximum"), 0, -1, false, false,
         read, checkNames},
        {"write", "NAME=VALUE... [--to-flash]", TEXT("check, apply, read again, report what was not taken"), 1, -1,
         true, false, write, checkAssignments},
        {"save", "FILE.drc", TEXT("read the settings and save them to a file"), 1, 1, false, true, save, nullptr},
        {"load", "FILE.drc [--to-flash]", TEXT("apply a file, read again, report what was not taken"), 1, 1, true, true,
         load, nullptr},
        {"compare", "FILE.drc", TEXT("what differs between drive and file: name, drive, file"), 1, 1, false, true,
         compare, nullptr},
        {"status", "", TEXT("connection, model, versions and registers"), 0, 0, false, false, status, nullptr},
    };
#undef TEXT
    return table;
}

const Command *findCommand(const QString &name)
{
    for (const Command &command : commandTable()) {
        if (name == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}
