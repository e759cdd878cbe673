#include "window/single_window.h"

#include "core/literals.h"
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

QString nameOf(const FilePath& installFolder) {
    const QByteArray path = QFileInfo(installFolder.native()).canonicalFilePath().toUtf8();
    return u"morvane-"_s +
           QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex());
}

} // namespace

SingleWindow::SingleWindow(const FilePath& installFolder)
    : lock_(installFolder, u"Window.lock"_s), name_(nameOf(installFolder)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
}

/// One that just starts or ends may not answer for a moment, and then its lock may be ours.
bool SingleWindow::take() {
    const QDeadlineTimer deadline(answerMilliseconds);
    while (!lock_.tryTake()) {
        if (callOther()) return false;
        if (deadline.hasExpired()) {
            std::fprintf(stderr, "morvane: %s does not answer\n", qUtf8Printable(lock_.holder()));
            return false;
        }
        QThread::msleep(restMilliseconds);
    }
    QLocalServer::removeServer(name_); // what a killed one left
    server_.listen(name_);
    return true;
}

bool SingleWindow::callOther() const {
    letOthersComeToFront();
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(connectMilliseconds);
}

void SingleWindow::serve(WindowShell& shell) {
    const auto answer = [this, &shell] {
        while (QLocalSocket* caller = server_.nextPendingConnection())
            caller->deleteLater();
        shell.bringToFront();
    };
    QObject::connect(&server_, &QLocalServer::newConnection, &shell, answer);
}

} // namespace morvane
