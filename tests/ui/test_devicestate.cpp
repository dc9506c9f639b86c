// The panels of the Testing page: live, while somebody reads and copies, and after the connection has ended.
#include "testingfixture.h"

namespace {

class DeviceState : public TestingFixture
{
protected:
    DeviceState() { m_webEngine = HelpView::Engine::Off; }
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(TestingFixture::SetUp());
        ASSERT_TRUE(waitFor([this] { return isSet(status(), "Initialized"); }));
    }
    QLabel *status() const { return label("statusRegister"); }
    /// Provokes a change of the status panel and waits for it.
    void changePosition(int position)
    {
        bus().withDrive(DriveAddress, [position](sim::VirtualDrive &drive) {
            drive.set(491, 100000); // whatever the axis does, the setpoint is shown
            drive.write(551, position);
        });
        ASSERT_TRUE(
            waitFor([&] { return status()->text().contains(QString("Setpoint value&nbsp;&nbsp;%1<").arg(position)); }));
    }
    QColor ink(const char *name) const { return label(name)->palette().color(QPalette::WindowText); }
    QString copied()
    {
        click("copyDeviceStateToClipboard");
        return QApplication::clipboard()->text();
    }
};

} // namespace

TEST_F(DeviceState, RefreshKeepsSelectionScrollPositionAndKeyboard)
{
    auto *scroll = control<QScrollArea>("testingScroll")->verticalScrollBar();
    scroll->setValue(scroll->maximum());
    const int before = scroll->value();
    ASSERT_GT(before, 0);
    bringToFront();
    control<QSpinBox>("stimulusTarget1")->setFocus();
    QWidget *keyboard = QApplication::focusWidget();
    ASSERT_NE(keyboard, nullptr);
    status()->setSelection(3, 11);
    ASSERT_EQ(status()->selectedText(), "Initialized");
    changePosition(1);
    changePosition(23);
    EXPECT_EQ(status()->selectedText(), "Initialized");
    EXPECT_EQ(scroll->value(), before);
    EXPECT_EQ(QApplication::focusWidget(), keyboard);

    // While the mouse selects in it, a text waits.
    control<QScrollArea>("testingScroll")->ensureWidgetVisible(status());
    QTest::mousePress(status(), Qt::LeftButton, {}, QPoint(30, 15));
    const QString text = status()->text();
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.write(551, 42); });
    ASSERT_TRUE(waitFor([this] { return label("setpointNow")->text() == "Setpoint now: 42"; }));
    EXPECT_EQ(status()->text(), text);
    QTest::mouseRelease(status(), Qt::LeftButton, {}, QPoint(30, 15));
    EXPECT_TRUE(waitFor([this] { return status()->text().contains("Setpoint value&nbsp;&nbsp;42<"); }));
}

TEST_F(DeviceState, IsLastKnownAfterADisconnectAndLiveWithTheNextConnection)
{
    const QColor live = ink("statusRegister");
    changePosition(42);
    ASSERT_TRUE(waitFor([this] { return label("setpointNow")->text() == "Setpoint now: 42"; }));
    EXPECT_FALSE(copied().contains("last known"));

    disconnectFromDrive();
    EXPECT_EQ(label("statusRegisterl")->text(), "Status (last known)");
    EXPECT_EQ(label("faultRegisterl")->text(), "Fault register (last known)");
    EXPECT_EQ(label("physInputStatusl")->text(), "Physical inputs (last known)");
    EXPECT_EQ(label("setpointNow")->text(), "Setpoint last known: 42");
    EXPECT_TRUE(isSet(status(), "Initialized"));
    EXPECT_NE(ink("statusRegister"), live);
    EXPECT_TRUE(copied().startsWith("Device state as last known"));
    EXPECT_TRUE(copied().contains("Initialized"));
    EXPECT_FALSE(copied().contains('<') || copied().contains("&nbsp;")) << "plain text";
    EXPECT_FALSE(button("clear_faults_2")->isEnabled());

    connectToDrive();
    ASSERT_TRUE(waitFor([this] { return label("statusRegisterl")->text() == "Status"; }));
    ASSERT_TRUE(waitFor([this] { return label("setpointNow")->text() == "Setpoint now: 42"; }));
    EXPECT_EQ(ink("statusRegister"), live);
    EXPECT_FALSE(copied().contains("last known"));
}
