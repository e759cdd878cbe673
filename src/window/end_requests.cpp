#include "window/end_requests.h"

#include "window/close_request.h"
#include "window/window_shell.h"

#include <QApplication>

#ifndef Q_OS_WIN
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace morvane {

namespace {

bool isBlocked(const QWidget* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal->window() != window;
}

#ifndef Q_OS_WIN

int signalSockets[2]; ///< a handler may do no more than write

void onSignal(int number) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalSockets[0], &byte, 1);
    std::signal(number, SIG_DFL); // a second one kills
}

#endif

} // namespace

EndRequests::EndRequests() {
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndRequests::end);
    qApp->installEventFilter(this);
    qApp->installNativeEventFilter(this);
    listenToSignals();
}

void EndRequests::listenToSignals() {
#ifndef Q_OS_WIN
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0) return;
    auto* notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        end();
    });
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        std::signal(number, onSignal);
#endif
}

void EndRequests::end() {
    hasEnded_ = true;
    if (shell_)
        shell_->endWithSession();
    else
        QCoreApplication::exit(0);
}

/// The session's last word, also where no data was asked to be saved. The program itself never quits.
bool EndRequests::eventFilter(QObject* receiver, QEvent* event) {
    if (receiver != qApp || event->type() != QEvent::Quit) return false;
    end();
    return true;
}

bool EndRequests::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    const WId id = windowToClose(type, message);
    QWidget* window = id ? QWidget::find(id) : nullptr;
    if (!shell_ || !window || !isBlocked(window) || !windowNames.contains(window->objectName())) return false;
    // Not from inside the reading of events, as a question may follow.
    QMetaObject::invokeMethod(shell_.data(), &WindowShell::exitProgram, Qt::QueuedConnection);
    return true;
}

} // namespace morvane
