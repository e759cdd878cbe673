#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// Crowns close together all over the tile, but for the clearings of a noise.
void paintCanopy(Scene& scene, const NoiseField& openness, float clearing) {
    constexpr int columns = 58;
    const float spacing = static_cast<float>(canvasSide) / columns;
    const NoiseField stands = scene.noise({4, 3, 0.5f}, 83);
    const float mixture = scene.palette.coniferShare;
    for (int place = 0; place < columns * columns; ++place) {
        const float x = (static_cast<float>(place % columns) + scene.random.unit()) * spacing;
        const float y = (static_cast<float>(place / columns) + scene.random.unit()) * spacing;
        const float radius = scene.random.between(2, 3.6f);
        const float kind = scene.random.unit() + (stands.at({x, y}) - 0.5f) * 2.4f;
        if (openness.at({x, y}) < clearing) continue;
        if (kind < mixture || scene.image.kind == LandKind::coniferForest)
            paintConifer(scene, {x, y}, radius);
        else
            paintBroadleaf(scene, {x, y}, radius);
    }
}

} // namespace

void paintForest(Scene& scene) {
    const bool isConifer = scene.image.kind == LandKind::coniferForest;
    coverWithGrass(scene, 81);
    const Color floor = mix(scene.palette.soil, scene.palette.hedge, 0.45f);
    const NoiseField openness = scene.noise({4, 4, 0.55f}, 82);
    const float clearing = openness.quantile(scene.random.between(0.03f, 0.14f));
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        const float wood = clampedToUnit((openness[index] - clearing) * 30 + 0.5f);
        scene.canvas.color(index) = mix(scene.canvas.color(index), floor, wood);
    }
    paintCanopy(scene, openness, clearing);
    const int tracks = 1 + scene.random.below(2);
    for (int track = 0; track < tracks; ++track) {
        const std::vector<Vector2> line = windingLine(scene, track == 0, 34);
        for (const Vector2& point : line)
            visitDisc({point, 3.4f}, [&](const Touch& touch) { scene.canvas.raise(touch, 0); });
        paintPath(scene, line, 4.5f, scene.palette.grass[2], 0.55f);
        paintPath(scene, line, 1.7f, scene.palette.track);
    }
    mottle(scene, {4, 3, 0.5f}, 84, isConifer ? 0.16f : 0.11f);
}

} // namespace morvane::art
