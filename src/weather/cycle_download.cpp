#include "weather/cycle_download.h"

#include "core/error.h"
#include "weather/gzip_reader.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

namespace morvane {

namespace {

constexpr int lookEveryMilliseconds = 50;
constexpr int mostRedirects = 5;

QNetworkRequest requestOf(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setRawHeader("Accept-Encoding", "identity"); // the announced length is the file's own
    return request;
}

[[noreturn]] void refuse(const QString& reason) {
    throw Error::withDescription(ErrorCode::ioFailure, reason);
}

/// Raises for an answer that came to its end and yet is no whole file.
void requireWhole(const QNetworkReply& reply, const QByteArray& bytes) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply.error() != QNetworkReply::NoError) refuse(reply.errorString());
    if (status < 200 || status > 299) refuse(u"the server answers with status %1"_s.arg(status));
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
    Transfer(const CycleDownload& download, const CycleDownload::Limits& limits, const QUrl& url)
        : download_(download), limits_(limits), reply_(manager_.get(requestOf(url))) {
        silence_.setSingleShot(true);
        QObject::connect(reply_.get(), &QNetworkReply::metaDataChanged, &loop_, [this] { listenOn(); });
        QObject::connect(reply_.get(), &QNetworkReply::readyRead, &loop_, [this] { take(); });
        QObject::connect(reply_.get(), &QNetworkReply::downloadProgress, &loop_,
                         [this](qint64 received) { download_.onProgress(received, announcedSize()); });
        QObject::connect(reply_.get(), &QNetworkReply::finished, &loop_, &QEventLoop::quit);
        QObject::connect(&silence_, &QTimer::timeout, &loop_,
                         [this] { stop(u"the server has stopped answering"_s); });
        QObject::connect(&look_, &QTimer::timeout, &loop_, [this] { lookForCancel(); });
    }

    /// False when it was cancelled, or the program ends meanwhile.
    bool run() {
        listenOn();
        look_.start(lookEveryMilliseconds);
        if (!reply_->isFinished()) loop_.exec();
        if (isCancelled_ || !reply_->isFinished()) return false;
        take();
        if (problem_.isEmpty()) judge();
        // What was announced may come to be known behind the last bytes.
        if (problem_.isEmpty()) download_.onProgress(bytes_.size(), bytes_.size());
        return true;
    }
    const QString& problem() const { return problem_; }
    const QByteArray& contents() const { return contents_; }

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
        if (bytes_.size() > limits_.largestSize) stop(u"the file is far too large for a cycle"_s);
    }
    void judge() {
        try {
            contents_ = contentsOf(*reply_, bytes_, limits_.largestSize);
        } catch (const Error& error) {
            problem_ = error.description();
        }
    }
    void lookForCancel() {
        if (isCancelled_ || !download_.isCancelled()) return;
        isCancelled_ = true;
        reply_->abort();
    }

    const CycleDownload& download_;
    CycleDownload::Limits limits_;
    QEventLoop loop_;
    QTimer silence_, look_;
    QNetworkAccessManager manager_;
    std::unique_ptr<QNetworkReply> reply_;
    QByteArray bytes_, contents_;
    QString problem_;
    bool isCancelled_ = false;
};

} // namespace

bool CycleDownload::fetch(const QUrl& url, const FilePath& target) {
    Transfer transfer(*this, limits_, url);
    if (!transfer.run()) return false;
    if (!transfer.problem().isEmpty())
        throw Error::withDescription(ErrorCode::ioFailure,
                                     url.toString() + u" could not be downloaded: "_s + transfer.problem());
    files_.write(target, transfer.contents());
    return true;
}

} // namespace morvane
