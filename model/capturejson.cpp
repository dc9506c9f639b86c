#include "capturejson.h"

#include "captureformat.h"

#include <QJsonArray>

using namespace captureformat;

namespace {

QJsonObject toJson(const CaptureMotion &motion)
{
    QJsonObject object;
    for (const MotionKind &kind : motionKinds) {
        if (kind.kind == motion.kind)
            object.insert(QStringLiteral("kind"), QLatin1String(kind.name));
    }
    for (const auto &number : motionFields)
        object.insert(QLatin1String(number.name), motion.*number.field);
    return object;
}

QJsonObject toJson(const DriveIdentity &drive)
{
    QJsonObject object{{QStringLiteral("model"), drive.model}};
    for (const IdentityField &number : identityFields)
        object.insert(QLatin1String(number.name), drive.*number.field);
    return object;
}

QJsonObject toJson(const CaptureData &channel)
{
    QJsonArray values;
    for (const auto &sample : channel.samples)
        values.append(sample.second);
    return {{QStringLiteral("key"), channel.key},
            {QStringLiteral("name"), channel.name},
            {QStringLiteral("unit"), channel.unit},
            {QStringLiteral("scale"), channel.scale},
            {QStringLiteral("group"), channel.group},
            {QStringLiteral("sourceBit"), static_cast<qint64>(channel.sourceBit)},
            {QStringLiteral("unsigned"), channel.isUnsigned},
            {QStringLiteral("values"), values}};
}

QJsonArray toJson(const Parameters &settings)
{
    QJsonArray array;
    for (int i = 0; i < settings.getParamCount(); ++i) {
        const SingleParam setting = settings.getParam(i);
        QJsonObject object{{QStringLiteral("name"), setting.name},
                           {QStringLiteral("address"), setting.addr},
                           {QStringLiteral("readOnly"), setting.readonly},
                           {QStringLiteral("shown"), setting.auxFlag},
                           {QStringLiteral("models"), setting.devices}};
        for (const auto &number : settingFields)
            object.insert(QLatin1String(number.name), setting.*number.field);
        array.append(object);
    }
    return array;
}

} // namespace

QJsonObject captureToJson(const CaptureRecord &capture, const QJsonObject &extra)
{
    QJsonArray channels;
    for (const CaptureData &channel : capture.channels) {
        if (channel.enabled)
            channels.append(toJson(channel));
    }
    QJsonObject block = extra;
    block.insert(QStringLiteral("format"), QLatin1String(captureformat::name));
    block.insert(QStringLiteral("version"), captureFormatVersion);
    block.insert(QStringLiteral("program"), capture.program);
    block.insert(QStringLiteral("time"),
                 capture.time.toOffsetFromUtc(capture.time.offsetFromUtc()).toString(Qt::ISODateWithMs));
    block.insert(QStringLiteral("note"), capture.note);
    block.insert(QStringLiteral("drive"), toJson(capture.drive));
    block.insert(QStringLiteral("rate"), capture.rate);
    block.insert(QStringLiteral("samplePeriod"), capture.samplePeriod);
    block.insert(QStringLiteral("trigger"), capture.trigger);
    block.insert(QStringLiteral("motion"), toJson(capture.motion));
    block.insert(QStringLiteral("channels"), channels);
    block.insert(QStringLiteral("settings"), toJson(capture.settings));
    return block;
}
