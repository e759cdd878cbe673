#include "ground_art_noise.h"

#include "ground_art_canvas.h"
#include "ground_art_random.h"

#include <algorithm>
#include <array>

namespace morvane::art {

NoiseField::NoiseField(NoiseShape shape, std::uint64_t seed)
    : values_(static_cast<std::size_t>(canvasSide * canvasSide), 0.0f) {
    float total = 0;
    float weight = 1;
    for (int layer = 0; layer < shape.layers; ++layer, weight *= shape.persistence)
        total += weight;
    weight = 1 / total;
    for (int layer = 0; layer < shape.layers && (shape.knots << layer) <= canvasSide; ++layer) {
        addLayer(shape.knots << layer, weight, scrambled(seed + static_cast<unsigned>(layer)));
        weight *= shape.persistence;
    }
}

void NoiseField::addLayer(int knots, float weight, std::uint64_t seed) {
    RandomStream random(seed);
    std::vector<float> grid(static_cast<std::size_t>(knots * knots));
    for (float& knot : grid)
        knot = random.unit() * weight;
    const int step = canvasSide / knots;
    std::array<float, canvasSide> blend{};
    for (int i = 0; i < step; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(step);
        blend[static_cast<std::size_t>(i)] = t * t * (3 - 2 * t);
    }
    for (int y = 0; y < canvasSide; ++y) {
        const float* above = &grid[static_cast<std::size_t>(y / step * knots)];
        const float* below = &grid[static_cast<std::size_t>((y / step + 1) % knots * knots)];
        const float down = blend[static_cast<std::size_t>(y % step)];
        float* row = &values_[static_cast<std::size_t>(y * canvasSide)];
        for (int column = 0; column < knots; ++column, row += step) {
            const int next = (column + 1) % knots;
            const float left = above[column] + (below[column] - above[column]) * down;
            const float right = above[next] + (below[next] - above[next]) * down;
            for (int i = 0; i < step; ++i)
                row[i] += left + (right - left) * blend[static_cast<std::size_t>(i)];
        }
    }
}

float NoiseField::at(Vector2 position) const {
    return (*this)[wrappedIndex(static_cast<int>(std::floor(position.x)),
                                static_cast<int>(std::floor(position.y)))];
}

float NoiseField::quantile(float share) const {
    // Every seventh pixel tells enough, and 7 shares no factor with the width of a row.
    std::vector<float> sample;
    for (std::size_t i = 0; i < values_.size(); i += 7)
        sample.push_back(values_[i]);
    const auto place =
        sample.begin() + static_cast<std::ptrdiff_t>(share * static_cast<float>(sample.size() - 1));
    std::nth_element(sample.begin(), place, sample.end());
    return *place;
}

} // namespace morvane::art
