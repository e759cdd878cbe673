#pragma once

#include <QString>
#include <cstdio>
#include <optional>

namespace morvane {

// What each system has its own way for.

/// What pictures take, of which a run has thousands, is kept for the next one: given back to the system page
/// by page it has to be asked for, and is emptied, at each.
void keepFreedMemory();

/// Bytes go in and out as they are, with no other ends of line and no letter that ends the input.
void leaveBytesAlone();

bool isTerminalFile(FILE* file);
/// False where the text is to be written as bytes.
bool writeToTerminal(FILE* file, const QString& text);

/// Stdin is a terminal whose lines do not come as bytes.
bool hasOwnInput();
/// Then: a line without its end; nothing at the end of input or after an interrupt.
std::optional<QString> readTerminalLine();

/// Calls `onInterrupt` at the first Ctrl-C, perhaps from another thread or a signal's handler; the second one
/// kills.
void listenToInterrupts(void (*onInterrupt)());

} // namespace morvane
