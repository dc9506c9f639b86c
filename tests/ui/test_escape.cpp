// Esc disables the drive, whatever has the keyboard; and the other shortcuts keep to their guards.
#include "windowfixture.h"

namespace {

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
        EXPECT_TRUE(waitForWrite(softEnable, 0)) << where;
        EXPECT_EQ(timesWritten(softEnable, 0), 1) << where;
    }
};

} // namespace

TEST_F(Escape, DisablesFromFieldsPopupsMenusAndModelessWindows)
{
    bus().set(DriveAddress, softEnable, 1);
    expectDisable("the window", m_window.get());
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 0);
    goTo(4);
    kvp()->setFocus();
    expectDisable("a spin box", kvp());
    auto *combo = control<QComboBox>("TBW");
    combo->setFocus();
    expectDisable("a combo box", combo);
    control<QWidget>("helpView")->setFocus();
    expectDisable("the help view", control<QWidget>("helpView"));

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

    // Popups come last: where there is no window manager it takes its time until the window has the keyboard again.
    combo->showPopup();
    ASSERT_TRUE(waitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    expectDisable("an open combo box", QApplication::activePopupWidget());
    combo->hidePopup();
    QMenu menu;
    menu.addAction("Copy");
    menu.popup(m_window->mapToGlobal(QPoint(100, 100)));
    ASSERT_TRUE(waitFor([&] { return menu.isVisible(); }));
    expectDisable("a menu", &menu);
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
    kvp()->setValue(1);
    EXPECT_FALSE(m_window->close());
    for (const char *name : {"save_settings_to_file", "load_settings_from_file"}) {
        escapeFrom(name);
        click(name);
    }
    escapeFrom("the restart question");
    QMetaObject::invokeMethod(m_window.get(), "suggestDeviceRestart");
    EXPECT_EQ(connectionText(), "Connected");
    kvp()->setValue(360);
    escapeFrom("the node dialog");
    offer({});
}

TEST_F(Escape, StopsTheStimulusAndIsNoToggle)
{
    control<QCheckBox>("stimulusEnabled")->setChecked(true);
    expectDisable("while streaming", m_window.get());
    EXPECT_FALSE(control<QCheckBox>("stimulusEnabled")->isChecked());
    expectDisable("once more", m_window.get());
    EXPECT_EQ(timesWritten(softEnable, 1), 0);

    // Held, it disables once.
    bus().clearReceived();
    for (const bool repeated : {false, true, true}) {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent press(type, Qt::Key_Escape, Qt::NoModifier, QString(), repeated);
            QApplication::sendEvent(m_window.get(), &press);
        }
        ASSERT_TRUE(waitForWrite(softEnable, 0));
        ASSERT_TRUE(waitForThreePolls()); // the one before has been done: another would be sent
    }
    EXPECT_EQ(timesWritten(softEnable, 0), 1);
}

TEST_F(Escape, TellsWhenNothingConfirmsTheDisable)
{
    bus().setFault({sim::LineFault::Deaf});
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return shownMessage().startsWith("The disable is not confirmed"); }));
    EXPECT_TRUE(said().contains("hardware stop"));
}

TEST_F(Escape, DisablesTheLastDriveWithoutAConnection)
{
    bus().set(DriveAddress, softEnable, 1);
    bus().unplug();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    ASSERT_TRUE(waitForMessage());
    closeMessage();
    EXPECT_TRUE(button("disable_drive")->isEnabled());
    for (const char *name : {"enable_drive", "force_enable", "clear_faults", "saveToFlash", "restartDrive"})
        EXPECT_FALSE(button(name)->isEnabled()) << name;

    press(Qt::Key_Escape); // the cable is still out
    ASSERT_TRUE(waitFor([this] {
        const bool isTold = shownMessage().contains("may still be powered");
        closeMessage(); // another message may come first
        return isTold;
    }));
    EXPECT_TRUE(said().contains("may still be powered"));
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 1);

    ASSERT_EQ(bus().plugIn(), "");
    for (const bool byKey : {true, false}) {
        bus().set(DriveAddress, softEnable, 1);
        byKey ? press(Qt::Key_Escape) : click("disable_drive");
        ASSERT_TRUE(driveHas(softEnable, 0)) << byKey;
        ASSERT_TRUE(waitFor([this] { return said().startsWith("Disabled after "); }));
    }
    EXPECT_EQ(connectionText(), "Disconnected");
}

TEST_F(Escape, TellsWhenAPollShowsTheDriveDisabledUntilItIsEnabledAgain)
{
    bus().set(DriveAddress, softEnable, 1);
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return said().startsWith("Disabled after "); }));
    EXPECT_EQ(shownMessage(), QString());
    bus().set(DriveAddress, softEnable, 1); // by another program
    EXPECT_TRUE(waitFor([this] { return said() == "The drive is enabled again"; }));

    // One that stays enabled is not called disabled, not for a moment either.
    QSignalSpy told(m_window->statusBar(), &QStatusBar::messageChanged);
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(softEnable); });
    QSignalSpy finished(&m_window->session(), &Connection::disableFinished);
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
    EXPECT_EQ(finished.first().first().value<DisableOutcome>(), DisableOutcome::StillEnabled);
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 1);
    for (const auto &message : told)
        EXPECT_FALSE(message.first().toString().startsWith("Disabled after "));
}

using EscapeWithoutDrive = WindowFixture;

TEST_F(EscapeWithoutDrive, IsAnsweredDuringABusSearch)
{
    openWindow();
    goTo(1);
    QSignalSpy progress(&m_window->session(), &Connection::scanProgress);
    press(Qt::Key_O, Qt::AltModifier);
    ASSERT_TRUE(waitFor([&] { return progress.size() >= 2; }));
    press(Qt::Key_Escape);
    const auto asked = progress.size();
    ASSERT_TRUE(waitFor([&] { return progress.size() >= asked + 3; }));
    EXPECT_TRUE(said().startsWith("No drive is connected, so none was disabled.")) << qPrintable(said());
    m_answers.expect([](QWidget *nodes) { return nodes->close(); });
    EXPECT_TRUE(waitFor([this] { return m_answers.isDone(); }));
}

TEST_F(Escape, SetpointShortcutsCrossAsTheHintsSayOnceEach)
{
    control<QSpinBox>("stimulusTarget1")->setValue(11);
    control<QSpinBox>("stimulusTarget2")->setValue(22);
    for (const auto &[key, reg, value] : {std::tuple{Qt::Key_1, absoluteSetpoint, 11},
                                          {Qt::Key_2, absoluteSetpoint, 22},
                                          {Qt::Key_4, incrementalSetpoint, 22},
                                          {Qt::Key_0, absoluteSetpoint, 0},
                                          {Qt::Key_3, incrementalSetpoint, 11}}) {
        bus().clearReceived();
        press(key, Qt::AltModifier);
        EXPECT_TRUE(waitForWrite(reg, value));
    }
    // Held, it moves the axis once.
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::ShortcutOverride, Qt::Key_3, Qt::AltModifier, QString(), true);
        QApplication::sendEvent(m_window.get(), &repeat);
        QTest::qWait(1);
    }
    const auto shortcuts = m_window->findChildren<QShortcut *>();
    EXPECT_GE(shortcuts.size(), 14);
    for (const QShortcut *shortcut : shortcuts)
        EXPECT_FALSE(shortcut->autoRepeat()) << qPrintable(shortcut->key().toString());
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(incrementalSetpoint, 11), 1);

    bus().clearReceived();
    control<QCheckBox>("stimulusEnabled")->setChecked(true); // the stream owns the setpoint now
    press(Qt::Key_1, Qt::AltModifier);
    press(Qt::Key_0, Qt::AltModifier);
    EXPECT_TRUE(waitForWrite(absoluteSetpoint, 0));
    EXPECT_EQ(timesWritten(absoluteSetpoint, 11), 0);
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

TEST_F(Escape, OnlyTheForcingButtonForces)
{
    constexpr int forceRegister = 2534, key = 7;
    click("enable_drive");
    ASSERT_TRUE(waitForWrite(softEnable, 1));
    ASSERT_TRUE(waitForThreePolls());
    EXPECT_EQ(timesWritten(forceRegister, key), 0);
    click("force_enable");
    EXPECT_TRUE(waitForWrite(forceRegister, key));
}
