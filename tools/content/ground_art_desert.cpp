#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// Whole waves over and down the tile, so that dunes meet at the edges.
struct DuneWaves {
    int across;
    int down;
};
constexpr std::array<DuneWaves, 6> duneWaves = {{{7, 3}, {6, 4}, {8, -3}, {5, 5}, {9, 2}, {6, -4}}};

/// One dune from 0 to 1: a long slope to the wind and a short one in the lee.
float duneProfile(float phase) {
    constexpr float crest = 0.68f;
    const float place = phase - std::floor(phase);
    const float rise = place < crest ? place / crest : (1 - place) / (1 - crest);
    return rise * rise * (3 - 2 * rise);
}

/// Dune crests bent by a noise, and lower here and there so that they end and begin.
void raiseDunes(Scene& scene, float height) {
    const DuneWaves waves = scene.random.pick(duneWaves);
    const NoiseField bend = scene.noise({4, 3, 0.45f}, 111);
    const NoiseField fade = scene.noise({8, 3, 0.5f}, 112);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float x = static_cast<float>(index % canvasSide) / canvasSide;
        const float y = static_cast<float>(index / canvasSide) / canvasSide;
        const float phase =
            x * static_cast<float>(waves.across) + y * static_cast<float>(waves.down) + bend[index] * 3;
        const float crest = duneProfile(phase) * clampedToUnit(fade[index] * 2.6f - 0.55f);
        scene.canvas.height(index) = crest * height + fade[index] * 2;
        Color& color = scene.canvas.color(index);
        color = scaled(color, 0.93f + 0.15f * crest);
    }
}

/// Light branching beds: the lines where a noise passes through its median.
void cutWadis(Scene& scene) {
    const NoiseField valleys = scene.noise({2, 6, 0.55f}, 113);
    const float bed = valleys.quantile(0.5f);
    const Color gravel = mix(scene.palette.sand, rgb(0xf1e6cc), 0.45f);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float away = std::fabs(valleys[index] - bed);
        const float open = clampedToUnit(1.6f - away * 70);
        const float bank = clampedToUnit(1.2f - std::fabs(away - 0.03f) * 60);
        Color& color = scene.canvas.color(index);
        color = mix(scaled(color, 1 - 0.12f * bank), gravel, open * 0.8f);
        scene.canvas.height(index) += clampedToUnit(away * 26) * 3;
    }
}

void strewThorns(Scene& scene, int count) {
    for (int bush = 0; bush < count; ++bush) {
        const Vector2 place = scene.anywhere();
        const float radius = scene.random.between(0.7f, 1.5f);
        const Color color = mix(scene.palette.hedge, scene.palette.soil, scene.random.between(0.1f, 0.5f));
        scene.canvas.paintDisc({place, radius}, color, 0.8f);
    }
}

/// Dark gravel and low hills between the pale sand.
void paintPlain(Scene& scene) {
    const NoiseField gravel = scene.noise({4, 5, 0.6f}, 114);
    const float edge = gravel.quantile(0.55f);
    const Color dark = mix(scene.palette.rock, scene.palette.soil, 0.55f);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float stony = clampedToUnit((gravel[index] - edge) * 5 + 0.5f);
        Color& color = scene.canvas.color(index);
        color = mix(color, dark, stony * 0.6f);
        scene.canvas.height(index) = std::max(0.0f, gravel[index] - edge) * 34;
    }
}

/// Spring rain lets a little green come up; winter light is paler.
void tintBySeason(Scene& scene) {
    const NoiseField growth = scene.noise({8, 4, 0.6f}, 117);
    const bool isSpring = scene.season() == BaseImageSeason::spring;
    const Color tint = isSpring ? scene.palette.grass[0] : rgb(0xe2dac8);
    const float strength = isSpring ? 0.22f : scene.isWinter() ? 0.3f : 0.0f;
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        Color& color = scene.canvas.color(index);
        color = mix(color, tint, strength * (isSpring ? growth[index] * 1.6f : 1.0f));
    }
}

} // namespace

void paintDesert(Scene& scene) {
    const bool hasDunes = scene.image.kind == LandKind::dunes;
    const NoiseField tone = scene.noise({4, 4, 0.5f}, 115);
    const Color sand = scene.palette.sand;
    const Color earth = mix(scene.palette.soil, sand, 0.45f);
    cover(scene, [&](int index) { return mix(sand, earth, clampedToUnit(tone[index] * 1.8f - 0.5f)); });
    if (hasDunes) {
        raiseDunes(scene, scene.random.between(3.2f, 4.6f));
    } else {
        paintPlain(scene);
        cutWadis(scene);
    }
    tintBySeason(scene);
    strewThorns(scene, hasDunes ? 120 : 700);
    if (scene.random.chance(0.4f))
        paintPath(scene, windingLine(scene, scene.random.chance(0.5f), 24), 1.6f, scene.palette.track, 0.7f);
    mottle(scene, {64, 2, 0.8f}, 116, 0.05f);
}

} // namespace morvane::art
