// Editing, applying, saving to the drive and to a file, and the questions before something would be lost.
#include "windowfixture.h"

#include "settingfacts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QSpinBox>
#include <QStatusBar>

namespace {

constexpr int KVP = 202;
constexpr int LAST_RECORD = 912; // BDD
constexpr int SYSTEM_COMMAND = 554;
constexpr int HOMING_COMMAND = 7532;

class Apply : public WindowFixture
{
protected:
    QSpinBox *kvp() const { return control<QSpinBox>("KVP"); }
    void expectNothingCanBeAppliedOrSaved()
    {
        click("apply_button");
        EXPECT_TRUE(said().startsWith("Nothing applied"));
        for (const bool toFile : {false, true}) {
            m_window->statusBar()->clearMessage();
            toFile ? press(Qt::Key_S, Qt::ControlModifier) : click("saveToFlash");
            EXPECT_TRUE(said().startsWith("Nothing saved")) << toFile;
        }
        EXPECT_FALSE(button("save_settings_to_file")->isEnabled());
    }
    /// Two more polls: everything that was asked for before has been done.
    bool waitForIdlePoll()
    {
        const auto count = bus().received().size();
        return waitFor([&] { return bus().received().size() >= count + 2; });
    }
};

} // namespace

TEST_F(Apply, EditIsMarkedWithinASecondAndUndoingItTakesTheMarkBack)
{
    openConnectedWindow();
    goTo(4);
    const int before = kvp()->value();
    kvp()->setValue(before + 1);
    EXPECT_TRUE(waitForPending(true));
    EXPECT_TRUE(button("apply_button")->isDefault());
    kvp()->setValue(before);
    EXPECT_TRUE(waitForPending(false));
    EXPECT_FALSE(button("apply_button")->isDefault());

    // The wheel edits a control that was clicked only.
    QWheelEvent wheel(QPointF(5, 5), kvp()->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    control<QListWidget>("pageSelector")->setFocus();
    QApplication::sendEvent(kvp(), &wheel);
    EXPECT_EQ(kvp()->value(), before);
    bringToFront();
    kvp()->setFocus();
    QApplication::sendEvent(kvp(), &wheel);
    EXPECT_GT(kvp()->value(), before);
}

TEST_F(Apply, WritesWhatWasEditedAndNothingElseChanges)
{
    openConnectedWindow();
    std::map<int, int> before;
    for (int reg = 0; reg < 950; ++reg)
        before[reg] = bus().read(DriveAddress, reg);
    kvp()->setValue(777);
    click("apply_button");
    ASSERT_TRUE(driveHas(KVP, 777));
    EXPECT_EQ(applyText(), "Apply settings [Alt+A]");
    before[KVP] = 777;
    ASSERT_TRUE(waitForWrite(LAST_RECORD, before[LAST_RECORD]));
    for (const auto &[reg, value] : before) {
        const bool changesByItself = reg <= 15 || reg == 553; // protocol registers, status
        EXPECT_TRUE(changesByItself || bus().read(DriveAddress, reg) == value) << reg;
    }
    EXPECT_EQ(connectionText(), "Connected");
}

TEST_F(Apply, ShortcutCommitsTheFieldThatIsBeingTypedIn)
{
    openConnectedWindow();
    goTo(3);
    auto *poles = control<QSpinBox>("MPC");
    control<QComboBox>("MT")->setCurrentIndex(3);
    bringToFront();
    poles->setFocus();
    ASSERT_TRUE(poles->hasFocus());
    poles->selectAll();
    QTest::keyClicks(poles, "7");
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(poles->value(), 6);  // poles come in pairs
    EXPECT_TRUE(driveHas(566, 3)); // the drive counts pairs
}

TEST_F(Apply, NumberBeyondTheDrivesLimitIsToldAndNothingIsApplied)
{
    openConnectedWindow();
    goTo(3);
    auto *current = control<QDoubleSpinBox>("MCC");
    const double before = current->value();
    EXPECT_TRUE(current->toolTip().contains("This drive: 0 to 35 A"));
    bringToFront();
    current->setFocus();
    current->selectAll();
    QTest::keyClicks(current, "40");
    kvp()->setValue(777);
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(waitFor([this] { return said().startsWith("40 A is beyond this drive's limit of 35 A"); }));
    EXPECT_EQ(current->value(), before);
    EXPECT_NE(bus().read(DriveAddress, KVP), 777);
    press(Qt::Key_A, Qt::AltModifier); // now the user has seen it
    EXPECT_TRUE(driveHas(KVP, 777));

    // Nor is a drive moved to the old target in place of one that was refused.
    goTo(6);
    auto *target = control<QSpinBox>("stimulusTarget1");
    target->setFocus();
    target->selectAll();
    QTest::keyClicks(target, "2,5");
    bus().clearReceived();
    press(Qt::Key_1, Qt::AltModifier);
    button("setAbs1")->setFocus();
    target->setFocus();
    target->selectAll();
    QTest::keyClicks(target, "99999999");
    button("setAbs1")->setFocus(); // as a click does
    click("setAbs1");
    ASSERT_TRUE(waitForIdlePoll());
    EXPECT_EQ(timesWritten(551, 0), 0);
    click("setAbs1");
    EXPECT_TRUE(waitForWrite(551, 0));
}

TEST_F(Apply, EditsChangeNothingOfWhatIsShownOfTheDrive)
{
    openConnectedWindow();
    control<QSpinBox>("stimulusTarget1")->setValue(4000);
    const QString shown = label("TSR1r")->text();
    EXPECT_TRUE(shown.endsWith("revolutions")) << qPrintable(shown);
    control<QComboBox>("CM")->setCurrentIndex(2);
    control<QSpinBox>("FBR")->setValue(5 * control<QSpinBox>("FBR")->value());
    control<QSpinBox>("MUL")->setValue(7);
    EXPECT_TRUE(waitForPending(true));
    m_answers.chooseFile(QDir::current().filePath("edited.drc"));
    click("save_settings_to_file");
    ASSERT_TRUE(waitFor([] { return QFile::exists("edited.drc"); }));
    EXPECT_EQ(label("TSR1r")->text(), shown);
    control<QSpinBox>("FBR")->setValue(2500);
    control<QSpinBox>("MUL")->setValue(200);
    click("apply_button");
    EXPECT_TRUE(waitFor([this] { return label("TSR1r")->text().endsWith(" A"); }));
}

TEST_F(Apply, IsRefusedBeforeTheValuesOfThisConnectionHaveArrived)
{
    openWindow();
    bus().setTurnAround(std::chrono::milliseconds(15));
    startConnecting();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Connected"; }));
    bus().setTurnAround(std::chrono::milliseconds(30));
    expectNothingCanBeAppliedOrSaved();
    bus().setTurnAround(std::chrono::milliseconds(0));
    ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text().startsWith("Tarnwell"); }));
    EXPECT_EQ(bus().read(DriveAddress, KVP), 360);
    EXPECT_TRUE(button("save_settings_to_file")->isEnabled());
    kvp()->setValue(361);
    click("apply_button");
    EXPECT_TRUE(driveHas(KVP, 361));

    // The next drive is connected, and its full read has not come yet: no value of the former one goes to it.
    ASSERT_TRUE(waitForThreePolls());
    bus().clearReceived();
    QMetaObject::invokeMethod(m_window.get(), "connectionStatusChanged", Q_ARG(bool, true),
                              Q_ARG(QString, "Connected"));
    expectNothingCanBeAppliedOrSaved();
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(KVP, 361), 0);
}

TEST_F(Apply, FileThatWasSavedLoadsAndIsPendingUntilApplied)
{
    openConnectedWindow();
    const QString file = QDir::current().filePath("mine.drc");
    kvp()->setValue(400);
    m_answers.chooseFile(file);
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([&] { return QFile::exists(file); }));
    kvp()->setValue(900);
    click("apply_button");
    ASSERT_TRUE(driveHas(KVP, 900));
    m_answers.chooseFile(file);
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 400; }));
    EXPECT_TRUE(waitForPending(true));
    EXPECT_EQ(bus().read(DriveAddress, KVP), 900); // nothing reaches the drive before it is asked for
    click("apply_button");
    EXPECT_TRUE(driveHas(KVP, 400));
    EXPECT_EQ(connectionText(), "Connected");
}

TEST_F(Apply, FileLoadedWithoutADriveFillsTheControls)
{
    openConnectedWindow();
    const QString file = QDir::current().filePath("mine.drc");
    kvp()->setValue(432);
    m_answers.chooseFile(file);
    click("save_settings_to_file");
    ASSERT_TRUE(waitFor([&] { return QFile::exists(file); }));
    m_answers.press("Continue without applying");
    m_window->close();
    m_window.reset();
    EXPECT_EQ(bus().read(DriveAddress, KVP), 360);

    openWindow();
    m_answers.chooseFile(file);
    click("load_settings_from_file");
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 432; }));
    EXPECT_TRUE(waitForPending(true));
    EXPECT_EQ(label("HWMODEL")->text(), "This info updated only after Connect");
    EXPECT_EQ(label("HWSERIAL")->text(), "This info updated only after Connect");
    m_window->close(); // no drive, no question
    EXPECT_FALSE(m_window->isVisible());

    // The same by the command line, and a file that is none is told.
    bus().clearReceived();
    m_window.reset();
    openWindow(file);
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 432; }));
    EXPECT_EQ(shownMessage(m_window.get()), QString());
    m_window.reset();
    openWindow(file + ".missing");
    EXPECT_TRUE(waitFor([this] { return shownMessage(m_window.get()).contains("mine.drc.missing"); }));
    EXPECT_TRUE(bus().received().empty());
}

TEST_F(Apply, FileSavedWithoutADriveIsNobodysSettings)
{
    const QString file = QDir::current().filePath("nobodys.drc");
    openWindow();
    EXPECT_EQ(control<QComboBox>("FBD")->currentIndex(), 1);
    control<QSpinBox>("KPP")->setValue(77); // typed, so somebody's
    m_answers.chooseFile(file);
    click("save_settings_to_file");
    ASSERT_TRUE(waitFor([&] { return QFile::exists(file); }));
    EXPECT_TRUE(shownMessage(m_window.get()).startsWith("This file is saved without a drive"));
    control<QDialog>("errorWindow")->close();

    bus().set(DriveAddress, KVP, 1234);
    bus().set(DriveAddress, 493, 3); // FBD
    connectToDrive();
    m_answers.chooseFile(file);
    click("load_settings_from_file");
    ASSERT_TRUE(waitFor([this] { return control<QSpinBox>("KPP")->value() == 77; }));
    EXPECT_EQ(kvp()->value(), 1234);
    click("apply_button");
    ASSERT_TRUE(driveHas(201, 77));
    ASSERT_TRUE(waitForWrite(LAST_RECORD, bus().read(DriveAddress, LAST_RECORD)));
    EXPECT_EQ(bus().read(DriveAddress, KVP), 1234);
    EXPECT_EQ(bus().read(DriveAddress, 493), 3);
}

TEST_F(Apply, ClosingAsksFirstForEditsThenForTheDrivesMemory)
{
    openConnectedWindow();
    kvp()->setValue(410);
    m_answers.press("Abort");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(waitForPending(true));

    m_answers.press("Apply settings");
    m_answers.press("Abort");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(driveHas(KVP, 410));

    // Discarding leaves the memory unsaved, so the next close asks again.
    m_answers.press("Discard changes");
    disconnectFromDrive();
    connectToDrive();
    m_answers.press("Save to drive now");
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(m_answers.texts.filter("since last Apply").size(), 2);
    EXPECT_EQ(m_answers.texts.filter("since last Save to drive").size(), 3);
}

TEST_F(Apply, HomingIsNotStartedWhenItsQuestionIsAborted)
{
    openConnectedWindow();
    control<QComboBox>("HME")->setCurrentIndex(1);
    bus().clearReceived();
    m_answers.press("Abort");
    click("start_homing");
    click("abort_homing"); // sent, so that the wait below has an end
    ASSERT_TRUE(waitForWrite(HOMING_COMMAND, 0));
    EXPECT_EQ(timesWritten(HOMING_COMMAND, 1), 0);
    EXPECT_TRUE(waitForPending(true));
}

TEST_F(Apply, AReportCallsChoicesWhatThePagesCallThem)
{
    openWindow();
    for (const char *name : {"CM", "CRI", "AXT", "MT", "FBD", "FB2D", "LSF", "CEI", "TBW", "TRF1", "TRF2"}) {
        QStringList words;
        for (int i = 0; i < control<QComboBox>(name)->count(); ++i)
            words << control<QComboBox>(name)->itemText(i);
        EXPECT_EQ(settingFacts(name, false)->choices, words) << name;
    }
}
