// The firmware dialog as a shell around the session's messages.
#include "windowfixture.h"

#include <QPlainTextEdit>
#include <QProgressBar>

namespace {

class FirmwareDialogTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        openWindow();
    }
    void message(const char *text, bool done = false, bool failed = false)
    {
        QMetaObject::invokeMethod(m_window.get(), "firmwareUpgradeMsg", Q_ARG(QString, text), Q_ARG(bool, done),
                                  Q_ARG(bool, failed));
    }
    QDialog *dialog() const { return control<QDialog>("firmwareUpgradeDlg"); }
    QString log() const { return control<QPlainTextEdit>("log")->toPlainText(); }
    /// Opens a firmware file that is none; the session then says so.
    void startUpgrade()
    {
        QFile file("some.tdf");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("no firmware");
        file.close();
        m_answers.chooseFile(QFileInfo("some.tdf").absoluteFilePath());
        click("openFile");
    }
};

class UpgradeModeDrive : public FirmwareDialogTest
{
    sim::BusOptions busOptions() const override
    {
        sim::BusOptions options;
        options.drives = {{"keta", 5, true}};
        return options;
    }
};

} // namespace

TEST_F(FirmwareDialogTest, FirstMessageOpensItAndTheLogGrows)
{
    EXPECT_FALSE(dialog()->isVisible());
    message("one <b>bold</b>");
    message("two");
    EXPECT_TRUE(dialog()->isVisible());
    EXPECT_TRUE(dialog()->isModal());
    EXPECT_EQ(log(), "one bold\ntwo");
    dialog()->close(); // the close box means "Close"
    EXPECT_FALSE(dialog()->isVisible());
    EXPECT_EQ(log(), "");
}

TEST_F(FirmwareDialogTest, RunningUpgradeCannotBeLeft)
{
    message("go");
    startUpgrade();
    // Without a connected drive the session refuses at once; until its answer comes, the buttons are dead.
    EXPECT_FALSE(button("close")->isEnabled());
    EXPECT_FALSE(button("openFile")->isEnabled());
    dialog()->reject();
    EXPECT_TRUE(dialog()->isVisible());
    m_answers.press("Keep upgrading");
    EXPECT_FALSE(m_window->close());
    ASSERT_TRUE(waitFor([this] { return button("close")->isEnabled(); }));
    EXPECT_FALSE(button("openFile")->isEnabled());
    click("close");
    EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(UpgradeModeDrive, IsGreetedByTheDialogAndLeftWithIt)
{
    startConnecting(255);
    ASSERT_TRUE(waitFor([this] { return dialog()->isVisible(); }));
    EXPECT_TRUE(log().startsWith("Connected to device in firmware upgrade mode (bootloader version 1260)"));
    EXPECT_TRUE(button("openFile")->isEnabled());
    EXPECT_FALSE(control<QProgressBar>("progressBar")->isVisible());
    m_answers.chooseFile(QString()); // cancelled
    click("openFile");
    EXPECT_TRUE(button("openFile")->isEnabled());
    EXPECT_EQ(connectionText(), "Connected");

    startUpgrade();
    ASSERT_TRUE(waitFor([this] { return button("close")->isEnabled(); }));
    EXPECT_FALSE(button("openFile")->isEnabled());
    EXPECT_GT(log().count('\n'), 3);
    EXPECT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_TRUE(dialog()->isVisible()); // its log is still to be read
}
