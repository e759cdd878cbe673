#include "ground_art_night.h"

namespace morvane::art {

namespace {

constexpr Color moonlight{0.06f, 0.065f, 0.095f}, litAsphalt{36, 24, 13};
constexpr std::array<Color, 3> windowColors{rgb(0xffe2a0), rgb(0xffce80), rgb(0xd6e4ff)};
constexpr int lampPitch = 8;  ///< pixels from lamp to lamp; divides the tile
constexpr float eaves = 1.2f; ///< lower things have no windows

/// How a kind of land is lit.
struct Lighting {
    Color lamp;
    float lampReach; ///< pixels; 0 for land without street lamps
    float windows;   ///< share of the roofs' pixels
};

Lighting lightingOf(LandKind kind) {
    const Color sodium = rgb(0xffb25e), white = rgb(0xffdcac);
    switch (kind) {
    case LandKind::cityCentre:
        return {white, 4.2f, 0.16f};
    case LandKind::city:
        return {sodium, 3.8f, 0.13f};
    case LandKind::industry:
        return {white, 3.6f, 0.05f};
    case LandKind::suburb:
    case LandKind::town:
        return {sodium, 3.2f, 0.08f};
    case LandKind::village:
        return {sodium, 2.6f, 0.07f};
    default:
        return {{}, 0, 0.08f};
    }
}

void addLight(Color& target, Color light, float share) {
    target = {target.red + light.red * share, target.green + light.green * share,
              target.blue + light.blue * share};
}

float distance(Color one, Color other) {
    return std::fabs(one.red - other.red) + std::fabs(one.green - other.green) +
           std::fabs(one.blue - other.blue);
}

class NightPainter {
public:
    explicit NightPainter(Scene& scene)
        : scene_(scene), lighting_(lightingOf(scene.image.kind)), random_(scrambled(scene.seed ^ 0x6e69u)) {}

    Picture paint() {
        for (int index = 0; index < Canvas::pixelCount; ++index)
            night_.color(index) = tinted(scene_.canvas.color(index), moonlight);
        if (lighting_.lampReach > 0) lightStreets();
        lightWindows();
        return night_.lit({}); // without heights nothing is shaded
    }

private:
    bool isStreet(int index) {
        constexpr float alike = 34; // the ground's noise makes no more of a difference
        const Color color = scene_.canvas.color(index);
        return scene_.canvas.height(index) <= 0 && (distance(color, scene_.palette.street) < alike ||
                                                    distance(color, scene_.palette.mainRoad) < alike);
    }

    /// Crowns are high, too, and green.
    bool isRoof(int index) {
        const Color color = scene_.canvas.color(index);
        return scene_.canvas.height(index) > eaves && color.green <= std::max(color.red, color.blue) + 2;
    }

    void lightStreets() {
        for (int index = 0; index < Canvas::pixelCount; ++index)
            if (isStreet(index)) addLight(night_.color(index), litAsphalt, 1);
        for (int top = 0; top < canvasSide; top += lampPitch)
            for (int left = 0; left < canvasSide; left += lampPitch)
                lightLampIn(left, top);
    }

    /// One lamp in each square through which a street goes.
    void lightLampIn(int left, int top) {
        constexpr int tries = 24;
        for (int i = 0; i < tries; ++i) {
            const int x = left + random_.below(lampPitch);
            const int y = top + random_.below(lampPitch);
            if (isStreet(wrappedIndex(x, y))) return glow(x, y);
        }
    }

    void glow(int x, int y) {
        const int reach = static_cast<int>(std::ceil(lighting_.lampReach));
        for (int down = -reach; down <= reach; ++down)
            for (int right = -reach; right <= reach; ++right) {
                const float far = static_cast<float>(down * down + right * right) /
                                  (lighting_.lampReach * lighting_.lampReach);
                const float share = far < 1 ? (1 - far) * (1 - far) : 0;
                addLight(night_.color(wrappedIndex(x + right, y + down)), lighting_.lamp, share * 0.6f);
            }
    }

    void lightWindows() {
        for (int y = 0; y < canvasSide; ++y)
            for (int x = 0; x < canvasSide; ++x)
                if (isRoof(wrappedIndex(x, y)) && random_.chance(lighting_.windows)) lightWindow(x, y);
    }

    void lightWindow(int x, int y) {
        const Color color = random_.pick(windowColors);
        const float strength = random_.between(0.35f, 0.85f);
        addLight(night_.color(wrappedIndex(x, y)), color, strength);
        for (const auto& [right, down] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}})
            addLight(night_.color(wrappedIndex(x + right, y + down)), color, strength * 0.2f);
    }

    Scene& scene_;
    Lighting lighting_;
    RandomStream random_; ///< its own: the day's draws stay what they are
    Canvas night_;
};

} // namespace

Picture byNight(Scene& scene) {
    return NightPainter(scene).paint();
}

} // namespace morvane::art
