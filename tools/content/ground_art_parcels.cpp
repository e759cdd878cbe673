#include "ground_art_parcels.h"

namespace morvane::art {

namespace {

/// The first corners of all cells that have their centre inside the tile, in cells; whole numbers, so that
/// none is lost or taken twice at an edge.
std::vector<Vector2> cellCorners(GridShape shape) {
    const int side = 2 * shape.fineness * (shape.stepX * shape.stepX + shape.stepY * shape.stepY);
    const int reach = 2 * shape.fineness * (shape.stepX + shape.stepY);
    std::vector<Vector2> corners;
    for (int row = -reach; row <= reach; ++row)
        for (int column = -reach; column <= reach; ++column) {
            const int x = shape.stepX * (2 * column + 1) - shape.stepY * (2 * row + 1);
            const int y = shape.stepY * (2 * column + 1) + shape.stepX * (2 * row + 1);
            if (x >= 0 && x < side && y >= 0 && y < side)
                corners.push_back({static_cast<float>(column), static_cast<float>(row)});
        }
    return corners;
}

} // namespace

ParcelPlan::ParcelPlan(const Scene& scene, GridShape shape, float bend)
    : shape_(shape), axis_(unitVector({static_cast<float>(shape.stepX), static_cast<float>(shape.stepY)})),
      corners_(cellCorners(shape)), bendX_(scene.noise({4, 2, 0.35f}, 901)),
      bendY_(scene.noise({4, 2, 0.35f}, 902)), bend_(bend) {
    const Vector2 steps{static_cast<float>(shape.stepX), static_cast<float>(shape.stepY)};
    cellSide_ = canvasSide / (static_cast<float>(shape.fineness) * length(steps));
}

Vector2 ParcelPlan::place(Vector2 grid) const {
    const Vector2 straight = (axis_ * grid.x + perpendicular(axis_) * grid.y) * cellSide_;
    return straight + Vector2{bendX_.at(straight) - 0.5f, bendY_.at(straight) - 0.5f} * (2 * bend_);
}

Quad ParcelPlan::quadOf(Vector2 cell, const Patch& patch) const {
    const float scale = 1 / cellSide_;
    return {{place(cell + patch.low * scale), place(cell + Vector2{patch.high.x, patch.low.y} * scale),
             place(cell + patch.high * scale), place(cell + Vector2{patch.low.x, patch.high.y} * scale)}};
}

std::vector<Quad> ParcelPlan::cells(float inset) const {
    std::vector<Quad> quads;
    for (const Vector2& corner : corners_)
        quads.push_back(quadOf(corner, {{inset, inset}, {cellSide_ - inset, cellSide_ - inset}}));
    return quads;
}

std::vector<Quad> ParcelPlan::divide(Scene& scene, const Division& division) const {
    std::vector<Quad> quads;
    for (const Vector2& corner : corners_) {
        std::vector<Patch> parcels;
        const float far = cellSide_ - division.inset;
        cut(scene, division, {{division.inset, division.inset}, {far, far}}, parcels);
        for (const Patch& parcel : parcels)
            quads.push_back(quadOf(corner, parcel));
    }
    return quads;
}

void ParcelPlan::cut(Scene& scene, const Division& division, const Patch& patch,
                     std::vector<Patch>& parcels) const {
    const Vector2 size = patch.high - patch.low;
    const float longer = std::max(size.x, size.y);
    const float limit = division.largestSide * scene.random.between(division.smallestShare, 1);
    if (longer <= limit) {
        parcels.push_back(patch);
        return;
    }
    const bool cutsAcross = size.x >= size.y;
    const float share = scene.random.between(0.36f, 0.64f);
    Patch first = patch;
    Patch second = patch;
    float& firstEnd = cutsAcross ? first.high.x : first.high.y;
    float& secondStart = cutsAcross ? second.low.x : second.low.y;
    const float at = secondStart + longer * share;
    firstEnd = at - division.gap / 2;
    secondStart = at + division.gap / 2;
    cut(scene, division, first, parcels);
    cut(scene, division, second, parcels);
}

} // namespace morvane::art
