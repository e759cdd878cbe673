#pragma once

#include <QString>
#include <optional>

namespace morvane {

/// The few things that a console program needs of its terminal.

bool isTerminal();      ///< someone can be asked: stdin and stderr are a terminal
bool isErrorTerminal(); ///< stderr is one, so a line may be painted over
void writeStandardError(const QString& text);
/// A pipe and a file may get it later, with more of it.
void writeStandardOutput(const QString& text);
/// Writes what is still to come; false when something could not be written there, as on a full disk.
bool isOutputWhole();
/// A line of stdin without its end; nothing at the end of input or after an interrupt.
std::optional<QString> readLine();

/// A path as typed, from the folder in which the program was started, without "." and ".." in it.
QString fullPath(const QString& typed);

/// Makes the first Ctrl-C a wish that `wasInterrupted` tells once; the second one kills.
void catchInterrupts();
bool wasInterrupted();

} // namespace morvane
