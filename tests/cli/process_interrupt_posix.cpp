#include "cli/process_interrupt.h"

#include "core/literals.h"

#include <QFile>
#include <csignal>
#include <stdexcept>

namespace morvane::test {

void allowInterrupts(QProcess&) {}

void sendInterrupt(qint64 process) {
    if (process <= 0)
        throw std::runtime_error("the program has ended"); // 0 would be the test and all its kin
    ::kill(static_cast<pid_t>(process), SIGINT);
}

/// The system's list of the signals that a process catches has one bit for each.
std::optional<bool> catchesInterrupts(qint64 process) {
    QFile status(u"/proc/%1/status"_s.arg(process));
    if (!status.open(QIODevice::ReadOnly)) return false;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("SigCgt:"))
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGINT - 1) & 1) != 0;
    return false;
}

} // namespace morvane::test
