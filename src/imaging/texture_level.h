#pragma once

#include "imaging/picture.h"

namespace morvane {

/// One level of a texture before it is encoded: three planes of a byte a pixel (red, green, blue), rows
/// bottom-up and without gaps. Sides are powers of two.
struct TextureLevel {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> planes[3];
};

TextureLevel levelOf(const Picture& picture);

/// The next smaller level: both sides halved, but not below 1, each pixel the average of four, rounded to
/// nearest. It is made from exact pixels, never from decoded ones: errors would pile up from level to level.
TextureLevel halved(const TextureLevel& level);

} // namespace morvane
