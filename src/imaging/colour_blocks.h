#pragma once

#include "imaging/colour_lanes.h"

#include <array>

namespace morvane {

/// Four by four pixels, four bytes each: red, green, blue, 255.
using BlockPixels = std::array<std::uint8_t, 64>;

/// The search works on that many at once.
constexpr int blocksAtOnce = laneCount;
using FourBlockPixels = std::array<BlockPixels, blocksAtOnce>;

/// Writes the eight bytes of an opaque DXT1 block for each, in that order. It never has index 3 where the
/// first colour is not the greater one, which readers show as a hole.
void encodeColourBlocks(const FourBlockPixels& blocks, std::uint8_t* target);

} // namespace morvane
