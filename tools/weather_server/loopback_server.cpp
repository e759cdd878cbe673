#include "loopback_server.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace morvane {

LoopbackServer::LoopbackServer(Handler handler, quint16 port) : handler_(std::move(handler)) {
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
    server_.listen(QHostAddress::LocalHost, port);
}

QString LoopbackServer::address() const {
    return QStringLiteral("http://127.0.0.1:%1").arg(server_.serverPort());
}

void LoopbackServer::accept() {
    while (QTcpSocket* connection = server_.nextPendingConnection()) {
        QObject::connect(connection, &QTcpSocket::readyRead, &server_,
                         [this, connection] { read(*connection); });
        QObject::connect(connection, &QTcpSocket::disconnected, &server_, [this, connection] {
            heads_.remove(connection);
            connection->deleteLater();
        });
    }
}

void LoopbackServer::read(QTcpSocket& connection) {
    QByteArray& head = heads_[&connection];
    head += connection.readAll();
    if (!head.contains("\r\n\r\n")) return;
    const QByteArray path = head.left(head.indexOf("\r\n")).split(' ').value(1);
    head.clear();
    ++requests_;
    const Reply reply = handler_(path);
    connection.write(reply.bytes);
    if (reply.closes) connection.disconnectFromHost(); // once all of it is written
}

LoopbackServer::Reply LoopbackServer::textReply(const QByteArray& text) {
    return {"HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nConnection: close\r\nContent-Length: " +
            QByteArray::number(text.size()) + "\r\n\r\n" + text};
}

LoopbackServer::Reply LoopbackServer::statusReply(const QByteArray& status, const QByteArray& moreHead) {
    return {"HTTP/1.1 " + status + "\r\n" + moreHead + "Connection: close\r\nContent-Length: 0\r\n\r\n"};
}

} // namespace morvane
