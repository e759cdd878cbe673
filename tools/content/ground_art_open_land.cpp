#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// What stands on open land.
struct OpenLandStyle {
    /// Share of bare or dry ground.
    float bare;
    /// Number of crowns strewn over the tile.
    int crowns;
    float smallestCrown;
    float largestCrown;
    /// 0: crowns anywhere, 1: only where a noise gathers them.
    float gathering;
    int groves;
    bool hasFences;
};

OpenLandStyle styleOf(LandKind kind) {
    switch (kind) {
    case LandKind::savanna:
        return {0.42f, 420, 1.3f, 3.0f, 0.5f, 2, false};
    case LandKind::pasture:
        return {0.12f, 90, 1.3f, 2.4f, 0.6f, 7, true};
    case LandKind::shrubs:
        return {0.30f, 2100, 0.9f, 2.5f, 1.0f, 16, false};
    default:
        return {0.20f, 130, 0.9f, 2.0f, 0.8f, 3, false};
    }
}

/// Green in the hollows, dry on the knolls, bare soil where it is driest.
void paintSward(Scene& scene, float bare) {
    coverWithGrass(scene, 91);
    const NoiseField dryness = scene.noise({4, 5, 0.6f}, 92);
    const float edge = dryness.quantile(1 - bare);
    const Color straw = mix(scene.palette.sand, scene.palette.grass[1], 0.5f);
    // Savanna grass is green only after the spring rains.
    const bool isParched = scene.image.kind == LandKind::savanna;
    const float everywhere = !isParched ? 0.0f : scene.season() == BaseImageSeason::spring ? 0.35f : 0.7f;
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float dry = clampedToUnit((dryness[index] - edge) * 7 + 0.5f);
        const float bald = clampedToUnit((dryness[index] - edge) * 6 - 0.55f);
        scene.canvas.color(index) =
            mix(mix(scene.canvas.color(index), straw, std::max(dry * 0.75f, everywhere)), scene.palette.soil,
                bald * 0.8f);
        scene.canvas.height(index) = dryness[index] * 9;
    }
}

void strewCrowns(Scene& scene, const OpenLandStyle& style) {
    const NoiseField gathering = scene.noise({8, 4, 0.6f}, 93);
    const float middle = gathering.quantile(0.55f);
    for (int crown = 0; crown < style.crowns; ++crown) {
        const Vector2 place = scene.anywhere();
        const float radius = scene.random.between(style.smallestCrown, style.largestCrown);
        const bool isLoner = !scene.random.chance(style.gathering);
        if (isLoner || gathering.at(place) > middle) paintTree(scene, place, radius);
    }
    for (int grove = 0; grove < style.groves; ++grove) {
        const Vector2 centre = scene.anywhere();
        const float reach = scene.random.between(7, 17);
        paintGrove(scene, centre, reach, static_cast<int>(reach * 2.2f));
    }
}

void paintFences(Scene& scene) {
    for (int fence = 0; fence < 4; ++fence) {
        const std::vector<Vector2> line = windingLine(scene, fence % 2 == 0, 14);
        paintPath(scene, line, 1.0f, scene.palette.hedge, 0.5f);
        for (std::size_t i = 8; i < line.size(); i += 8)
            if (scene.random.chance(0.55f)) paintTreeRow(scene, line[i - 8], line[i], 4.5f, 0.35f);
    }
}

/// A dry or wet bed that winds through the land, with green banks.
void paintBrook(Scene& scene) {
    const std::vector<Vector2> bed = windingLine(scene, scene.random.chance(0.5f), 44);
    paintPath(scene, bed, 7, scene.palette.grass[2], 0.4f);
    paintPath(scene, bed, 1.8f, scene.palette.water, 0.85f);
    for (const Vector2& point : bed)
        if (scene.random.chance(0.35f)) paintTree(scene, point + scene.anyDirection() * 4, 1.8f);
}

} // namespace

void paintOpenLand(Scene& scene) {
    const OpenLandStyle style = styleOf(scene.image.kind);
    paintSward(scene, style.bare);
    if (scene.random.chance(0.55f)) paintBrook(scene);
    if (style.hasFences) paintFences(scene);
    if (scene.random.chance(0.7f))
        paintPath(scene, windingLine(scene, scene.random.chance(0.5f), 30), 1.6f, scene.palette.track, 0.85f);
    strewCrowns(scene, style);
    mottle(scene, {32, 3, 0.8f}, 94, 0.1f);
}

} // namespace morvane::art
