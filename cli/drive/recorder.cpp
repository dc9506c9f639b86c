#include "recorder.h"

#include "clitext.h"
#include "driveclient.h"

#include <cmath>

namespace {

constexpr int downloadLimitMs = 60000;

} // namespace

void armRecorder(DriveClient &client, double rate, int trigger, const QList<bool> &channels)
{
    client.received().plot.reset();
    client.received().captureState = CaptureState::Idle;
    client.session().setupCapture(rate, trigger, channels);
    client.session().command(Connection::TaskInitScope);
}

bool waitForRecorder(DriveClient &client, const QString &what, double seconds, QStringList &messages)
{
    const auto isFull = [&client] {
        return client.received().captureState == CaptureState::Downloading || client.received().plot;
    };
    const auto done = [&client, &isFull] { return client.isLost() || isFull(); };
    if (client.waitFor(what, done, int(std::ceil(seconds * 1000.0))) && !client.isLost())
        return true;
    if (client.isUp() && !client.wasInterrupted())
        messages.append(
            tr("The recorder was not triggered and filled within %1 s. Nothing was captured.").arg(seconds));
    return false;
}

std::optional<QList<CaptureData>> downloadRecorder(DriveClient &client)
{
    const auto done = [&client] {
        return client.isLost() || client.received().plot || client.received().captureState == CaptureState::Idle;
    };
    client.waitFor(tr("Downloading"), done, downloadLimitMs);
    return client.wasInterrupted() ? std::nullopt : client.received().plot;
}
