#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

constexpr std::array<GridShape, 4> farmGrids = {{{1, 0, 1}, {2, 1, 1}, {1, 1, 1}, {1, 0, 2}}};

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
        const Quad field =
            isWide ? Quad{{parcel.at(from, 0), parcel.at(to, 0), parcel.at(to, 1), parcel.at(from, 1)}}
                   : Quad{{parcel.at(0, from), parcel.at(1, from), parcel.at(1, to), parcel.at(0, to)}};
        paintField(scene, field, drawFieldWork(scene), tone);
    }
}

void paintParcel(Scene& scene, const Quad& parcel, const FarmStyle& style, const NoiseField& tone) {
    const float use = scene.random.unit();
    if (use < style.woods) return paintWood(scene, parcel);
    if (use < style.woods + style.meadows) return paintMeadow(scene, parcel, tone);
    if (scene.image.kind == LandKind::stripFields) return paintStrips(scene, parcel, tone);
    paintField(scene, parcel, drawFieldWork(scene), tone);
}

/// Roads along the cells, a hamlet on one of them.
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

void paintPolder(Scene& scene) {
    const bool isRural = scene.image.kind == LandKind::polderRural;
    const NoiseField tone = scene.noise({8, 4, 0.6f}, 51);
    cover(scene, [&](int) { return scene.palette.water; });
    const ParcelPlan plan(scene, {1, 0, 2}, 2);
    // Tulips: only in spring, and only on some of the strips.
    constexpr std::array<Color, 4> tulips = {rgb(0xc23b45), rgb(0xe0c23a), rgb(0xd77fa6), rgb(0x8a4a8f)};
    for (const Quad& cell : plan.cells(2)) {
        const int strips = 7 + scene.random.below(4);
        const bool hasBulbs = !isRural && scene.random.chance(0.5f);
        for (int strip = 0; strip < strips; ++strip) {
            const float from = (static_cast<float>(strip) + 0.06f) / static_cast<float>(strips);
            const float to = (static_cast<float>(strip) + 0.94f) / static_cast<float>(strips);
            FieldWork work = drawFieldWork(scene);
            const Color tulip = scene.random.pick(tulips);
            const bool isMeadow = scene.random.chance(isRural ? 0.8f : 0.35f);
            if (isMeadow)
                work.crop = scene.random.pick(scene.palette.grass);
            else if (hasBulbs && scene.season() == BaseImageSeason::spring)
                work.crop = tulip;
            work.across = false;
            paintField(scene, {{cell.at(0, from), cell.at(1, from), cell.at(1, to), cell.at(0, to)}}, work,
                       tone);
        }
    }
    for (const Quad& cell : plan.cells(0)) {
        scene.canvas.paintLine(cell.corners[0], cell.corners[3], 2.6f, scene.palette.grass[2]);
        scene.canvas.paintLine(cell.corners[0], cell.corners[3], 1.5f, scene.palette.street);
        if (scene.random.chance(0.6f)) paintTreeRow(scene, cell.at(0.03f, 0), cell.at(0.03f, 1), 4, 0.05f);
        if (isRural)
            paintHamlet(scene, cell);
        else
            paintFarmstead(scene, cell.at(0.1f, 0.4f), cell.across());
    }
    mottle(scene, {32, 3, 0.8f}, 53, 0.06f);
}

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
