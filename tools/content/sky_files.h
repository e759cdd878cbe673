#pragma once

#include "delivery.h"

namespace morvane {

/// Draws the sky maps into `home`\Resources\Sky.
void writeSkyStock(const PutFile& put, const FilePath& home);

/// Gives the sky set "Default" the maps of its base set, and lays older-looking maps of all the names into
/// the sample simulator's "Texture", in upper case. An empty `simulator` stands for none.
void writeSkySets(FileSystem& files, const FilePath& home, const FilePath& simulator);

} // namespace morvane
