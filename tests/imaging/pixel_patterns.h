#pragma once

#include "imaging/colour_space.h"
#include "imaging/pixel_buffer.h"

#include <QByteArray>

namespace morvane {

// Found beside the type by GoogleTest.
inline void PrintTo(const RgbColour& colour, std::ostream* out) {
    *out << '(' << colour.red << ", " << colour.green << ", " << colour.blue << ')';
}

namespace test {

inline RgbColour pixelAt(const cDIBSection& buffer, int x, int y) {
    const std::uint8_t* pixel = buffer.row(y) + 3 * x;
    return {pixel[2], pixel[1], pixel[0]};
}

inline void setPixel(cDIBSection& buffer, int x, int y, const RgbColour& colour) {
    std::uint8_t* pixel = buffer.row(y) + 3 * x;
    pixel[0] = static_cast<std::uint8_t>(colour.blue);
    pixel[1] = static_cast<std::uint8_t>(colour.green);
    pixel[2] = static_cast<std::uint8_t>(colour.red);
}

inline cDIBSection createdBuffer(int width, int height) {
    cDIBSection buffer;
    buffer.Create(width, height);
    return buffer;
}

inline cDIBSection filledBuffer(int width, int height, const RgbColour& colour) {
    cDIBSection buffer = createdBuffer(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            setPixel(buffer, x, y, colour);
    return buffer;
}

/// All rows, padding included; nothing for a buffer that was not created.
inline QByteArray bytesOf(const cDIBSection& buffer) {
    if (!buffer.isCreated()) return {};
    return {reinterpret_cast<const char*>(buffer.DIBSectionBitsPtr()),
            buffer.BytesPerScanLine() * buffer.Height()};
}

} // namespace test

} // namespace morvane
