#pragma once

#include "imaging/colour_space.h"
#include "imaging/pixel_buffer.h"

#include <algorithm>

namespace morvane {

/// Raises the errors of Recolouring::apply for buffers that a walk could not read or write.
void checkBuffers(const cDIBSection& source, const cDIBSection& destination);

inline RgbColour readPixel(const std::uint8_t* pixel) {
    return {pixel[2], pixel[1], pixel[0]};
}

inline void storeClamped(const RgbColour& colour, std::uint8_t* pixel) {
    pixel[2] = static_cast<std::uint8_t>(std::clamp(colour.red, 0, 255));
    pixel[1] = static_cast<std::uint8_t>(std::clamp(colour.green, 0, 255));
    pixel[0] = static_cast<std::uint8_t>(std::clamp(colour.blue, 0, 255));
}

/// Calls `visit(colour, target, x, y)` for every pixel, column by column from the bottom, `x` being the byte
/// offset in the row. Where a row has three bytes of padding they are visited as one more pixel. An exception
/// leaves the pixels before it written.
template <class Visit>
void walkPixels(const cDIBSection& source, cDIBSection& destination, Visit&& visit) {
    checkBuffers(source, destination);
    for (int x = 0; x <= source.BytesPerScanLine() - 3; x += 3)
        for (int y = 0; y < source.Height(); ++y)
            visit(readPixel(source.row(y) + x), destination.row(y) + x, x, y);
}

} // namespace morvane
