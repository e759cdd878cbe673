#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

enum class BlockKind { houses, perimeter, towers, halls, carPark, park, sports, open, field, count };

/// What a kind of town is made of.
struct TownStyle {
    GridShape grid;
    /// Bend of the streets in pixels.
    float bend;
    float blockSide;
    float streetWidth;
    /// Mean distance from house to house.
    float lot;
    /// Storeys' height of the ring buildings and towers, in pixels.
    float height;
    /// Weights of the block kinds in the order of BlockKind.
    std::array<float, static_cast<std::size_t>(BlockKind::count)> blocks;
};

constexpr TownStyle cityCentreStyle = {{2, 1, 1}, 3, 34, 3.6f, 7, 5, {0.5f, 5, 4, 0.3f, 0.8f, 1, 0, 0, 0}};
constexpr TownStyle cityStyle = {
    {1, 0, 2}, 5, 42, 3.2f, 7.5f, 4, {4, 4, 0.7f, 0.7f, 0.4f, 1.1f, 0.3f, 0.1f, 0}};
constexpr TownStyle suburbStyle = {
    {2, 1, 1}, 14, 40, 2.6f, 8.5f, 3, {8, 0.6f, 0.1f, 0.3f, 0.3f, 0.8f, 0.15f, 0.9f, 0}};
constexpr TownStyle industryStyle = {
    {1, 0, 2}, 4, 66, 3.6f, 8, 3, {0.3f, 0.2f, 0.2f, 7, 1.4f, 0.2f, 0, 1.2f, 0}};
constexpr TownStyle townStyle = {
    {1, 0, 2}, 16, 48, 2.6f, 9, 3, {5.5f, 1.2f, 0, 0.5f, 0.2f, 0.7f, 0.15f, 1.4f, 1.2f}};
constexpr TownStyle villageStyle = {
    {1, 0, 2}, 20, 56, 2.2f, 11, 2.5f, {2.4f, 0.1f, 0, 0.15f, 0, 0.3f, 0.08f, 1.3f, 4.5f}};

/// The five grids differ in angle and size; which one a class and letter takes is a draw.
constexpr std::array<GridShape, 5> turnedGrids = {{{1, 0, 2}, {2, 1, 1}, {1, 1, 2}, {3, 1, 1}, {1, 0, 3}}};

TownStyle styleOf(Scene& scene) {
    const GridShape grid = scene.random.pick(turnedGrids);
    const auto base = [&]() -> TownStyle {
        switch (scene.image.kind) {
        case LandKind::cityCentre:
            return cityCentreStyle;
        case LandKind::city:
            return cityStyle;
        case LandKind::industry:
            return industryStyle;
        case LandKind::town:
            return townStyle;
        case LandKind::village:
            return villageStyle;
        default:
            return suburbStyle;
        }
    };
    TownStyle style = base();
    style.grid = grid;
    style.blockSide *= scene.random.between(0.88f, 1.15f);
    style.bend *= scene.random.between(0.3f, 1.2f);
    return style;
}

class TownPainter {
public:
    TownPainter(Scene& scene, const TownStyle& style)
        : scene_(scene), style_(style), tone_(scene.noise({8, 4, 0.6f}, 31)) {}

    void paint() {
        const ParcelPlan plan(scene_, style_.grid, style_.bend);
        const Color asphalt = scene_.palette.mainRoad;
        cover(scene_, [&](int index) { return scaled(asphalt, 0.94f + 0.12f * tone_[index]); });
        const float halfRoad = style_.streetWidth * 0.75f;
        for (const Quad& cell : plan.cells(halfRoad))
            scene_.canvas.paintQuad(cell, scene_.palette.street);
        for (const Quad& block : plan.divide(scene_, {style_.blockSide, style_.streetWidth, halfRoad, 0.6f}))
            paintBlock(block);
    }

private:
    BlockKind drawBlockKind() {
        float total = 0;
        for (const float weight : style_.blocks)
            total += weight;
        float left = scene_.random.between(0, total);
        std::size_t kind = 0;
        while (kind + 1 < style_.blocks.size() && left >= style_.blocks[kind])
            left -= style_.blocks[kind++];
        return static_cast<BlockKind>(kind);
    }

    void paintBlock(const Quad& block) {
        switch (drawBlockKind()) {
        case BlockKind::houses:
            return paintHouses(block);
        case BlockKind::perimeter:
            return paintPerimeter(block);
        case BlockKind::towers:
            return paintTowers(block);
        case BlockKind::halls:
            return paintHalls(block);
        case BlockKind::carPark:
            return paintCarPark(block);
        case BlockKind::park:
            return paintPark(block);
        case BlockKind::sports:
            return paintSports(block);
        case BlockKind::open:
            return paintOpen(block);
        default:
            return paintFarmField(block);
        }
    }

    void paintGround(const Quad& quad, Color color) {
        visitQuad(quad, [&](const Touch& touch) {
            scene_.canvas.paint(touch, scaled(color, 0.86f + 0.28f * tone_[touch.index]));
        });
    }

    void paintLawn(const Quad& quad) { paintGround(quad, scene_.random.pick(scene_.palette.grass)); }

    void paintHouses(const Quad& block) {
        paintGround(block, scene_.palette.pavement);
        const Quad gardens = block.inset(0.9f);
        paintLawn(gardens);
        const Vector2 size = block.size();
        if (std::min(size.x, size.y) > 2.5f * style_.lot)
            paintTreesIn(scene_, block.inset(style_.lot * 0.95f), 8, 1.5f);
        paintHouseRow(block.corners[0], block.corners[1], size.y);
        paintHouseRow(block.corners[2], block.corners[3], size.y);
        const float taken = 1.5f * style_.lot;
        if (size.y < 3 * style_.lot) return;
        paintHouseRow(block.at(1, taken / size.y), block.at(1, 1 - taken / size.y), size.x);
        paintHouseRow(block.at(0, 1 - taken / size.y), block.at(0, taken / size.y), size.x);
    }

    /// Houses along a street; the block lies to the right of the way from `from` to `to`, `depth` deep.
    void paintHouseRow(Vector2 from, Vector2 to, float depth) {
        const int lots = static_cast<int>(length(to - from) / style_.lot);
        const Vector2 along = unitVector(to - from);
        const Vector2 inward = perpendicular(along);
        const float back = std::min(depth * 0.28f, 4.6f);
        for (int lot = 0; lot < lots; ++lot) {
            const float share =
                (static_cast<float>(lot) + scene_.random.between(0.4f, 0.6f)) / static_cast<float>(lots);
            const Vector2 place =
                from + (to - from) * share + inward * (back * scene_.random.between(0.85f, 1.2f));
            const float halfLength = scene_.random.between(2.1f, 3.1f);
            const float halfWidth = std::min(scene_.random.between(1.6f, 2.1f), depth * 0.2f);
            const bool gableToStreet = scene_.random.chance(0.25f);
            if (scene_.random.chance(0.07f))
                paintTree(scene_, place, 2);
            else
                paintHouse(scene_, {place, gableToStreet ? inward : along, halfLength, halfWidth}, 1.5f);
        }
    }

    void paintPerimeter(const Quad& block) {
        paintGround(block, scene_.palette.pavement);
        const float depth =
            std::min(scene_.random.between(5.5f, 7.5f), std::min(block.size().x, block.size().y) * 0.4f);
        const Quad court = block.inset(depth + 1);
        if (scene_.random.chance(0.6f)) {
            paintLawn(court);
            paintTreesIn(scene_, court.inset(1.5f), 6, 1.7f);
        }
        const Quad ring = block.inset(1 + depth / 2);
        for (std::size_t side = 0; side < 4; ++side)
            paintTerrace(ring.corners[side], ring.corners[(side + 1) % 4], depth / 2);
    }

    /// Buildings wall to wall between two corners of a block.
    void paintTerrace(Vector2 from, Vector2 to, float halfDepth) {
        const Vector2 along = unitVector(to - from);
        const float end = length(to - from) + halfDepth;
        float at = -halfDepth;
        while (at < end - 3) {
            const float house = std::min(scene_.random.between(6, 14), end - at);
            const Box box{from + along * (at + house / 2), along, house / 2, halfDepth};
            const float height = style_.height * scene_.random.between(0.7f, 1.15f);
            if (scene_.random.chance(0.62f))
                paintHouse(scene_, box, height * 0.7f);
            else
                paintFlatBuilding(scene_, box, height);
            at += house;
        }
    }

    void paintTowers(const Quad& block) {
        paintGround(block, scene_.palette.pavement);
        if (scene_.random.chance(0.4f)) paintLawn(block.inset(3));
        const Vector2 size = block.size();
        const int columns = size.x > 24 ? 2 : 1;
        const int rows = size.y > 24 ? 2 : 1;
        for (int tower = 0; tower < columns * rows; ++tower) {
            const float s = (static_cast<float>(tower % columns) + 0.5f) / static_cast<float>(columns);
            const float t = (static_cast<float>(tower / columns) + 0.5f) / static_cast<float>(rows);
            const Box box{block.at(s, t), block.along(),
                          size.x / static_cast<float>(columns) * scene_.random.between(0.24f, 0.38f),
                          size.y / static_cast<float>(rows) * scene_.random.between(0.24f, 0.38f)};
            paintFlatBuilding(scene_, box, style_.height * scene_.random.between(1.2f, 2.6f));
        }
    }

    void paintHalls(const Quad& block) {
        paintGround(block, mix(scene_.palette.pavement, scene_.palette.street, 0.5f));
        const Vector2 size = block.size();
        const bool isWide = size.x > size.y;
        const float split = scene_.random.between(0.3f, 0.45f);
        const Quad yard =
            isWide ? Quad{{block.at(0, 0), block.at(split, 0), block.at(split, 1), block.at(0, 1)}}
                   : Quad{{block.at(0, 0), block.at(1, 0), block.at(1, split), block.at(0, split)}};
        const Quad rest =
            isWide ? Quad{{block.at(split, 0), block.at(1, 0), block.at(1, 1), block.at(split, 1)}}
                   : Quad{{block.at(0, split), block.at(1, split), block.at(1, 1), block.at(0, 1)}};
        paintHallOn(rest.inset(2.5f));
        const int use = scene_.random.below(4);
        if (use == 0)
            paintTanks(yard);
        else if (use == 1)
            paintCars(scene_, yard.inset(2));
        else if (use == 2)
            paintHallOn(yard.inset(3));
        else
            paintContainers(yard.inset(2));
        paintTreeRow(scene_, block.corners[0], block.corners[1], 5, 0.5f);
    }

    void paintHallOn(const Quad& site) {
        const Vector2 size = site.size();
        const bool isWide = size.x > size.y;
        paintHall(scene_, {site.at(0.5f, 0.5f), isWide ? site.along() : site.across(),
                           std::max(size.x, size.y) / 2, std::min(size.x, size.y) / 2});
    }

    void paintTanks(const Quad& yard) {
        const Vector2 size = yard.size();
        const float radius = std::min(5.5f, std::min(size.x, size.y) * 0.2f);
        const int columns = std::max(1, static_cast<int>(size.x / (radius * 2.8f)));
        const int rows = std::max(1, static_cast<int>(size.y / (radius * 2.8f)));
        for (int tank = 0; tank < columns * rows; ++tank) {
            const float s = (static_cast<float>(tank % columns) + 0.5f) / static_cast<float>(columns);
            const float t = (static_cast<float>(tank / columns) + 0.5f) / static_cast<float>(rows);
            visitDisc({yard.at(s, t), radius}, [&](const Touch& touch) {
                const float round = (touch.u + touch.v) / (radius * 2);
                scene_.canvas.paint(touch, scaled(rgb(0xdadad6), 0.95f - 0.13f * round));
                scene_.canvas.raise(touch, 3);
            });
        }
    }

    void paintContainers(const Quad& yard) {
        constexpr std::array<Color, 5> paints = {rgb(0xa0442e), rgb(0x3d6584), rgb(0x8d8f8b), rgb(0x4d7a55),
                                                 rgb(0xc9a23d)};
        const Vector2 size = yard.size();
        for (float v = 2; v < size.y - 2; v += 3)
            for (float u = 4; u < size.x - 3; u += 6.5f) {
                const Color paint =
                    mix(scene_.random.pick(paints), scene_.palette.snow, scene_.palette.snowCover * 0.5f);
                if (!scene_.random.chance(0.55f)) continue;
                visitBox({yard.at(u / size.x, v / size.y), yard.along(), 2.9f, 1.1f},
                         [&](const Touch& touch) {
                             scene_.canvas.paint(touch, paint);
                             scene_.canvas.raise(touch, 1);
                         });
            }
    }

    void paintCarPark(const Quad& block) {
        paintGround(block, scene_.palette.street);
        paintCars(scene_, block.inset(1.5f));
        paintTreeRow(scene_, block.corners[0], block.corners[1], 5, 0.2f);
        paintTreeRow(scene_, block.corners[2], block.corners[3], 5, 0.2f);
    }

    void paintPark(const Quad& block) {
        paintLawn(block);
        const Quad inner = block.inset(2);
        scene_.canvas.paintLine(inner.corners[0], inner.corners[2], 1.3f, scene_.palette.track);
        scene_.canvas.paintLine(inner.corners[1], inner.corners[3], 1.3f, scene_.palette.track);
        const Vector2 size = block.size();
        const float pond = std::min(size.x, size.y) * 0.16f;
        if (scene_.random.chance(0.45f)) paintPond(scene_, inner.at(0.5f, 0.35f), pond);
        for (std::size_t side = 0; side < 4; ++side)
            paintTreeRow(scene_, inner.corners[side], inner.corners[(side + 1) % 4], 4.5f, 0.15f);
        strewTrees(scene_, inner, static_cast<int>(size.x * size.y / 90));
    }

    void paintSports(const Quad& block) {
        paintLawn(block);
        const Vector2 size = block.size();
        const Color pitch =
            mix(scaled(scene_.palette.grass[1], 1.05f), scene_.palette.snow, scene_.palette.snowCover * 0.3f);
        const Box field{block.at(0.5f, 0.5f), size.x > size.y ? block.along() : block.across(),
                        std::max(size.x, size.y) * 0.36f, std::min(size.x, size.y) * 0.3f};
        const Box track{field.centre, field.along, field.halfLength + 2.5f, field.halfWidth + 2.5f};
        scene_.canvas.paintBox(track,
                               mix(rgb(0xa55f45), scene_.palette.snow, scene_.palette.snowCover * 0.7f));
        visitBox(field, [&](const Touch& touch) {
            const float stripe = std::floor(touch.u / 3);
            const bool isLine = std::fabs(touch.u) < 0.6f || std::fabs(touch.u) > field.halfLength - 1 ||
                                std::fabs(touch.v) > field.halfWidth - 1;
            const bool isOdd = std::fmod(std::fabs(stripe), 2.0f) > 0.5f;
            scene_.canvas.paint(touch, isLine ? rgb(0xdfe3d8) : scaled(pitch, isOdd ? 0.93f : 1.04f));
        });
    }

    void paintOpen(const Quad& block) {
        paintLawn(block);
        const Vector2 size = block.size();
        strewTrees(scene_, block, static_cast<int>(size.x * size.y / 110));
    }

    void paintFarmField(const Quad& block) {
        paintField(scene_, block, drawFieldWork(scene_), tone_);
        paintHedges(scene_, block, 0.6f);
    }

    Scene& scene_;
    TownStyle style_;
    NoiseField tone_;
};

} // namespace

void paintTown(Scene& scene) {
    const TownStyle style = styleOf(scene);
    TownPainter(scene, style).paint();
    mottle(scene, {32, 3, 0.8f}, 33, 0.09f);
}

} // namespace morvane::art
