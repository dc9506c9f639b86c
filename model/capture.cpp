#include "capture.h"

#include <QCoreApplication>

#include <algorithm>

QString shownName(const CaptureData &channel)
{
    return QCoreApplication::translate("Connection", channel.name.toUtf8().constData());
}

const CaptureData *CaptureRecord::channel(const QString &key) const
{
    const auto found = std::find_if(channels.cbegin(), channels.cend(), [&key](const CaptureData &channel) {
        return channel.enabled && channel.key == key;
    });
    return found == channels.cend() ? nullptr : &*found;
}

double CaptureRecord::setting(const QString &name, double fallback) const
{
    const SingleParam found = settings.getParam(name);
    return found.name == name ? found.value : fallback;
}
