#include "ground_art_fields.h"

#include "ground_art_features.h"

namespace morvane::art {

FieldWork drawFieldWork(Scene& scene) {
    FieldWork work;
    work.crop = scene.anyShade(scene.palette.crops, 0.92f, 1.08f);
    if (scene.random.chance(0.22f)) work.crop = scene.random.pick(scene.palette.grass);
    work.earth = scene.palette.soil;
    work.furrow = scene.random.between(2.6f, 6);
    work.contrast = scene.random.between(0.03f, 0.11f);
    work.across = scene.random.chance(0.4f);
    return work;
}

void paintField(Scene& scene, const Quad& field, const FieldWork& work, const NoiseField& tone) {
    visitQuad(field, [&](const Touch& touch) {
        const float place = (work.across ? touch.u : touch.v) / work.furrow;
        const float inFurrow = std::fabs(place - std::floor(place) - 0.5f) * 2;
        const float uneven = tone[touch.index] - 0.5f;
        const Color crop = mix(work.crop, work.earth, clampedToUnit(uneven * 1.6f));
        scene.canvas.paint(touch, scaled(crop, 1 + work.contrast * (inFurrow - 0.5f) * 2 + uneven * 0.12f));
    });
}

void paintHedges(Scene& scene, const Quad& field, float share) {
    for (std::size_t side = 0; side < 4; ++side) {
        const Vector2 from = field.corners[side];
        const Vector2 to = field.corners[(side + 1) % 4];
        const bool hasTrees = scene.random.chance(0.45f);
        if (!scene.random.chance(share)) continue;
        scene.canvas.paintLine(from, to, 1.6f, scene.palette.hedge, 0.85f);
        if (hasTrees) paintTreeRow(scene, from, to, 4.5f, 0.3f);
    }
}

} // namespace morvane::art
