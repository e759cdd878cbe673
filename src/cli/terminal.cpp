#include "cli/terminal.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace morvane {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void onInterrupt(int) {
    interrupted = true;
    std::signal(SIGINT, SIG_DFL);
}

bool isTerminalFile(FILE* file) {
#ifdef _WIN32
    return _isatty(_fileno(file)) != 0;
#else
    return isatty(fileno(file)) == 1;
#endif
}

} // namespace

bool isTerminal() {
    return isTerminalFile(stdin) && isTerminalFile(stderr);
}

bool isErrorTerminal() {
    return isTerminalFile(stderr);
}

void writeStandardError(const QString& text) {
    std::cerr << text.toStdString() << std::flush;
}

void writeStandardOutput(const QString& text) {
    std::cout << text.toStdString() << std::flush;
}

std::optional<QString> readLine() {
    std::string line;
    if (!std::getline(std::cin, line) || interrupted) return std::nullopt;
    return QString::fromStdString(line);
}

void catchInterrupts() {
#ifdef _WIN32
    std::signal(SIGINT, onInterrupt);
#else
    struct sigaction action = {};
    action.sa_handler = onInterrupt; // without SA_RESTART, so that a waiting question ends
    sigaction(SIGINT, &action, nullptr);
#endif
}

bool wasInterrupted() {
    return interrupted.exchange(false);
}

} // namespace morvane
