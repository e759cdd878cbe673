#include "imaging/texture_level.h"

#include <algorithm>

namespace morvane {

namespace {

TextureLevel emptyLevel(int width, int height) {
    const std::size_t size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return {
        width,
        height,
        {std::vector<std::uint8_t>(size), std::vector<std::uint8_t>(size), std::vector<std::uint8_t>(size)}};
}

/// The loops below have nothing in them that keeps a compiler from working on many pixels at a time.
void averageRow(const std::uint8_t* lower, const std::uint8_t* upper, int width,
                std::uint8_t* __restrict target) {
    for (int x = 0; x < width; ++x)
        target[x] = static_cast<std::uint8_t>(
            (lower[2 * x] + lower[2 * x + 1] + upper[2 * x] + upper[2 * x + 1] + 2) / 4);
}

/// Where the width is 1 already the only column stands for both, which makes it the average of two.
void averageOnlyPixel(const std::uint8_t* lower, const std::uint8_t* upper, std::uint8_t* target) {
    *target = static_cast<std::uint8_t>((2 * *lower + 2 * *upper + 2) / 4);
}

} // namespace

TextureLevel levelOf(const Picture& picture) {
    TextureLevel level = emptyLevel(picture.width, picture.height);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* source =
            picture.rows.data() +
            static_cast<std::size_t>(bytesPerRow(picture.width)) * static_cast<std::size_t>(y);
        const std::size_t first = static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
        std::uint8_t* __restrict red = level.planes[0].data() + first;
        std::uint8_t* __restrict green = level.planes[1].data() + first;
        std::uint8_t* __restrict blue = level.planes[2].data() + first;
        for (int x = 0; x < picture.width; ++x) {
            blue[x] = source[3 * x];
            green[x] = source[3 * x + 1];
            red[x] = source[3 * x + 2];
        }
    }
    return level;
}

TextureLevel halved(const TextureLevel& level) {
    TextureLevel half = emptyLevel(std::max(level.width / 2, 1), std::max(level.height / 2, 1));
    const auto sourceRow = static_cast<std::size_t>(level.width),
               targetRow = static_cast<std::size_t>(half.width);
    const std::size_t rowStep = level.height > 1 ? sourceRow : 0;
    for (std::size_t plane = 0; plane < 3; ++plane)
        for (int y = 0; y < half.height; ++y) {
            const auto row = static_cast<std::size_t>(y);
            const std::uint8_t* lower = level.planes[plane].data() + 2 * row * sourceRow;
            std::uint8_t* target = half.planes[plane].data() + row * targetRow;
            if (level.width > 1)
                averageRow(lower, lower + rowStep, half.width, target);
            else
                averageOnlyPixel(lower, lower + rowStep, target);
        }
    return half;
}

} // namespace morvane
