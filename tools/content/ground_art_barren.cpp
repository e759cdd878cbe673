#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// Mountain relief: sharp crests where the layers of a noise pass through their middle.
void raiseCrests(Scene& scene, float height) {
    const NoiseField coarse = scene.noise({4, 3, 0.5f}, 121);
    const NoiseField fine = scene.noise({16, 4, 0.6f}, 122);
    const NoiseField warped = scene.noise({8, 3, 0.5f}, 123);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float coarseCrest = 1 - std::fabs(coarse[index] * 2 - 1) * 1.6f;
        const float fineCrest = 1 - std::fabs(warped[index] * 2 - 1) * 1.6f;
        scene.canvas.height(index) =
            (coarseCrest * 1.5f + fineCrest * 0.6f + (fine[index] - 0.5f) * 0.5f) * height;
    }
}

/// Steepness in either direction, 0 on level ground.
float steepness(Canvas& canvas, int index) {
    const int x = index % canvasSide;
    const int y = index / canvasSide;
    const float here = canvas.height(index);
    return std::fabs(canvas.height(wrappedIndex(x + 1, y)) - here) +
           std::fabs(canvas.height(wrappedIndex(x, y + 1)) - here);
}

/// Rock faces with bands of other stone; scree and some grass where it is less steep, snow in winter.
void paintRockFaces(Scene& scene) {
    raiseCrests(scene, 11);
    const NoiseField stone = scene.noise({8, 4, 0.6f}, 124);
    const NoiseField growth = scene.noise({4, 4, 0.55f}, 125);
    const float meadow = growth.quantile(0.76f);
    cover(scene, [&](int index) {
        const float steep = steepness(scene.canvas, index);
        const float bands = scene.canvas.height(index) * 0.35f + stone[index] * 3;
        const float band = std::fabs(bands - std::floor(bands) - 0.5f) * 2;
        const Color face = scaled(scene.palette.rock, 0.84f + 0.2f * band + 0.2f * (stone[index] - 0.5f));
        const Color scree = mix(scene.palette.rock, scene.palette.sand, 0.4f);
        const Color level = mix(scree, scene.palette.grass[0], clampedToUnit((growth[index] - meadow) * 12));
        const Color ground = mix(level, face, clampedToUnit(steep * 1.4f - 0.3f));
        const float lying = scene.palette.snowCover * clampedToUnit(1.25f - steep * 1.1f);
        return mix(ground, scene.palette.snow, lying * 0.75f);
    });
}

/// Moss, lichen and stones with round ponds; snow patches that never melt lie in the hollows.
void paintTundra(Scene& scene) {
    coverWithGrass(scene, 131);
    const NoiseField ground = scene.noise({8, 5, 0.6f}, 132);
    const NoiseField hollows = scene.noise({8, 4, 0.55f}, 133);
    const float pond = hollows.quantile(0.13f);
    const float drift = ground.quantile(scene.season() == BaseImageSeason::summer ? 0.03f : 0.12f);
    const Color moss = mix(scene.palette.soil, scene.palette.hedge, 0.4f);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        Color& color = scene.canvas.color(index);
        color = mix(color, moss, clampedToUnit(ground[index] * 3 - 0.9f) * 0.85f);
        color = mix(color, scene.palette.rock, clampedToUnit(ground[index] * 9 - 5.6f) * 0.8f);
        color = mix(color, scene.palette.snow, clampedToUnit((drift - ground[index]) * 25));
        color = mix(color, scene.palette.water, clampedToUnit((pond - hollows[index]) * 50));
        scene.canvas.height(index) = ground[index] * 7;
    }
    mottle(scene, {64, 2, 0.8f}, 134, 0.1f);
}

/// Snow with wind drifts; stone shows on the crests, more of it in the warm half of the year.
void paintSnowfield(Scene& scene) {
    raiseCrests(scene, 5);
    const NoiseField drifts = scene.noise({16, 4, 0.6f}, 141);
    const NoiseField stone = scene.noise({8, 5, 0.6f}, 142);
    const bool isWarm = scene.season() == BaseImageSeason::summer || scene.season() == BaseImageSeason::fall;
    const float bare = stone.quantile(isWarm ? 0.84f : 0.94f);
    const Color blue = rgb(0xd5e0ec);
    cover(scene, [&](int index) {
        const Color snow = mix(blue, rgb(0xf3f5f8), clampedToUnit(drifts[index] * 2 - 0.4f));
        return mix(snow, rgb(0x7d7a78), clampedToUnit((stone[index] - bare) * 14) * 0.85f);
    });
}

/// Glacier ice: bands of flow, dark moraines, and rows of crevasses across.
void paintGlacier(Scene& scene) {
    const NoiseField flow = scene.noise({2, 4, 0.45f}, 151);
    const NoiseField grain = scene.noise({16, 4, 0.6f}, 152);
    const NoiseField broken = scene.noise({4, 3, 0.5f}, 153);
    const float torn = broken.quantile(0.55f);
    const float freshness = scene.season() == BaseImageSeason::summer ? 0.25f : 0.75f;
    const Color ice = mix(rgb(0xb4cdd9), rgb(0xe9eff4), freshness);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float x = static_cast<float>(index % canvasSide) / canvasSide;
        const float y = static_cast<float>(index / canvasSide) / canvasSide;
        const float band = std::fabs(std::fmod(x * 5 + flow[index] * 5, 1.0f) - 0.5f) * 2;
        const float crack =
            std::fabs(std::fmod(y * 24 + flow[index] * 7 + grain[index] * 1.2f, 1.0f) - 0.5f) * 2;
        const float open = clampedToUnit((0.22f - crack) * 6) * clampedToUnit((broken[index] - torn) * 10);
        const float moraine = clampedToUnit((0.14f - band) * 9) * clampedToUnit(grain[index] * 3 - 0.8f);
        const Color surface = scaled(ice, 0.92f + 0.1f * band + 0.1f * (grain[index] - 0.5f));
        scene.canvas.color(index) =
            mix(mix(surface, rgb(0x8d8780), moraine * 0.7f), rgb(0x4f8399), open * 0.8f);
        scene.canvas.height(index) = band * 3 + grain[index] * 3 - open * 2;
    }
}

} // namespace

void paintBarren(Scene& scene) {
    switch (scene.image.kind) {
    case LandKind::tundra:
        return paintTundra(scene);
    case LandKind::snowfield:
        return paintSnowfield(scene);
    case LandKind::glacier:
        return paintGlacier(scene);
    default:
        return paintRockFaces(scene);
    }
}

} // namespace morvane::art
