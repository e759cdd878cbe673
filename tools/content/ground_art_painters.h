#pragma once

#include "ground_art_scene.h"

namespace morvane::art {

// Each painter covers the whole tile. Light and shadow come afterwards, from the heights it leaves.

/// Streets, blocks and buildings: city centres to villages, and industrial estates.
void paintTown(Scene& scene);

/// Fields of all kinds, with or without farms, villages and woods between them.
void paintFarmland(Scene& scene);
/// Reclaimed land: long straight fields between ditches.
void paintPolder(Scene& scene);
/// Orchards and vineyards.
void paintOrchards(Scene& scene);
/// Round fields under turning sprinklers.
void paintIrrigatedCircles(Scene& scene);

/// Grassland, savanna, pasture and shrubs.
void paintOpenLand(Scene& scene);
/// Mixed and conifer forest.
void paintForest(Scene& scene);
/// Reed, pools and creeks.
void paintSwamp(Scene& scene);

/// Desert plains and dunes.
void paintDesert(Scene& scene);
/// Bare rock, tundra, snow and ice.
void paintBarren(Scene& scene);

void paintGolfCourse(Scene& scene);
void paintPark(Scene& scene);

} // namespace morvane::art
