#pragma once

#include "base_image_list.h"
#include "ground_art_color.h"

#include <array>

namespace morvane::art {

/// The colours of everything on the ground in one season and climate; snow is already in them.
struct Palette {
    std::array<Color, 3> grass;
    std::array<Color, 6> crops;
    std::array<Color, 4> broadleaf;
    std::array<Color, 3> conifers;
    std::array<Color, 6> roofs;
    std::array<Color, 4> flatRoofs;
    Color soil;
    Color hedge;
    Color mainRoad;
    Color street;
    Color pavement;
    Color track;
    Color water;
    Color sand;
    Color rock;
    Color snow;
    /// Share of open ground under snow, 0 to 1.
    float snowCover = 0;
    /// How much of the ground a broadleaf crown hides: little when it is bare.
    float crownCover = 1;
    /// Share of conifers among scattered trees.
    float coniferShare = 0.2f;
};

/// The palette for a variant letter's climate. `warmGround` is for lands where snow hardly lies (hot
/// deserts): their winter is pale instead.
Palette makePalette(BaseImageSeason season, char variant, bool warmGround);

} // namespace morvane::art
