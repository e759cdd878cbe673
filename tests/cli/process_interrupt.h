#pragma once

#include <QProcess>
#include <optional>

namespace morvane::test {

/// Before the start of a process that is to be interrupted alone, without the test and all its kin.
void allowInterrupts(QProcess& process);
/// As Ctrl-C at its terminal does.
void sendInterrupt(qint64 process);
/// Nothing where the system does not tell.
std::optional<bool> catchesInterrupts(qint64 process);

} // namespace morvane::test
