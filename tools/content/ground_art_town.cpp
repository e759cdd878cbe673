#include "ground_art_blocks.h"
#include "ground_art_features.h"
#include "ground_art_fields.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

enum class BlockKind { houses, perimeter, towers, halls, carPark, park, sports, open, field, count };

/// What a kind of town is made of.
struct TownStyle {
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
    GridShape grid{};
};

constexpr TownStyle cityCentreStyle = {3, 34, 3.6f, 7, 5, {0.5f, 5, 4, 0.3f, 0.8f, 1, 0, 0, 0}};
constexpr TownStyle cityStyle = {5, 42, 3.2f, 7.5f, 4, {3.6f, 5, 0.8f, 0.7f, 0.4f, 0.9f, 0.1f, 0.1f, 0}};
constexpr TownStyle suburbStyle = {14, 40, 2.6f, 8.5f, 3, {8, 0.6f, 0.1f, 0.3f, 0.3f, 0.8f, 0.15f, 0.9f, 0}};
constexpr TownStyle industryStyle = {4, 66, 3.6f, 8, 3, {0.3f, 0.2f, 0.2f, 7, 1.4f, 0.2f, 0, 1.2f, 0}};
constexpr TownStyle townStyle = {16, 48, 2.6f, 9, 3, {5.5f, 1.2f, 0, 0.5f, 0.2f, 0.7f, 0.15f, 1.4f, 1.2f}};
constexpr TownStyle villageStyle = {20, 56,   2.2f,
                                    11, 2.5f, {2.4f, 0.1f, 0, 0.15f, 0, 0.3f, 0.08f, 1.3f, 4.5f}};

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
        : scene_(scene), style_(style),
          tone_(scene.noise({8, 4, 0.6f}, 31)), site_{scene, tone_, style.lot, style.height} {}

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
            return paintHouses(site_, block);
        case BlockKind::perimeter:
            return paintPerimeter(site_, block);
        case BlockKind::towers:
            return paintTowers(site_, block);
        case BlockKind::halls:
            return paintHalls(site_, block);
        case BlockKind::carPark:
            return paintCarPark(site_, block);
        case BlockKind::park:
            return paintPublicGarden(site_, block);
        case BlockKind::sports:
            return paintSports(site_, block);
        case BlockKind::open:
            return paintOpen(site_, block);
        default:
            return paintFarmField(block);
        }
    }

    void paintFarmField(const Quad& block) {
        paintField(scene_, block, drawFieldWork(scene_), tone_);
        paintHedges(scene_, block, 0.6f);
    }

    Scene& scene_;
    TownStyle style_;
    NoiseField tone_;
    BlockSite site_;
};

} // namespace

void paintTown(Scene& scene) {
    const TownStyle style = styleOf(scene);
    TownPainter(scene, style).paint();
    mottle(scene, {32, 3, 0.8f}, 33, 0.09f);
}

} // namespace morvane::art
