// Esc disables the drive, whatever has the keyboard; and the other shortcuts keep to their guards.
#include "windowfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QShortcut>
#include <QSpinBox>

namespace {

constexpr int SOFT_ENABLE = 2533;
constexpr int ABSOLUTE_SETPOINT = 551;
constexpr int INCREMENTAL_SETPOINT = 550;

class Escape : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        openConnectedWindow();
    }
    /// Presses Esc where `keyboard` says and waits for the disable, sent once.
    void expectDisable(const char *where, QWidget *keyboard)
    {
        bus().clearReceived();
        ASSERT_NE(keyboard, nullptr) << where;
        keyboard->activateWindow();
        const bool isDialog = qobject_cast<QDialog *>(keyboard) != nullptr;
        ASSERT_TRUE(waitFor([&] { return !isDialog || QApplication::activeWindow() == keyboard; })) << where;
        QWidget *field = keyboard->isWindow() ? keyboard->focusWidget() : nullptr;
        QTest::keyClick(field ? field : keyboard, Qt::Key_Escape);
        EXPECT_TRUE(waitForWrite(SOFT_ENABLE, 0)) << where;
        EXPECT_EQ(timesWritten(SOFT_ENABLE, 0), 1) << where;
    }
};

} // namespace

TEST_F(Escape, DisablesFromFieldsPopupsMenusAndModelessWindows)
{
    bus().set(DriveAddress, SOFT_ENABLE, 1);
    expectDisable("the window", m_window.get());
    EXPECT_EQ(bus().read(DriveAddress, SOFT_ENABLE), 0);
    goTo(4);
    control<QSpinBox>("KVP")->setFocus();
    expectDisable("a spin box", control<QSpinBox>("KVP"));
    control<QComboBox>("TBW")->setFocus();
    expectDisable("a combo box", control<QComboBox>("TBW"));
    m_window->findChild<QWidget *>("helpView")->setFocus();
    expectDisable("the help view", m_window->findChild<QWidget *>("helpView"));

    auto *combo = control<QComboBox>("TBW");
    combo->showPopup();
    ASSERT_TRUE(waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    expectDisable("an open combo box", QApplication::activePopupWidget());
    combo->hidePopup();
    QMenu menu;
    menu.addAction("Copy");
    menu.popup(m_window->mapToGlobal(QPoint(100, 100)));
    ASSERT_TRUE(waitFor([&] { return menu.isVisible(); }));
    expectDisable("a menu", &menu);
    menu.close();
    ASSERT_TRUE(waitFor([] { return QApplication::activePopupWidget() == nullptr; }));

    press(Qt::Key_P, Qt::ControlModifier);
    auto *overrides = control<QDialog>("overrideParams");
    ASSERT_TRUE(waitFor([&] { return overrides->isVisible(); }));
    expectDisable("the overrides dialog", overrides);
    EXPECT_FALSE(overrides->isVisible());

    QMetaObject::invokeMethod(m_window.get(), "handleUpdateCheckerMessage", Q_ARG(QString, "A notice"),
                              Q_ARG(bool, false));
    auto *errors = control<QDialog>("errorWindow");
    ASSERT_TRUE(errors->isVisible());
    expectDisable("the error window", errors);
    EXPECT_FALSE(errors->isVisible());
}

TEST_F(Escape, DisablesFromTheBusyBoxWithoutClosingItAndFromQuestionsAndFileDialogs)
{
    QMetaObject::invokeMethod(m_window.get(), "setBusy", Q_ARG(bool, true), Q_ARG(bool, false));
    auto *busy = control<QDialog>("busyDialog");
    ASSERT_TRUE(busy->isVisible());
    expectDisable("the busy box", busy);
    EXPECT_TRUE(busy->isVisible());
    busy->close();
    EXPECT_TRUE(busy->isVisible());
    QMetaObject::invokeMethod(m_window.get(), "setBusy", Q_ARG(bool, false), Q_ARG(bool, true));
    EXPECT_FALSE(busy->isVisible());

    const auto escapeFrom = [this](const char *where) {
        m_answers.expect([this, where](QWidget *box) {
            expectDisable(where, box);
            return true;
        });
    };
    escapeFrom("the apply question");
    control<QSpinBox>("KVP")->setValue(1);
    EXPECT_FALSE(m_window->close());
    for (const char *name : {"save_settings_to_file", "load_settings_from_file"}) {
        escapeFrom(name);
        click(name);
    }
    escapeFrom("the restart question");
    QMetaObject::invokeMethod(m_window.get(), "suggestDeviceRestart");
    EXPECT_EQ(connectionText(), "Connected");
    control<QSpinBox>("KVP")->setValue(360);
    escapeFrom("the node dialog");
    QMetaObject::invokeMethod(m_window.get(), "availableBusNodesListReceived", Q_ARG(QList<NodeType>, {}));
}

TEST_F(Escape, StopsTheStimulusAndIsNoToggle)
{
    control<QCheckBox>("stimulusEnabled")->setChecked(true);
    expectDisable("while streaming", m_window.get());
    EXPECT_FALSE(control<QCheckBox>("stimulusEnabled")->isChecked());
    expectDisable("once more", m_window.get());
    EXPECT_EQ(timesWritten(SOFT_ENABLE, 1), 0);

    // Held, it disables once.
    bus().clearReceived();
    for (const bool repeated : {false, true, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), repeated);
        QApplication::sendEvent(m_window.get(), &press);
    }
    ASSERT_TRUE(waitForWrite(SOFT_ENABLE, 0));
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(SOFT_ENABLE, 0), 1);
}

TEST_F(Escape, TellsWhenNothingConfirmsTheDisable)
{
    bus().setFault({sim::LineFault::Deaf});
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return shownMessage(m_window.get()).startsWith("The disable is not confirmed"); }));
    EXPECT_TRUE(said().contains("hardware stop"));
}

TEST_F(Escape, DisablesTheLastDriveWithoutAConnection)
{
    bus().set(DriveAddress, SOFT_ENABLE, 1);
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    ASSERT_TRUE(waitFor([this] { return !shownMessage(m_window.get()).isEmpty(); }));
    control<QDialog>("errorWindow")->close();
    EXPECT_TRUE(button("disable_drive")->isEnabled());
    for (const char *name : {"enable_drive", "force_enable", "clear_faults", "saveToFlash", "restartDrive"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;

    press(Qt::Key_Escape); // the cable is still out
    ASSERT_TRUE(waitFor([this] {
        const bool isTold = shownMessage(m_window.get()).contains("may still be powered");
        control<QDialog>("errorWindow")->close(); // another message may come first
        return isTold;
    }));
    EXPECT_TRUE(said().contains("may still be powered"));
    EXPECT_EQ(bus().read(DriveAddress, SOFT_ENABLE), 1);

    ASSERT_EQ(bus().plugIn(), "");
    for (const bool byKey : {true, false}) {
        bus().set(DriveAddress, SOFT_ENABLE, 1);
        byKey ? press(Qt::Key_Escape) : click("disable_drive");
        ASSERT_TRUE(driveHas(SOFT_ENABLE, 0)) << byKey;
        ASSERT_TRUE(waitFor([this] { return said().startsWith("Disabled after "); }));
    }
    EXPECT_EQ(connectionText(), "Disconnected");
}

TEST_F(Escape, TellsWhenAPollShowsTheDriveDisabledUntilItIsEnabledAgain)
{
    bus().set(DriveAddress, SOFT_ENABLE, 1);
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return said().startsWith("Disabled after "); }));
    EXPECT_EQ(shownMessage(m_window.get()), QString());
    bus().set(DriveAddress, SOFT_ENABLE, 1); // by another program
    EXPECT_TRUE(waitFor([this] { return said() == "The drive is enabled again"; }));
}

using EscapeWithoutDrive = WindowFixture;

TEST_F(EscapeWithoutDrive, IsAnsweredDuringABusSearch)
{
    openWindow();
    QSignalSpy progress(&m_window->session(), &Connection::scanProgress);
    click("connect_button");
    ASSERT_TRUE(waitFor([&] { return progress.size() >= 2; }));
    press(Qt::Key_Escape);
    const auto asked = progress.size();
    ASSERT_TRUE(waitFor([&] { return progress.size() >= asked + 3; }));
    const QString said = m_window->statusBar()->currentMessage();
    EXPECT_TRUE(said.startsWith("No drive is connected, so none was disabled.")) << qPrintable(said);
    m_answers.expect([](QWidget *nodes) { return nodes->close(); });
    EXPECT_TRUE(waitFor([this] { return m_answers.isDone(); }));
}

TEST_F(Escape, SetpointShortcutsCrossAsTheHintsSay)
{
    control<QSpinBox>("stimulusTarget1")->setValue(11);
    control<QSpinBox>("stimulusTarget2")->setValue(22);
    press(Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(ABSOLUTE_SETPOINT, 11));
    press(Qt::Key_2, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(ABSOLUTE_SETPOINT, 22));
    press(Qt::Key_3, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(INCREMENTAL_SETPOINT, 11));
    press(Qt::Key_4, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(INCREMENTAL_SETPOINT, 22));
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(ABSOLUTE_SETPOINT, 0));

    bus().clearReceived();
    control<QCheckBox>("stimulusEnabled")->setChecked(true); // the stream owns the setpoint now
    press(Qt::Key_1, Qt::AltModifier);
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(ABSOLUTE_SETPOINT, 0));
    EXPECT_EQ(timesWritten(ABSOLUTE_SETPOINT, 11), 0);
}

TEST_F(Escape, HeldShortcutMovesTheAxisOnce)
{
    control<QSpinBox>("stimulusTarget1")->setValue(11);
    press(Qt::Key_3, Qt::AltModifier);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::ShortcutOverride, Qt::Key_3, Qt::AltModifier, QString(), true);
        QApplication::sendEvent(m_window.get(), &repeat);
        QTest::qWait(1);
    }
    ASSERT_TRUE(waitForWrite(INCREMENTAL_SETPOINT, 11));
    const auto shortcuts = m_window->findChildren<QShortcut *>();
    EXPECT_GE(shortcuts.size(), 14);
    for (const QShortcut *shortcut : shortcuts)
        EXPECT_FALSE(shortcut->autoRepeat()) << qPrintable(shortcut->key().toString());
    EXPECT_EQ(timesWritten(INCREMENTAL_SETPOINT, 11), 1);
}

TEST_F(Escape, RestartQuestionWaitsWhileAnotherBoxIsOpen)
{
    bool restartWasAsked = false;
    m_answers.expect([&](QWidget *box) {
        QMetaObject::invokeMethod(m_window.get(), "suggestDeviceRestart");
        QTest::qWait(250);
        restartWasAsked = QApplication::activeModalWidget() != box;
        box->close();
        return true;
    });
    m_answers.press("Don't restart");
    click("save_settings_to_file");
    EXPECT_FALSE(restartWasAsked);
    EXPECT_TRUE(waitFor([this] { return m_answers.isDone(); }));
}

TEST_F(Escape, ADriveThatStaysEnabledIsNotCalledDisabled)
{
    bus().set(DriveAddress, SOFT_ENABLE, 1);
    ASSERT_TRUE(waitFor([this] { return m_state.isSoftEnabled(); }));
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(SOFT_ENABLE); });
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitForWrite(SOFT_ENABLE, 0));
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(bus().read(DriveAddress, SOFT_ENABLE), 1);
    EXPECT_FALSE(said().startsWith("Disabled after "));
}

TEST_F(Escape, OnlyTheForcingButtonForces)
{
    constexpr int forceRegister = 2534, key = 7;
    click("enable_drive");
    ASSERT_TRUE(waitForWrite(SOFT_ENABLE, 1));
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(forceRegister, key), 0);
    click("force_enable");
    EXPECT_TRUE(waitForWrite(forceRegister, key));
}
