// The question to the update server and what becomes of its answers, over HTTP on the loopback address.
#include "loopbackhttpserver.h"
#include "printqt.h"
#include "updatechecker.h"

#include <gtest/gtest.h>

#include <QNetworkReply>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

class UpdateCheck : public testing::Test
{
protected:
    void SetUp() override { setServer(server.address()); }
    void TearDown() override { qunsetenv("VELBRIN_UPDATE_SERVER"); }

    static void setServer(const QString &address) { qputenv("VELBRIN_UPDATE_SERVER", address.toLatin1()); }
    void ask() { checker->sendCheckRequest("1.9.0", 11000, 4711, 1260, 1078, 1); }
    /// Whether every question has had its end, with or without a notice.
    bool isOver() const { return checker->findChildren<QNetworkReply *>().isEmpty(); }
    void askAndWait()
    {
        ask();
        EXPECT_TRUE(QTest::qWaitFor([this] { return isOver(); }, 20000));
    }
    QString notice(int which = 0) const { return notices.value(which).value(0).toString(); }
    bool mustDisconnect() const { return notices.value(0).value(1).toBool(); }

    LoopbackHttpServer server;
    std::unique_ptr<UpdateChecker> checker = std::make_unique<UpdateChecker>();
    QSignalSpy notices{checker.get(), &UpdateChecker::showMessage};
};

} // namespace

TEST_F(UpdateCheck, SendsVersionAndIdentityAndNothingElse)
{
    server.answer("VELBRINREPLYNOMESSAGE", "200 OK", "Set-Cookie: who=you; Path=/\r\n");
    checker->sendCheckRequest("1.9.0", 11000, -5, 1260, -2147483647 - 1, -1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return isOver(); }));
    askAndWait();
    ASSERT_EQ(server.requests.size(), 2);
    EXPECT_TRUE(server.requests[0].startsWith("GET /velbrinmessage.php?vv=1.9.0&did=11000&snr=-5&fwv=1260"
                                              "&tfwv=-2147483648&uid=4294967295 HTTP/1.1\r\n"))
        << server.requests[0].toStdString();
    // The second question could give a cookie back.
    const QByteArray host = server.address().toLatin1().mid(7);
    // Newer toolkits write the names of the headers in lower case.
    EXPECT_EQ(server.requests[1].toLower().toStdString(),
              "get /velbrinmessage.php?vv=1.9.0&did=11000&snr=4711&fwv=1260&tfwv=1078&uid=1 http/1.1\r\n"
              "host: " +
                  host.toStdString() +
                  "\r\naccept-language: *\r\nuser-agent: velbrin\r\naccept-encoding: identity\r\n"
                  "connection: keep-alive\r\n\r\n");
}

TEST_F(UpdateCheck, MarkersStandAnywhereAndAreCutOut)
{
    const struct
    {
        QByteArray body;
        const char *notice;
        bool mustDisconnect;
    } answers[] = {
        {"VELBRINREPLYA <b>newer</b> version\n", "A <b>newer</b> version\n", false},
        {"VELBRINREPLYNOMESSAGE", "", false},
        {"VELBRINREPLYMUSTDISCONNECTUpdate required", "Update required", true},
        {"Update MUSTDISCONNECTrequired VELBRINREPLY", "Update required ", true},
        {"MUSTDISCONNECT", "", false},
        {"Hotel network: please log in", "", false},
        {"", "", false},
        {"NOMESSAGE MUSTDISCONNECT VELBRINREPLY", "", true},
        {"VELBRINREPLYVELBRINREPLY1MUSTDISCONNECTMUSTDISCONNECT2VELBRINREPLY", "12", true},
        {"velbrinreply mustdisconnect", "", false},
        {"VELBRINREPLY mustdisconnect nomessage", " mustdisconnect nomessage", false},
        {QByteArray("VELBRINREPLYshown\0MUSTDISCONNECT", 32), "shown", false},
        {QByteArray("\0VELBRINREPLYhidden", 19), "", false},
        {"VELBRINREPLY20 \xB0"
         "C",
         "20 °C", false},
    };
    for (const auto &a : answers) {
        notices.clear();
        server.answer(a.body);
        askAndWait();
        ASSERT_EQ(notices.size(), 1) << a.body.toStdString();
        EXPECT_EQ(notice(), a.notice) << a.body.toStdString();
        EXPECT_EQ(mustDisconnect(), a.mustDisconnect) << a.body.toStdString();
    }
}

TEST_F(UpdateCheck, AnythingButAnAnswer200IsPassedOver)
{
    const QByteArray notice = "VELBRINREPLYMUSTDISCONNECT";
    LoopbackHttpServer elsewhere;
    elsewhere.answer(notice);
    const QByteArray location = "Location: " + elsewhere.address().toLatin1() + "/\r\n";
    for (const QByteArray status : {"404 Not Found", "500 Oops", "204 No Content", "201 Created", "401 Who",
                                    "301 Moved", "302 Found", "307 Elsewhere", "308 Elsewhere"}) {
        server.answer(notice, status, location);
        askAndWait();
    }
    EXPECT_EQ(server.requests.size(), 9);
    EXPECT_EQ(elsewhere.requests.size(), 0) << "no redirect is followed";
    for (const QByteArray answer : {"", "HTTP/1.1 200 OK\r\nContent-Le", "VELBRINREPLY", "\r\n\r\n\xff\xff"}) {
        server.answerRaw(answer);
        askAndWait();
    }
    server.answerRaw("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + notice); // broken off
    askAndWait();
    for (const char *address : {"http://127.0.0.1:1", "http://nowhere.invalid", "nonsense", "file:///etc", "http://"}) {
        setServer(QString::fromLatin1(address));
        askAndWait();
    }
    EXPECT_EQ(notices.size(), 0);
}

TEST_F(UpdateCheck, SilentOrTricklingServerIsGivenUp)
{
    QTimer trickle;
    trickle.start(5);
    server.handler = [&](QTcpSocket *socket) {
        if (server.requests.size() == 1)
            return;
        socket->write("HTTP/1.1 200 OK\r\n\r\nVELBRINREPLY");
        QObject::connect(&trickle, &QTimer::timeout, socket, [socket] { socket->write("."); });
    };
    checker->setTimeLimit(1000);
    ask();
    askAndWait();
    EXPECT_EQ(server.requests.size(), 2);
    EXPECT_EQ(notices.size(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.openConnections == 0; })) << "the line is given back";
}

TEST_F(UpdateCheck, MegabyteIsTakenAndAnEndlessBodyIsNot)
{
    const QByteArray megabyte(1 << 20, 'x');
    server.answer("MUSTDISCONNECT" + megabyte + "VELBRINREPLY");
    askAndWait();
    EXPECT_EQ(notice(), QString::fromLatin1(megabyte));
    EXPECT_TRUE(mustDisconnect());

    server.answer("VELBRINREPLY" + megabyte + megabyte);
    askAndWait();
    qint64 sent = 0;
    server.handler = [&](QTcpSocket *socket) {
        const auto more = [&sent, socket, megabyte] {
            if (socket->bytesToWrite() < megabyte.size())
                sent += socket->write(megabyte);
        };
        socket->write("HTTP/1.1 200 OK\r\n\r\nVELBRINREPLY");
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
        more();
    };
    askAndWait();
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.openConnections == 0; }));
    EXPECT_LT(sent, 100 << 20);
    EXPECT_EQ(notices.size(), 1);
}

TEST_F(UpdateCheck, MayBeDestroyedAtAnyMoment)
{
    ask();
    checker.reset(); // before anything was sent
    server.handler = [this](QTcpSocket *) { checker.reset(); };
    checker = std::make_unique<UpdateChecker>();
    ask();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !checker; })) << "while it waits";
    server.answer("VELBRINREPLYMUSTDISCONNECT");
    checker = std::make_unique<UpdateChecker>();
    QObject::connect(checker.get(), &UpdateChecker::showMessage, [this] { checker.reset(); });
    ask();
    ask();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !checker; })) << "by the receiver of its notice";
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.openConnections == 0; }));
}
