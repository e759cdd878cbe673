#include "imaging/palette.h"

namespace morvane {

Picture readPaletteRows(const BitmapHeader& header, Bytes file) {
    const Palette palette(header, file);
    const Bytes stored = storedRows(header, file);
    const std::size_t storedSize = storedRowSize(header);
    const int bits = header.bitsPerPixel, pixelsPerByte = 8 / bits;
    const int indexMask = (1 << bits) - 1;
    Picture picture = blackPicture(header);
    for (int y = 0; y < header.height; ++y) {
        const std::uint8_t* source = stored.data() + storedSize * static_cast<std::size_t>(y);
        std::uint8_t* target = rowOf(picture, y);
        for (int x = 0; x < header.width; ++x) {
            // The leftmost pixel lies in the highest bits of its byte.
            const int shift = 8 - bits - x % pixelsPerByte * bits;
            palette.paint(static_cast<std::size_t>(source[x / pixelsPerByte] >> shift & indexMask),
                          target + 3 * x);
        }
    }
    return picture;
}

} // namespace morvane
