// The settings file: Parameters::saveToFile and Parameters::loadFromFile.
#include "devicemodel.h"
#include "initext.h"
#include "parameters.h"
#include "version.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int fileVersion = 110;
constexpr int oldestFileVersion = 100;  // same layout
constexpr qint64 largestFile = 8 << 20; // a real file has some 15 KB

const QString arrayName = QStringLiteral("TDT3Params");

/// What identifies the drive that a file came from is never taken over.
const QString identityNames[] = {QStringLiteral("FWVER"), QStringLiteral("TCFWVER"), QStringLiteral("HWSERIAL"),
                                 QStringLiteral("BUILDREVISION")};

struct StartValue
{
    const char *name;
    double value;
};

// The choices whose 0 would switch something off or is no sensible choice.
constexpr StartValue startValues[] = {{"MT", 3}, {"FBD", 1}, {"TBW", 6}, {"AXT", 3}};

struct NumberField
{
    const char *key;
    double SingleParam::*field;
};

constexpr NumberField numberFields[] = {
    {"scaling", &SingleParam::scaling}, {"offset", &SingleParam::offset}, {"value", &SingleParam::value},
    {"min", &SingleParam::min},         {"max", &SingleParam::max},
};

QByteArray numberText(double number)
{
    if (number == 0.0)
        return std::signbit(number) ? "-0" : "0";
    // The shortest text that reads back as the very same double.
    return QString::number(number, 'g', QLocale::FloatingPointShortest).toLatin1();
}

bool wasNeverRead(const SingleParam &p)
{
    return p.min == 0.0 && p.max == 0.0;
}

/// As it was before anybody has read or set it: 0, a start value, or -1 where the model lacks the setting.
bool isUnset(const SingleParam &p)
{
    return wasNeverRead(p) && (p.value == 0.0 || p.value == -1.0 || p.value == Parameters::startValue(p.name));
}

QByteArray settingsText(const QList<SingleParam> &list)
{
    const bool noDrive = std::any_of(list.begin(), list.end(), [](const SingleParam &p) {
        return p.name == QLatin1String("HWTYPE") && p.value == 0.0;
    });
    QByteArray text = "[Header]\nDRCVersion=" + QByteArray::number(fileVersion) +
                      "\nVelbrinVersion=" + iniString(QString::fromLatin1(VELBRIN_VERSION)) +
                      "\nVelbrinVersionInt=" + QByteArray::number(VELBRIN_VERSION_INT) + "\n\n[TDT3Params]\n";
    for (int i = 0; i < list.size(); ++i) {
        const SingleParam &p = list.at(i);
        const QByteArray entry = QByteArray::number(i + 1) + '\\';
        text += entry + "name=" + iniString(p.name) + '\n';
        text += entry + "addr=" + QByteArray::number(p.addr) + '\n';
        text += entry + "scaling=" + numberText(p.scaling) + '\n';
        text += entry + "offset=" + numberText(p.offset) + '\n';
        text += entry + "readonly=" + (p.readonly ? "true" : "false") + '\n';
        const bool atStart = noDrive && p.value == 0.0 && wasNeverRead(p);
        text += entry + "value=" + numberText(atStart ? Parameters::startValue(p.name) : p.value) + '\n';
        text += entry + "min=" + numberText(p.min) + '\n';
        text += entry + "max=" + numberText(p.max) + '\n';
    }
    // Last, so that a file that was cut short has no size and is refused.
    return text + "size=" + QByteArray::number(list.size()) + '\n';
}

/// Nothing for what is not there, not readable, not a plain file (a pipe would be waited for) or too large to be one.
std::optional<QByteArray> readPlainFile(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 fileSize = file.size();
    if (fileSize > largestFile)
        return std::nullopt;
    const QByteArray bytes = file.read(fileSize); // room for no more than there is
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return bytes;
}

/// A text as it may stand in a message, which is taken for HTML or goes to a terminal: no markup, nothing that steers.
QString harmless(QString text)
{
    const auto steers = [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
    };
    std::replace_if(text.begin(), text.end(), steers, QChar(u'?'));
    return text.toHtmlEscaped();
}

/// The same with a piece of the file, which may be of any length.
QString cited(const QString &piece)
{
    return harmless(piece.left(40));
}

/// Fills `p` from one entry. Returns the key whose text is no usable number, or an empty string.
QString readEntry(const IniValues &ini, const QString &entry, SingleParam *p)
{
    const QString addr = ini.value(entry + QStringLiteral("addr"), QStringLiteral("0"));
    bool usable = true;
    p->addr = addr.toInt(&usable);
    if (!usable)
        return QStringLiteral("addr");
    for (const NumberField &number : numberFields) {
        const QString text = ini.value(entry + QLatin1String(number.key), QStringLiteral("0"));
        p->*number.field = text.toDouble(&usable);
        if (!usable || !std::isfinite(p->*number.field))
            return QString::fromLatin1(number.key);
    }
    // Display values are divided by it.
    if (p->scaling == 0.0)
        return QStringLiteral("scaling");
    const QString readonly = ini.value(entry + QStringLiteral("readonly")).toLower();
    p->readonly = !(readonly.isEmpty() || readonly == QLatin1String("false") || readonly == QLatin1String("0"));
    return QString();
}

QString typeWarning(int fileType, int connectedType)
{
    if (fileType == 0)
        return Parameters::tr(
            "Warning: the loaded file was saved without a drive. What nobody has typed into it are start "
            "values and nobody's settings: the drive's own stay in their place.");
    return Parameters::
        tr("Warning: the loaded file is saved on different device type <b>%1</b> while connected device type is "
           "<b>%2</b>. Some settings and their value ranges may be incompatible. Apply button might cause connection "
           "error if any parameter value is out of supported bounds.")
            .arg(deviceModelName(fileType, false), deviceModelName(connectedType, false));
}

/// One run through the entries of a file, on a copy of the list.
class Loader
{
public:
    /// `withoutDrive`: the file was saved when none had been read.
    Loader(const QList<SingleParam> &current, bool withoutDrive)
        : m_current(current), m_result(current), m_withoutDrive(withoutDrive)
    {
    }

    /// Returns an empty string or the reason to refuse the file.
    QString take(const IniValues &ini, int number);
    const QList<SingleParam> &result() const { return m_result; }
    QString warning() const { return m_mismatch ? typeWarning(m_fileType, m_connectedType) : QString(); }

private:
    void replace(int index, const SingleParam &loaded);

    const QList<SingleParam> m_current;
    QList<SingleParam> m_result;
    const bool m_withoutDrive;
    bool m_mismatch = false;
    int m_fileType = 0;
    int m_connectedType = 0;
};

QString Loader::take(const IniValues &ini, int number)
{
    const QString entry = arrayName + QStringLiteral("/%1/").arg(number);
    const QString nameKey = entry + QStringLiteral("name");
    SingleParam loaded;
    loaded.name = ini.value(nameKey);
    QList<int> places;
    for (int i = 0; i < m_current.size(); ++i) {
        if (m_current.at(i).name == loaded.name)
            places.append(i);
    }
    if (places.isEmpty() || !ini.contains(nameKey))
        return Parameters::
            tr("Attempt to load a file with unknown parameter %1. Possibly Velbrin version too old, try later version.")
                .arg(cited(loaded.name));
    const QString badKey = readEntry(ini, entry, &loaded);
    if (!badKey.isEmpty())
        return Parameters::tr("Attempt to load a file with unusable %1 of parameter %2: \"%3\".")
            .arg(badKey, loaded.name, cited(ini.value(entry + badKey)));
    if (std::find(std::begin(identityNames), std::end(identityNames), loaded.name) != std::end(identityNames))
        loaded.value = -1.0;
    for (const int i : places)
        replace(i, loaded);
    return QString();
}

void Loader::replace(int index, const SingleParam &loaded)
{
    const SingleParam &current = m_current.at(index);
    if (m_withoutDrive && isUnset(loaded) && !wasNeverRead(current))
        return;
    if (loaded.name != QLatin1String("HWTYPE")) {
        m_result[index] = loaded;
        m_result[index].devices = current.devices;
        m_result[index].group = current.group;
        return;
    }
    // The connected drive stays what it is; without one (0) there is nothing to compare with.
    if (current.value == 0.0)
        return;
    m_fileType = truncateToInt32(loaded.value);
    m_connectedType = truncateToInt32(current.value);
    m_mismatch = m_mismatch || m_fileType != m_connectedType;
}

/// The number of the entry that a key "TDT3Params/3/name" belongs to; 0 for any other key.
int entryOf(const QString &key)
{
    const bool isInArray = key.startsWith(arrayName + QLatin1Char('/'));
    return isInArray ? key.section(QLatin1Char('/'), 1, 1).toInt() : 0;
}

/// Whether entries stand behind the last that "size" counts: a file whose size was cut in the middle of its digits
/// would otherwise pass for a small one.
bool hasMoreThan(int count, const IniValues &ini)
{
    return std::any_of(ini.keyBegin(), ini.keyEnd(), [count](const QString &key) { return entryOf(key) > count; });
}

bool wasSavedWithoutDrive(const IniValues &ini, int count)
{
    for (int number = 1; number <= count; ++number) {
        const QString entry = arrayName + QStringLiteral("/%1/").arg(number);
        const QString name = ini.value(entry + QStringLiteral("name"));
        if (name.isNull())
            return false; // the size may claim any number
        if (name == QLatin1String("HWTYPE"))
            return ini.value(entry + QStringLiteral("value")).toDouble() == 0.0;
    }
    return false;
}

} // namespace

double Parameters::startValue(const QString &name)
{
    const auto found = std::find_if(std::begin(startValues), std::end(startValues),
                                    [&name](const StartValue &start) { return name == QLatin1String(start.name); });
    return found == std::end(startValues) ? 0.0 : found->value;
}

QString Parameters::saveToFile(const QString &fileName) const
{
    const QFileInfo target(fileName);
    QSaveFile file(fileName);
    const QByteArray text = settingsText(m_list);
    // A pipe would be waited for, a device written over.
    // Flushed by hand, since commit() does not notice a full disk.
    const bool possible = !target.exists() || target.isFile();
    if (possible && file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush() && file.commit())
        return QString();
    return tr("Error writing settings to file %1").arg(harmless(fileName));
}

QString Parameters::loadFromFile(const QString &fileName, LoadOutcome *outcome)
{
    LoadOutcome own = LoadOutcome::Refused;
    return load(fileName, outcome ? *outcome : own);
}

QString Parameters::load(const QString &fileName, LoadOutcome &outcome)
{
    outcome = LoadOutcome::Refused;
    const QString readError = tr("Error reading settings from file %1.").arg(harmless(fileName));
    const std::optional<QByteArray> bytes = readPlainFile(fileName);
    if (!bytes)
        return readError;

    IniValues ini;
    const bool wellFormed = parseIniText(*bytes, &ini);
    // Looked up with a small v, while saving writes a capital one; both spellings are in use.
    const int version = iniValueIgnoringCase(ini, QStringLiteral("Header/DRCversion")).toInt();
    const QString program = iniValueIgnoringCase(ini, QStringLiteral("Header/VelbrinVersion"));
    const QString note =
        program.isEmpty() ? QString() : tr(" File was saved with Velbrin version %1.").arg(cited(program));
    if (version != fileVersion && version != oldestFileVersion)
        return tr("Unsupported file type or version. Try with later Velbrin version.") + note;

    bool counted = false;
    const int count = ini.value(arrayName + QStringLiteral("/size")).toInt(&counted);
    if (!counted || count < 0)
        return readError + note;
    if (hasMoreThan(count, ini))
        return readError + tr(" It is incomplete: there are more settings in it than it counts.") + note;
    Loader loader(m_list, wasSavedWithoutDrive(ini, count));
    for (int number = 1; number <= count; ++number) {
        // Ends at the first entry that is not there, whatever the size claims.
        const QString refusal = loader.take(ini, number);
        if (!refusal.isEmpty())
            return refusal + note;
    }
    if (!wellFormed)
        return readError + note;
    m_list = loader.result();
    const QString warning = loader.warning();
    outcome = warning.isEmpty() ? LoadOutcome::Taken : LoadOutcome::TakenWithWarning;
    return warning;
}
