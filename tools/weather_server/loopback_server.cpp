#include "loopback_server.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace morvane {

QByteArray LoopbackServer::Request::header(const QByteArray& name) const {
    for (const QByteArray& line : head.split('\n'))
        if (line.toLower().startsWith(name.toLower() + ':')) return line.mid(name.size() + 1).trimmed();
    return {};
}

LoopbackServer::LoopbackServer(const Handler& handler, quint16 port)
    : LoopbackServer(RequestHandler([handler](const Request& request) { return handler(request.path); }),
                     port) {}

LoopbackServer::LoopbackServer(RequestHandler handler, quint16 port) : handler_(std::move(handler)) {
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
    const Request request{head.left(head.indexOf("\r\n")).split(' ').value(1), head};
    head.clear();
    ++requests_;
    answer(connection, handler_(request));
}

void LoopbackServer::answer(QTcpSocket& connection, const Reply& reply) {
    connection.write(reply.bytes);
    if (!reply.endless.isEmpty()) {
        QObject::connect(&connection, &QTcpSocket::bytesWritten, &server_,
                         [&connection, part = reply.endless] { connection.write(part); });
        return;
    }
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
