#pragma once

#include "core/file_system.h"

namespace morvane {

/// What a folder takes of the disk.
struct FolderRoom {
    std::int64_t files = 0;
    std::int64_t bytes = 0; ///< of their contents
};

/// Of everything below the folder; what a link to a folder leads to lies elsewhere. What cannot be looked at
/// is left out, so that one locked folder does not hide the others; a missing folder takes nothing.
FolderRoom roomBelow(FileSystem& files, const FilePath& folder);

} // namespace morvane
