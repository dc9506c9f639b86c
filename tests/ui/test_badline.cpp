// The window on a line that fails: it stays alive, says what happened once, and connects again.
#include "windowfixture.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QSpinBox>

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
        ASSERT_TRUE(waitFor([this] { return !shownMessage(m_window.get()).isEmpty(); }));
        EXPECT_TRUE(shownMessage(m_window.get()).startsWith("Communication error"));
        EXPECT_TRUE(said().startsWith("Communication error"));
        auto *errors = control<QDialog>("errorWindow");
        EXPECT_FALSE(errors->findChild<QCheckBox *>()->isVisible());
        errors->close();
        QTest::qWait(50);
        EXPECT_FALSE(errors->isVisible());
    }
};

} // namespace

TEST_F(BadLine, ALostLineIsReportedOnceAndCanBeConnectedAgain)
{
    openWindow();
    for (const bool pulled : {false, true}) {
        connectToDrive();
        pulled ? bus().unplug() : bus().setFault({LineFault::Deaf});
        clickUntilDisconnected();
        expectLostLineMessage();
        EXPECT_EQ(label("HWMODEL")->text(), "");
        bus().clearFaults();
        ASSERT_TRUE(!pulled || bus().plugIn().empty());
    }
    connectToDrive();
}

TEST_F(BadLine, AdapterPulledDuringAnApplyLosesNoEdit)
{
    openConnectedWindow();
    auto *kvp = control<QSpinBox>("KVP");
    kvp->setValue(777);
    bus().setFault({LineFault::Unplugged, LineFault::anyByte, 5});
    click("apply_button");
    clickUntilDisconnected();
    EXPECT_EQ(kvp->value(), 777);
    expectLostLineMessage();
}

TEST_F(BadLine, SilenceWhileConnectingEndsInTheDisconnectedState)
{
    openWindow();
    bus().setFault({LineFault::Missing});
    startConnecting();
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Connect failed"; }));
    EXPECT_TRUE(button("connect_button")->isEnabled());
    EXPECT_FALSE(button("apply_button")->isEnabled());
    ASSERT_TRUE(waitFor([this] { return !shownMessage(m_window.get()).isEmpty(); }));
    bus().clearFaults();
    control<QDialog>("errorWindow")->close();
    connectToDrive();
}
