// Reading the block of a capture, which may come from anywhere.
#include "capturejson.h"

#include "captureformat.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

using namespace captureformat;

namespace {

constexpr qsizetype mostChannels = 64;
constexpr qsizetype mostSamples = 1000000; // of all channels together
constexpr qsizetype mostSettings = 1000;
constexpr qsizetype longestName = 100;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CaptureRecord)
};

bool isSane(double number)
{
    return std::abs(number) <= largestCaptureNumber; // false for a number that is none
}

/// One reading of a block. The first thing that is wrong stays; what is read after it does not matter.
class Reader
{
public:
    QString read(const QByteArray &json, CaptureRecord *capture);

private:
    void refuse(const QString &problem)
    {
        if (m_problem.isEmpty())
            m_problem = problem;
    }
    void refuseMember(const char *name)
    {
        refuse(Text::tr("The capture is damaged: its member \"%1\" is missing or is not what it should be.")
                   .arg(QLatin1String(name)));
    }
    double number(const QJsonObject &object, const char *name);
    int integer(const QJsonObject &object, const char *name);
    bool flag(const QJsonObject &object, const char *name);
    QString text(const QJsonObject &object, const char *name, qsizetype longest = longestName);
    QString identifier(const QJsonObject &object, const char *name);
    QJsonObject part(const QJsonObject &object, const char *name);
    QJsonArray list(const QJsonObject &object, const char *name, qsizetype longest);

    void readHead(const QJsonObject &block, CaptureRecord *capture);
    void readChannels(const QJsonArray &array, CaptureRecord *capture);
    CaptureData channel(const QJsonObject &object, double samplePeriod);
    void readSettings(const QJsonArray &array, Parameters *settings);

    QString m_problem;
    qsizetype m_sampleCount = 0;
};

double Reader::number(const QJsonObject &object, const char *name)
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isDouble() || !isSane(value.toDouble()))
        refuseMember(name);
    return value.toDouble();
}

int Reader::integer(const QJsonObject &object, const char *name)
{
    const double value = number(object, name);
    if (value != std::trunc(value) || std::abs(value) > 2147483647.0) {
        refuseMember(name);
        return 0;
    }
    return static_cast<int>(value);
}

bool Reader::flag(const QJsonObject &object, const char *name)
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isBool())
        refuseMember(name);
    return value.toBool();
}

QString Reader::text(const QJsonObject &object, const char *name, qsizetype longest)
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isString() || value.toString().size() > longest)
        refuseMember(name);
    return value.toString().left(longest);
}

/// What becomes an element id, a script variable or the text of a table cell in the plot page.
QString Reader::identifier(const QJsonObject &object, const char *name)
{
    // A word of the script language as a variable would keep the whole page from being drawn.
    static const QRegularExpression pattern(QStringLiteral(
        "\\A(?!(?:arguments|await|break|case|catch|class|const|continue|debugger|default|delete|do|else|enum|eval|"
        "export|"
        "extends|false|finally|for|function|if|implements|import|in|instanceof|interface|let|new|null|options|package|"
        "private|protected|public|return|static|super|switch|this|throw|true|try|typeof|var|void|while|with|yield)\\z)"
        "[A-Za-z][A-Za-z0-9_]*\\z"));
    const QString value = text(object, name);
    if (!pattern.match(value).hasMatch())
        refuseMember(name);
    return value;
}

QJsonObject Reader::part(const QJsonObject &object, const char *name)
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isObject())
        refuseMember(name);
    return value.toObject();
}

QJsonArray Reader::list(const QJsonObject &object, const char *name, qsizetype longest)
{
    const QJsonValue value = object.value(QLatin1String(name));
    if (!value.isArray() || value.toArray().size() > longest) {
        refuseMember(name);
        return {};
    }
    return value.toArray();
}

void Reader::readHead(const QJsonObject &block, CaptureRecord *capture)
{
    capture->rate = number(block, "rate");
    capture->samplePeriod = number(block, "samplePeriod");
    if (capture->samplePeriod < shortestSamplePeriod || capture->samplePeriod > longestSamplePeriod)
        refuseMember("samplePeriod");
    capture->trigger = integer(block, "trigger");
    capture->program = text(block, "program");
    capture->note = text(block, "note", longestNote);
    const QString time = text(block, "time");
    capture->time = QDateTime::fromString(time, Qt::ISODateWithMs);
    if (!time.isEmpty() && !capture->time.isValid())
        refuseMember("time");

    const QJsonObject drive = part(block, "drive");
    capture->drive.model = text(drive, "model");
    for (const IdentityField &field : identityFields)
        capture->drive.*field.field = integer(drive, field.name);

    const QJsonObject motion = part(block, "motion");
    const QString kindName = text(motion, "kind");
    bool isKnown = false;
    for (const MotionKind &kind : motionKinds) {
        if (kindName == QLatin1String(kind.name)) {
            capture->motion.kind = kind.kind;
            isKnown = true;
        }
    }
    if (!isKnown)
        refuseMember("kind");
    for (const auto &field : motionFields)
        capture->motion.*field.field = number(motion, field.name);
}

CaptureData Reader::channel(const QJsonObject &object, double samplePeriod)
{
    CaptureData channel;
    channel.key = identifier(object, "key");
    channel.name = text(object, "name");
    channel.unit = text(object, "unit");
    channel.group = identifier(object, "group");
    channel.scale = number(object, "scale");
    if (channel.scale == 0.0) // raw words are values divided by it
        refuseMember("scale");
    channel.isUnsigned = flag(object, "unsigned");
    const double bit = number(object, "sourceBit");
    if (!(bit >= 0.0 && bit <= 4294967295.0))
        refuseMember("sourceBit");
    else
        channel.sourceBit = static_cast<quint32>(bit);
    channel.enabled = true;
    const QJsonArray values = list(object, "values", mostSamples - m_sampleCount);
    m_sampleCount += values.size();
    channel.samples.reserve(values.size());
    for (const QJsonValue &value : values) {
        if (!value.isDouble() || !isSane(value.toDouble())) {
            refuseMember("values");
            break;
        }
        // The same product as where the recorder's words became samples.
        channel.samples.append({channel.samples.size() * samplePeriod, value.toDouble()});
    }
    return channel;
}

void Reader::readChannels(const QJsonArray &array, CaptureRecord *capture)
{
    QStringList keys, groups;
    for (const QJsonValue &value : array) {
        if (!value.isObject())
            refuseMember("channels");
        if (!m_problem.isEmpty())
            return;
        const CaptureData read = channel(value.toObject(), capture->samplePeriod);
        if (keys.contains(read.key))
            refuseMember("key");
        keys.append(read.key);
        groups.append(read.group);
        capture->channels.append(read);
    }
    // The plot page has one namespace for both.
    for (const QString &key : keys) {
        if (groups.contains(key))
            refuseMember("key");
    }
}

void Reader::readSettings(const QJsonArray &array, Parameters *settings)
{
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        SingleParam setting;
        setting.name = identifier(object, "name");
        setting.addr = integer(object, "address");
        setting.readonly = flag(object, "readOnly");
        setting.auxFlag = flag(object, "shown");
        if (object.contains(QLatin1String("models"))) // the first files have none
            setting.devices = text(object, "models");
        for (const auto &field : settingFields)
            setting.*field.field = number(object, field.name);
        if (setting.scaling == 0.0) // display values are divided by it
            refuseMember("scaling");
        if (!m_problem.isEmpty())
            return;
        settings->addParameter(setting);
    }
}

QString Reader::read(const QByteArray &json, CaptureRecord *capture)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return Text::tr("The capture is damaged: its text breaks off or is no JSON.");
    const QJsonObject block = document.object();
    if (block.value(QLatin1String("format")).toString() != QLatin1String(captureformat::name))
        return Text::tr("This is not a capture of Velbrin.");
    const double version = block.value(QLatin1String("version")).toDouble();
    if (version > captureFormatVersion)
        return Text::tr("The capture was made by a newer version of Velbrin. Install that version to open it.");
    if (version != captureFormatVersion)
        return Text::tr("The capture is damaged: its version is not known.");

    CaptureRecord taken;
    readHead(block, &taken);
    if (m_problem.isEmpty())
        readChannels(list(block, "channels", mostChannels), &taken);
    if (m_problem.isEmpty())
        readSettings(list(block, "settings", mostSettings), &taken.settings);
    if (m_problem.isEmpty())
        *capture = taken;
    return m_problem;
}

} // namespace

QString captureFromJson(const QByteArray &json, CaptureRecord *capture)
{
    return Reader().read(json, capture);
}
