#include "sample_cycle.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#define ZLIB_CONST // it only reads what is given to it
#include <zlib.h>

namespace morvane {

namespace {

using Reply = LoopbackServer::Reply;

QByteArray sampleFile(const QString& name) {
    QFile file(QStringLiteral(MORVANE_DATA_DIR "/metar/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray packed(const QByteArray& text) {
    constexpr int gzipForm = 16, usualMemory = 8; // the first is added to the window's bits
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, gzipForm + MAX_WBITS, usualMemory, Z_DEFAULT_STRATEGY);
    QByteArray bytes(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(text.size()))), '\0');
    stream.next_in = reinterpret_cast<const Bytef*>(text.constData());
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    deflate(&stream, Z_FINISH);
    bytes.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return bytes;
}

/// The cycle's reports without what stands between them.
QByteArray plainReports() {
    QByteArray reports;
    const QByteArrayList lines = sampleFile(QStringLiteral("02Z.TXT")).split('\n');
    for (qsizetype i = 1; i < lines.size(); i += 3)
        reports += lines[i] + '\n';
    return reports;
}

QByteArray contentsOf(const QByteArray& path) {
    static const QRegularExpression cyclePath(QStringLiteral("^/weather/([01][0-9]|2[0-3])Z\\.TXT$"));
    if (cyclePath.match(QString::fromLatin1(path)).hasMatch()) return sampleFile(QStringLiteral("02Z.TXT"));
    if (path == "/data/cache/metars.cache.csv.gz")
        return packed(sampleFile(QStringLiteral("metars.cache.csv")));
    if (path == "/metar.php?id=all") return plainReports();
    return {};
}

Reply goodReply(const QByteArray& contents, const LoopbackServer::Request& request) {
    const QByteArray tag = '"' + QCryptographicHash::hash(contents, QCryptographicHash::Md5).toHex() + '"';
    if (request.header("If-None-Match") == tag) return LoopbackServer::statusReply("304 Not Modified");
    return {"HTTP/1.1 200 OK\r\nContent-Type: " +
            QByteArray(contents.startsWith("\x1F\x8B") ? "application/gzip" : "text/plain") + "\r\nETag: " +
            tag + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(contents.size()) +
            "\r\n\r\n" + contents};
}

Reply movedTo(const QByteArray& address) {
    return LoopbackServer::statusReply("302 Found", "Location: " + address + "\r\n");
}

const QMap<QByteArray, Reply>& badReplies() {
    const QByteArray head = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
    static const QMap<QByteArray, Reply> all{
        {"wrong-gzip", {head + "\x1F\x8B\x08 no gzip at all"}},
        {"page", {head + "<!DOCTYPE html><html><body>Please sign in</body></html>"}},
        {"not-modified", LoopbackServer::statusReply("304 Not Modified")},
        {"too-many", LoopbackServer::statusReply("429 Too Many Requests", "Retry-After: 1800\r\n")},
        {"unavailable", LoopbackServer::statusReply("503 Service Unavailable")},
        {"to-file", movedTo("file:///etc/passwd")},
        {"to-http", movedTo("http://weather.invalid/reports.txt")},
        {"silent", {head + "KSEA", false}},
        {"endless", {head, false, QByteArray(1 << 16, 'A')}},
    };
    return all;
}

} // namespace

QByteArrayList badReplyNames() {
    return badReplies().keys();
}

LoopbackServer::Reply sampleReply(const LoopbackServer::Request& request) {
    static const QByteArray bad = "/bad/";
    if (request.path.startsWith(bad))
        if (const auto reply = badReplies().constFind(request.path.mid(bad.size()));
            reply != badReplies().cend())
            return *reply;
    const QByteArray contents = contentsOf(request.path);
    return contents.isEmpty() ? LoopbackServer::statusReply("404 Not Found") : goodReply(contents, request);
}

} // namespace morvane
