#include "ground_art_blocks.h"

#include "ground_art_features.h"

namespace morvane::art {

void BlockSite::paintGround(const Quad& quad, Color color) const {
    visitQuad(quad, [&](const Touch& touch) {
        scene.canvas.paint(touch, scaled(color, 0.86f + 0.28f * tone[touch.index]));
    });
}

void BlockSite::paintLawn(const Quad& quad) const {
    paintGround(quad, scene.random.pick(scene.palette.grass));
}

namespace {

/// Houses along a street; the block lies to the right of the way from `from` to `to`, `depth` deep.
void paintHouseRow(const BlockSite& site, Vector2 from, Vector2 to, float depth) {
    const int lots = static_cast<int>(length(to - from) / site.lot);
    const Vector2 along = unitVector(to - from);
    const Vector2 inward = perpendicular(along);
    const float back = std::min(depth * 0.28f, 4.6f);
    for (int lot = 0; lot < lots; ++lot) {
        const float share =
            (static_cast<float>(lot) + site.scene.random.between(0.4f, 0.6f)) / static_cast<float>(lots);
        const Vector2 place =
            from + (to - from) * share + inward * (back * site.scene.random.between(0.85f, 1.2f));
        const float halfLength = site.scene.random.between(2.1f, 3.1f);
        const float halfWidth = std::min(site.scene.random.between(1.6f, 2.1f), depth * 0.2f);
        const bool gableToStreet = site.scene.random.chance(0.25f);
        if (site.scene.random.chance(0.07f))
            paintTree(site.scene, place, 2);
        else
            paintHouse(site.scene, {place, gableToStreet ? inward : along, halfLength, halfWidth}, 1.5f);
    }
}

/// Buildings wall to wall between two corners of a block.
void paintTerrace(const BlockSite& site, Vector2 from, Vector2 to, float halfDepth) {
    const Vector2 along = unitVector(to - from);
    const float end = length(to - from) + halfDepth;
    float at = -halfDepth;
    while (at < end - 3) {
        const float house = std::min(site.scene.random.between(6, 14), end - at);
        const Box box{from + along * (at + house / 2), along, house / 2, halfDepth};
        const float height = site.height * site.scene.random.between(0.7f, 1.15f);
        if (site.scene.random.chance(0.62f))
            paintHouse(site.scene, box, height * 0.7f);
        else
            paintFlatBuilding(site.scene, box, height);
        at += house;
    }
}

} // namespace

void paintHouses(const BlockSite& site, const Quad& block) {
    site.paintGround(block, site.scene.palette.pavement);
    const Quad gardens = block.inset(0.9f);
    site.paintLawn(gardens);
    const Vector2 size = block.size();
    if (std::min(size.x, size.y) > 2.5f * site.lot)
        paintTreesIn(site.scene, block.inset(site.lot * 0.95f), 8, 1.5f);
    paintHouseRow(site, block.corners[0], block.corners[1], size.y);
    paintHouseRow(site, block.corners[2], block.corners[3], size.y);
    const float taken = 1.5f * site.lot;
    if (size.y < 3 * site.lot) return;
    paintHouseRow(site, block.at(1, taken / size.y), block.at(1, 1 - taken / size.y), size.x);
    paintHouseRow(site, block.at(0, 1 - taken / size.y), block.at(0, taken / size.y), size.x);
}

void paintPerimeter(const BlockSite& site, const Quad& block) {
    site.paintGround(block, site.scene.palette.pavement);
    const float depth =
        std::min(site.scene.random.between(5.5f, 7.5f), std::min(block.size().x, block.size().y) * 0.4f);
    const Quad court = block.inset(depth + 1);
    if (site.scene.random.chance(0.6f)) {
        site.paintLawn(court);
        paintTreesIn(site.scene, court.inset(1.5f), 6, 1.7f);
    }
    const Quad ring = block.inset(1 + depth / 2);
    for (std::size_t side = 0; side < 4; ++side)
        paintTerrace(site, ring.corners[side], ring.corners[(side + 1) % 4], depth / 2);
}

void paintTowers(const BlockSite& site, const Quad& block) {
    site.paintGround(block, site.scene.palette.pavement);
    if (site.scene.random.chance(0.4f)) site.paintLawn(block.inset(3));
    const Vector2 size = block.size();
    const int columns = size.x > 24 ? 2 : 1;
    const int rows = size.y > 24 ? 2 : 1;
    for (int tower = 0; tower < columns * rows; ++tower) {
        const float s = (static_cast<float>(tower % columns) + 0.5f) / static_cast<float>(columns);
        const float t = (static_cast<float>(tower / columns) + 0.5f) / static_cast<float>(rows);
        const Box box{block.at(s, t), block.along(),
                      size.x / static_cast<float>(columns) * site.scene.random.between(0.24f, 0.38f),
                      size.y / static_cast<float>(rows) * site.scene.random.between(0.24f, 0.38f)};
        paintFlatBuilding(site.scene, box, site.height * site.scene.random.between(1.2f, 2.6f));
    }
}

void paintPublicGarden(const BlockSite& site, const Quad& block) {
    site.paintLawn(block);
    const Quad inner = block.inset(2);
    site.scene.canvas.paintLine(inner.corners[0], inner.corners[2], 1.3f, site.scene.palette.track);
    site.scene.canvas.paintLine(inner.corners[1], inner.corners[3], 1.3f, site.scene.palette.track);
    const Vector2 size = block.size();
    const float pond = std::min(size.x, size.y) * 0.16f;
    if (site.scene.random.chance(0.45f)) paintPond(site.scene, inner.at(0.5f, 0.35f), pond);
    for (std::size_t side = 0; side < 4; ++side)
        paintTreeRow(site.scene, inner.corners[side], inner.corners[(side + 1) % 4], 4.5f, 0.15f);
    strewTrees(site.scene, inner, static_cast<int>(size.x * size.y / 90));
}

void paintSports(const BlockSite& site, const Quad& block) {
    site.paintLawn(block);
    const Vector2 size = block.size();
    const Color pitch = site.scene.snowed(scaled(site.scene.palette.grass[1], 1.05f), 0.3f);
    const Box field{block.at(0.5f, 0.5f), size.x > size.y ? block.along() : block.across(),
                    std::max(size.x, size.y) * 0.36f, std::min(size.x, size.y) * 0.3f};
    const Box track{field.centre, field.along, field.halfLength + 2.5f, field.halfWidth + 2.5f};
    site.scene.canvas.paintBox(track, site.scene.snowed(rgb(0xa55f45), 0.7f));
    visitBox(field, [&](const Touch& touch) {
        const float stripe = std::floor(touch.u / 3);
        const bool isLine = std::fabs(touch.u) < 0.6f || std::fabs(touch.u) > field.halfLength - 1 ||
                            std::fabs(touch.v) > field.halfWidth - 1;
        const bool isOdd = std::fmod(std::fabs(stripe), 2.0f) > 0.5f;
        site.scene.canvas.paint(touch, isLine ? rgb(0xdfe3d8) : scaled(pitch, isOdd ? 0.93f : 1.04f));
    });
}

void paintOpen(const BlockSite& site, const Quad& block) {
    site.paintLawn(block);
    const Vector2 size = block.size();
    strewTrees(site.scene, block, static_cast<int>(size.x * size.y / 110));
}

} // namespace morvane::art
