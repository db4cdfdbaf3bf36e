#pragma once
// A small HTTP/1.1 server on 127.0.0.1 for the update tests: each path has a
// canned answer, every request is counted, and some answers misbehave on
// purpose (never answer, redirect, stream without end). Every answer closes
// its connection, so each request the client makes arrives exactly once.

#include <QHash>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <numeric>

class FeedServer : public QObject {
public:
    FeedServer()
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection()) {
                socket->setParent(this);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onRead(socket); });
                connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                    m_buffers.remove(socket);
                    socket->deleteLater();
                });
            }
        });
        m_server.listen(QHostAddress::LocalHost, 0);
    }

    QUrl url(const QString &path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
    }

    void serve(const QString &path, const QByteArray &body, int status = 200) { m_routes[path] = {Kind::body, status, body}; }
    void redirect(const QString &path, const QString &to) { m_routes[path] = {Kind::redirect, 302, to.toUtf8()}; }
    // Keeps the connection open and never says a word.
    void silent(const QString &path) { m_routes[path] = {Kind::silent, 200, {}}; }
    // Streams feed-looking text until the client hangs up.
    void endless(const QString &path) { m_routes[path] = {Kind::endless, 200, {}}; }

    int hits(const QString &path) const { return m_hits.value(path); }
    int totalHits() const { return std::accumulate(m_hits.cbegin(), m_hits.cend(), 0); }
    // Bytes of body written by endless answers before the client went away.
    qint64 endlessBytesSent() const { return m_endlessSent; }

private:
    enum class Kind { body, silent, redirect, endless };
    struct Route {
        Kind kind = Kind::body;
        int status = 404;
        QByteArray data = "<html><body>not here</body></html>"; // the body, or a redirect's target
    };

    void onRead(QTcpSocket *socket)
    {
        // A request on a connection already answered and closing is never
        // served; the client sends it again on a new one.
        if (socket->state() != QAbstractSocket::ConnectedState)
            return;
        QByteArray &buffer = m_buffers[socket];
        buffer += socket->readAll();
        const int end = buffer.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QList<QByteArray> requestLine = buffer.left(buffer.indexOf("\r\n")).split(' ');
        buffer.remove(0, end + 4);
        const QString path = requestLine.size() > 1 ? QString::fromUtf8(requestLine[1]) : QString();
        ++m_hits[path];
        answer(socket, m_routes.value(path));
    }

    void answer(QTcpSocket *socket, const Route &r)
    {
        QByteArray head = "HTTP/1.1 " + QByteArray::number(r.status) + " Status\r\n";
        switch (r.kind) {
        case Kind::silent:
            return;
        case Kind::redirect:
            socket->write(head + "Location: " + r.data + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
            socket->disconnectFromHost();
            return;
        case Kind::endless:
            socket->write(head + "Content-Type: application/rss+xml\r\nConnection: close\r\n\r\n");
            streamForever(socket);
            return;
        case Kind::body:
            socket->write(head + "Content-Type: application/rss+xml; charset=utf-8\r\nContent-Length: "
                          + QByteArray::number(r.data.size()) + "\r\nConnection: close\r\n\r\n" + r.data);
            socket->disconnectFromHost();
            return;
        }
    }

    // Writes 64 KiB of feed-looking text whenever the client has taken the
    // last, until it hangs up.
    void streamForever(QTcpSocket *socket)
    {
        QPointer<QTcpSocket> guard(socket);
        socket->write("<rss version=\"2.0\"><channel>");
        auto *timer = new QTimer(socket);
        timer->setInterval(1);
        connect(timer, &QTimer::timeout, socket, [this, guard] {
            if (!guard || guard->state() != QAbstractSocket::ConnectedState || guard->bytesToWrite() > 256 * 1024)
                return;
            static const QByteArray chunk = QByteArray("<item><title>padding</title></item>").repeated(1800);
            guard->write(chunk);
            m_endlessSent += chunk.size();
        });
        timer->start();
    }

    QTcpServer m_server;
    QHash<QString, Route> m_routes;
    QHash<QString, int> m_hits;
    QHash<QTcpSocket *, QByteArray> m_buffers;
    qint64 m_endlessSent = 0;
};
