// Opening the window: disclaimer, pages, names.
#include "pagetable.h"
#include "settingfacts.h"
#include "windowfixture.h"

#include <QProcess>
#include <csignal>
#include <mutex>
#include <utime.h>

namespace {

using Startup = WindowFixture;

} // namespace

TEST_F(Startup, AgreeingOpensTheWindowOnTheWelcomePage)
{
    openWindow();
    EXPECT_TRUE(m_answers.texts.value(0).contains("Important safety information"));
    EXPECT_EQ(m_window->windowTitle(), "Velbrin");
    EXPECT_FALSE(m_window->windowIcon().isNull());
    EXPECT_EQ(m_window->size(), QSize(1300, 730));
    EXPECT_EQ(said(), "Program started");
    EXPECT_EQ(connectionText(), "Not connected");
    EXPECT_TRUE(label("wellcomeText")->text().contains("1.9.0"));
    EXPECT_FALSE(label("wellcomeText")->text().contains("%VELBRIN_VERSION"));
    EXPECT_EQ(control<QStackedWidget>("pages")->currentIndex(), 0);
    const auto *selector = control<QListWidget>("pageSelector");
    ASSERT_EQ(selector->count(), int(pageTable().size()));
    for (int i = 0; i < selector->count(); ++i) {
        EXPECT_EQ(selector->item(i)->text(), pageTable()[std::size_t(i)].text);
        EXPECT_FALSE(selector->item(i)->icon().pixmap(64).isNull()) << i;
        EXPECT_EQ(selector->item(i)->sizeHint(), QSize(79, 96));
    }
    // A click with Ctrl cannot leave the list without a selection.
    goTo(3);
    const QPoint middle = selector->visualItemRect(selector->item(3)).center();
    QTest::mouseClick(selector->viewport(), Qt::LeftButton, Qt::ControlModifier, middle);
    EXPECT_EQ(selector->selectedItems(), QList<QListWidgetItem *>{selector->item(3)});
    EXPECT_EQ(control<QStackedWidget>("pages")->currentIndex(), 3);

    for (const char *name : {"CM", "CRI", "AXT", "MT", "FBD", "FB2D", "LSF", "CEI", "TBW", "TRF1", "TRF2"}) {
        QStringList words;
        for (int i = 0; i < control<QComboBox>(name)->count(); ++i)
            words << control<QComboBox>(name)->itemText(i);
        EXPECT_EQ(settingFacts(name, false)->choices, words) << name << " has other words in a report";
    }
}

TEST_F(Startup, DisagreeingSaysSoAndClosesTheWindow)
{
    for (const bool byEscape : {false, true}) {
        byEscape ? m_answers.pressKey(Qt::Key_Escape) : m_answers.press("Disagree");
        m_answers.press("Quit");
        MW window;
        window.show();
        EXPECT_TRUE(waitFor([&] { return !window.isVisible(); })) << byEscape;
        EXPECT_TRUE(m_answers.texts.last().startsWith("This software will exit"));
    }
}

TEST_F(Startup, EverySlotFindsItsControlAndNoTwoControlsShareAName)
{
    static std::mutex mutex; // every thread has messages
    static QStringList unmatched;
    static QtMessageHandler before;
    before = qInstallMessageHandler(nullptr);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
        const std::lock_guard<std::mutex> lock(mutex);
        text.contains("No matching signal") ? void(unmatched << text) : before(type, context, text);
    });
    openWindow();
    qInstallMessageHandler(before);
    const std::lock_guard<std::mutex> lock(mutex);
    EXPECT_EQ(unmatched, QStringList());

    QMap<QString, int> names;
    const auto widgets = m_window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        // Parts that the toolkit makes itself repeat their names in every control.
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            ++names[widget->objectName()];
    }
    EXPECT_GT(names.size(), 200);
    for (auto name = names.begin(); name != names.end(); ++name) {
        const auto found = m_window->findChildren<QWidget *>(name.key());
        const bool toolkitPart = qobject_cast<QAbstractItemView *>(found.first()->parentWidget()) ||
                                 name.key().startsWith("ScrollBar") || name.key() == "buttonBox";
        EXPECT_TRUE(*name == 1 || toolkitPart) << qPrintable(name.key());
    }
}

TEST_F(Startup, WithoutADriveNothingIsPendingAndNothingCanBeSent)
{
    openWindow();
    goTo(2);
    QTest::qWait(0);
    EXPECT_EQ(applyText(), "Apply settings [Alt+A]");
    EXPECT_FALSE(button("apply_button")->isEnabled());
    EXPECT_TRUE(button("apply_button")->isVisible());
    for (const char *name : {"disconnect_button", "start_homing", "abort_homing", "ScopeCaptureNow", "setAbs1",
                             "setInc2", "clear_faults_2", "enable_drive"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;
    for (const char *name : {"connect_button", "setZero", "save_settings_to_file", "load_settings_from_file",
                             "copyDeviceStateToClipboard"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    // Shortcuts reach their slots all the same; the guards keep them from the bus.
    for (Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_0, Qt::Key_R, Qt::Key_S, Qt::Key_A})
        press(key, Qt::AltModifier);
    press(Qt::Key_Escape);
    QTest::qWait(400); // one idle pass of the worker
    EXPECT_TRUE(bus().received().empty());
    EXPECT_EQ(shownMessage(), QString());
    EXPECT_EQ(label("setpointNow")->text(), "Setpoint now: no data");
    EXPECT_EQ(label("statusRegisterl")->text(), "Status");
    click("copyDeviceStateToClipboard");
    EXPECT_EQ(QApplication::clipboard()->text(), "No data\n\nNo data\n\nNo data");
}

TEST_F(Startup, WindowLayoutIsRememberedAndAnUnreadableOneIsIgnored)
{
    openWindow();
    // Within the 800 pixels of the screen that newer toolkits pretend to without one.
    m_window->resize(0, 640);
    const QSize left = m_window->size();
    m_window->close();
    m_window.reset();
    openWindow();
    EXPECT_EQ(m_window->size(), left);
    m_window.reset();
    QSettings("Tarnwell Devices", "Velbrin").setValue("geometry", QByteArray("nonsense"));
    openWindow();
    EXPECT_EQ(m_window->size(), QSize(1300, 730));
    QSettings("Tarnwell Devices", "Velbrin").clear();
}

TEST(Program, EndsCleanlyOnASignalAndLeavesNothingBehindNotEvenOfAKilledOne)
{
    PrivateFolder folder;
    const QDir temporary = QDir::current();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", temporary.path());
    environment.insert("VELBRIN_WIKI", "http://127.0.0.1:1"); // nobody listens there
    const auto privateFolders = [&] { return temporary.entryList({"velbrin-*"}, QDir::Dirs); };
    for (const int number : {SIGKILL, SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(VELBRIN_BINARY_DIR "/bin/velbrin", {"--virtual-drive"});
        QByteArray said;
        ASSERT_TRUE(waitFor([&] { return (said += program.readAllStandardError()).contains("List of ports"); }));
        // The first box is open: signals count before the window, too.
        ASSERT_EQ(privateFolders().size(), 1); // that of the killed program has gone
        EXPECT_TRUE(QFileInfo(temporary.filePath(privateFolders().first() + "/COM1")).isSymLink());
        kill(pid_t(program.processId()), number);
        ASSERT_TRUE(program.waitForFinished(5000)) << number;
        EXPECT_EQ(program.exitStatus(), number == SIGKILL ? QProcess::CrashExit : QProcess::NormalExit) << number;
        EXPECT_EQ(privateFolders().size(), number == SIGKILL ? 1 : 0) << number;
        const utimbuf longAgo{1, 1};
        for (const QString &left : privateFolders())
            utime(temporary.filePath(left).toLocal8Bit(), &longAgo);
    }
}
