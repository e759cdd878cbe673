#include "weather/cycle_download.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "weather/gzip_reader.h"
#include "weather/weather_sources.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace morvane {

namespace {

constexpr qint64 readAhead = 1 << 20;

constexpr int lookEveryMilliseconds = 50;
constexpr int mostRedirects = 5, longestAddressTold = 200;
constexpr int notModified = 304, tooManyRequests = 429, unavailable = 503;

QNetworkRequest requestOf(const QUrl& url, const FileMarks& known) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setRawHeader("User-Agent", "Morvane/" MORVANE_VERSION);
    request.setRawHeader("Accept-Encoding", "identity"); // the announced length is the file's own
    if (!known.entityTag.isEmpty()) request.setRawHeader("If-None-Match", known.entityTag);
    if (!known.lastModified.isEmpty()) request.setRawHeader("If-Modified-Since", known.lastModified);
    return request;
}

/// Never to a file, and to an open line only where it leaves this machine at no point.
bool isFollowed(const QUrl& from, const QUrl& to) {
    return to.scheme() == u"https" || (to.scheme() == u"http" && isLoopback(from) && isLoopback(to));
}

int statusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

[[noreturn]] void refuse(const QString& reason) {
    throw Error::withDescription(ErrorCode::ioFailure, reason);
}

/// Raises for an answer that came to its end and yet is no whole file.
void requireWhole(const QNetworkReply& reply, const QByteArray& bytes) {
    const int status = statusOf(reply);
    const bool isDone = status >= 200 && status <= 299;
    if (reply.error() == QNetworkReply::ProtocolUnknownError)
        refuse(u"the server sends us to what is no web address"_s);
    if (reply.error() != QNetworkReply::NoError && (isDone || status < 400)) refuse(reply.errorString());
    if (!isDone) refuse(u"the server answers with status %1"_s.arg(status));
    const QString type = reply.header(QNetworkRequest::ContentTypeHeader).toString();
    if (type.startsWith(u"text/html", Qt::CaseInsensitive))
        refuse(u"the server sends a page instead of reports"_s);
    if (const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
        announced.isValid() && bytes.size() < announced.toLongLong())
        refuse(u"the server sends %1 bytes of %2"_s.arg(bytes.size()).arg(announced.toLongLong()));
}

/// Some servers and proxies pack a body although they were asked not to; of their forms gzip alone is read.
QByteArray contentsOf(const QNetworkReply& reply, const QByteArray& bytes, std::int64_t largestSize) {
    requireWhole(reply, bytes);
    const QByteArray encoding = reply.rawHeader("Content-Encoding").trimmed().toLower();
    const bool isPlain = encoding.isEmpty() || encoding == "identity";
    const bool isPacked = (encoding == "gzip" || encoding == "x-gzip") && isGzip(bytes);
    if (!isPlain && !isPacked)
        refuse(u"the server sends it packed as \"%1\""_s.arg(QString::fromLatin1(encoding)));
    const QByteArray contents = cycleContents(bytes, largestSize);
    if (isBlank(contents)) refuse(u"the server sends an empty file"_s);
    return contents;
}

/// One transfer from its start to its end, whichever that is.
class Transfer {
public:
    Transfer(const CycleDownload& download, const CycleDownload::Limits& limits,
             const QNetworkRequest& request)
        : download_(download), limits_(limits), reply_(manager_.get(request)) {
        silence_.setSingleShot(true);
        // Its thread reads on while ours is busy: without a bound a server without end would fill the memory.
        reply_->setReadBufferSize(readAhead);
        QObject::connect(reply_.get(), &QNetworkReply::redirected, &loop_,
                         [this](const QUrl& to) { goOnTo(to); });
        QObject::connect(reply_.get(), &QNetworkReply::metaDataChanged, &loop_, [this] { listenOn(); });
        QObject::connect(reply_.get(), &QNetworkReply::readyRead, &loop_, [this] { take(); });
        QObject::connect(reply_.get(), &QNetworkReply::downloadProgress, &loop_,
                         [this](qint64 received) { download_.onProgress(received, announcedSize()); });
        QObject::connect(reply_.get(), &QNetworkReply::finished, &loop_, &QEventLoop::quit);
        QObject::connect(&silence_, &QTimer::timeout, &loop_,
                         [this] { stop(u"the server has stopped answering"_s); });
        QObject::connect(&whole_, &QTimer::timeout, &loop_, [this] { stop(u"the server takes too long"_s); });
        QObject::connect(&look_, &QTimer::timeout, &loop_, [this] { lookForCancel(); });
    }

    /// False when it was cancelled, or the program ends meanwhile.
    bool run() {
        listenOn();
        whole_.start(limits_.wholeMilliseconds);
        look_.start(lookEveryMilliseconds);
        if (!reply_->isFinished()) loop_.exec();
        if (isCancelled_ || !reply_->isFinished()) return false;
        take();
        return true;
    }
    /// Why it was given up before its end.
    const QString& problem() const { return problem_; }
    const QNetworkReply& reply() const { return *reply_; }
    /// Raises for what is no whole file.
    QByteArray contents() const {
        const QByteArray contents = contentsOf(*reply_, bytes_, limits_.largestSize);
        // What was announced may come to be known behind the last bytes.
        download_.onProgress(bytes_.size(), bytes_.size());
        return contents;
    }

private:
    /// 0 when it is not known. The signal's own may still be that of the answer which sent us here.
    std::int64_t announcedSize() const {
        return reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    }
    void listenOn() { silence_.start(limits_.silenceMilliseconds); }
    void stop(const QString& problem) {
        if (problem_.isEmpty()) problem_ = problem;
        reply_->abort();
    }
    void take() {
        listenOn();
        if (reply_->isOpen()) bytes_ += reply_->readAll();
        if (bytes_.size() > limits_.largestSize)
            stop(u"the file is "_s + tooLargeText(u"a cycle"_s, limits_.largestSize));
    }
    void goOnTo(const QUrl& to) {
        if (!isFollowed(reply_->request().url(), to))
            return stop(u"the server sends us to "_s + to.toString().left(longestAddressTold));
        Q_EMIT reply_->redirectAllowed();
    }
    void lookForCancel() {
        if (isCancelled_ || !download_.isCancelled()) return;
        isCancelled_ = true;
        reply_->abort();
    }

    const CycleDownload& download_;
    CycleDownload::Limits limits_;
    QEventLoop loop_;
    QTimer silence_, whole_, look_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
    QByteArray bytes_;
    QString problem_;
    bool isCancelled_ = false;
};

bool isUnreached(const QNetworkReply& reply) {
    switch (reply.error()) {
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::SslHandshakeFailedError:
    case QNetworkReply::UnknownNetworkError:
        return statusOf(reply) == 0;
    default:
        return false;
    }
}

/// By its status alone.
FetchedFile endOf(const QNetworkReply& reply, const FileMarks& known) {
    using End = FetchedFile::End;
    const int status = statusOf(reply);
    const QString answer = u"the server answers with status %1"_s.arg(status);
    if (isUnreached(reply)) return {End::unreached, reply.errorString()};
    if (status == tooManyRequests || status == unavailable)
        return {End::refused, answer, {}, reply.rawHeader("Retry-After").trimmed()};
    if (status == notModified && !known.isEmpty()) return {End::unchanged, u"nothing newer"_s, known};
    return {End::delivered, u"delivered"_s, {reply.rawHeader("ETag"), reply.rawHeader("Last-Modified")}};
}

} // namespace

FetchedFile CycleDownload::fetch(const QUrl& url, const FilePath& target, const FileMarks& known) {
    Transfer transfer(*this, limits_, requestOf(url, known));
    if (!transfer.run()) return {};
    if (!transfer.problem().isEmpty()) refuse(transfer.problem());
    const FetchedFile fetched = endOf(transfer.reply(), known);
    if (fetched.end == FetchedFile::End::delivered) files_.write(target, transfer.contents());
    return fetched;
}

} // namespace morvane
