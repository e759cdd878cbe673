#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

constexpr std::array<Color, 4> tulips = {rgb(0xc23b45), rgb(0xe0c23a), rgb(0xd77fa6), rgb(0x8a4a8f)};

bool isRural(const Scene& scene) {
    return scene.image.kind == LandKind::polderRural;
}

/// Tulips bloom in spring only, and only where bulbs were planted.
FieldWork drawStripWork(Scene& scene, bool hasBulbs) {
    FieldWork work = drawFieldWork(scene);
    const Color tulip = scene.random.pick(tulips);
    const Color grass = scene.random.pick(scene.palette.grass);
    const bool isMeadow = scene.random.chance(isRural(scene) ? 0.8f : 0.35f);
    const bool isBlooming = hasBulbs && scene.season() == BaseImageSeason::spring;
    if (isMeadow)
        work.crop = grass;
    else if (isBlooming)
        work.crop = tulip;
    work.across = false;
    return work;
}

/// Narrow fields over the whole width of a cell, water left between them.
void paintDitchedStrips(Scene& scene, const Quad& cell, const NoiseField& tone) {
    const int strips = 7 + scene.random.below(4);
    const bool hasBulbs = scene.random.chance(0.5f) && !isRural(scene);
    for (int strip = 0; strip < strips; ++strip) {
        const float from = (static_cast<float>(strip) + 0.06f) / static_cast<float>(strips);
        const float to = (static_cast<float>(strip) + 0.94f) / static_cast<float>(strips);
        paintField(scene, cell.slice(false, from, to), drawStripWork(scene, hasBulbs), tone);
    }
}

/// A road on the dyke along the cell's side, with a row of trees, and houses at it.
void paintDyke(Scene& scene, const Quad& cell) {
    scene.canvas.paintLine(cell.corners[0], cell.corners[3], 2.6f, scene.palette.grass[2]);
    scene.canvas.paintLine(cell.corners[0], cell.corners[3], 1.5f, scene.palette.street);
    if (scene.random.chance(0.6f)) paintTreeRow(scene, cell.at(0.03f, 0), cell.at(0.03f, 1), 4, 0.05f);
    if (isRural(scene))
        paintHamlet(scene, cell);
    else
        paintFarmstead(scene, cell.at(0.1f, 0.4f), cell.across());
}

} // namespace

void paintPolder(Scene& scene) {
    const NoiseField tone = scene.noise({8, 4, 0.6f}, 51);
    cover(scene, [&](int) { return scene.palette.water; });
    const ParcelPlan plan(scene, {1, 0, 2}, 2);
    for (const Quad& cell : plan.cells(2))
        paintDitchedStrips(scene, cell, tone);
    for (const Quad& cell : plan.cells(0))
        paintDyke(scene, cell);
    mottle(scene, {32, 3, 0.8f}, 53, 0.06f);
}

} // namespace morvane::art
