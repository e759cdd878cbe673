#pragma once

#include <QString>

namespace morvane {

class WindowShell;

/// The window program from its start to its end. `commandLine` is its text behind the program's name: a cover
/// code, for an unattended run, or empty. Gives the exit status.
int runProgram(WindowShell& shell, const QString& commandLine);

} // namespace morvane
