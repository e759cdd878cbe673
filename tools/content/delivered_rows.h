#pragma once

#include "core/file_system.h"

namespace morvane {

/// Makes the store with all its tables and the rows that come with an install: resource folders, the bodies
/// of the base install, switches, the "Default" sets and the night sets, all airports with a four-letter
/// code, and the decoded reports of the sample cycles with the positions of their stations.
void writeDeliveredStore(FileSystem& files, const FilePath& data, const FilePath& path);

} // namespace morvane
