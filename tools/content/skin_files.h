#pragma once

#include "core/file_system.h"

namespace morvane {

/// Draws the whole skin of the window program into `media`, which must be there: backgrounds with their
/// regions, pages, key strips, icons, start picture, previews, cursors. Backgrounds, pages, strips and icons
/// are also written at twice the size, as "name@2x.bmp". The same bytes every time on one system. Needs a
/// QGuiApplication.
void writeSkin(FileSystem& files, const FilePath& media);

/// Writes the help page into its folder.
void writeHelp(FileSystem& files, const FilePath& folder);

} // namespace morvane
