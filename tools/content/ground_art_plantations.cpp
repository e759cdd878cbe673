#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

void paintOrchards(Scene& scene) {
    const NoiseField tone = scene.noise({8, 4, 0.6f}, 61);
    coverWithGrass(scene, 62);
    const ParcelPlan plan(scene, scene.random.pick(farmGrids), 12);
    const std::vector<Quad> parcels = plan.divide(scene, {70, 2.5f, 1.5f, 0.5f});
    for (const Quad& parcel : parcels) {
        const bool isVineyard = scene.random.chance(0.45f);
        const Color ground = mix(scene.palette.soil, scene.palette.grass[0], scene.random.unit());
        FieldWork rows{ground, scene.palette.soil, 3.4f, 0.03f, scene.random.chance(0.5f)};
        if (isVineyard) rows.contrast = 0.2f;
        if (isVineyard) rows.crop = mix(scene.palette.hedge, ground, 0.45f);
        paintField(scene, parcel, rows, tone);
        const Vector2 size = parcel.size();
        for (float v = 3.5f; v < size.y - 2 && !isVineyard; v += 5.5f)
            for (float u = 3.5f; u < size.x - 2; u += 5.5f)
                paintBroadleaf(scene, parcel.at(u / size.x, v / size.y), scene.random.between(1.5f, 2.1f));
    }
    paintFarmRoads(scene, plan);
    for (const Quad& parcel : parcels)
        if (scene.random.chance(0.12f)) paintFarmstead(scene, parcel.inset(10).corners[2], parcel.along());
    mottle(scene, {32, 3, 0.8f}, 63, 0.06f);
}

void paintIrrigatedCircles(Scene& scene) {
    const NoiseField tone = scene.noise({8, 4, 0.6f}, 71);
    const Color dry = mix(scene.palette.crops[5], scene.palette.soil, 0.4f);
    cover(scene, [&](int index) { return scaled(dry, 0.85f + 0.3f * tone[index]); });
    const ParcelPlan plan(scene, {1, 0, scene.random.chance(0.5f) ? 2 : 3}, 0);
    for (const Quad& cell : plan.cells(0)) {
        const FieldWork work = drawFieldWork(scene);
        const Vector2 cut = scene.anyDirection();
        const Color second = scene.random.pick(scene.palette.crops);
        const bool isHalved = scene.random.chance(0.4f);
        const float radius = plan.cellSide() / 2 - 3;
        visitDisc({cell.at(0.5f, 0.5f), radius}, [&](const Touch& touch) {
            const Vector2 place{touch.u, touch.v};
            const float ring = length(place) / work.furrow;
            const float inRing = std::fabs(ring - std::floor(ring) - 0.5f) * 2;
            const Color crop = isHalved && dot(place, cut) > 0 ? second : work.crop;
            scene.canvas.paint(touch, scaled(crop, 0.9f + 0.1f * inRing + 0.2f * (tone[touch.index] - 0.5f)));
        });
        scene.canvas.paintLine(cell.at(0.5f, 0.5f), cell.at(0.5f, 0.5f) + cut * radius, 0.8f,
                               scene.palette.pavement);
    }
    for (const Quad& cell : plan.cells(0)) {
        scene.canvas.paintLine(cell.corners[0], cell.corners[1], 1.8f, scene.palette.track);
        scene.canvas.paintLine(cell.corners[0], cell.corners[3], 1.8f, scene.palette.track);
        if (scene.random.chance(0.4f)) paintFarmstead(scene, cell.at(0.08f, 0.08f), cell.along());
    }
    mottle(scene, {32, 3, 0.8f}, 73, 0.07f);
}

} // namespace morvane::art
