#include "ground_art_palette.h"

namespace morvane::art {

namespace {

/// What changes with the season.
struct SeasonColors {
    std::array<Color, 3> grass;
    std::array<Color, 6> crops;
    std::array<Color, 4> broadleaf;
    Color hedge;
    float crownCover;
};

constexpr std::array<SeasonColors, 4> seasonColors = {{
    {{rgb(0x7d9a4a), rgb(0x8aa656), rgb(0x6f8f45)},
     {rgb(0x79a046), rgb(0x92b258), rgb(0x957a58), rgb(0xd2c044), rgb(0x648c3d), rgb(0xa68d68)},
     {rgb(0x6a8a3e), rgb(0x5c7f3b), rgb(0x7d974a), rgb(0x507435)},
     rgb(0x55733a),
     0.95f},
    {{rgb(0x6e8346), rgb(0x7c8d4e), rgb(0x60783f)},
     {rgb(0xc4ab60), rgb(0x58793a), rgb(0xd0bc7c), rgb(0x6d8c42), rgb(0x4d6c37), rgb(0xa3965a)},
     {rgb(0x43602f), rgb(0x4f6e36), rgb(0x395527), rgb(0x5b753b)},
     rgb(0x3f5a2e),
     1.0f},
    {{rgb(0x7f8248), rgb(0x8c8a52), rgb(0x727a42)},
     {rgb(0xc2aa74), rgb(0x75593f), rgb(0xa98d52), rgb(0x7f8a49), rgb(0xd0bc8e), rgb(0x5f4a37)},
     {rgb(0x9c6530), rgb(0xa67f38), rgb(0x87502e), rgb(0x6f6833)},
     rgb(0x7a6232),
     0.95f},
    {{rgb(0x7c7a52), rgb(0x87835c), rgb(0x72734d)},
     {rgb(0x8f8159), rgb(0x6d5945), rgb(0x9b8c66), rgb(0x737a4c), rgb(0xa39574), rgb(0x5d4c3c)},
     {rgb(0x72645a), rgb(0x655a52), rgb(0x7d7066), rgb(0x6a6055)},
     rgb(0x5a5247),
     0.78f},
}};

/// What a variant letter tells of the land.
struct Climate {
    Color tint;
    /// Pull of plants toward straw.
    float dryness;
    /// Pull of open soil and of plants toward red earth.
    float redness;
    float snow;
    float coniferShare;
};

constexpr std::array<Climate, 10> climates = {{
    /* a, maritime      */ {{1.00f, 1.00f, 1.00f}, 0.00f, 0.00f, 0.86f, 0.20f},
    /* b, continental   */ {{1.03f, 1.00f, 0.97f}, 0.08f, 0.00f, 0.93f, 0.30f},
    /* c, red soils     */ {{1.04f, 0.98f, 0.94f}, 0.35f, 0.72f, 0.04f, 0.05f},
    /* d, boreal        */ {{0.95f, 0.99f, 1.02f}, 0.00f, 0.00f, 1.00f, 0.75f},
    /* e, steppe        */ {{1.06f, 1.01f, 0.92f}, 0.42f, 0.00f, 0.80f, 0.15f},
    /* f, mediterranean */ {{1.06f, 1.01f, 0.94f}, 0.28f, 0.12f, 0.22f, 0.25f},
    /* g, subtropical   */ {{0.94f, 1.03f, 0.93f}, 0.00f, 0.06f, 0.15f, 0.08f},
    /* h, as b          */ {{1.045f, 1.00f, 0.955f}, 0.10f, 0.00f, 0.92f, 0.30f},
    /* i, arid          */ {{1.08f, 1.02f, 0.94f}, 0.55f, 0.08f, 0.35f, 0.10f},
    /* j, mountains     */ {{0.97f, 1.00f, 1.00f}, 0.05f, 0.00f, 1.00f, 0.60f},
}};

constexpr Color straw = rgb(0xb8a56c);
constexpr Color redEarth = rgb(0xa9603a);
constexpr Color winterPale = rgb(0xcdbfa0);
constexpr Color freshSnow = rgb(0xeceff5);

/// Turns the season's colours into those of one climate.
class PaletteMixer {
public:
    PaletteMixer(BaseImageSeason season, const Climate& climate, float snow)
        : climate_(climate), snow_(snow),
          paleness_(season == BaseImageSeason::winter ? 0.25f * (1 - snow) : 0.0f) {}

    /// `stick` is the share of snow that stays on it, beside open ground.
    Color plant(Color color, float stick) const {
        return finished(mix(mix(color, straw, climate_.dryness), redEarth, climate_.redness * 0.35f), stick);
    }
    Color ground(Color color, float stick) const {
        return finished(mix(color, redEarth, climate_.redness), stick);
    }
    Color built(Color color, float stick) const { return mix(color, freshSnow, snow_ * stick); }

    template <std::size_t count>
    std::array<Color, count> plants(std::array<Color, count> colors, float stick) const {
        for (Color& color : colors)
            color = plant(color, stick);
        return colors;
    }
    template <std::size_t count>
    std::array<Color, count> builtAll(std::array<Color, count> colors, float stick) const {
        for (Color& color : colors)
            color = built(color, stick);
        return colors;
    }

private:
    Color finished(Color color, float stick) const {
        return mix(tinted(mix(color, winterPale, paleness_), climate_.tint), freshSnow, snow_ * stick);
    }

    const Climate& climate_;
    float snow_;
    float paleness_;
};

constexpr std::array<Color, 3> coniferColors = {rgb(0x31492f), rgb(0x3a5636), rgb(0x2a4029)};
constexpr std::array<Color, 6> roofColors = {rgb(0xa3583f), rgb(0x8d4d3a), rgb(0xb37a5c),
                                             rgb(0x716c69), rgb(0x5c6067), rgb(0x9a8d7c)};
constexpr std::array<Color, 4> flatRoofColors = {rgb(0xb8b3a9), rgb(0x9b9995), rgb(0xcfcbc2), rgb(0x83817e)};

void mixLand(Palette& palette, const PaletteMixer& mixer, const SeasonColors& colors) {
    palette.grass = mixer.plants(colors.grass, 0.9f);
    palette.crops = mixer.plants(colors.crops, 0.74f);
    palette.broadleaf = mixer.plants(colors.broadleaf, 0.12f);
    palette.conifers = mixer.plants(coniferColors, 0.12f);
    palette.hedge = mixer.plant(colors.hedge, 0.1f);
    palette.soil = mixer.ground(rgb(0x8e7656), 0.62f);
    palette.track = mixer.ground(rgb(0xb7a07a), 0.6f);
    palette.sand = mixer.ground(rgb(0xd8c193), 0.85f);
    palette.rock = mixer.ground(rgb(0x8f877b), 0.55f);
}

void mixBuildings(Palette& palette, const PaletteMixer& mixer) {
    palette.roofs = mixer.builtAll(roofColors, 0.52f);
    palette.flatRoofs = mixer.builtAll(flatRoofColors, 0.6f);
    palette.mainRoad = mixer.built(rgb(0x76767a), 0.06f);
    palette.street = mixer.built(rgb(0x8f8d89), 0.14f);
    palette.pavement = mixer.built(rgb(0xaaa59b), 0.38f);
    palette.water = mixer.built(rgb(0x37535c), 0.5f);
}

} // namespace

Palette makePalette(BaseImageSeason season, char variant, bool warmGround) {
    const Climate& climate = climates[static_cast<std::size_t>(variant - 'a')];
    const SeasonColors& colors = seasonColors[static_cast<std::size_t>(season)];
    Palette palette;
    palette.snowCover = season == BaseImageSeason::winter ? climate.snow * (warmGround ? 0.06f : 1.0f) : 0.0f;
    palette.snow = freshSnow;
    palette.coniferShare = climate.coniferShare;
    palette.crownCover = colors.crownCover;
    const PaletteMixer mixer(season, climate, palette.snowCover);
    mixLand(palette, mixer, colors);
    mixBuildings(palette, mixer);
    return palette;
}

} // namespace morvane::art
