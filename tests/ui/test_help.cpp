// Help from the maker's wiki, its offline copy, and the plot that shares their view.
#include "windowfixture.h"

#include "errorwindow.h"
#include "language.h"

namespace {

class Help : public WindowFixture
{
protected:
    Help() { m_webEngine = HelpView::Engine::Allowed; }
    void TearDown() override
    {
        WindowFixture::TearDown();
        speak("en");
    }
    void writeOfflinePages()
    {
        QDir().mkpath("help");
        for (const char *name : {"Velbrin", "Connect tab", "Goals tab", "Fault_location"})
            writePage(QString("help/%1.htm").arg(name), QByteArray("offline ") + name);
    }
    void writePage(const QString &file, const QByteArray &text)
    {
        QFile page(file);
        page.open(QIODevice::WriteOnly);
        page.write("<html><body>" + text + "</body></html>");
    }
};

} // namespace

TEST_F(Help, FollowsThePageListOnline)
{
    openWindow();
    ASSERT_TRUE(waitFor([this] { return shownText() == "online /wiki/Velbrin_user_guide"; }));
    goTo(5);
    ASSERT_TRUE(waitFor([this] { return shownText() == "online /wiki/Velbrin_user_guide/Fault_limits"; }));
    EXPECT_TRUE(label("offlineHelpNotification")->isHidden());
    // Quick changes replace loads that have not ended; none of them may be taken for a missing network.
    for (int page = 0; page < 7; ++page)
        goTo(page);
    ASSERT_TRUE(waitFor([this] { return shownText() == "online /wiki/Velbrin_user_guide/Testing"; }));
    EXPECT_TRUE(label("offlineHelpNotification")->isHidden());
    EXPECT_EQ(shownMessage(), QString());
}

TEST_F(Help, WithoutANetworkTheOfflineCopyIsShownAndALineAboveItSaysSo)
{
    writeOfflinePages();
    qputenv("VELBRIN_WIKI", "http://wiki.tarnwell.example");
    openWindow();
    ASSERT_TRUE(waitFor([this] { return shownText() == "offline Velbrin"; }));
    EXPECT_FALSE(label("offlineHelpNotification")->isHidden());
    EXPECT_TRUE(label("offlineHelpNotification")->text().startsWith("Loading of online documentation Wiki failed"));
    EXPECT_TRUE(label("offlineHelpNotification")->text().contains("http://wiki.tarnwell.example"));
    goTo(2);
    ASSERT_TRUE(waitFor([this] { return shownText() == "offline Goals tab"; }));
    EXPECT_FALSE(label("offlineHelpNotification")->isHidden());
    EXPECT_EQ(shownMessage(), QString());
    EXPECT_TRUE(m_wiki.paths.isEmpty());
    // Links to single wiki pages, such as the "?" of the fault panel, find their offline copies too.
    emit label("faultRegister")->linkActivated("http://wiki.tarnwell.example/wiki/Fault_location");
    EXPECT_TRUE(waitFor([this] { return shownText() == "offline Fault_location"; }));
    goTo(1);
    ASSERT_TRUE(waitFor([this] { return shownText() == "offline Connect tab"; }));
    emit control<ErrorWindow>("errorWindow")->linkActivated(QUrl("http://wiki.tarnwell.example/wiki/Fault_location"));
    EXPECT_TRUE(waitFor([this] { return shownText() == "offline Fault_location"; }));
}

TEST_F(Help, PlotOrPageDuringAPendingLoadIsNotTakenForOffline)
{
    writeOfflinePages();
    m_wiki.silent = true;
    openWindow();
    ASSERT_TRUE(waitFor([this] { return m_wiki.paths.size() == 1; }));
    showPlot();
    ASSERT_TRUE(waitFor([this] { return shownText().contains("Velbrin servo scope"); }));
    EXPECT_TRUE(label("offlineHelpNotification")->isHidden());
    goTo(5); // the plot stays, and no help is asked for
    goTo(1);

    clickLink("tdext://showhelp");
    ASSERT_TRUE(waitFor([this] { return m_wiki.paths.size() == 2; }));
    EXPECT_TRUE(m_wiki.paths.last().endsWith("/Connect"));
    clickLink("http://127.0.0.1:1/nobody-listens-here"); // fails about when the next page is asked for
    m_wiki.silent = false;
    goTo(2);
    ASSERT_TRUE(waitFor([this] { return shownText() == "online /wiki/Velbrin_user_guide/Goals"; }))
        << qPrintable(shownText());
    EXPECT_TRUE(label("offlineHelpNotification")->isHidden());
    EXPECT_EQ(shownMessage(), QString());
}

TEST_F(Help, PendingLoadThatTakesTooLongEndsOffline)
{
    writeOfflinePages();
    m_wiki.silent = true;
    openWindow();
    ASSERT_TRUE(waitFor([this] { return m_wiki.paths.size() == 1; }));
    QTimer *timeOut = nullptr;
    const auto timers = m_window->findChildren<QTimer *>();
    for (QTimer *timer : timers) {
        if (timer->interval() == 60000 && timer->isSingleShot())
            timeOut = timer;
    }
    ASSERT_NE(timeOut, nullptr);
    EXPECT_TRUE(timeOut->isActive());
    QMetaObject::invokeMethod(m_window.get(), "helpLoadingTimeouted");
    EXPECT_TRUE(waitFor([this] { return shownText() == "offline Velbrin"; }));
    EXPECT_FALSE(timeOut->isActive());
}

TEST_F(Help, IsInTheWindowsLanguagePageByPageAndSoIsWhatIsFound)
{
    writeOfflinePages();
    QDir().mkpath("help/de");
    const QByteArray links = "<a href='Goals%20tab.htm#CM'>z</a> <a href='../Connect%20tab.htm'>v</a>";
    writePage("help/de/Velbrin.htm", "deutsch " + links);
    writePage("help/de/Connect tab.htm", "<dl><dt id=\"AXI\">x</dt><dd>ganz <b>verkehrt</b>herum</dd></dl>");
    qputenv("VELBRIN_WIKI", "http://wiki.tarnwell.example");
    openWindow();
    ASSERT_TRUE(waitFor([this] { return shownText() == "offline Velbrin"; }));
    speak("de");
    goTo(1);
    goTo(0);
    ASSERT_TRUE(waitFor([this] { return shownText() == "deutsch z v"; }));
    const auto follow = [this](int link) { run(QString("document.links[%1].click()").arg(link)); };
    follow(0); // German pages lack it
    EXPECT_TRUE(waitFor([this] { return shownText() == "offline Goals tab"; }));
    EXPECT_EQ(run("location.hash").toString(), "#CM");
    goTo(1);
    goTo(0);
    ASSERT_TRUE(waitFor([this] { return shownText() == "deutsch z v"; }));
    follow(1); // to the English page, of which there is a German one
    EXPECT_TRUE(waitFor([this] { return shownText().startsWith("x"); }));
    emit label("faultRegister")->linkActivated("http://wiki.tarnwell.example/wiki/Fault_location");
    EXPECT_TRUE(waitFor([this] { return shownText() == "offline Fault_location"; }));

    press(Qt::Key_F, Qt::ControlModifier);
    control<QLineEdit>("findText")->setText("verkehrtherum");
    EXPECT_EQ(control<QListWidget>("findList")->item(0)->text(), "[AXI] Invert direction: Goals");
    control<QDialog>("settingFinder")->close();
}
