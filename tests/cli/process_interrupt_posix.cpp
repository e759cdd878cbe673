#include "cli/process_interrupt.h"

#include <csignal>
#include <stdexcept>

namespace morvane::test {

const bool interruptEndsReading = true;

void allowInterrupt(QProcess&) {}

void interrupt(const QProcess& process) {
    const auto id = static_cast<pid_t>(process.processId());
    if (id <= 0) throw std::runtime_error("it has ended"); // 0 would be the test and all its kin
    ::kill(id, SIGINT);
}

} // namespace morvane::test
