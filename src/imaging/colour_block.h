#pragma once

#include <array>
#include <cstdint>

namespace morvane {

/// Four by four pixels, four bytes each: red, green, blue, 255.
using BlockPixels = std::array<std::uint8_t, 64>;

/// Writes the eight bytes of an opaque DXT1 block. It never has index 3 where the first colour is not the
/// greater one, which readers show as a hole.
void encodeColourBlock(const BlockPixels& pixels, std::uint8_t* target);

} // namespace morvane
