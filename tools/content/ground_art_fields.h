#pragma once

#include "ground_art_parcels.h"

namespace morvane::art {

/// Field country follows one of these; which one is a draw.
constexpr std::array<GridShape, 4> farmGrids = {{{1, 0, 1}, {2, 1, 1}, {1, 1, 1}, {1, 0, 2}}};

/// How a field is worked.
struct FieldWork {
    Color crop;
    Color earth;
    /// Pixels from furrow to furrow, and how strongly they show.
    float furrow = 4;
    float contrast = 0.07f;
    /// Direction of the furrows: along the parcel, or across it.
    bool across = false;
};

/// A crop of the season with its furrows, drawn from the scene's random stream.
FieldWork drawFieldWork(Scene& scene);
/// One field; `tone` is a noise that makes it uneven.
void paintField(Scene& scene, const Quad& field, const FieldWork& work, const NoiseField& tone);
/// Hedges or rows of trees along some of the parcel's sides.
void paintHedges(Scene& scene, const Quad& field, float share);
/// Roads and tracks along two sides of each cell, some lined with trees.
void paintFarmRoads(Scene& scene, const ParcelPlan& plan);
/// Houses on both sides of the road that starts at the cell's first corner.
void paintHamlet(Scene& scene, const Quad& cell);

} // namespace morvane::art
