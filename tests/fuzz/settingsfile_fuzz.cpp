// Any bytes as a settings file: refused without a change, or taken over with numbers that can go into a drive.
#include "initext.h"
#include "memoryfile.h"
#include "parameters.h"

#include <QTemporaryDir>

#include <cmath>
#include <tuple>

namespace {

const char *const names[] = {"HWTYPE", "FWVER", "TCFWVER", "HWSERIAL", "BUILDREVISION", "KVP", "FOV", "CM"};

/// What a window with a drive of type 11000 holds.
Parameters connectedDrive()
{
    Parameters list;
    for (const char *name : names) {
        SingleParam p;
        p.name = QString::fromLatin1(name);
        p.value = p.name == QLatin1String("HWTYPE") ? 11000 : 5;
        p.group = QStringLiteral("ELMODE");
        list.addParameter(p);
    }
    return list;
}

/// Whether both lists are alike from the record at `first` on.
bool isSame(const Parameters &a, const Parameters &b, int first)
{
    const auto all = [](const SingleParam &p) {
        return std::tuple(p.name, p.addr, p.scaling, p.offset, p.readonly, p.value, p.min, p.max, p.devices, p.group);
    };
    bool isSame = a.getParamCount() == b.getParamCount();
    for (int i = first; isSame && i < a.getParamCount(); ++i)
        isSame = all(a.getParam(i)) == all(b.getParam(i));
    return isSame;
}

void checkTaken(const Parameters &list)
{
    for (int i = 0; i < list.getParamCount(); ++i) {
        const SingleParam p = list.getParam(i);
        require(p.name == QLatin1String(names[i]), "the list keeps its order", p.name);
        require(p.scaling != 0.0, "no scaling is zero", p.name);
        for (const double number : {p.value, p.min, p.max, p.scaling, p.offset})
            require(std::isfinite(number), "every number is finite", p.name);
        truncateToInt32(p.convertToDeviceScale(p.value)); // as it would be written
    }
    require(list.getParam("HWTYPE").value == 11000, "the connected drive stays what it is");
}

/// What was taken over must survive being saved and loaded. The identity at the front of the list does not travel.
void checkRoundTrip(const Parameters &taken)
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("saved.drc"));
    require(taken.saveToFile(path).isEmpty(), "what was loaded can be saved");
    Parameters again = connectedDrive();
    const QString said = again.loadFromFile(path);
    require(said.isEmpty(), "what was saved can be loaded:", said);
    require(isSame(taken, again, 5), "what was saved comes back");
}

void checkString(const QByteArray &bytes)
{
    const QString texts[] = {QString::fromLatin1(bytes),
                             QString(reinterpret_cast<const QChar *>(bytes.constData()), bytes.size() / 2)};
    for (const QString &text : texts) {
        IniValues values;
        require(parseIniText("[a]\nb=" + iniString(text) + '\n', &values), "a written string is well formed");
        require(values.value(QStringLiteral("a/b")) == text, "a written string reads back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkString(bytes);
    static MemoryFile file;
    file.write(bytes);
    Parameters list = connectedDrive();
    const QString said = list.loadFromFile(file.path());
    if (said.isEmpty() || said.startsWith(QLatin1String("Warning"))) {
        checkTaken(list);
        checkRoundTrip(list);
    } else {
        require(isSame(list, connectedDrive(), 0), "a refused file changes nothing:", said);
        // It goes into a box that takes it for HTML, and a few nested tables would keep that busy for minutes.
        require(!said.contains(QLatin1Char('<')) && said.size() < 800, "a refusal shows no markup of the file:", said);
    }
    return 0;
}
