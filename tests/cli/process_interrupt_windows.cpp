#include "cli/process_interrupt.h"

#include <stdexcept>
#include <windows.h>

namespace morvane::test {

void allowInterrupts(QProcess& process) {
    AllocConsole(); // a process without one has nobody to interrupt it; refused where there is one already
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags &= ~static_cast<unsigned long>(CREATE_NO_WINDOW);
        arguments->flags |= CREATE_NEW_PROCESS_GROUP;
    });
}

/// Ctrl-C itself reaches all that share the console.
void sendInterrupt(qint64 process) {
    if (!GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, static_cast<DWORD>(process)))
        throw std::runtime_error("the program could not be interrupted");
}

std::optional<bool> catchesInterrupts(qint64) {
    return std::nullopt;
}

} // namespace morvane::test
