#pragma once

#include <cstdint>

namespace morvane::art {

/// A colour with channels from 0 to 255, kept as floats while a picture is painted.
struct Color {
    float red = 0;
    float green = 0;
    float blue = 0;
};

/// 0xRRGGBB.
constexpr Color rgb(std::uint32_t value) {
    return {static_cast<float>(value >> 16 & 255), static_cast<float>(value >> 8 & 255),
            static_cast<float>(value & 255)};
}

/// `from` at share 0, `to` at share 1.
constexpr Color mix(Color from, Color to, float share) {
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

constexpr Color scaled(Color color, float factor) {
    return {color.red * factor, color.green * factor, color.blue * factor};
}

/// Channel by channel; 1 leaves a channel as it is.
constexpr Color tinted(Color color, Color factors) {
    return {color.red * factors.red, color.green * factors.green, color.blue * factors.blue};
}

} // namespace morvane::art
