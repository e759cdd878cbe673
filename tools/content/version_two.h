#pragma once

#include "core/file_system.h"

namespace morvane {

/// Turns a made install into one of version 2 over which the files of version 2.1 were just laid: two ground
/// sets of its own with their files but no Dutch textures, tables without what the upgrade adds and with few
/// rows, COUNTRIES, and the two text files of the upgrade with all airports and reports. Its first run lies
/// behind it.
void makeVersionTwo(FileSystem& files, const FilePath& home);

} // namespace morvane
