#include "weather/cycle_download.h"

#include "core/error.h"

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

/// What is wrong with an answer that came to its end; empty for a file.
QString problemOf(const QNetworkReply& reply, const QByteArray& bytes) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply.error() != QNetworkReply::NoError) return reply.errorString();
    if (status < 200 || status > 299) return u"the server answers with status %1"_s.arg(status);
    const QString type = reply.header(QNetworkRequest::ContentTypeHeader).toString();
    if (type.startsWith(u"text/html", Qt::CaseInsensitive) || bytes.startsWith('<'))
        return u"the server sends a page instead of reports"_s;
    if (const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
        announced.isValid() && bytes.size() < announced.toLongLong())
        return u"the server sends %1 bytes of %2"_s.arg(bytes.size()).arg(announced.toLongLong());
    return {};
}

/// One transfer from its start to its end, whichever that is.
class Transfer {
public:
    Transfer(const CycleDownload& download, const CycleDownload::Limits& limits, const QUrl& url)
        : download_(download), limits_(limits), reply_(manager_.get(requestOf(url))) {
        silence_.setSingleShot(true);
        QObject::connect(reply_.get(), &QNetworkReply::metaDataChanged, &loop_, [this] { listenOn(); });
        QObject::connect(reply_.get(), &QNetworkReply::readyRead, &loop_, [this] { take(); });
        QObject::connect(reply_.get(), &QNetworkReply::downloadProgress, &loop_, download.onProgress);
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
        if (problem_.isEmpty()) problem_ = problemOf(*reply_, bytes_);
        return true;
    }
    const QString& problem() const { return problem_; }
    const QByteArray& bytes() const { return bytes_; }

private:
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
    QByteArray bytes_;
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
    files_.write(target, transfer.bytes());
    return true;
}

} // namespace morvane
