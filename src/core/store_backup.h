#pragma once

#include "core/file_path.h"

namespace morvane {

/// Copies a closed store, whole, into a file that does not exist yet; what a killed program left beside the
/// store is in the copy, too. Failures raise Error; a copy that is cut short may be left behind.
void copyStore(const FilePath& store, const FilePath& copy);

} // namespace morvane
