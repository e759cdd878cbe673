#pragma once

#include <QProcess>

namespace morvane::test {

/// Before the start: gives the process what it can be interrupted by alone.
void allowInterrupt(QProcess& process);
/// As Ctrl-C at its terminal.
void interrupt(const QProcess& process);
/// Whether that ends the reading of a pipe, too.
extern const bool interruptEndsReading;

} // namespace morvane::test
