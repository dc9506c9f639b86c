#include "drivereading.h"

#include "connection.h"
#include "plaintext.h"

#include <QCoreApplication>

namespace {

/// A line of a panel that begins with a circle.
struct Flag
{
    QString label;
    bool isSet;
    bool isReason; ///< marked as what keeps the drive from running
};

QList<Flag> flagsOf(const QString &panel)
{
    const QString mark = QStringLiteral(" !");
    QList<Flag> flags;
    for (const QString &line : plainText(panel).split(QLatin1Char('\n'))) {
        const bool isSet = line.startsWith(QChar(0x25CF)); // filled circle
        if (!isSet && !line.startsWith(QChar(0x25CB)))     // open circle
            continue;
        const bool isReason = line.endsWith(mark);
        const QString label = isReason ? line.chopped(mark.size()) : line;
        flags.append({label.mid(1).trimmed(), isSet, isReason});
    }
    return flags;
}

/// The number in the line that the session words as `pattern`, "%1" being the number; 0 without such a line.
int numberIn(const QString &panel, const char *pattern)
{
    const QString beforeNumber = plainText(Connection::tr(pattern)).section(QLatin1String("%1"), 0, 0);
    for (const QString &line : plainText(panel).split(QLatin1Char('\n'))) {
        if (line.startsWith(beforeNumber))
            return line.mid(beforeNumber.size()).toInt();
    }
    return 0;
}

struct FlagRow
{
    const char *label; ///< as the session words it
    bool DriveReading::*value;
};

constexpr FlagRow flagRows[] = {
    {"Soft enable", &DriveReading::softEnabled},
    {"Enabled", &DriveReading::enabled},
    {"Run", &DriveReading::running},
    {"Ready for use", &DriveReading::ready},
    {"Error recovering", &DriveReading::recovering},
    {"Braking", &DriveReading::braking},
    {"Homing active", &DriveReading::homing},
    {"Fault stopped", &DriveReading::faultStopped},
    {"Permanent stop", &DriveReading::permanentStop},
    {"STO active", &DriveReading::torqueOff},
};

} // namespace

DriveReading readPanels(const LiveState &live)
{
    DriveReading drive;
    const QList<Flag> faults = flagsOf(live.faults);
    const QList<Flag> others = flagsOf(live.inputs) + flagsOf(live.status);
    for (const FlagRow &row : flagRows) {
        const QString label = Connection::tr(row.label);
        for (const Flag &flag : others) {
            if (flag.label == label)
                drive.*row.value = flag.isSet;
        }
    }
    for (const Flag &flag : faults) {
        if (flag.isSet)
            drive.faults.append(flag.label);
    }
    for (const Flag &flag : others + faults) {
        if (flag.isReason)
            drive.reasons.append(
                QStringLiteral("%1 (%2)").arg(flag.label, flag.isSet ? QStringLiteral("on") : QStringLiteral("off")));
    }
    drive.setpoint = numberIn(live.status, "Setpoint value&nbsp;&nbsp;%1<br>");
    drive.position = numberIn(live.status, "Position feedback&nbsp;&nbsp;%1<br>");
    return drive;
}

QString inactivityText(const DriveReading &drive)
{
    if (drive.reasons.isEmpty())
        return QString();
    return QCoreApplication::translate("DriveReading", "Reason for inactivity: %1.")
        .arg(drive.reasons.join(QLatin1String(", ")));
}
