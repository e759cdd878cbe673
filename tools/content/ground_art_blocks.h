#pragma once

#include "ground_art_scene.h"

namespace morvane::art {

/// Where a block of a town is painted, and to what measure.
struct BlockSite {
    Scene& scene;
    /// Makes ground uneven.
    const NoiseField& tone;
    /// Mean distance from house to house.
    float lot;
    /// Height of the ring buildings, in pixels.
    float height;

    void paintGround(const Quad& quad, Color color) const;
    void paintLawn(const Quad& quad) const;
};

// One block each, its pavement included.

/// Single houses in gardens.
void paintHouses(const BlockSite& site, const Quad& block);
/// A closed ring of buildings around a court.
void paintPerimeter(const BlockSite& site, const Quad& block);
void paintTowers(const BlockSite& site, const Quad& block);
/// Paths crosswise, trees around.
void paintPublicGarden(const BlockSite& site, const Quad& block);
/// A pitch in a running track.
void paintSports(const BlockSite& site, const Quad& block);
/// Grass and trees.
void paintOpen(const BlockSite& site, const Quad& block);

/// A hall beside tanks, cars, containers or a second hall.
void paintHalls(const BlockSite& site, const Quad& block);
void paintCarPark(const BlockSite& site, const Quad& block);

} // namespace morvane::art
