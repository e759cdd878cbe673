#include "cli/terminal.h"

#include <QDir>
#include <QFileInfo>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
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

#ifdef _WIN32

HANDLE handleOf(FILE* file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
}

/// Asks for a console: "is it a terminal" is yes for NUL, too.
bool isTerminalFile(FILE* file) {
    DWORD mode = 0;
    return GetConsoleMode(handleOf(file), &mode) != 0;
}

// A console's bytes are in a code page that lacks most letters. In UTF-16 it takes and gives all of them.

void writeToTerminal(FILE* file, const QString& text) {
    DWORD written = 0;
    WriteConsoleW(handleOf(file), text.utf16(), static_cast<DWORD>(text.size()), &written, nullptr);
}

std::optional<QString> readTerminalLine() {
    constexpr QChar endOfInput(0x1A); // Ctrl+Z
    QString line;
    while (!line.endsWith(u'\n')) {
        wchar_t part[256];
        DWORD count = 0; // 0 after Ctrl+C
        if (!ReadConsoleW(handleOf(stdin), part, DWORD{std::size(part)}, &count, nullptr) || count == 0)
            return std::nullopt;
        line += QString::fromWCharArray(part, static_cast<int>(count));
    }
    if (line.startsWith(endOfInput)) return std::nullopt;
    line.chop(line.endsWith(u"\r\n") ? 2 : 1);
    return line;
}

#else

bool isTerminalFile(FILE* file) {
    return isatty(fileno(file)) == 1;
}

#endif

void write(FILE* file, const QString& text) {
#ifdef _WIN32
    if (isTerminalFile(file)) return writeToTerminal(file, text);
#endif
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
    std::fflush(file);
}

} // namespace

bool isTerminal() {
    return isTerminalFile(stdin) && isTerminalFile(stderr);
}

bool isErrorTerminal() {
    return isTerminalFile(stderr);
}

void writeStandardError(const QString& text) {
    write(stderr, text);
}

void writeStandardOutput(const QString& text) {
    write(stdout, text);
}

bool isOutputWhole() {
    return std::ferror(stdout) == 0;
}

std::optional<QString> readLine() {
#ifdef _WIN32
    if (isTerminalFile(stdin)) return readTerminalLine();
#endif
    std::string line;
    if (!std::getline(std::cin, line) || interrupted) return std::nullopt;
    return QString::fromStdString(line);
}

QString fullPath(const QString& typed) {
    const QString path = QDir::current().absoluteFilePath(typed);
    // ".." behind a link leads elsewhere than its text says, so that the disk is asked where it can be.
    const QString onDisk = path.contains(u"..") ? QFileInfo(path).canonicalFilePath() : QString();
    return QDir::cleanPath(onDisk.isEmpty() ? path : onDisk);
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
