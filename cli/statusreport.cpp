#include "statusreport.h"

#include "driveclient.h"
#include "drivesteps.h"
#include "plaintext.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("StatusReport", text);
}

/// A line of the report; `key` is its name in JSON, where it must not be translated.
struct Line
{
    const char *key;
    QString caption;
    QVariant value;
};

struct IdentityRow
{
    const char *parameter;
    const char *key;
    const char *caption;
    int base; ///< the revision id is a hexadecimal number everywhere
};

const IdentityRow identityRows[] = {
    {"HWSERIAL", "serialNumber", QT_TRANSLATE_NOOP("StatusReport", "Serial number"), 10},
    {"TCFWVER", "coreFirmware", QT_TRANSLATE_NOOP("StatusReport", "TarnwellCore firmware version"), 10},
    {"FWVER", "ioFirmware", QT_TRANSLATE_NOOP("StatusReport", "I/O side firmware version"), 10},
    {"BUILDREVISION", "revision", QT_TRANSLATE_NOOP("StatusReport", "Firmware revision ID"), 16},
};

QList<Line> identityLines(const DriveClient &client, const Parameters &list)
{
    QList<Line> lines = {
        {"connection", tr("Connection"), tr("Connected")},
        {"port", tr("Port"), client.port()},
        {"address", tr("Address"), client.address()},
        {"mode", tr("Mode"), modeName(client.isInUpgradeMode())},
        {"model", tr("Model"), Connection::deviceModelName(client.deviceType(), true)},
        {"typeId", tr("HW type ID"), client.deviceType()},
    };
    for (const IdentityRow &row : identityRows) {
        const SingleParam param = list.getParam(QLatin1String(row.parameter));
        if (param.supportedInDevice(modelName(client)) && param.value > 0)
            lines.append({row.key, tr(row.caption), QString::number(qlonglong(param.value), row.base).toUpper()});
    }
    return lines;
}

} // namespace

Results statusReport(const DriveClient &client, const Parameters &list, const LiveState &live)
{
    Results results;
    QJsonObject json;
    for (const Line &line : identityLines(client, list)) {
        results.lines.append(line.caption + QLatin1Char('\t') + line.value.toString());
        json.insert(QLatin1String(line.key), QJsonValue::fromVariant(line.value));
    }
    const Line panels[] = {{"inputs", tr("Physical inputs"), live.inputs},
                           {"status", tr("Status"), live.status},
                           {"faults", tr("Fault register"), live.faults}};
    for (const Line &panel : panels) {
        const QStringList lines = plainText(panel.value.toString()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        json.insert(QLatin1String(panel.key), QJsonArray::fromStringList(lines));
        if (!lines.isEmpty())
            results.lines += QStringList{QString(), panel.caption} + lines;
    }
    results.json = json;
    return results;
}
