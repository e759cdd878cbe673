#pragma once

#include "core/file_system.h"

namespace morvane {

/// Draws the sky maps into `home`\Resources\Sky, copies those of the base set "Default" into the folder of
/// the set of that name, and lays older-looking maps of all the names into the sample simulator's "Texture",
/// in upper case. An empty `simulator` stands for none.
void writeSkyStock(FileSystem& files, const FilePath& home, const FilePath& simulator);

} // namespace morvane
