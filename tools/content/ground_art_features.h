#pragma once

#include "ground_art_scene.h"

#include <vector>

namespace morvane::art {

/// Lets a noise lighten and darken all that is painted so far, by up to `strength` times the colour.
void mottle(Scene& scene, NoiseShape shape, unsigned salt, float strength);

/// Grass all over, from light to dark by a noise.
void coverWithGrass(Scene& scene, unsigned salt);

/// One crown; conifers are taken as often as the climate tells.
void paintTree(Scene& scene, Vector2 place, float radius);
void paintBroadleaf(Scene& scene, Vector2 place, float radius);
void paintConifer(Scene& scene, Vector2 place, float radius);
/// A row of crowns, about `spacing` pixels apart, with gaps for a share of them.
void paintTreeRow(Scene& scene, Vector2 from, Vector2 to, float spacing, float gaps);
/// Crowns all over a parcel; `spacing` is their mean distance.
void paintTreesIn(Scene& scene, const Quad& quad, float spacing, float radius);
/// So many crowns anywhere in a parcel.
void strewTrees(Scene& scene, const Quad& quad, int count);
/// A clump of crowns around a place.
void paintGrove(Scene& scene, Vector2 centre, float reach, int count);

/// A house with a ridged roof along the box.
void paintHouse(Scene& scene, const Box& box, float eaves);
/// A building with a flat roof, a rim around it and something on top.
void paintFlatBuilding(Scene& scene, const Box& box, float height);
/// A long hall with skylights.
void paintHall(Scene& scene, const Box& box);
/// Rows of parked cars.
void paintCars(Scene& scene, const Quad& lot);
/// Still water with a bank.
void paintPond(Scene& scene, Vector2 centre, float radius);
/// A house or two, a barn, a yard and trees.
void paintFarmstead(Scene& scene, Vector2 centre, Vector2 along);

/// A line through many points, ends of the pieces rounded off.
void paintPath(Scene& scene, const std::vector<Vector2>& points, float width, Color color, float opacity = 1);
/// A curve through the tile that meets itself at the edges: from top to bottom, or from side to side.
std::vector<Vector2> windingLine(Scene& scene, bool downwards, float swing);

} // namespace morvane::art
