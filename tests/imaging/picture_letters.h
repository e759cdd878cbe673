#pragma once

#include "imaging/picture.h"

#include <array>
#include <string>

namespace morvane::test {

/// Red, green and blue of the pixel at column x of row y, row 0 being the bottom one.
std::array<int, 3> pixelAt(const Picture& picture, int x, int y);

/// The picture as a person sees it, top row first, rows parted by "/": one letter a pixel, r g b y w k for
/// red, green, blue, yellow, white and black at full strength, "?" for every other colour.
std::string lettersOf(const Picture& picture);

} // namespace morvane::test
