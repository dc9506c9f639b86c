// The window on a line that fails: it stays alive, says what happened once, and connects again.
#include "windowfixture.h"

namespace {

using sim::LineFault;

class BadLine : public WindowFixture
{
protected:
    /// Clicks through the pages and asks for things until the connection is gone; no click may wait for the bus.
    void clickUntilDisconnected()
    {
        qint64 slowest = 0;
        int page = 0;
        ASSERT_TRUE(waitFor([&] {
            QElapsedTimer timer;
            timer.start();
            goTo(1 + page++ % 5);
            m_window->findChild<QPushButton *>(page % 2 ? "setZero" : "apply_button")->click();
            slowest = qMax(slowest, timer.elapsed());
            return connectionText() == "Disconnected";
        }));
        EXPECT_LT(slowest, 500);
    }
    /// One message, which also stands in the status bar and offers no tick.
    void expectLostLineMessage()
    {
        ASSERT_TRUE(waitForMessage());
        EXPECT_TRUE(shownMessage().startsWith("Communication error"));
        EXPECT_TRUE(said().startsWith("Communication error"));
        auto *errors = control<QDialog>("errorWindow");
        EXPECT_FALSE(errors->findChild<QCheckBox *>()->isVisible());
        errors->close();
        QTest::qWait(50);
        EXPECT_FALSE(errors->isVisible());
    }
};

} // namespace

TEST_F(BadLine, ALostLineIsReportedOnceLosesNoEditAndCanBeConnectedAgain)
{
    openWindow();
    bus().setFault({LineFault::Missing}); // at first silent from the beginning
    startConnecting();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Connect failed"; }));
    EXPECT_TRUE(button("connect_button")->isEnabled());
    EXPECT_FALSE(button("apply_button")->isEnabled());
    ASSERT_TRUE(waitForMessage());
    closeMessage();
    bus().clearFaults();
    for (const bool pulled : {false, true}) { // the adapter, in the middle of an apply
        connectToDrive();
        const int gain = pulled ? 777 : kvp()->value();
        kvp()->setValue(gain);
        pulled ? bus().setFault({LineFault::Unplugged, LineFault::anyByte, 5}) : bus().setFault({LineFault::Deaf});
        if (pulled)
            click("apply_button");
        clickUntilDisconnected();
        EXPECT_EQ(kvp()->value(), gain);
        expectLostLineMessage();
        EXPECT_EQ(label("HWMODEL")->text(), "");
        bus().clearFaults();
        ASSERT_TRUE(!pulled || bus().plugIn().empty());
    }
    connectToDrive();
}
