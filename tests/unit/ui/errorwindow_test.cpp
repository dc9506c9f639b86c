// Messages: which may be suppressed, which never.
#include "errorwindow.h"

#include <QCheckBox>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <gtest/gtest.h>

namespace {

const char LOST_LINE[] = "Communication error flags: <br>* BusError<br><br>Disconnected. See troubleshooting";
const char NOTICE[] = "A newer program is there";

class Messages : public testing::Test
{
protected:
    QString shown() const
    {
        return window.isVisible() ? window.findChild<QTextEdit *>()->toPlainText().section('\n', 0, 0) : QString();
    }
    QCheckBox *tick() const { return window.findChild<QCheckBox *>(); }

    ErrorWindow window{nullptr};
};

} // namespace

TEST_F(Messages, ComeOneAfterAnotherAndEqualOnesOnce)
{
    for (const char *text : {"one", "two", "one", "two", ""})
        window.showMessage(text);
    EXPECT_EQ(shown(), "one");
    window.accept();
    EXPECT_EQ(shown(), "two");
    window.accept();
    EXPECT_EQ(shown(), "");
    window.showMessage("one");
    EXPECT_EQ(shown(), "one");
}

TEST_F(Messages, UntickedOneStaysAwayAndTheNextIsTickedAgain)
{
    window.showMessage(NOTICE);
    EXPECT_FALSE(tick()->isHidden());
    tick()->setChecked(false);
    window.showMessage("another");
    window.accept();
    EXPECT_EQ(shown(), "another");
    EXPECT_TRUE(tick()->isChecked());
    window.accept();
    window.showMessage(NOTICE);
    EXPECT_EQ(shown(), "");
    window.showMessage("another");
    EXPECT_EQ(shown(), "another");
}

TEST_F(Messages, LostLineDoesNotWaitBehindOrdinaryOnesAndNothingComesAfterTheEnd)
{
    for (const char *text : {"one", NOTICE, LOST_LINE})
        window.showMessage(text);
    window.accept();
    EXPECT_EQ(shown(), "Communication error flags: ");
    window.endMessages();
    EXPECT_EQ(shown(), "");
    window.showMessage(LOST_LINE);
    EXPECT_EQ(shown(), "");
}

TEST_F(Messages, LostLineCannotBeSuppressedAndGoesToTheStatusBar)
{
    QSignalSpy lines(&window, &ErrorWindow::vitalMessage);
    for (int time = 1; time <= 3; ++time) {
        window.showMessage(LOST_LINE);
        EXPECT_EQ(shown(), "Communication error flags: ");
        EXPECT_TRUE(tick()->isHidden());
        tick()->setChecked(false);
        window.accept();
        EXPECT_EQ(lines.size(), time);
    }
    EXPECT_EQ(lines.last().first().toString(),
              "Communication error flags: * BusError Disconnected. See troubleshooting");
    EXPECT_FALSE(ErrorWindow::isVital(NOTICE));
    EXPECT_FALSE(ErrorWindow::isVital("Warning: the loaded file is saved on different device type"));
    EXPECT_TRUE(ErrorWindow::isVital("The disable is not confirmed: the drive may still be powered."));
    EXPECT_TRUE(ErrorWindow::isVital("Unable to connect. Possibly incompatible COM adapter selected"));
}

TEST_F(Messages, OnlyAVitalOneComesBeforeAnOpenBoxIsClosed)
{
    QDialog box;
    box.setModal(true);
    box.show();
    window.showMessage(NOTICE);
    QTest::qWait(150);
    EXPECT_EQ(shown(), "");
    box.close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == NOTICE; }));
    window.accept();
    box.show();
    window.showMessage(LOST_LINE);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isModal()); // or it could not be closed
    window.accept();
}
