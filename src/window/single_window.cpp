#include "window/single_window.h"

#include "core/literals.h"
#include "window/end_requests.h"
#include "window/foreground.h"
#include "window/window_shell.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include <cstdio>

namespace morvane {

namespace {

constexpr int answerMilliseconds = 5000, connectMilliseconds = 500;
constexpr unsigned long restMilliseconds = 50;
constexpr qsizetype longestPath = 32 << 10;

QString nameOf(const FilePath& installFolder) {
    const QByteArray path = QFileInfo(installFolder.native()).canonicalFilePath().toUtf8();
    return u"morvane-"_s +
           QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex());
}

/// The path is whole when the caller has gone. Who calls is this user, and may yet be any program of his.
void listenTo(QLocalSocket& caller, WindowShell& shell) {
    const auto take = [&caller, &shell] {
        const QString file = QString::fromUtf8(caller.readAll());
        if (file.size() < longestPath && QFileInfo(file).isAbsolute()) shell.openFile(file);
        caller.deleteLater();
    };
    caller.setReadBufferSize(longestPath);
    QObject::connect(&caller, &QLocalSocket::disconnected, &shell, take);
    if (caller.state() == QLocalSocket::UnconnectedState) take();
}

} // namespace

SingleWindow::SingleWindow(const FilePath& installFolder)
    : lock_(installFolder, u"Window.lock"_s), name_(nameOf(installFolder)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
}

/// One that just starts or ends may not answer for a moment, and then its lock may be ours.
bool SingleWindow::take(const QString& file) {
    const QDeadlineTimer deadline(answerMilliseconds);
    bool isAlone = true;
    while (!lock_.tryTake()) {
        isAlone = false;
        if (callOther(file)) return false;
        if (deadline.hasExpired()) {
            std::fprintf(stderr, "morvane: %s does not answer\n", qUtf8Printable(lock_.holder()));
            return false;
        }
        QThread::msleep(restMilliseconds);
    }
    wasLastOneCut_ = isAlone && lock_.wasLeftBehind();
    QLocalServer::removeServer(name_); // what a killed one left
    server_.listen(name_);
    return true;
}

/// The call is the connection; what is written on it is the file's path.
bool SingleWindow::callOther(const QString& file) const {
    letOthersComeToFront();
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(connectMilliseconds)) return false;
    socket.write(file.toUtf8());
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(answerMilliseconds)) {
    }
    socket.disconnectFromServer();
    if (socket.state() != QLocalSocket::UnconnectedState) socket.waitForDisconnected(answerMilliseconds);
    return true;
}

void SingleWindow::serve(WindowShell& shell) {
    const auto answer = [this, &shell] {
        while (QLocalSocket* caller = server_.nextPendingConnection())
            listenTo(*caller, shell);
        shell.bringToFront();
    };
    QObject::connect(&server_, &QLocalServer::newConnection, &shell, answer);
}

void SingleWindow::releaseBehind(EndRequests& requests) {
    QObject::connect(&requests, &EndRequests::sessionIsOver, &server_, [this] { lock_.release(); });
}

} // namespace morvane
