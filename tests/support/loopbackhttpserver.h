/// \file
/// A small HTTP server on the loopback address that gives whatever answer a test wants, broken ones too.
#ifndef VELBRIN_TESTS_LOOPBACKHTTPSERVER_H
#define VELBRIN_TESTS_LOOPBACKHTTPSERVER_H

#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <memory>

/// Takes one request a connection. Lives in the test's own event loop.
class LoopbackHttpServer : public QTcpServer
{
public:
    /// Gets the connection when the head of a request has arrived; may write an answer, now or later, or nothing.
    using Handler = std::function<void(QTcpSocket *)>;

    LoopbackHttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection())
                accept(socket);
        });
    }
    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }

    /// Answers with these bytes as they stand and closes.
    void answerRaw(const QByteArray &bytes)
    {
        handler = [bytes](QTcpSocket *socket) {
            socket->write(bytes);
            socket->disconnectFromHost();
        };
    }
    /// Answers with a status line, e.g. "200 OK", further head lines (each with its line end) and a body.
    void answer(const QByteArray &body, const QByteArray &status = "200 OK", const QByteArray &head = QByteArray())
    {
        answerRaw("HTTP/1.1 " + status + "\r\n" + head +
                  "Connection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }

    Handler handler = [](QTcpSocket *) {}; ///< at first no answer at all
    QList<QByteArray> requests;            ///< heads of all requests, each with its line ends
    int openConnections = 0;

private:
    void accept(QTcpSocket *socket)
    {
        ++openConnections;
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            --openConnections;
            socket->deleteLater();
        });
        auto head = std::make_shared<QByteArray>();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, head] {
            if (head->endsWith("\r\n\r\n"))
                return;
            *head += socket->readAll();
            if (!head->endsWith("\r\n\r\n"))
                return;
            requests << *head;
            handler(socket);
        });
    }
};

#endif
