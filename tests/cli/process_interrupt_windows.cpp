#include "cli/process_interrupt.h"

#include <stdexcept>
#include <windows.h>

namespace morvane::test {

const bool interruptEndsReading = false;

/// A console of its own, without a window.
void allowInterrupt(QProcess& process) {
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NO_WINDOW; });
}

/// Ctrl-C goes to all of a console, so the test joins it and lets its own pass.
void interrupt(const QProcess& process) {
    SetConsoleCtrlHandler([](DWORD) { return TRUE; }, TRUE);
    FreeConsole();
    const bool isSent =
        AttachConsole(static_cast<DWORD>(process.processId())) && GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    FreeConsole();
    AttachConsole(ATTACH_PARENT_PROCESS);
    if (!isSent) throw std::runtime_error("the program could not be interrupted");
}

} // namespace morvane::test
