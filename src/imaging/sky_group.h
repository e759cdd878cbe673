#pragma once

#include <array>

namespace morvane {

/// One group of sky pixels with the raw colour values that the sky loops scale themselves.
struct SkyGroup {
    float PixelXLow = 0;  ///< first pixel column, counted from 1
    float PixelXHigh = 0; ///< last pixel column, counted from 1
    float PixelY = 0; ///< row, counted from 1 at the bottom; 255 is the band of rows 2 to 30 counted from 0
    float saturation = 0;
    float red = 0;
    float green = 0;
    float blue = 0;
    float brightness = 0;
    float contrast = 0;
};

/// Groups are applied in this order; a pixel in several of them is transformed once by each.
using SkyGroups = std::array<SkyGroup, 10>;

} // namespace morvane
