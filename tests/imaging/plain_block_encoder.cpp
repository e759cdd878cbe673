#include "imaging/plain_block_encoder.h"

#include "imaging/single_colour_ends.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace morvane::test {

namespace {

using Colour = std::array<int, 3>;
using Pixels = std::array<Colour, 16>;
using Line = std::array<float, 3>;

struct Ends {
    std::uint32_t first, second;
};

struct Aim {
    Colour direction;
    std::array<int, 3> thresholds;

    int productWith(const Colour& pixel) const {
        return direction[0] * pixel[0] + direction[1] * pixel[1] + direction[2] * pixel[2];
    }
    int weightOf(const Colour& pixel) const {
        const int product = productWith(pixel);
        return static_cast<int>(
            std::ranges::count_if(thresholds, [product](int threshold) { return product >= threshold; }));
    }
    void setThresholds(float low, float high) {
        const float parts[] = {1.0F / 6.0F, 0.5F, 5.0F / 6.0F};
        for (std::size_t i = 0; i < 3; ++i)
            thresholds[i] = static_cast<int>(std::nearbyint(low + (high - low) * parts[i]));
    }
};

Pixels pixelsOf(const BlockGroup& group, std::size_t block) {
    Pixels pixels;
    for (std::size_t channel = 0; channel < 3; ++channel)
        for (std::size_t i = 0; i < 16; ++i)
            pixels[i][channel] = static_cast<int>(group.words[channel][i / 4][block] >> (8 * (i % 4)) & 255);
    return pixels;
}

float sumOf(const Pixels& pixels, std::size_t channel) {
    int sum = 0;
    for (const Colour& pixel : pixels)
        sum += pixel[channel];
    return static_cast<float>(sum);
}

float covariance(const Pixels& pixels, std::size_t a, std::size_t b) {
    int products = 0;
    for (const Colour& pixel : pixels)
        products += pixel[a] * pixel[b];
    return static_cast<float>(16 * products) - sumOf(pixels, a) * sumOf(pixels, b);
}

Colour scaled(const Line& line) {
    const float length = std::abs(line[0]) + std::abs(line[1]) + std::abs(line[2]);
    const float scale = 126.0F / std::max(length, 1.0F);
    Colour direction;
    for (std::size_t i = 0; i < 3; ++i)
        direction[i] = static_cast<int>(std::nearbyint(line[i] * scale));
    return direction;
}

Colour mainDirection(const Pixels& pixels) {
    float matrix[3][3];
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] = covariance(pixels, row, column);
    const std::size_t first = matrix[0][0] >= matrix[1][1] ? 0 : 1;
    const std::size_t greatest = matrix[2][2] >= matrix[first][first] ? 2 : first;
    Line line{matrix[greatest][0], matrix[greatest][1], matrix[greatest][2]};
    for (int step = 0; step < 3; ++step) {
        Line next;
        for (std::size_t i = 0; i < 3; ++i)
            next[i] = matrix[i][0] * line[0] + matrix[i][1] * line[1] + matrix[i][2] * line[2];
        line = next;
    }
    return scaled(line);
}

Aim firstAim(const Pixels& pixels) {
    Aim aim{mainDirection(pixels), {}};
    int low = aim.productWith(pixels[0]), high = low;
    for (const Colour& pixel : pixels) {
        low = std::min(low, aim.productWith(pixel));
        high = std::max(high, aim.productWith(pixel));
    }
    aim.setThresholds(static_cast<float>(low), static_cast<float>(high));
    return aim;
}

std::uint32_t packed(const Line& colour) {
    constexpr float shift[] = {0.375F, 0.46875F, 0.375F}, step[] = {8.25F, 4.0625F, 8.25F};
    std::array<std::uint32_t, 3> bits;
    for (std::size_t i = 0; i < 3; ++i)
        bits[i] = static_cast<std::uint32_t>(
            std::nearbyint((std::clamp(colour[i], 0.0F, 255.0F) + shift[i]) * (1 / step[i])));
    return bits[0] << 11 | bits[1] << 5 | bits[2];
}

Ends refined(const Pixels& pixels, const Aim& aim) {
    int weights = 0, squares = 0;
    Colour products{};
    for (const Colour& pixel : pixels) {
        const int weight = aim.weightOf(pixel);
        weights += weight;
        squares += weight * weight;
        for (std::size_t i = 0; i < 3; ++i)
            products[i] += weight * pixel[i];
    }
    const auto weight = static_cast<float>(weights);
    const float divisor = std::max(static_cast<float>(16 * squares) - weight * weight, 0.5F);
    Line first, second;
    for (std::size_t i = 0; i < 3; ++i) {
        const float sum = sumOf(pixels, i);
        const float slope = (static_cast<float>(16 * products[i]) - weight * sum) / divisor;
        first[i] = (sum - slope * weight) * 0.0625F;
        second[i] = first[i] + slope * 3.0F;
    }
    return {packed(first), packed(second)};
}

Line widened(std::uint32_t end) {
    const std::uint32_t red = end >> 11, green = end >> 5 & 63, blue = end & 31;
    return {static_cast<float>(red << 3 | red >> 2), static_cast<float>(green << 2 | green >> 4),
            static_cast<float>(blue << 3 | blue >> 2)};
}

Aim aimAt(const Ends& ends) {
    const Line first = widened(ends.first), second = widened(ends.second);
    Aim aim{scaled({second[0] - first[0], second[1] - first[1], second[2] - first[2]}), {}};
    const auto along = [&aim](const Line& colour) {
        float product = 0;
        for (std::size_t i = 0; i < 3; ++i)
            product += static_cast<float>(aim.direction[i]) * colour[i];
        return product;
    };
    aim.setThresholds(along(first), along(second));
    return aim;
}

Ends spread(const Pixels& pixels, const Ends& ends) {
    if (ends.first != ends.second) return ends;
    std::array<std::size_t, 3> mean;
    for (std::size_t i = 0; i < 3; ++i)
        mean[i] = (static_cast<std::size_t>(sumOf(pixels, i)) + 8) / 16;
    const EndPair red = fiveBitEnds.of[mean[0]], green = sixBitEnds.of[mean[1]],
                  blue = fiveBitEnds.of[mean[2]];
    const auto joined = [](unsigned r, unsigned g, unsigned b) { return r << 11 | g << 5 | b; };
    return {joined(red.first, green.first, blue.first), joined(red.second, green.second, blue.second)};
}

} // namespace

EncodedBlock plainlyEncoded(const BlockGroup& group, std::size_t block) {
    const Pixels pixels = pixelsOf(group, block);
    const Ends found = refined(pixels, aimAt(refined(pixels, firstAim(pixels))));
    const Ends ends = spread(pixels, found);
    const Aim aim = aimAt(ends);
    constexpr std::uint32_t indexOfWeight[] = {0, 2, 3, 1};
    const bool isTurned = ends.second > ends.first;
    std::uint32_t indexes = 0;
    for (std::size_t i = 0; i < pixels.size() && ends.first != ends.second; ++i) {
        const int weight = aim.weightOf(pixels[i]);
        indexes |= indexOfWeight[isTurned ? 3 - weight : weight] << (2 * i);
    }
    const auto greater = static_cast<std::uint16_t>(std::max(ends.first, ends.second));
    const auto smaller = static_cast<std::uint16_t>(std::min(ends.first, ends.second));
    return {{greater, smaller}, indexes};
}

} // namespace morvane::test
