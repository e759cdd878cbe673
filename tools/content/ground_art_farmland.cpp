#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// What lies in a country of fields, as shares of its parcels and sides.
struct FarmStyle {
    float fieldSide;
    float bend;
    float hedges;
    float woods;
    float meadows;
    float farms;
};

FarmStyle styleOf(Scene& scene) {
    const float size = scene.random.between(0.85f, 1.2f);
    switch (scene.image.kind) {
    case LandKind::rural:
        return {62 * size, 18, 0.75f, 0.24f, 0.32f, 0.35f};
    case LandKind::stripFields:
        return {46 * size, 10, 0.2f, 0.06f, 0.15f, 0.06f};
    default:
        return {82 * size, scene.random.between(4, 16), 0.45f, 0.07f, 0.12f, 0.1f};
    }
}

void paintWood(Scene& scene, const Quad& parcel) {
    scene.canvas.paintQuad(parcel, mix(scene.palette.hedge, scene.palette.soil, 0.25f));
    paintTreesIn(scene, parcel.inset(1), 4.2f, 2.4f);
}

void paintMeadow(Scene& scene, const Quad& parcel, const NoiseField& tone) {
    paintField(scene, parcel,
               {scene.random.pick(scene.palette.grass), scene.palette.grass[1], 5, 0.015f, false}, tone);
    strewTrees(scene, parcel, 3);
}

/// A parcel as several narrow fields side by side.
void paintStrips(Scene& scene, const Quad& parcel, const NoiseField& tone) {
    const Vector2 size = parcel.size();
    const bool isWide = size.x > size.y;
    const int strips = std::max(2, static_cast<int>((isWide ? size.x : size.y) / 9));
    for (int strip = 0; strip < strips; ++strip) {
        const float from = static_cast<float>(strip) / static_cast<float>(strips);
        const float to = static_cast<float>(strip + 1) / static_cast<float>(strips);
        paintField(scene, parcel.slice(isWide, from, to), drawFieldWork(scene), tone);
    }
}

void paintParcel(Scene& scene, const Quad& parcel, const FarmStyle& style, const NoiseField& tone) {
    const float use = scene.random.unit();
    if (use < style.woods) return paintWood(scene, parcel);
    if (use < style.woods + style.meadows) return paintMeadow(scene, parcel, tone);
    if (scene.image.kind == LandKind::stripFields) return paintStrips(scene, parcel, tone);
    paintField(scene, parcel, drawFieldWork(scene), tone);
}

} // namespace

void paintFarmland(Scene& scene) {
    const FarmStyle style = styleOf(scene);
    const NoiseField tone = scene.noise({8, 4, 0.6f}, 41);
    coverWithGrass(scene, 42);
    const ParcelPlan plan(scene, scene.random.pick(farmGrids), style.bend);
    const std::vector<Quad> parcels = plan.divide(scene, {style.fieldSide, 0, 1, 0.5f});
    for (const Quad& parcel : parcels)
        paintParcel(scene, parcel, style, tone);
    for (const Quad& parcel : parcels)
        paintHedges(scene, parcel, style.hedges);
    paintFarmRoads(scene, plan);
    for (const Quad& parcel : parcels)
        if (scene.random.chance(style.farms))
            paintFarmstead(scene, parcel.inset(10).corners[0], parcel.along());
    if (scene.image.kind == LandKind::rural) paintHamlet(scene, plan.cells(0).front());
    mottle(scene, {32, 3, 0.8f}, 43, 0.07f);
}

} // namespace morvane::art
