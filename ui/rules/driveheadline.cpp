#include "driveheadline.h"

#include "devicemodel.h"
#include "statustexts.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DriveHeadline)
};

QString agoText(double seconds)
{
    const int whole = int(seconds);
    if (whole < 60)
        return Text::tr("%1 s ago").arg(whole);
    if (whole < 3600)
        return Text::tr("%1 min ago").arg(whole / 60);
    return Text::tr("%1 h ago").arg(whole / 3600);
}

/// The first fault in the panel's order.
struct FirstFault
{
    QString name;
    int bit = 0;
    int count = 0;
};
FirstFault firstFault(const DriveState &state)
{
    FirstFault found;
    const QList<DriveFlag> flags = faultFlagsOf(state);
    for (const DriveFlag &flag : flags) {
        if (!flag.isSet)
            continue;
        if (found.count++ == 0) {
            found.name = flag.label;
            found.bit = flag.mask;
        }
    }
    return found;
}

QString motionText(const DriveState &state)
{
    return state.rawVelocity == 0 ? Text::tr("standing") : Text::tr("moving");
}

void describeFault(const DriveState &state, DriveHeadline &line)
{
    const FirstFault fault = firstFault(state);
    line.look = DriveLook::Fault;
    line.word = Text::tr("FAULT");
    line.detail =
        fault.count > 1 ? Text::tr("%1 and %2 more").arg(fault.name, QString::number(fault.count - 1)) : fault.name;
    if (fault.count == 0) // a bit that has no name
        line.detail = Text::tr("fault register %1").arg(state.faultRegister);
    line.faultBit = fault.bit;
    if (state.isRunning())
        line.detail = Text::tr("%1, motor powered").arg(line.detail);
}

void describeEnabled(const DriveState &state, DriveHeadline &line)
{
    line.look = state.isHoming() ? DriveLook::Homing : DriveLook::Enabled;
    line.word = Text::tr("ENABLED");
    if (state.isHoming())
        line.detail = Text::tr("homing, %1").arg(motionText(state));
    else
        line.detail = state.isRunning() ? motionText(state) : Text::tr("motor not powered yet");
}

void describeDisabled(const DriveState &state, DriveHeadline &line)
{
    line.look = DriveLook::Disabled;
    line.word = Text::tr("disabled");
    if (state.isPermanentStop())
        line.detail = Text::tr("permanent stop until a restart");
    else if (state.isTorqueOff())
        line.detail = Text::tr("safe torque off is active");
    else
        line.detail = motionText(state);
}

void describeState(const DriveState &state, DriveHeadline &line)
{
    if (state.firmwareUpgradeMode) {
        line.look = DriveLook::Upgrade;
        line.word = Text::tr("Firmware upgrade mode");
    } else if (state.faultRegister != 0 || state.isFaultStopped()) {
        describeFault(state, line);
    } else if (state.isEnabled() || state.isRunning()) {
        describeEnabled(state, line);
    } else {
        describeDisabled(state, line);
    }
}

QString identityText(const DriveNews &news)
{
    const QString model = deviceModelName(news.state.deviceType, false);
    if (news.state.deviceType <= 0)
        return news.busAddress > 0 ? Text::tr("address %1").arg(news.busAddress) : QString();
    if (news.serialNumber <= 0)
        return Text::tr("%1 at address %2").arg(model, QString::number(news.busAddress));
    return Text::tr("%1 at address %2, serial number %3")
        .arg(model, QString::number(news.busAddress), QString::number(news.serialNumber));
}

QString figuresText(const DriveState &state)
{
    if (state.firmwareUpgradeMode)
        return QString();
    return Text::tr("%1 V, position %2")
        .arg(QString::number(state.busVoltage, 'f', 1), QString::number(state.position));
}

/// The words about a poll, turned into words about the past.
void makeLastKnown(const DriveNews &news, DriveHeadline &line)
{
    line.look = DriveLook::LastKnown;
    line.word = Text::tr("Last known: %1").arg(line.word);
    const QString age =
        news.connected ? agoText(news.secondsOld) : Text::tr("%1, not connected").arg(agoText(news.secondsOld));
    // The age first: in a narrow window the end gives way.
    line.detail = line.detail.isEmpty() ? age : Text::tr("%1, %2").arg(age, line.detail);
}

void makeUnheard(DriveHeadline &line)
{
    line.look = DriveLook::LastKnown;
    line.word = Text::tr("Connected");
    line.detail = Text::tr("nothing heard yet");
}

void makeNotConnected(DriveHeadline &line)
{
    line = DriveHeadline();
    line.word = Text::tr("Not connected");
}

} // namespace

DriveHeadline driveHeadline(const DriveNews &news)
{
    DriveHeadline line;
    line.identity = identityText(news);
    if (news.polled) {
        describeState(news.state, line);
        line.figures = figuresText(news.state);
    }
    if (!news.connected && (news.leftByUser || !news.polled))
        makeNotConnected(line);
    else if (!news.polled)
        makeUnheard(line);
    else if (!news.connected || news.secondsOld > oldestPresent)
        makeLastKnown(news, line);
    QStringList parts{line.word, line.detail, line.identity, line.figures};
    parts.removeAll(QString());
    line.spoken = parts.join(QLatin1String(", "));
    return line;
}
