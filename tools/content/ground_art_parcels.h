#pragma once

#include "ground_art_scene.h"

#include <vector>

namespace morvane::art {

/// A square grid that may stand at an angle and still meets itself at the tile's edges: `stepX` cells over
/// and `stepY` down a side, both times `fineness`, lead from one edge of the tile to the same place on the
/// other. (1, 0) is upright, (2, 1) stands at 27 degrees.
struct GridShape {
    int stepX = 1;
    int stepY = 0;
    int fineness = 2;
};

/// How the cells of a grid are cut into parcels.
struct Division {
    /// Parcels with a longer side are cut.
    float largestSide = 60;
    /// Pixels left free between two parcels.
    float gap = 0;
    /// Pixels left free along the cell's edges.
    float inset = 0;
    /// A parcel below `largestSide` times this share is never cut further.
    float smallestShare = 0.55f;
};

/// A division of the tile into fields or blocks, bent by a smooth displacement so that it looks grown.
class ParcelPlan {
public:
    /// `bend` is the largest displacement in pixels.
    ParcelPlan(const Scene& scene, GridShape shape, float bend);

    /// The cells themselves, `inset` pixels smaller on each side.
    std::vector<Quad> cells(float inset) const;
    /// All parcels. Lots are drawn from the scene's random stream.
    std::vector<Quad> divide(Scene& scene, const Division& division) const;
    /// The tile's pixel for grid coordinates in cells.
    Vector2 place(Vector2 grid) const;
    float cellSide() const { return cellSide_; }

private:
    /// In pixels along the grid's axes from the cell's first corner.
    struct Patch {
        Vector2 low;
        Vector2 high;
    };
    Quad quadOf(Vector2 cell, const Patch& patch) const;
    void cut(Scene& scene, const Division& division, const Patch& patch, std::vector<Patch>& parcels) const;

    GridShape shape_;
    float cellSide_ = 0;
    Vector2 axis_;
    std::vector<Vector2> corners_;
    NoiseField bendX_;
    NoiseField bendY_;
    float bend_;
};

} // namespace morvane::art
