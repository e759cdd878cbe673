#pragma once

#include <QHash>
#include <QTcpServer>
#include <functional>

class QTcpSocket;

namespace morvane {

/// A web server on 127.0.0.1 that says exactly what it is told to: nothing of an answer is made up for it.
class LoopbackServer {
public:
    struct Reply {
        QByteArray bytes; ///< the whole answer as it goes over the line, head and all
        bool closes = true;
        QByteArray endless = {}; ///< sent behind it over and over, as long as somebody takes it
    };
    /// Gives the answer to a request for that path ("/weather/09Z.TXT").
    using Handler = std::function<Reply(const QByteArray& path)>;
    struct Request {
        QByteArray path;
        QByteArray head; ///< all of it, the path's line included

        /// Empty without it.
        QByteArray header(const QByteArray& name) const;
    };
    using RequestHandler = std::function<Reply(const Request& request)>;

    /// Port 0 takes one that is free.
    explicit LoopbackServer(const Handler& handler, quint16 port = 0);
    explicit LoopbackServer(RequestHandler handler, quint16 port = 0);

    bool isListening() const { return server_.isListening(); }
    /// "http://127.0.0.1:4711"
    QString address() const;
    int requests() const { return requests_; }

    /// A usual answer: 200, plain text, its length.
    static Reply textReply(const QByteArray& text);
    static Reply statusReply(const QByteArray& status, const QByteArray& moreHead = {});

private:
    void accept();
    void read(QTcpSocket& connection);
    void answer(QTcpSocket& connection, const Reply& reply);

    RequestHandler handler_;
    QTcpServer server_;
    QHash<QTcpSocket*, QByteArray> heads_; ///< what has come of each request
    int requests_ = 0;
};

} // namespace morvane
