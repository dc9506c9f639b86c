// Editing, applying, saving to the drive and to a file, and the questions before something would be lost.
#include "windowfixture.h"

namespace {

constexpr int lastRecord = 912; // BDD
constexpr int homingCommand = 7532;

class Apply : public WindowFixture
{
protected:
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
    ASSERT_TRUE(waitForWrite(lastRecord, before[lastRecord]));
    for (const auto &[reg, value] : before) {
        const bool changesByItself = reg <= 15 || reg == 553; // protocol registers, status
        EXPECT_TRUE(changesByItself || bus().read(DriveAddress, reg) == value) << reg;
    }
    EXPECT_EQ(connectionText(), "Connected");
}

TEST_F(Apply, ShortcutCommitsTheFieldThatIsBeingTypedInButNoNumberBeyondTheDrivesLimit)
{
    openConnectedWindow();
    goTo(3);
    control<QComboBox>("MT")->setCurrentIndex(3);
    typeOver(control<QSpinBox>("MPC"), "7");
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(control<QSpinBox>("MPC")->value(), 6); // poles come in pairs
    EXPECT_TRUE(driveHas(566, 3));                   // the drive counts pairs
    ASSERT_TRUE(waitFor([this] { return said().endsWith(" applied"); })) << qPrintable(said());

    auto *current = control<QDoubleSpinBox>("MCC");
    const double before = current->value();
    EXPECT_TRUE(current->toolTip().contains("This drive: 0 to 35 A"));
    typeOver(current, "40");
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
    typeOver(target, "2,5");
    bus().clearReceived();
    press(Qt::Key_1, Qt::AltModifier);
    button("setAbs1")->setFocus();
    typeOver(target, "99999999");
    button("setAbs1")->setFocus(); // as a click does
    click("setAbs1");
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(absoluteSetpoint, 0), 0);
    click("setAbs1");
    EXPECT_TRUE(waitForWrite(absoluteSetpoint, 0));
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
    saveFile(path("edited.drc"));
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

TEST_F(Apply, FileThatWasSavedLoadsAndIsPendingUntilAppliedWithAndWithoutADrive)
{
    openConnectedWindow();
    const QString file = path("mine.drc");
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

    m_window.reset();
    openWindow();
    loadFile(file);
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 400; }));
    EXPECT_TRUE(waitForPending(true));
    EXPECT_EQ(label("HWMODEL")->text(), "This info updated only after Connect");
    EXPECT_EQ(label("HWSERIAL")->text(), "This info updated only after Connect");
    m_window->close(); // no drive, no question
    EXPECT_FALSE(m_window->isVisible());

    // The same by the command line, and a file that is none is told.
    bus().clearReceived();
    m_window.reset();
    openWindow(file);
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 400; }));
    EXPECT_EQ(shownMessage(), QString());
    m_window.reset();
    openWindow(file + ".missing");
    EXPECT_TRUE(waitFor([this] { return shownMessage().contains("mine.drc.missing"); }));
    EXPECT_TRUE(bus().received().empty());
}

TEST_F(Apply, FileSavedWithoutADriveIsNobodysSettings)
{
    const QString file = path("nobodys.drc");
    openWindow();
    EXPECT_EQ(control<QComboBox>("FBD")->currentIndex(), 1);
    control<QSpinBox>("KPP")->setValue(77); // typed, so somebody's
    saveFile(file);
    EXPECT_TRUE(shownMessage().startsWith("This file is saved without a drive"));
    closeMessage();

    bus().set(DriveAddress, KVP, 1234);
    bus().set(DriveAddress, feedbackDevice, 3);
    connectToDrive();
    loadFile(file);
    ASSERT_TRUE(waitFor([this] { return control<QSpinBox>("KPP")->value() == 77; }));
    EXPECT_EQ(kvp()->value(), 1234);
    click("apply_button");
    ASSERT_TRUE(driveHas(201, 77));
    ASSERT_TRUE(waitForWrite(lastRecord, bus().read(DriveAddress, lastRecord)));
    EXPECT_EQ(bus().read(DriveAddress, KVP), 1234);
    EXPECT_EQ(bus().read(DriveAddress, feedbackDevice), 3);
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
    ASSERT_TRUE(waitForWrite(homingCommand, 0));
    EXPECT_EQ(timesWritten(homingCommand, 1), 0);
    EXPECT_TRUE(waitForPending(true));
}
