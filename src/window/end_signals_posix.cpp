#include "window/end_signals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace morvane {

namespace {

int signalSockets[2]; ///< a handler may do no more than write

void onSignal(int number) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalSockets[0], &byte, 1);
    std::signal(number, SIG_DFL);
}

} // namespace

void listenToEndSignals(QObject& owner, const std::function<void()>& end) {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0) return;
    auto* notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, &owner);
    QObject::connect(notifier, &QSocketNotifier::activated, &owner, [notifier, end] {
        notifier->setEnabled(false);
        end();
    });
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        std::signal(number, onSignal);
}

} // namespace morvane
