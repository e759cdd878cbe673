#pragma once

#include "ground_art_geometry.h"

#include <cstdint>
#include <vector>

namespace morvane::art {

/// What a noise looks like: knots across the tile of the coarsest layer (a power of two, 2 to 128), layers,
/// each with twice the knots of the one before, and the weight of a layer beside the one before it.
struct NoiseShape {
    int knots = 4;
    int layers = 4;
    float persistence = 0.5f;
};

/// Smooth random values over a tile, 0 to 1 and about 0.5 in the mean, continuous over the tile's edges.
class NoiseField {
public:
    NoiseField(NoiseShape shape, std::uint64_t seed);

    float operator[](int index) const { return values_[static_cast<std::size_t>(index)]; }
    float at(Vector2 position) const;
    /// The value for which the given share of all pixels lies below.
    float quantile(float share) const;

private:
    void addLayer(int knots, float weight, std::uint64_t seed);

    std::vector<float> values_;
};

} // namespace morvane::art
