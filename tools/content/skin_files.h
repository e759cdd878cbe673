#pragma once

#include "delivery.h"

namespace morvane {

/// Draws the whole skin of the window program into `media`, which must be there: backgrounds with their
/// regions, pages, key strips, icons, start picture, previews, cursors. Backgrounds, pages, strips and icons
/// are also written at twice the size, as "name@2x.bmp". The same bytes every time on one system. Needs a
/// QGuiApplication.
void writeSkin(const PutFile& put, const FilePath& media);

/// Writes the help page into its folder.
void writeHelp(const PutFile& put, const FilePath& folder);

} // namespace morvane
