#include "cli/process_interrupt.h"

#include <csignal>
#include <stdexcept>

namespace morvane::test {

bool canInterrupt() {
    return true;
}

void allowInterrupts(QProcess&) {}

void interrupt(const QProcess& process) {
    const auto id = static_cast<pid_t>(process.processId());
    if (id <= 0)
        throw std::runtime_error("the program has ended"); // to 0 it would go to the test and all its kin
    ::kill(id, SIGINT);
}

} // namespace morvane::test
