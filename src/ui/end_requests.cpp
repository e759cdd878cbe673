#include "ui/end_requests.h"

#include "ui/blocked_close.h"
#include "ui/shell.h"

#include <QApplication>

#ifndef Q_OS_WIN
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace morvane {

namespace {

#ifndef Q_OS_WIN

int signalSockets[2]; ///< a handler may do no more than write

void onSignal(int number) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalSockets[0], &byte, 1);
    std::signal(number, SIG_DFL); // a second one kills
}

void listenToSignals(Shell& shell) {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0) return;
    auto* notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, &shell);
    QObject::connect(notifier, &QSocketNotifier::activated, &shell, [&shell, notifier] {
        notifier->setEnabled(false);
        shell.endWithSession();
    });
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        std::signal(number, onSignal);
}

#endif

} // namespace

void listenToEndRequests(Shell& shell) {
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &shell, [&shell] { shell.endWithSession(); });
#ifndef Q_OS_WIN
    listenToSignals(shell);
#endif
    new BlockedCloses(shell);
}

} // namespace morvane
