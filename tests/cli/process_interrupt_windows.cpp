#include "cli/process_interrupt.h"

#include <stdexcept>
#include <windows.h>

namespace morvane::test {

/// A process can be interrupted by its console alone; Wine gives none to a test.
bool canInterrupt() {
    return GetConsoleWindow() != nullptr;
}

void allowInterrupts(QProcess& process) {
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= CREATE_NEW_PROCESS_GROUP; });
}

/// Ctrl-C itself would reach all that share the console.
void interrupt(const QProcess& process) {
    if (!GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, static_cast<DWORD>(process.processId())))
        throw std::runtime_error("the program could not be interrupted");
}

} // namespace morvane::test
