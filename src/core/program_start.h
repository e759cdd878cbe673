#pragma once

#include "core/file_path.h"

namespace morvane {

/// Starts `program` with the path of `document` as its one argument, or without one when that is empty, and
/// leaves it running. False when it does not start, or ends at once in a failure, as a runner does that
/// cannot do it: for that the first moments are waited for, two seconds at most.
///
/// On Windows the document is named by its short path, which has no blanks; where the volume keeps none, by
/// the quoted long one. Elsewhere a Windows program gets `runner` in front, a command with its own arguments
/// such as "wine" or "flatpak run org.winehq.Wine", and runs in the Wine prefix that it lies in, else in
/// `winePrefix`; any other program is started by itself.
bool startProgram(const FilePath& program, const FilePath& document, const QString& runner,
                  const QString& winePrefix = {});

/// True for a Windows program on another system while there is no runner: it cannot be started.
bool lacksRunner(const FilePath& program, const QString& runner);

} // namespace morvane
