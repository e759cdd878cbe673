#include "ground_art_features.h"
#include "ground_art_painters.h"

namespace morvane::art {

namespace {

/// One hole of a golf course.
struct Hole {
    Vector2 tee;
    Vector2 bend;
    Vector2 green;
};

Vector2 onFairway(const Hole& hole, float share) {
    const Vector2 first = hole.tee + (hole.bend - hole.tee) * share;
    const Vector2 second = hole.bend + (hole.green - hole.bend) * share;
    return first + (second - first) * share;
}

/// Mown in stripes across the play.
void paintFairway(Scene& scene, const Hole& hole, float halfWidth) {
    constexpr int pieces = 40;
    const Color light =
        mix(scaled(scene.palette.grass[1], 1.12f), rgb(0x9cc25a), 0.35f * (1 - scene.palette.snowCover));
    for (int piece = 3; piece < pieces; ++piece) {
        const float share = static_cast<float>(piece) / pieces;
        const float width = halfWidth * (0.8f + 0.35f * share);
        visitDisc({onFairway(hole, share), width}, [&](const Touch& touch) {
            scene.canvas.paint(touch, scaled(light, piece / 4 % 2 == 0 ? 1.02f : 0.98f));
            scene.canvas.raise(touch, 0);
        });
    }
}

void paintBunker(Scene& scene, Vector2 centre) {
    const Color sand = scene.snowed(rgb(0xeadfbc), 0.6f);
    for (int lobe = 0; lobe < 3; ++lobe) {
        const Vector2 place = centre + scene.anyDirection() * 2.2f;
        visitDisc({place, scene.random.between(1.8f, 3)}, [&](const Touch& touch) {
            scene.canvas.paint(touch, sand);
            scene.canvas.raise(touch, -0.6f);
        });
    }
}

void paintGreen(Scene& scene, const Hole& hole) {
    const float cold = scene.palette.snowCover;
    for (int bunker = 0; bunker < 3; ++bunker) {
        const float distance = scene.random.between(9, 12);
        paintBunker(scene, hole.green + scene.anyDirection() * distance);
    }
    scene.canvas.paintDisc({hole.green, 7.6f}, mix(rgb(0x86b552), scene.palette.snow, cold * 0.7f));
    scene.canvas.paintDisc({hole.green + Vector2{1.2f, 0.8f}, 5.6f},
                           mix(rgb(0xa6d069), scene.palette.snow, cold * 0.6f));
    scene.canvas.paintDisc({hole.green, 0.8f}, rgb(0xf4f4f0));
}

/// Holes side by side, played up and down in turn.
std::vector<Hole> layOutHoles(Scene& scene) {
    constexpr int count = 5;
    const float lean = scene.random.between(-44, 44);
    std::vector<Hole> holes;
    for (int number = 0; number < count; ++number) {
        const float x = (static_cast<float>(number) + 0.5f) * canvasSide / count;
        const float low = scene.random.between(20, 60);
        const float high = scene.random.between(196, 240);
        const float sway = lean + scene.random.between(-14, 14);
        const Vector2 upper{x - sway * 0.4f, low};
        const Vector2 lower{x - sway * 0.4f, high};
        const Vector2 bend{x + sway * 1.4f, scene.random.between(100, 150)};
        holes.push_back(number % 2 == 0 ? Hole{upper, bend, lower} : Hole{lower, bend, upper});
    }
    return holes;
}

void paintCartPath(Scene& scene, const Hole& hole, float aside) {
    std::vector<Vector2> points;
    for (int piece = 0; piece <= 20; ++piece)
        points.push_back(onFairway(hole, static_cast<float>(piece) / 20) + Vector2{aside, 0});
    paintPath(scene, points, 1.3f, mix(scene.palette.pavement, scene.palette.sand, 0.4f), 0.9f);
}

void paintRough(Scene& scene) {
    coverWithGrass(scene, 161);
    const NoiseField woods = scene.noise({8, 3, 0.5f}, 162);
    const float edge = woods.quantile(0.5f);
    for (int tree = 0; tree < 1700; ++tree) {
        const Vector2 place = scene.anywhere();
        const float radius = scene.random.between(1.6f, 3.1f);
        if (woods.at(place) > edge) paintTree(scene, place, radius);
    }
}

} // namespace

void paintGolfCourse(Scene& scene) {
    paintRough(scene);
    const std::vector<Hole> holes = layOutHoles(scene);
    for (const Hole& hole : holes)
        paintFairway(scene, hole, 9.5f);
    for (const Hole& hole : holes) {
        paintGreen(scene, hole);
        paintBunker(scene, onFairway(hole, 0.6f) + Vector2{11, 0});
        scene.canvas.paintBox({hole.tee, {0, 1}, 3.4f, 2}, scene.snowed(rgb(0x9cc862), 0.7f));
        paintCartPath(scene, hole, 14);
    }
    for (int pond = 0; pond < 3; ++pond) {
        const Hole& hole = holes[static_cast<std::size_t>(pond) + 1];
        const float radius = scene.random.between(5.5f, 10);
        paintPond(scene, onFairway(hole, scene.random.between(0.3f, 0.5f)) + Vector2{-14, 0}, radius);
    }
    mottle(scene, {32, 3, 0.8f}, 163, 0.06f);
}

namespace {

/// An avenue with a path in the middle and trees on both sides.
void paintAvenue(Scene& scene, Vector2 from, Vector2 to) {
    const Vector2 aside = perpendicular(unitVector(to - from)) * 5;
    scene.canvas.paintLine(from, to, 3, scene.palette.track);
    paintTreeRow(scene, from + aside, to + aside, 5, 0.04f);
    paintTreeRow(scene, from - aside, to - aside, 5, 0.04f);
}

/// A round flower bed with a fountain, where the avenues meet.
void paintRondel(Scene& scene, Vector2 centre) {
    constexpr std::array<Color, 3> blossoms = {rgb(0xc9566a), rgb(0xe0b84a), rgb(0xb678b8)};
    const Color blossom = scene.random.pick(blossoms);
    const bool isBlooming =
        scene.season() == BaseImageSeason::spring || scene.season() == BaseImageSeason::summer;
    visitDisc({centre, 17}, [&](const Touch& touch) {
        scene.canvas.paint(touch, scene.palette.track);
        scene.canvas.raise(touch, 0);
    });
    scene.canvas.paintDisc({centre, 13}, scene.palette.grass[1]);
    scene.canvas.paintDisc({centre, 10}, isBlooming ? blossom : scene.palette.soil, 0.85f);
    scene.canvas.paintDisc({centre, 7}, scene.palette.pavement);
    scene.canvas.paintDisc({centre, 5}, scene.palette.water);
}

} // namespace

void paintPark(Scene& scene) {
    coverWithGrass(scene, 171);
    const NoiseField woods = scene.noise({4, 4, 0.5f}, 172);
    const float edge = woods.quantile(0.6f);
    for (int tree = 0; tree < 1500; ++tree) {
        const Vector2 place = scene.anywhere();
        const float radius = scene.random.between(1.6f, 3.3f);
        if (woods.at(place) > edge) paintTree(scene, place, radius);
    }
    for (int walk = 0; walk < 4; ++walk)
        paintPath(scene, windingLine(scene, walk % 2 == 0, 50), 1.8f, scene.palette.track);
    const Vector2 heart{scene.random.between(90, 166), scene.random.between(90, 166)};
    const float lake = scene.random.between(17, 24);
    paintPond(scene, heart + Vector2{70, 66}, lake);
    paintAvenue(scene, {heart.x, 0}, {heart.x, canvasSide});
    paintAvenue(scene, {0, heart.y}, {canvasSide, heart.y});
    paintRondel(scene, heart);
    paintFlatBuilding(scene, {heart + Vector2{-40, 30}, {1, 0}, 9, 4}, 3);
    paintHouse(scene, {heart + Vector2{-40, 30}, {1, 0}, 4, 6}, 3);
    mottle(scene, {32, 3, 0.8f}, 173, 0.06f);
}

} // namespace morvane::art
