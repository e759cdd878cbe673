#pragma once

#include "imaging/colour_space.h"
#include "imaging/colour_values.h"
#include "imaging/sky_group.h"

namespace morvane {

/// One pixel of `cColourise.process`, not clamped. Raises "Overflow" outside 32 bits.
RgbColour recolouredPixel(const ColourValues& values, const RgbColour& pixel);

/// One pixel of a sky group, not clamped. The group's raw values are scaled here without a cut to a float:
/// not the arithmetic of `recolouredPixel` with scaled values, ties fall differently.
RgbColour recolouredByGroup(const SkyGroup& group, const RgbColour& pixel);

/// Whether the pixel at byte offset `x` of row `y` is the group's.
bool belongsToGroup(const SkyGroup& group, int x, int y);

} // namespace morvane
