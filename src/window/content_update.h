#pragma once

#include "core/file_path.h"

namespace morvane {

/// Whether an older version of the program filled that install folder, and this one may write there and has
/// not failed twice.
bool awaitsContentUpdate(const FilePath& home);

/// Brings what that version delivered up to date by the content tool, with progress; the tool knows what is
/// the pilot's. A cut, "Later" and a failure leave each file old or new, and the next start goes on. A
/// failure is told; it is no reason not to start. While another program works on the install nothing is done.
void updateDeliveredContent(const FilePath& home);

} // namespace morvane
