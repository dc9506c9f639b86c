// The firmware dialog and the restarts, on drives that are really upgraded and restarted.
#include "windowfixture.h"

#include "firmwarewriter.h"
#include "numberedwords.h"

namespace {

constexpr int ketaType = 11000;
constexpr int torvaType = 4000;
constexpr int bootloaderAddress = 255;
constexpr int operatingMode = 2;
constexpr int upgradeCutOff = 0x120;
constexpr int searchLimitMs = 40000; // 25 addresses, most of them silent, on a machine that does other things as well

class FirmwareDialogTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        openWindow();
        goTo(1); // the Connect page
    }
    QDialog *dialog() const { return control<QDialog>("firmwareUpgradeDlg"); }
    QString log() const { return control<QPlainTextEdit>("log")->toPlainText(); }

    void startUpgrade(const char *file)
    {
        m_answers.chooseFile(QFileInfo(file).absoluteFilePath());
        click("openFile");
    }
    bool waitForGreeting()
    {
        return waitFor([this] { return dialog()->isVisible(); }, searchLimitMs);
    }
    /// The final message, and the end of the connection that it brings.
    bool waitForSuccess()
    {
        return waitFor([this] { return log().contains("All done with success!"); }) &&
               waitFor([this] { return connectionText() == "Disconnected"; });
    }
    bool waitForConnection(const char *text)
    {
        return waitFor([&] { return connectionText() == text; }, searchLimitMs);
    }
};

class KetaInUpgradeMode : public FirmwareDialogTest
{
    sim::BusOptions busOptions() const override { return {{{"keta", DriveAddress, true}}}; }
};

class TorvaInUpgradeMode : public FirmwareDialogTest
{
    sim::BusOptions busOptions() const override { return {{{"torva", DriveAddress, true}}}; }
};

class RunningUpgrade : public KetaInUpgradeMode
{
protected:
    /// An upgrade that takes seconds, somewhere in its upload.
    void SetUp() override
    {
        KetaInUpgradeMode::SetUp();
        startConnecting(bootloaderAddress);
        ASSERT_TRUE(waitForGreeting());
        ASSERT_EQ(sim::writeFile("keta.tdf", sim::firmwareFile(ketaType, numberedWords(20000, 0), {})), "");
        bus().setTurnAround(std::chrono::milliseconds(10)); // 625 chunks
        startUpgrade("keta.tdf");
        ASSERT_TRUE(waitFor([this] { return progress() > 0; }));
    }
    int progress() const { return control<QProgressBar>("progressBar")->value(); }
};

} // namespace

TEST_F(FirmwareDialogTest, FirstMessageOpensItAndTheLogGrows)
{
    EXPECT_FALSE(dialog()->isVisible());
    for (const char *text : {"one <b>bold</b>", "two"})
        QMetaObject::invokeMethod(m_window.get(), "firmwareUpgradeMsg", Q_ARG(QString, text), Q_ARG(bool, false),
                                  Q_ARG(bool, false));
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_TRUE(dialog()->isModal());
    EXPECT_EQ(log(), "one bold\ntwo");
    dialog()->close(); // the close box means "Close"
    EXPECT_FALSE(dialog()->isVisible());
    EXPECT_EQ(log(), "");
}

TEST_F(FirmwareDialogTest, InstallFirmwareLeadsAKetaToItsNewFirmwareAndBack)
{
    connectToDrive();
    ASSERT_TRUE(button("restartToDFUMode")->isVisible());
    kvp()->setValue(kvp()->value() + 1);
    m_answers.press("Abort"); // stays as it was
    click("restartToDFUMode");
    EXPECT_EQ(connectionText(), "Connected");

    QStringList found;
    m_answers.press("Continue without applying");
    m_answers.chooseNode(0, &found);
    click("restartToDFUMode");
    EXPECT_EQ(connectionText(), "Restarting device");
    ASSERT_TRUE(waitForGreeting());
    EXPECT_EQ(found, QStringList{"Tarnwell Devices KETA at bus address 255 in firmware upgrade mode"});
    EXPECT_TRUE(log().startsWith("Connected to device in firmware upgrade mode (bootloader version 1260)"));
    EXPECT_TRUE(control<QWidget>("resetToFactoryState")->isVisible());

    ASSERT_EQ(sim::writeFile("keta.tdf", sim::firmwareFile(ketaType, numberedWords(2000, 0x1000), {})), "");
    startUpgrade("keta.tdf");
    ASSERT_TRUE(waitForSuccess());
    found.clear();
    m_answers.chooseNode(0, &found);
    click("close"); // does not take the search back
    ASSERT_TRUE(waitForConnection("Connected"));
    EXPECT_EQ(found, QStringList{"Tarnwell Devices KETA at bus address 16"});

    click("disconnect_button");
    ASSERT_TRUE(waitForConnection("Disconnected"));
    bus().powerCycle();
    connectToDrive(DriveAddress);
    EXPECT_EQ(bus().read(DriveAddress, operatingMode), 1);
}

TEST_F(TorvaInUpgradeMode, IsOfferedNothingThatOnlyAKetaCan)
{
    startConnecting(bootloaderAddress, torvaType);
    ASSERT_TRUE(waitForGreeting());
    EXPECT_FALSE(control<QWidget>("resetToFactoryState")->isVisible());
    EXPECT_FALSE(button("restartToDFUMode")->isVisible());
    ASSERT_TRUE(waitFor([this] { return label("FWVER")->text() == "1260 (bootloader)"; }));
}

TEST_F(KetaInUpgradeMode, IsGreetedByTheDialogShowsWhatABootloaderKnowsAndOffersWhatItCanDo)
{
    startConnecting(bootloaderAddress);
    ASSERT_TRUE(waitForGreeting());
    ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text() == "Tarnwell Devices KETA"; }));
    EXPECT_EQ(label("HWVER")->text(), "11000");
    EXPECT_EQ(label("HWSERIAL")->text(), QString::number(bus().read(DriveAddress, 6002)));
    EXPECT_EQ(label("TCFWVER")->text(), "Not known in firmware upgrade mode");

    const QString why = "Not while the drive is in firmware upgrade mode";
    for (const char *name : {"enable_drive", "saveToFlash", "restartToDFUMode", "apply_button", "start_homing",
                             "ScopeCaptureNow", "setAbs1", "measureRLbutton"}) {
        EXPECT_FALSE(button(name)->isEnabled()) << name;
        EXPECT_EQ(button(name)->toolTip(), why) << name;
    }
    for (const char *name : {"disable_drive", "restartDrive", "disconnect_button"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    click("disable_drive");
    EXPECT_EQ(said(), "Nothing to disable: the drive is in firmware upgrade mode, which drives no motor");
    EXPECT_EQ(timesWritten(softEnable, 0), 0);

    EXPECT_FALSE(control<QProgressBar>("progressBar")->isVisible());
    m_answers.chooseFile(QString()); // cancelled
    click("openFile");
    EXPECT_TRUE(button("openFile")->isEnabled());
    EXPECT_EQ(connectionText(), "Connected");
    ASSERT_EQ(sim::writeFile("some.tdf", {'n', 'o'}), "");
    startUpgrade("some.tdf");
    EXPECT_FALSE(button("close")->isEnabled() || button("openFile")->isEnabled());
    ASSERT_TRUE(waitFor([this] { return button("close")->isEnabled(); }));
    EXPECT_FALSE(button("openFile")->isEnabled());
    EXPECT_TRUE(log().endsWith("Error: Unknown file type"));
    EXPECT_TRUE(waitForConnection("Disconnected"));
    EXPECT_TRUE(dialog()->isVisible()); // its log is still to be read

    click("close"); // back to a drive that runs
    bus().powerCycle();
    connectToDrive();
    EXPECT_TRUE(button("enable_drive")->isEnabled());
    EXPECT_NE(button("enable_drive")->toolTip(), why);
    EXPECT_TRUE(button("apply_button")->isEnabled());
}

TEST_F(RunningUpgrade, IsNotLeftByAccident)
{
    QTest::keyClick(dialog(), Qt::Key_Escape);
    dialog()->close();
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_TRUE(said().startsWith("Nothing to disable:"));
    const auto *scrollBar = control<QPlainTextEdit>("log")->verticalScrollBar();
    const int sent = progress();
    ASSERT_TRUE(waitFor([&] { return progress() > sent; }));
    EXPECT_EQ(scrollBar->value(), scrollBar->maximum());

    m_answers.expect([](QWidget *box) { // Return keeps it, and so does Esc
        EXPECT_TRUE(qobject_cast<QMessageBox *>(box)->informativeText().contains("without working firmware"));
        QTest::keyClick(box, Qt::Key_Return);
        return true;
    });
    EXPECT_FALSE(m_window->close());
    m_answers.pressKey(Qt::Key_Escape);
    EXPECT_FALSE(m_window->close());
    bus().setTurnAround(std::chrono::microseconds(0));
    ASSERT_TRUE(waitForSuccess());
    EXPECT_EQ(progress(), 2 * 20000);
    EXPECT_EQ(scrollBar->value(), scrollBar->maximum());
    // The search answers while the log is still being read; the drives are shown when it is closed.
    ASSERT_TRUE(waitFor([this] { return button("connect_button")->text() == "Connect to drive"; }, searchLimitMs));
    EXPECT_TRUE(dialog()->isVisible());
    QTest::keyClick(dialog(), Qt::Key_Escape); // finished, it means "Close"
    EXPECT_FALSE(dialog()->isVisible());
    m_answers.chooseNode(0);
    EXPECT_TRUE(waitForConnection("Connected"));
}

TEST_F(RunningUpgrade, ClosedAnywayEndsAtOnce)
{
    m_answers.press("Close anyway");
    ASSERT_TRUE(m_window->close());
    QElapsedTimer timer;
    timer.start();
    m_window.reset();
    EXPECT_LT(timer.elapsed(), 5000);
    bus().setTurnAround(std::chrono::microseconds(0));
    bus().powerCycle();
    EXPECT_EQ(bus().read(DriveAddress, faultBits), upgradeCutOff);
}

TEST_F(FirmwareDialogTest, PermanentStopIsCuredByTheRestartThatIsSuggestedOnce)
{
    connectToDrive();
    bus().set(DriveAddress, softEnable, 1);
    const int motor = control<QComboBox>("MT")->currentIndex();
    control<QComboBox>("MT")->setCurrentIndex(motor == 1 ? 3 : 1);
    m_answers.press("Restart drive now");
    m_answers.press("Discard changes");
    click("apply_button");
    ASSERT_TRUE(waitForConnection("Restarting device"));
    EXPECT_TRUE(m_answers.texts.last().startsWith("Some paramets have been changed since last Save to drive."));
    ASSERT_TRUE(waitForConnection("Connected"));
    ASSERT_TRUE(waitFor([&] { return control<QComboBox>("MT")->currentIndex() == motor; })) << "as the flash has it";
    // Asked again it would be an unexpected box: some polls go by.
    bus().clearReceived();
    ASSERT_TRUE(waitFor([this] { return receivedAt(DriveAddress).size() > 4; }));
    EXPECT_EQ(shownMessage(), "");
}
