#pragma once

#include "core/file_system.h"

namespace morvane {

/// Gives the night sets that come with the install their files, as an activation by the program does. The
/// base images of the night and the store have to be there. Raises when one could not be made.
void writeNightSets(FileSystem& files, const FilePath& home);

} // namespace morvane
