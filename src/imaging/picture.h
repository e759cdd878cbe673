#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace morvane {

/// Bytes of one row of a 24-bit picture: three a pixel, rounded up to a multiple of four.
constexpr int bytesPerRow(int width) {
    return ((width + 1) * 3) & ~3;
}

/// A loaded picture: 24-bit pixels in the order blue, green, red, rows bottom-up, each row
/// `bytesPerRow(width)` long. Empty when width or height is 0.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rows;

    bool isEmpty() const { return width == 0 || height == 0; }
};

} // namespace morvane
