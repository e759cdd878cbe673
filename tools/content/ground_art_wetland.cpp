#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// Reed from green to tan, darker and wetter toward the water.
void paintReed(Scene& scene, const NoiseField& wetness, float shore) {
    const NoiseField tufts = scene.noise({32, 3, 0.7f}, 102);
    const NoiseField stands = scene.noise({4, 4, 0.55f}, 104);
    const Color mud = mix(scene.palette.soil, scene.palette.water, 0.5f);
    const Color reed = mix(scene.palette.crops[5], scene.palette.grass[1], 0.4f);
    cover(scene, [&](int index) {
        const float distance = wetness[index] - shore;
        const Color dry = mix(scene.palette.grass[2], reed, clampedToUnit((stands[index] - 0.3f) * 2.4f));
        return scaled(mix(mud, dry, clampedToUnit(distance * 14)), 0.86f + 0.28f * tufts[index]);
    });
}

/// Pools below the shore line, and creeks along the zero line of a second noise.
void flood(Scene& scene, const NoiseField& wetness, float shore) {
    const NoiseField creeks = scene.noise({2, 5, 0.5f}, 103);
    const float bed = creeks.quantile(0.5f);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float pool = clampedToUnit((shore - wetness[index]) * 60 + 0.5f);
        const float creek = clampedToUnit(1.4f - std::fabs(creeks[index] - bed) * 160);
        const float water = std::max(pool, creek);
        const float deep = clampedToUnit((shore - wetness[index]) * 8);
        Color& color = scene.canvas.color(index);
        color = mix(color, scaled(scene.palette.water, 1.05f - 0.3f * deep), water);
        scene.canvas.height(index) = (1 - water) * 0.8f;
    }
}

} // namespace

void paintSwamp(Scene& scene) {
    const NoiseField wetness = scene.noise({8, 4, 0.5f}, 101);
    const float shore = wetness.quantile(scene.random.between(0.2f, 0.34f));
    paintReed(scene, wetness, shore);
    flood(scene, wetness, shore);
    for (int tree = 0; tree < 900; ++tree) {
        const Vector2 place = scene.anywhere();
        const float radius = scene.random.between(1.1f, 2.8f);
        const float land = wetness.at(place) - shore;
        // Trees stand on the drier humps, and a few on the very bank.
        if (land > 0.17f || (land > 0.01f && land < 0.03f)) paintBroadleaf(scene, place, radius);
    }
    mottle(scene, {32, 3, 0.8f}, 105, 0.06f);
}

} // namespace morvane::art
