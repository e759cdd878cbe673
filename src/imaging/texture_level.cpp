#include "imaging/texture_level.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr std::size_t pixelSize = 4;

TextureLevel emptyLevel(int width, int height) {
    return {width, height,
            std::vector<std::uint8_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                                      pixelSize)};
}

void averageRow(const std::uint8_t* lower, const std::uint8_t* upper, std::size_t step, int width,
                std::uint8_t* target) {
    for (int x = 0; x < width; ++x, lower += 2 * pixelSize, upper += 2 * pixelSize, target += pixelSize)
        for (std::size_t i = 0; i < pixelSize; ++i)
            target[i] =
                static_cast<std::uint8_t>((lower[i] + lower[i + step] + upper[i] + upper[i + step] + 2) / 4);
}

} // namespace

TextureLevel levelOf(const Picture& picture) {
    TextureLevel level = emptyLevel(picture.width, picture.height);
    std::uint8_t* target = level.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* source =
            picture.rows.data() +
            static_cast<std::size_t>(bytesPerRow(picture.width)) * static_cast<std::size_t>(y);
        for (int x = 0; x < picture.width; ++x, source += 3, target += pixelSize) {
            target[0] = source[2];
            target[1] = source[1];
            target[2] = source[0];
            target[3] = 255;
        }
    }
    return level;
}

/// Where a side is 1 already its only row or column stands for both, which makes it the average of two.
TextureLevel halved(const TextureLevel& level) {
    TextureLevel half = emptyLevel(std::max(level.width / 2, 1), std::max(level.height / 2, 1));
    const std::size_t sourceRow = static_cast<std::size_t>(level.width) * pixelSize;
    const std::size_t step = level.width > 1 ? pixelSize : 0;
    const std::size_t rowStep = level.height > 1 ? sourceRow : 0;
    for (int y = 0; y < half.height; ++y) {
        const auto row = static_cast<std::size_t>(y);
        const std::uint8_t* lower = level.pixels.data() + 2 * row * sourceRow;
        averageRow(lower, lower + rowStep, step, half.width,
                   half.pixels.data() + row * static_cast<std::size_t>(half.width) * pixelSize);
    }
    return half;
}

} // namespace morvane
