#include "statusreport.h"

#include "clitext.h"
#include "driveclient.h"
#include "drivesteps.h"
#include "drivewords.h"
#include "plaintext.h"
#include "statustexts.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

struct IdentityRow
{
    const char *parameter;
    const char *key;
    const char *caption;
    int base; ///< the revision id is a hexadecimal number everywhere
};

const IdentityRow identityRows[] = {
    {"HWSERIAL", "serialNumber", "Serial number", 10},
    {"TCFWVER", "coreFirmware", "TarnwellCore firmware version", 10},
    {"FWVER", "ioFirmware", "I/O side firmware version", 10},
    {"BUILDREVISION", "revision", "Firmware revision ID", 16},
};

QList<StatusReport::Line> identityLines(const DriveClient &client, const Parameters &list)
{
    QList<StatusReport::Line> lines = {
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

StatusReport statusReport(const DriveClient &client, const Parameters &list, const DriveState &live)
{
    // In this order, as the last says what the marks in all of them mean.
    bool isInactive = false;
    const QString inputs = getDigitalInsString(live, isInactive);
    const QString status = getStatusRegString(live, isInactive);
    if (live.firmwareUpgradeMode)
        isInactive = false;
    const QStringList none(Connection::tr("Not available in firmware upgrade mode"));
    const auto lines = [](const QString &html) { return plainText(html).split(QLatin1Char('\n'), Qt::SkipEmptyParts); };
    return {identityLines(client, list),
            {{"inputs", tr("Physical inputs"), live.firmwareUpgradeMode ? none : lines(inputs)},
             {"status", tr("Status"), live.firmwareUpgradeMode ? none : lines(status)},
             {"faults", tr("Fault register"), lines(getFaultRegString(live, isInactive))}},
            live};
}

Results toResults(const StatusReport &report)
{
    Results results;
    QJsonObject json{{"running", report.drive.isRunning()},
                     {"setpoint", report.drive.setpoint},
                     {"position", report.drive.position},
                     {"activeFaults", QJsonArray::fromStringList(activeFaults(report.drive))},
                     {"reasons", QJsonArray::fromStringList(inactivityReasons(report.drive))}};
    for (const StatusReport::Line &line : report.identity) {
        results.lines.append(line.caption + QLatin1Char('\t') + line.value.toString());
        json.insert(QLatin1String(line.key), QJsonValue::fromVariant(line.value));
    }
    for (const StatusReport::Panel &panel : report.panels) {
        json.insert(QLatin1String(panel.key), QJsonArray::fromStringList(panel.lines));
        if (!panel.lines.isEmpty())
            results.lines += QStringList{QString(), panel.caption} + panel.lines;
    }
    results.json = json;
    return results;
}
