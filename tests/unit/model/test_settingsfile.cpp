#include "testfiles.h"
#include "withvalues.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cstring>
#include <limits>
#include <sys/stat.h>

namespace {

const char header[] = "[Header]\nDRCVersion=110\nVelbrinVersion=1.9.0\nVelbrinVersionInt=10900\n";
const char note[] = " File was saved with Velbrin version 1.9.0.";

/// One entry with usable numbers.
QByteArray entry(int number, const QByteArray &name, const QByteArray &value)
{
    const QByteArray n = QByteArray::number(number) + '\\';
    return n + "name=" + name + '\n' + n + "addr=7\n" + n + "scaling=10\n" + n + "offset=2\n" + n + "readonly=false\n" +
           n + "value=" + value + '\n' + n + "min=-1.5\n" + n + "max=1e3\n";
}

class SettingsFile : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *name : {"HWTYPE", "FWVER", "KVP", "CEI"}) {
            SingleParam p;
            p.name = QString::fromLatin1(name);
            p.value = 5;
            p.devices = "Keta";
            p.group = "ELMODE";
            list.addParameter(p);
        }
        list = withValues(list, {{"HWTYPE", 0}});
    }
    void write(const QByteArray &bytes) { put(path, bytes); }
    QByteArray content() const { return contents(path); }
    QString load(const QByteArray &bytes)
    {
        write(bytes);
        return list.loadFromFile(path);
    }
    void expectUnchanged()
    {
        EXPECT_EQ(list.getParam("KVP").value, 5);
        EXPECT_EQ(list.getParam("KVP").scaling, 1);
        EXPECT_EQ(list.getParam("FWVER").value, 5);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("drive 1%1.drc");
    QString cannotRead = "Error reading settings from file " + path + ".";
    QString cannotWrite = "Error writing settings to file " + path;
    Parameters list;
};

} // namespace

TEST_F(SettingsFile, IsWrittenInListOrderAndLoadsAgain)
{
    Parameters one;
    one.addParameter(202, "KVP", 10.24, -1, false, true, "Keta");
    SingleParam p = one.getParam(0);
    p.value = 0.1;
    p.max = 16383;
    one.replaceParam(p);
    ASSERT_EQ(one.saveToFile(path), "");
    EXPECT_EQ(content(), QByteArray(header) + "\n[TDT3Params]\n1\\name=KVP\n1\\addr=202\n1\\scaling=10.24\n"
                                              "1\\offset=-1\n1\\readonly=false\n1\\value=0.1\n1\\min=0\n1\\max=16383\n"
                                              "size=1\n");
    ASSERT_EQ(list.loadFromFile(path), "");
    EXPECT_EQ(list.getParam("KVP").value, 0.1);
    EXPECT_EQ(list.getParam("KVP").addr, 202);
    EXPECT_FALSE(list.getParam("KVP").readonly);
    EXPECT_EQ(list.getParam("KVP").devices, "Keta");
    EXPECT_EQ(list.getParam("KVP").group, "ELMODE");
    EXPECT_EQ(list.getParam("CEI").value, 5) << "what the file does not mention stays";
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "no lock or backup files";
}

TEST_F(SettingsFile, KeepsEveryDoubleAndNameBitForBitAlsoThroughQSettings)
{
    const double values[] = {0.1, -0.0, 50.0 / 3, 5e-324, std::numeric_limits<double>::max(), -1234567.875};
    const QString names[] = {"a b", "x;y,z=", "\"quoted\\\"", QString(QChar(0x20ac)) + "f", "@at", "tab\tline\n"};
    Parameters saved;
    for (int i = 0; i < 6; ++i) {
        SingleParam p;
        p.name = names[i];
        p.value = values[i];
        saved.addParameter(p);
    }
    ASSERT_EQ(saved.saveToFile(path), "");
    Parameters loaded;
    for (const QString &name : names)
        loaded.addParameter(0, name, 1, 0, false, true, "");
    ASSERT_EQ(loaded.loadFromFile(path), "");

    QSettings settings(path, QSettings::IniFormat);
    EXPECT_EQ(settings.value("Header/VelbrinVersion").toString(), "1.9.0");
    ASSERT_EQ(settings.beginReadArray("TDT3Params"), 6);
    for (int i = 0; i < 6; ++i) {
        settings.setArrayIndex(i);
        EXPECT_EQ(settings.value("name").toString(), names[i]);
        EXPECT_TRUE(settings.value("readonly").toBool());
        for (const double read : {settings.value("value").toDouble(), loaded.getParam(i).value})
            EXPECT_EQ(std::memcmp(&read, &values[i], sizeof read), 0) << values[i];
    }
}

TEST_F(SettingsFile, WrittenByQSettingsLoads)
{
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue("Header/DRCVersion", 110);
        settings.setValue("Header/VelbrinVersion", "1.9.0; special, \"build\"");
        settings.beginWriteArray("TDT3Params");
        for (int i = 0; i < 12; ++i) { // from 10 on the layer sorts the entries in another order
            settings.setArrayIndex(i);
            settings.setValue("name", i == 11 ? "KVP" : "CEI");
            settings.setValue("addr", -3);
            settings.setValue("scaling", 50.0 / 3);
            settings.setValue("readonly", i != 11);
            settings.setValue("value", 1e-7 * i);
        }
        settings.endArray();
    }
    ASSERT_EQ(list.loadFromFile(path), "");
    const SingleParam p = list.getParam("KVP");
    EXPECT_EQ(p.value, 1e-7 * 11);
    EXPECT_EQ(p.scaling, 50.0 / 3);
    EXPECT_EQ(p.addr, -3);
    EXPECT_EQ(p.min, 0) << "missing numbers read as zero";
    EXPECT_FALSE(p.readonly);
    EXPECT_TRUE(list.getParam("CEI").readonly);
}

TEST_F(SettingsFile, AcceptsBothSpellingsOfTheHeaderKeyAndVersion100)
{
    const QByteArray body = "[TDT3Params]\n" + entry(1, "KVP", "8") + "size=1\n";
    const Parameters before = list;
    for (const char *head : {"[Header]\nDRCVersion=110\n", "[Header]\r\ndrcversion=100\r\n",
                             "\xEF\xBB\xBF; by hand\n[HEADER]\nDRCVERSION = 100 ; old\n"}) {
        list = before;
        EXPECT_EQ(load(head + body), "") << head;
        EXPECT_EQ(list.getParam("KVP").value, 8) << head;
    }
}

TEST_F(SettingsFile, FromAnotherDeviceTypeIsTakenWithAWarning)
{
    const QByteArray file = QByteArray(header) + "[TDT3Params]\n" + entry(1, "HWTYPE", "11001") + entry(2, "KVP", "8") +
                            entry(3, "FWVER", "57") + "size=3\n";
    EXPECT_EQ(load(file), "") << "no drive connected";
    EXPECT_EQ(list.getParam("HWTYPE").value, 0);
    list = withValues(list, {{"HWTYPE", 11001}});
    EXPECT_EQ(load(file), "");
    list = withValues(list, {{"HWTYPE", 4000}});
    EXPECT_EQ(load(file),
              "Warning: the loaded file is saved on different device type <b>KETA Pro</b> while connected device type "
              "is <b>TORVA</b>. Some settings and their value ranges may be incompatible. Apply button might cause "
              "connection error if any parameter value is out of supported bounds.");
    EXPECT_EQ(list.getParam("KVP").value, 8);
    EXPECT_EQ(list.getParam("HWTYPE").value, 4000);
    EXPECT_EQ(list.getParam("FWVER").value, -1) << "the identity of another drive is never taken over";
}

TEST_F(SettingsFile, SavedWithoutADriveLeavesADriveItsOwn)
{
    list.addParameter(493, "FBD", 1, 0, false, true, "Keta");
    Parameters bare;
    for (const char *name : {"HWTYPE", "KVP", "CEI", "FBD"})
        bare.addParameter(1, name, 1, 0, false, true, "Keta");
    ASSERT_EQ(withValues(bare, {{"KVP", 7}}).saveToFile(path), "");
    LoadOutcome outcome = LoadOutcome::Refused;
    ASSERT_EQ(list.loadFromFile(path, &outcome), "") << "nobody is connected";
    EXPECT_EQ(outcome, LoadOutcome::Taken);
    EXPECT_EQ(list.getParam("FBD").value, 1) << "0 would be no feedback device";
    EXPECT_EQ(list.getParam("CEI").value, 0);

    list = withValues(list, {{"HWTYPE", 11000}, {"FBD", 5}, {"CEI", 5}, {"KVP", 5}});
    for (const char *name : {"FBD", "CEI", "KVP"}) {
        SingleParam held = list.getParam(name);
        held.max = 6; // of a drive that was read
        list.replaceParam(held);
    }
    EXPECT_TRUE(list.loadFromFile(path, &outcome).startsWith("Warning: the loaded file was saved without a drive."));
    EXPECT_EQ(outcome, LoadOutcome::TakenWithWarning);
    EXPECT_EQ(list.getParam("FBD").value, 5);
    EXPECT_EQ(list.getParam("CEI").value, 5);
    EXPECT_EQ(list.getParam("KVP").value, 7) << "somebody has typed it";
}

TEST_F(SettingsFile, ThatIsNoneIsRefusedWithNothingTakenOver)
{
    const QByteArray array = "[TDT3Params]\n";
    const QByteArray good = entry(1, "KVP", "8");
    const QString unsupported = "Unsupported file type or version. Try with later Velbrin version.";
    const QString unknown = "Attempt to load a file with unknown parameter %1. Possibly Velbrin version too old, try "
                            "later version.";
    const std::pair<QByteArray, QString> files[] = {
        {"", unsupported},
        {QByteArray(2 << 20, '\xA5'), unsupported},
        {array + good + "size=1\n", unsupported},
        {"[Header]\nDRCVersion=111\nVelbrinVersion=2.0\n" + array + good + "size=1\n",
         unsupported + " File was saved with Velbrin version 2.0."},
        {header, cannotRead + note},
        {header + array + good, cannotRead + note}, // cut short
        {header + array + good + "size=1\nnoise\n", cannotRead + note},
        {header + array + good + "size=-1\n", cannotRead + note},
        {header + array + good + entry(2, "CEI", "1") + "size=1",
         cannotRead + " It is incomplete: there are more settings in it than it counts." + note}, // of "size=12"
        {header + array + entry(1, "\\x1b[2J", "1") + "size=1\n", unknown.arg("?[2J") + note},
        {header + array + good + entry(2, "BOGUS", "1") + "size=2\n", unknown.arg("BOGUS") + note},
        {header + array + good + "size=1000000000\n", unknown.arg("") + note},
        {QByteArray(9 << 20, '\n'), cannotRead},
        // What the file says stays text, and short: the message goes into a box that would lay it out as HTML.
        {header + array + entry(1, "<table>", "1") + "size=1\n", unknown.arg("&lt;table&gt;") + note},
        {"[Header]\nVelbrinVersion=" + QByteArray(1 << 20, '&') + "\n",
         unsupported + " File was saved with Velbrin version " + QString("&amp;").repeated(40) + "."},
    };
    for (const auto &[bytes, message] : files) {
        QElapsedTimer time;
        time.start();
        write(bytes);
        LoadOutcome outcome = LoadOutcome::Taken;
        EXPECT_EQ(list.loadFromFile(path, &outcome), message) << bytes.left(200).toStdString();
        EXPECT_EQ(outcome, LoadOutcome::Refused);
        EXPECT_LT(time.elapsed(), 5000);
        expectUnchanged();
        EXPECT_EQ(content(), bytes) << "reading left the file alone";
    }
    EXPECT_EQ(load(QByteArray(header) + array + "size=0\n"), "") << "an empty array changes nothing";
    expectUnchanged();
}

TEST_F(SettingsFile, WithANumberThatIsNoneIsRefused)
{
    const QByteArray file =
        QByteArray(header) + "[TDT3Params]\n" + entry(1, "FWVER", "1") + entry(2, "KVP", "8") + "size=2\n2\\";
    for (const char *line : {"value=inf", "value=1,5", "value=", "scaling=0", "scaling=nan", "min=1e999", "addr=7.5",
                             "max=@Variant(\\0\\0\\0\\x9\\x7f\\xff\\xff\\xff)"}) { // an object of 2^31 strings
        EXPECT_TRUE(load(file + line).startsWith("Attempt to load a file with unusable ")) << line;
        expectUnchanged();
    }
    EXPECT_EQ(load(file + "offset=<b>"),
              QString("Attempt to load a file with unusable offset of parameter KVP: \"&lt;b&gt;\".") + note);
}

TEST_F(SettingsFile, ThatCannotBeReadOrWrittenSaysSo)
{
    EXPECT_EQ(list.loadFromFile(path), cannotRead) << "missing";
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(list.loadFromFile(path), cannotRead) << "a pipe";
    EXPECT_EQ(list.saveToFile(path), cannotWrite) << "a pipe";
    ASSERT_TRUE(QFile::remove(path) && QDir().mkdir(path));
    EXPECT_EQ(list.loadFromFile(path), cannotRead) << "a directory";
    EXPECT_EQ(list.saveToFile(path), cannotWrite) << "a directory";
    EXPECT_EQ(list.loadFromFile(""), "Error reading settings from file .");
    EXPECT_EQ(list.saveToFile(""), "Error writing settings to file ");
    EXPECT_EQ(list.loadFromFile("/dev/zero"), "Error reading settings from file /dev/zero.");
    EXPECT_EQ(list.saveToFile(folder.filePath("gone/x.drc")),
              "Error writing settings to file " + folder.filePath("gone/x.drc"));
    if (::geteuid() == 0)
        return; // root reads everything
    ASSERT_TRUE(QDir().rmdir(path));
    write(header);
    QFile::setPermissions(path, {});
    EXPECT_EQ(list.loadFromFile(path), cannotRead) << "no permission";
}

TEST_F(SettingsFile, OldOneStaysWholeWhenTheDiskIsFull)
{
    write("old");
    const QString message = [this] {
        const SmallDisk disk;
        return list.saveToFile(path);
    }();
    EXPECT_EQ(message, cannotWrite);
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "no temporary file left";
}

TEST_F(SettingsFile, GetsThePermissionsOfAnOrdinaryFileOrOfTheOneItReplaces)
{
    const mode_t mask = ::umask(0022);
    ASSERT_EQ(list.saveToFile(path), "");
    const QByteArray name = QFile::encodeName(path);
    struct stat info = {};
    ::stat(name.constData(), &info);
    EXPECT_EQ(info.st_mode & 0777, 0644u);
    ::chmod(name.constData(), 0640);
    const QString link = folder.filePath("link.drc");
    ASSERT_TRUE(QFile::link("drive 1%1.drc", link));
    EXPECT_EQ(list.saveToFile(link), "");
    ::umask(mask);
    ::stat(name.constData(), &info);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_TRUE(QFileInfo(link).isSymLink()) << "saving follows a link instead of replacing it";
}
