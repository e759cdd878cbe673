#pragma once

#include "sky/sky_groups.h"

namespace morvane {

/// The column under the pointer, 1 to 32, from its place on the palette picture (0 to 240 display units); 0
/// between two columns and beside the picture.
float mouseToPixelX(float x);
/// The row in the same way, counted from the bottom: the top of the picture is row 32.
float mouseToPixelY(float y);

/// The group of the pixel under a place of the palette picture; nothing between two columns and beside them.
/// A place between two rows is taken for the main sky.
const SkyGroupConstants* skyGroupAt(float x, float y);

} // namespace morvane
