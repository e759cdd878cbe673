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

void paintFarmRoads(Scene& scene, const ParcelPlan& plan) {
    const bool isPaved = scene.image.kind == LandKind::rural || scene.random.chance(0.5f);
    for (const Quad& cell : plan.cells(0))
        for (std::size_t side = 0; side < 4; side += 3) {
            const Vector2 from = cell.corners[side];
            const Vector2 to = cell.corners[(side + 1) % 4];
            scene.canvas.paintLine(from, to, 3, scene.palette.grass[2], 0.8f);
            scene.canvas.paintLine(from, to, 1.7f, isPaved ? scene.palette.street : scene.palette.track);
            if (scene.random.chance(0.35f))
                paintTreeRow(scene, from + Vector2{2, 2}, to + Vector2{2, 2}, 6, 0.25f);
        }
}

void paintHamlet(Scene& scene, const Quad& cell) {
    const Vector2 along = unitVector(cell.corners[1] - cell.corners[0]);
    for (int house = 0; house < 14; ++house) {
        const float side = house % 2 == 0 ? 1.0f : -1.0f;
        const float forward = static_cast<float>(house / 2) * 9 - 30;
        const float fromRoad = side * scene.random.between(6, 8);
        const float shifted = forward + scene.random.between(-1.5f, 1.5f);
        const Vector2 place = cell.corners[0] + along * shifted + perpendicular(along) * fromRoad;
        scene.canvas.paintBox({place, along, 4.5f, 4.5f}, scene.palette.grass[0]);
        paintHouse(scene, {place, along, scene.random.between(2.4f, 3.4f), 1.9f}, 1.6f);
        paintTree(scene, place + scene.anyDirection() * 5, 1.8f);
    }
}

} // namespace morvane::art
