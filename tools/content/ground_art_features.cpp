#include "ground_art_features.h"

namespace morvane::art {

Vector2 Scene::anyDirection() {
    // Points of a disc, then drawn out to its rim: no sine, whose last bit differs between systems.
    const Vector2 point{random.between(-1, 1), random.between(-1, 1)};
    return unitVector(point);
}

Vector2 Scene::anywhereIn(const Quad& quad) {
    const float s = random.unit();
    return quad.at(s, random.unit());
}

void mottle(Scene& scene, NoiseShape shape, unsigned salt, float strength) {
    const NoiseField noise = scene.noise(shape, salt);
    for (int index = 0; index < Canvas::pixelCount; ++index) {
        Color& color = scene.canvas.color(index);
        color = scaled(color, 1 + (noise[index] - 0.5f) * 2 * strength);
    }
}

void coverWithGrass(Scene& scene, unsigned salt) {
    const NoiseField tone = scene.noise({4, 4, 0.55f}, salt);
    const auto& grass = scene.palette.grass;
    cover(scene, [&](int index) {
        const float value = clampedToUnit((tone[index] - 0.25f) * 2);
        return value < 0.5f ? mix(grass[2], grass[0], value * 2) : mix(grass[0], grass[1], value * 2 - 1);
    });
}

namespace {

/// A crown is a dome; its middle is lighter than its rim.
void paintCrown(Scene& scene, const Disc& crown, Color color, float top, float opacity) {
    visitDisc(crown, [&](const Touch& touch) {
        const float rim = (touch.u * touch.u + touch.v * touch.v) / (crown.radius * crown.radius);
        scene.canvas.paint(touch, scaled(color, 1.08f - 0.2f * rim), opacity);
        scene.canvas.raise(touch, top * (1 - 0.55f * rim));
    });
}

} // namespace

void paintBroadleaf(Scene& scene, Vector2 place, float radius) {
    const Color color = scene.anyShade(scene.palette.broadleaf, 0.9f, 1.1f);
    const float cover = scene.palette.crownCover;
    paintCrown(scene, {place, radius}, color, (0.6f + radius * 0.9f) * (cover > 0.8f ? 1.0f : 0.6f), cover);
}

void paintConifer(Scene& scene, Vector2 place, float radius) {
    const Color color = scene.anyShade(scene.palette.conifers, 0.9f, 1.15f);
    paintCrown(scene, {place, radius * 0.85f}, color, 1.2f + radius * 1.3f, 1);
}

void paintTree(Scene& scene, Vector2 place, float radius) {
    if (scene.random.chance(scene.palette.coniferShare))
        paintConifer(scene, place, radius);
    else
        paintBroadleaf(scene, place, radius);
}

void paintTreeRow(Scene& scene, Vector2 from, Vector2 to, float spacing, float gaps) {
    const int count = static_cast<int>(length(to - from) / spacing);
    for (int i = 0; i < count; ++i) {
        const float share =
            (static_cast<float>(i) + scene.random.between(0.2f, 0.8f)) / static_cast<float>(count);
        const float radius = scene.random.between(1.1f, 2.2f);
        if (!scene.random.chance(gaps)) paintTree(scene, from + (to - from) * share, radius);
    }
}

void paintTreesIn(Scene& scene, const Quad& quad, float spacing, float radius) {
    const Vector2 size = quad.size();
    const int columns = std::max(1, static_cast<int>(size.x / spacing));
    const int rows = std::max(1, static_cast<int>(size.y / spacing));
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const float s = (static_cast<float>(column) + scene.random.unit()) / static_cast<float>(columns);
            const float t = (static_cast<float>(row) + scene.random.unit()) / static_cast<float>(rows);
            paintTree(scene, quad.at(s, t), radius * scene.random.between(0.75f, 1.3f));
        }
}

void paintGrove(Scene& scene, Vector2 centre, float reach, int count) {
    for (int i = 0; i < count; ++i) {
        const float distance = reach * scene.random.unit();
        const Vector2 place = centre + scene.anyDirection() * distance;
        paintTree(scene, place, scene.random.between(1.3f, 2.6f));
    }
}

void strewTrees(Scene& scene, const Quad& quad, int count) {
    for (int tree = 0; tree < count; ++tree) {
        const Vector2 place = scene.anywhereIn(quad);
        paintTree(scene, place, scene.random.between(1.4f, 2.6f));
    }
}

void paintHouse(Scene& scene, const Box& box, float eaves) {
    const Color roof = scene.anyShade(scene.palette.roofs, 0.88f, 1.12f);
    visitBox(box, [&](const Touch& touch) {
        const float ridge = 1 - std::fabs(touch.v) / box.halfWidth;
        scene.canvas.paint(touch, roof);
        scene.canvas.raise(touch, eaves + ridge * box.halfWidth * 0.75f);
    });
}

void paintFlatBuilding(Scene& scene, const Box& box, float height) {
    const Color roof = scene.anyShade(scene.palette.flatRoofs, 0.9f, 1.1f);
    visitBox(box, [&](const Touch& touch) {
        const bool onRim = std::fabs(touch.u) > box.halfLength - 1 || std::fabs(touch.v) > box.halfWidth - 1;
        scene.canvas.paint(touch, scaled(roof, onRim ? 1.1f : 0.97f));
        scene.canvas.raise(touch, onRim ? height : height - 0.4f);
    });
    const float u = scene.random.between(-0.5f, 0.5f) * box.halfLength;
    const float v = scene.random.between(-0.4f, 0.4f) * box.halfWidth;
    const Box stair{box.centre + box.along * u + perpendicular(box.along) * v, box.along, 1.2f, 1};
    visitBox(stair, [&](const Touch& touch) {
        scene.canvas.paint(touch, scaled(roof, 0.8f));
        scene.canvas.raise(touch, height + 1);
    });
}

void paintHall(Scene& scene, const Box& box) {
    const bool isBlue = scene.random.chance(0.25f);
    const Color base = isBlue ? rgb(0x8497a6) : scene.random.pick(scene.palette.flatRoofs);
    const Color roof = scene.snowed(scaled(base, scene.random.between(0.95f, 1.15f)), 0.6f);
    const float height = scene.random.between(2.5f, 4.5f);
    const float bay = scene.random.between(5, 8);
    visitBox(box, [&](const Touch& touch) {
        const float along = (touch.u + box.halfLength) / bay;
        const float inBay = along - std::floor(along);
        const bool isSkylight = inBay > 0.72f && std::fabs(touch.v) < box.halfWidth - 2;
        scene.canvas.paint(touch, scaled(roof, isSkylight ? 0.78f : 1 + 0.06f * (0.5f - inBay)));
        scene.canvas.raise(touch, height);
    });
}

void paintCars(Scene& scene, const Quad& lot) {
    constexpr std::array<Color, 6> paints = {rgb(0xe6e6e6), rgb(0x3c3f45), rgb(0x9a2f2c),
                                             rgb(0x30507c), rgb(0xb9bcc0), rgb(0x66696c)};
    const Vector2 size = lot.size();
    for (float v = 3; v < size.y - 2; v += 6)
        for (float u = 2; u < size.x - 2; u += 2.4f) {
            const Color paint = scene.random.pick(paints);
            if (!scene.random.chance(0.6f)) continue;
            const Box car{lot.at(u / size.x, v / size.y), lot.across(), 1.3f, 0.7f};
            scene.canvas.paintBox(car, paint, 0.85f);
        }
}

void paintPond(Scene& scene, Vector2 centre, float radius) {
    const Vector2 second = centre + scene.anyDirection() * (radius * 0.8f);
    const float smaller = radius * 0.7f;
    scene.canvas.paintDisc({centre, radius + 1.2f}, scene.palette.soil, 0.6f);
    scene.canvas.paintDisc({second, smaller + 1.2f}, scene.palette.soil, 0.6f);
    for (const Disc& disc : {Disc{centre, radius}, Disc{second, smaller}})
        visitDisc(disc, [&](const Touch& touch) {
            scene.canvas.paint(touch, scene.palette.water);
            scene.canvas.raise(touch, 0);
        });
}

void paintFarmstead(Scene& scene, Vector2 centre, Vector2 along) {
    const Vector2 across = perpendicular(along);
    paintGrove(scene, centre - along * 7 - across * 5, 7, 9);
    scene.canvas.paintBox({centre, along, 8, 7}, scene.palette.track, 0.75f);
    paintHouse(scene, {centre - across * 5, along, 4.5f, 2.4f}, 1.8f);
    paintHouse(scene, {centre + along * 5 + across, across, 6, 3}, 2.2f);
    if (scene.random.chance(0.6f))
        paintHouse(scene, {centre - along * 5 + across * 4, along, 3.5f, 2.2f}, 1.6f);
}

void paintPath(Scene& scene, const std::vector<Vector2>& points, float width, Color color, float opacity) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        // Each piece reaches a little into the next, or the joints would show as light dots.
        const Vector2 beyond = unitVector(points[i] - points[i - 1]) * (0.4f + width * 0.15f);
        scene.canvas.paintLine(points[i - 1], points[i] + beyond, width, color, opacity);
    }
}

std::vector<Vector2> windingLine(Scene& scene, bool downwards, float swing) {
    const NoiseField sway = scene.noise({4, 2, 0.4f}, static_cast<unsigned>(scene.random.below(1000)));
    const float middle = scene.random.between(0, canvasSide);
    std::vector<Vector2> points;
    for (int step = 0; step <= canvasSide; step += 4) {
        const float forward = static_cast<float>(step);
        const float aside = middle + (sway.at({forward, middle}) - 0.5f) * 2 * swing;
        points.push_back(downwards ? Vector2{aside, forward} : Vector2{forward, aside});
    }
    return points;
}

} // namespace morvane::art
