// The strip along the window, the marks, undo, the box before an apply, what the status bar says, and finding.
#include "windowfixture.h"

#include "applybox.h"
#include "driveboard.h"

namespace {

constexpr int serialNumber = 6002;

class Board : public WindowFixture
{
protected:
    QString word() const { return label("stripWord")->text(); }
    QString spoken() const { return label("stripWord")->accessibleName(); }
    bool waitForWord(const QString &wanted)
    {
        return waitFor([&] { return word() == wanted; });
    }
    void expectSaid(const QString &text)
    {
        EXPECT_TRUE(waitFor([&] { return said() == text; })) << qPrintable(said());
    }
    QString mark(const char *name) const { return label(name)->accessibleName(); }
    void expectMark(const char *name, const QString &text)
    {
        EXPECT_TRUE(waitFor([&] { return mark(name) == text; })) << qPrintable(mark(name));
    }
};

} // namespace

TEST_F(Board, StripFollowsTheDriveWhoeverMovesItAndSaysWhenItIsThePast)
{
    openWindow();
    EXPECT_EQ(spoken(), "Not connected");
    EXPECT_FALSE(button("stripEnable")->isEnabled());
    EXPECT_FALSE(button("stripDisable")->isEnabled());
    connectToDrive();
    ASSERT_TRUE(waitForWord("disabled"));
    EXPECT_TRUE(waitFor([this] { return spoken().contains("serial number 240117"); }));
    EXPECT_TRUE(spoken().startsWith("disabled, standing, KETA at address")) << qPrintable(spoken());
    click("stripEnable");
    EXPECT_TRUE(waitForWord("ENABLED"));
    expectSaid("Enabled: the motor is powered");

    bus().set(DriveAddress, underVoltage, 6000); // the drive trips by itself, at 48 V
    EXPECT_TRUE(waitForWord("FAULT"));
    EXPECT_TRUE(waitFor([this] { return said().startsWith("The drive has stopped by itself: Under voltage"); }));
    EXPECT_TRUE(label("stripDetail")->text().startsWith("Under voltage")) << qPrintable(spoken());
    EXPECT_TRUE(control<QToolButton>("stripFaultHelp")->isVisible());
    bus().set(DriveAddress, underVoltage, 3600);
    click("stripClearFaults");
    expectSaid("Faults cleared");
    EXPECT_TRUE(waitFor([this] { return !word().startsWith("FAULT"); }));
    click("stripDisable");
    EXPECT_TRUE(waitForWord("disabled"));

    bus().unplug();
    EXPECT_TRUE(waitForWord("Last known: disabled"));
    EXPECT_TRUE(waitFor([this] { return label("stripDetail")->text().contains("s ago, not connected, "); }));
    EXPECT_TRUE(button("stripDisable")->isEnabled()); // it also reaches a drive that was lost
    EXPECT_FALSE(button("stripEnable")->isEnabled());
}

TEST_F(Board, MarksTellAtAnyMomentWhereTheValuesLive)
{
    openConnectedWindow();
    expectMark("markEdited", "Nothing edited");
    expectMark("markWorking", "In the drive");
    EXPECT_EQ(mark("markFlash"), "Saved over power-off: not known");
    goTo(tuningPage);
    kvp()->setValue(400);
    expectMark("markEdited", "Edited (1 change)");
    EXPECT_EQ(mark("markWorking"), "Not in the drive yet");
    EXPECT_EQ(label("changeCount")->text(), "1 change");
    auto *drive = control<QToolButton>("KVPdrive");
    EXPECT_EQ(drive->text(), "drive: 360");
    EXPECT_TRUE(drive->isVisible());
    drive->click();
    EXPECT_EQ(kvp()->value(), 360);
    expectMark("markEdited", "Nothing edited");
    EXPECT_FALSE(drive->isVisible());

    kvp()->setValue(400);
    click("apply_button");
    expectSaid("1 applied");
    expectMark("markWorking", "In the drive, lost at power-off");
    EXPECT_EQ(mark("markFlash"), "Not saved over power-off");
    ASSERT_TRUE(button("stripSaveToDrive")->isVisible());
    click("stripSaveToDrive");
    expectMark("markFlash", "Saved over power-off");
    EXPECT_EQ(said(), "Saved to the drive: the settings survive a power-off");
    EXPECT_FALSE(button("stripSaveToDrive")->isVisible());

    EXPECT_EQ(mark("markFile"), "In no file");
    saveFile(path("mine.drc"));
    expectMark("markFile", "In the file mine.drc");
    EXPECT_EQ(said(), "Saved to the file " + path("mine.drc"));
    kvp()->setValue(401);
    expectMark("markFile", "In no file");
}

TEST_F(Board, UndoTakesPendingEditsBackOverAllPagesAsNamedSteps)
{
    openConnectedWindow();
    goTo(tuningPage);
    bringToFront();
    kvp()->setFocus();
    kvp()->stepBy(1);
    kvp()->stepBy(1); // one step in all
    goTo(3);
    auto *continuous = control<QDoubleSpinBox>("MCC");
    auto *peak = control<QDoubleSpinBox>("MMC");
    typeOver(continuous, "33");
    QTest::keyClick(continuous, Qt::Key_Return);
    EXPECT_EQ(peak->value(), 33.0);
    EXPECT_EQ(said(), "[MMC] Raised with [MCC]: the peak is never below it.");
    EXPECT_EQ(peak->accessibleDescription(), "Raised with [MCC]: the peak is never below it.");
    QTest::keyClicks(continuous, "4"); // being typed: the field's own undo comes first
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(continuous->value(), 33.0);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(said(), "Undone: MCC 13 A -> 33 A");
    EXPECT_EQ(continuous->value(), 13.0);
    EXPECT_EQ(peak->value(), 32.0);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(said(), "Undone: KVP 360 -> 380");
    EXPECT_EQ(kvp()->value(), 360);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(said(), "There is no edit to undo");
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(kvp()->value(), 380);

    // Applied is applied: undoing makes another edit of it, and nothing goes to the drive.
    click("apply_button");
    expectSaid("1 applied");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(kvp()->value(), 360);
    expectMark("markEdited", "Edited (1 change)");
    EXPECT_EQ(bus().read(DriveAddress, KVP), 380);
}

TEST_F(Board, BoxBeforeAnApplyListsWhatWillChangeAndLeadsBack)
{
    openConnectedWindow();
    control<QDoubleSpinBox>("FOC")->setValue(57);
    control<QDoubleSpinBox>("MCC")->setValue(2);
    expectMark("markEdited", "Edited (2 changes)");
    click("apply_button"); // no box
    expectSaid("2 applied");

    control<QDoubleSpinBox>("MCC")->setValue(12);
    const auto answer = [this](const char *buttonText, const QString &part) {
        m_answers.press(buttonText, [=](QWidget *box) {
            const auto *warnings = box->findChild<QLabel *>("applyWarnings");
            EXPECT_TRUE(part.isEmpty() ? !warnings : warnings && warnings->text().contains(part)) << buttonText;
        });
    };
    answer("Back, change nothing", "[MCC] Continuous current grows more than threefold: 2 A -&gt; 12 A.");
    click("apply_button");
    EXPECT_EQ(mark("markEdited"), "Edited (1 change)");
    EXPECT_EQ(bus().read(DriveAddress, 410), 2000);
    control<QDoubleSpinBox>("MCC")->setValue(3);
    control<QSpinBox>("FEV")->setValue(50); // the drive would trip at its own velocity limit
    answer("Apply settings", "Parameter sanity check warnings:");
    click("apply_button");
    expectSaid("2 applied");
    for (const char *name : {"KVP", "KVI", "KPP", "FPT"})
        control<QSpinBox>(name)->setValue(control<QSpinBox>(name)->value() + 1);
    control<QSpinBox>("FEV")->setValue(240);
    answer("Apply settings", QString()); // five are listed, nothing warns
    click("apply_button");
    expectSaid("5 applied");
}

TEST_F(Board, WhatTheDriveDoesNotTakeIsToldByNameAndEditsMadeMeanwhileStay)
{
    openConnectedWindow();
    goTo(tuningPage);
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(KVP); });
    kvp()->setValue(400);
    control<QSpinBox>("KVI")->setValue(370);
    bus().setTurnAround(std::chrono::milliseconds(3));
    click("apply_button");
    control<QSpinBox>("KPP")->setValue(99); // while the write is on its way
    expectSaid("1 applied, 1 not taken: KVP 400 -> 360");
    EXPECT_EQ(kvp()->value(), 360);
    EXPECT_EQ(control<QSpinBox>("KPP")->value(), 99);
    expectMark("markEdited", "Edited (1 change)");
}

TEST_F(Board, EditsThatWaitedWhenTheLineWasLostCanBeBroughtBackToTheSameDriveOnly)
{
    openConnectedWindow();
    ASSERT_TRUE(waitForThreePolls());
    goTo(tuningPage);
    const auto loseTheLine = [this] {
        bus().setFault({sim::LineFault::Deaf});
        ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
        bus().clearFaults();
        connectToDrive();
    };
    kvp()->setValue(400);
    control<QSpinBox>("KVI")->setValue(370);
    loseTheLine();
    expectSaid("2 edits were not applied when the connection was lost: Ctrl+Z brings them back");
    EXPECT_EQ(kvp()->value(), 360); // what the drive has, until it is asked for
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(kvp()->value(), 400);
    expectMark("markEdited", "Edited (2 changes)");

    bus().set(DriveAddress, serialNumber, 5);
    loseTheLine();
    expectSaid("Edits that were not applied are gone: they were another drive's");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(kvp()->value(), 360);
}

TEST_F(Board, FindingLeadsToTheFieldWhereverItIs)
{
    openConnectedWindow();
    const auto find = [this](const char *text) {
        press(Qt::Key_F, Qt::ControlModifier);
        auto *line = control<QLineEdit>("findText");
        line->setText(text);
        const QString first = control<QListWidget>("findList")->item(0)->text();
        QTest::keyClick(line, Qt::Key_Return);
        bringToFront();
        return first;
    };
    EXPECT_EQ(find("kpp"), "[KPP] Position P gain: Tuning");
    EXPECT_EQ(control<QListWidget>("pageSelector")->currentRow(), tuningPage);
    EXPECT_TRUE(control<QSpinBox>("KPP")->hasFocus());
    EXPECT_EQ(find("brake closing"), "[BED] Brake engage delay (s): Machine"); // words of its help
    EXPECT_TRUE(control<QDoubleSpinBox>("BED")->hasFocus());
    EXPECT_EQ(find("friction speed"), "[VFF] Velocity feed-forward gain: Tuning"); // advanced
    EXPECT_TRUE(control<QSpinBox>("VFF")->hasFocus());
    EXPECT_EQ(find("TRA1"), "[TRA1] Cogging compensation amplitude (A): not on this model");
    EXPECT_TRUE(said().startsWith("[TRA1] is not")) << qPrintable(said());
    EXPECT_EQ(find("no such thing"), "No setting has these words");
    control<QDialog>("settingFinder")->close();
}

TEST_F(Board, SaveDialogGivesTheNameTheEndingOfItsFilter)
{
    openWindow();
    m_answers.expect([](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog)
            return false;
        EXPECT_EQ(dialog->defaultSuffix(), "png");
        const QString text = "Raw data as text file (*.csv)";
        dialog->selectFile("step.png");
        dialog->selectNameFilter(text);
        QMetaObject::invokeMethod(dialog, "filterSelected", Q_ARG(QString, text)); // as choosing it does
        EXPECT_TRUE(dialog->selectedFiles().value(0).endsWith("/step.csv"));
        EXPECT_EQ(dialog->defaultSuffix(), "csv");
        dialog->reject();
        return true;
    });
    QMetaObject::invokeMethod(m_window.get(), "saveTestResults_clicked");
}
