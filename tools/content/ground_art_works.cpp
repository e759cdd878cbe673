#include "ground_art_blocks.h"
#include "ground_art_features.h"

namespace morvane::art {

namespace {

void paintHallOn(const BlockSite& site, const Quad& lot) {
    const Vector2 size = lot.size();
    const bool isWide = size.x > size.y;
    paintHall(site.scene, {lot.at(0.5f, 0.5f), isWide ? lot.along() : lot.across(),
                           std::max(size.x, size.y) / 2, std::min(size.x, size.y) / 2});
}

void paintTanks(const BlockSite& site, const Quad& yard) {
    const Vector2 size = yard.size();
    const float radius = std::min(5.5f, std::min(size.x, size.y) * 0.2f);
    const int columns = std::max(1, static_cast<int>(size.x / (radius * 2.8f)));
    const int rows = std::max(1, static_cast<int>(size.y / (radius * 2.8f)));
    for (int tank = 0; tank < columns * rows; ++tank) {
        const float s = (static_cast<float>(tank % columns) + 0.5f) / static_cast<float>(columns);
        const float t = (static_cast<float>(tank / columns) + 0.5f) / static_cast<float>(rows);
        visitDisc({yard.at(s, t), radius}, [&](const Touch& touch) {
            const float round = (touch.u + touch.v) / (radius * 2);
            site.scene.canvas.paint(touch, scaled(rgb(0xdadad6), 0.95f - 0.13f * round));
            site.scene.canvas.raise(touch, 3);
        });
    }
}

void paintContainers(const BlockSite& site, const Quad& yard) {
    constexpr std::array<Color, 5> paints = {rgb(0xa0442e), rgb(0x3d6584), rgb(0x8d8f8b), rgb(0x4d7a55),
                                             rgb(0xc9a23d)};
    const Vector2 size = yard.size();
    for (float v = 2; v < size.y - 2; v += 3)
        for (float u = 4; u < size.x - 3; u += 6.5f) {
            const Color paint = site.scene.snowed(site.scene.random.pick(paints), 0.5f);
            if (!site.scene.random.chance(0.55f)) continue;
            visitBox({yard.at(u / size.x, v / size.y), yard.along(), 2.9f, 1.1f}, [&](const Touch& touch) {
                site.scene.canvas.paint(touch, paint);
                site.scene.canvas.raise(touch, 1);
            });
        }
}

} // namespace

void paintHalls(const BlockSite& site, const Quad& block) {
    site.paintGround(block, mix(site.scene.palette.pavement, site.scene.palette.street, 0.5f));
    const Vector2 size = block.size();
    const bool isWide = size.x > size.y;
    const float split = site.scene.random.between(0.3f, 0.45f);
    const Quad yard = block.slice(isWide, 0, split);
    const Quad rest = block.slice(isWide, split, 1);
    paintHallOn(site, rest.inset(2.5f));
    const int use = site.scene.random.below(4);
    if (use == 0)
        paintTanks(site, yard);
    else if (use == 1)
        paintCars(site.scene, yard.inset(2));
    else if (use == 2)
        paintHallOn(site, yard.inset(3));
    else
        paintContainers(site, yard.inset(2));
    paintTreeRow(site.scene, block.corners[0], block.corners[1], 5, 0.5f);
}

void paintCarPark(const BlockSite& site, const Quad& block) {
    site.paintGround(block, site.scene.palette.street);
    paintCars(site.scene, block.inset(1.5f));
    paintTreeRow(site.scene, block.corners[0], block.corners[1], 5, 0.2f);
    paintTreeRow(site.scene, block.corners[2], block.corners[3], 5, 0.2f);
}

} // namespace morvane::art
