#include "cli/terminal.h"

#include "cli/native_terminal.h"

#include <QDir>
#include <QFileInfo>
#include <atomic>
#include <iostream>
#include <string>

namespace morvane {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void write(FILE* file, const QString& text) {
    if (writeToTerminal(file, text)) return;
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
}

} // namespace

bool isTerminal() {
    return isTerminalFile(stdin) && isTerminalFile(stderr);
}

/// Asked at each file of a run.
bool isErrorTerminal() {
    static const bool isTerminal = isTerminalFile(stderr);
    return isTerminal;
}

/// Stdout goes before it, so that both in one file stand in the order in which they were said.
void writeStandardError(const QString& text) {
    std::fflush(stdout);
    write(stderr, text);
    std::fflush(stderr);
}

void writeStandardOutput(const QString& text) {
    write(stdout, text);
}

bool isOutputWhole() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

std::optional<QString> readLine() {
    if (hasOwnInput()) return readTerminalLine();
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
    listenToInterrupts([] { interrupted = true; });
}

bool wasInterrupted() {
    return interrupted.exchange(false);
}

} // namespace morvane
