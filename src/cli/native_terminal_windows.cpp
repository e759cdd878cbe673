#include "cli/native_terminal.h"

#include <atomic>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace morvane {

namespace {

std::atomic<void (*)()> interruptListener = nullptr;

HANDLE handleOf(FILE* file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
}

/// In a thread of its own. What is not taken here goes to the system, which ends the process.
BOOL WINAPI onControl(DWORD event) {
    const bool isInterrupt = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    void (*const listener)() = isInterrupt ? interruptListener.exchange(nullptr) : nullptr;
    if (listener) listener();
    return listener != nullptr;
}

} // namespace

/// Is what the system's own memory does.
void keepFreedMemory() {}

void leaveBytesAlone() {
    for (FILE* file : {stdin, stdout, stderr})
        _setmode(_fileno(file), _O_BINARY);
}

/// Asks for a console: "is it a terminal" is yes for NUL, too.
bool isTerminalFile(FILE* file) {
    DWORD mode = 0;
    return GetConsoleMode(handleOf(file), &mode) != 0;
}

// A console's bytes are in a code page that lacks most letters. In UTF-16 it takes and gives all of them.

bool writeToTerminal(FILE* file, const QString& text) {
    // The system is asked once, not for each line.
    static const bool isOutputTerminal = isTerminalFile(stdout), isMessageTerminal = isTerminalFile(stderr);
    if (!(file == stderr ? isMessageTerminal : isOutputTerminal)) return false;
    DWORD written = 0;
    WriteConsoleW(handleOf(file), text.utf16(), static_cast<DWORD>(text.size()), &written, nullptr);
    return true;
}

bool hasOwnInput() {
    return isTerminalFile(stdin);
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

void listenToInterrupts(void (*onInterrupt)()) {
    if (interruptListener.exchange(onInterrupt) == nullptr) {
        SetConsoleCtrlHandler(onControl, FALSE); // as often as it was set
        SetConsoleCtrlHandler(onControl, TRUE);
    }
}

} // namespace morvane
