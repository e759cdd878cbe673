#pragma once

#include "imaging/bitmap_bytes.h"

#include <array>

namespace morvane {

/// How the pixels of a bitmap file are laid down; for each there is one loader in pixel_rows.h.
enum class PixelKind {
    plain,     ///< 24 bits: blue, green, red
    palette,   ///< 1, 4 or 8 bits, an index into the palette
    runLength, ///< the same in runs, 4 or 8 bits
    masked,    ///< 16 or 32 bits, three masks
    dxt1,
    dxt3,
    dxt5,
};

/// What the headers of a bitmap file say, checked as far as headers can be: the sides are within bounds and
/// kind and depth go together. Whether the pixels are there is the loaders' matter.
struct BitmapHeader {
    int width = 0;  ///< 1 to largestPictureSide
    int height = 0; ///< 1 to largestPictureSide
    bool topDown = false;
    int bitsPerPixel = 0; ///< of no meaning in the DXT kinds
    PixelKind kind = PixelKind::plain;
    std::size_t pixelsAt = 0;  ///< offset of the pixels; between them and the headers may lie anything
    std::size_t paletteAt = 0; ///< offset of the palette, of no meaning without one
    int paletteEntries = 0;    ///< 0 without a palette
    int paletteEntrySize = 0;  ///< bytes: blue, green, red, and but for the oldest header one unused
    std::array<std::uint32_t, 3> masks = {}; ///< red, green, blue; for the masked kind
};

/// Takes plain bitmaps with info headers of 12, 40, 52, 56, 108 and 124 bytes and the simulator's extended
/// ones. Refuses everything else with ErrorCode::invalidPicture.
BitmapHeader readBitmapHeader(Bytes file);

} // namespace morvane
