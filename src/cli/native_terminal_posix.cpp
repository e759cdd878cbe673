#include "cli/native_terminal.h"

#include <csignal>
#include <malloc.h>
#include <unistd.h>

namespace morvane {

namespace {

void (*interruptListener)() = nullptr;

void onSignal(int) {
    interruptListener();
    std::signal(SIGINT, SIG_DFL);
}

} // namespace

void keepFreedMemory() {
    constexpr int megabyte = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, megabyte);
    mallopt(M_TRIM_THRESHOLD, 2 * megabyte);
}

void leaveBytesAlone() {}

bool isTerminalFile(FILE* file) {
    return isatty(fileno(file)) == 1;
}

bool writeToTerminal(FILE*, const QString&) {
    return false;
}

bool hasOwnInput() {
    return false;
}

std::optional<QString> readTerminalLine() {
    return std::nullopt;
}

void listenToInterrupts(void (*onInterrupt)()) {
    interruptListener = onInterrupt;
    struct sigaction action = {};
    action.sa_handler = onSignal; // without SA_RESTART, so that a waiting question ends
    sigaction(SIGINT, &action, nullptr);
}

} // namespace morvane
