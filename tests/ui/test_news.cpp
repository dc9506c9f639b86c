// When the window asks for news, and how it shows them.
#include "windowfixture.h"

#include "testfiles.h"

namespace {

using News = WindowFixture;

} // namespace

TEST_F(News, AreAskedForOnceADriveWasReadAndNotBecauseAFileWasLoaded)
{
    openWindow();
    QTest::qWait(50);
    EXPECT_TRUE(m_updates.requests.isEmpty()) << "nothing is known of any drive yet";
    connectToDrive();
    ASSERT_TRUE(waitFor([this] { return m_updates.requests.size() == 1; }));
    EXPECT_TRUE(m_updates.requests.first().startsWith("GET /velbrinmessage.php?vv=1.9.0&did=11000&snr=240117&"));
    QTest::qWait(50);
    EXPECT_EQ(shownMessage(), QString()) << "an empty notice is not worth a box";
    const QString file = path("other.drc");
    put(file, "[Header]\nDRCVersion=110\n[TDT3Params]\n1\\name=KVP\n1\\scaling=1\n1\\value=432\n1\\max=32767\n"
              "2\\name=UID\n2\\scaling=1\n2\\value=77\nsize=2\n");
    loadFile(file);
    ASSERT_TRUE(waitFor([this] { return kvp()->value() == 432; }));
    m_answers.press("Continue without applying");
    disconnectFromDrive();
    connectToDrive();
    ASSERT_TRUE(waitFor([this] { return m_updates.requests.size() == 2; }));
    for (const QByteArray &request : m_updates.requests)
        EXPECT_FALSE(request.contains("uid=77")) << request.toStdString();
}

TEST_F(News, CannotEndTheConnectionToADriveThatIsEnabled)
{
    bus().set(DriveAddress, softEnable, 1);
    m_updates.answer("VELBRINREPLY see <a href=\"https://x.example/new\">news</a>MUSTDISCONNECT");
    openConnectedWindow();
    ASSERT_TRUE(waitFor([this] { return shownMessage() == "see news (https://x.example/new)"; }));
    closeMessage();
    ASSERT_TRUE(waitFor([this] { return shownMessage().contains("until the drive is disabled"); }));
    EXPECT_EQ(connectionText(), "Connected");
    closeMessage();
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 0);
}
