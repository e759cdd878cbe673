#pragma once

#include <QProcess>

namespace morvane::test {

/// Whether there is anything here that a process could be interrupted by.
bool canInterrupt();
/// Before the start of a process that is to be interrupted alone, without the test and all its kin.
void allowInterrupts(QProcess& process);
/// As Ctrl-C at its terminal does.
void interrupt(const QProcess& process);

} // namespace morvane::test
