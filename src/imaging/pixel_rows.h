#pragma once

#include "imaging/bitmap_header.h"
#include "imaging/picture.h"

namespace morvane {

// One loader a kind of pixels. Each gives the picture with its rows in the order of the file, which for
// nearly all files is the order of Picture; the caller turns the top-down ones over. Each checks that the
// file holds what it needs before it allocates, and refuses the picture otherwise.

Picture readPlainRows(const BitmapHeader& header, Bytes file);
Picture readPaletteRows(const BitmapHeader& header, Bytes file);
Picture readRunLengthRows(const BitmapHeader& header, Bytes file);
Picture readMaskedRows(const BitmapHeader& header, Bytes file);
Picture readBlockRows(const BitmapHeader& header, Bytes file);

/// Bytes of one uncompressed row in the file: a multiple of four.
inline std::size_t storedRowSize(const BitmapHeader& header) {
    return (static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.bitsPerPixel) + 31) /
           32 * 4;
}

/// All rows of an uncompressed picture.
inline Bytes storedRows(const BitmapHeader& header, Bytes file) {
    return partOf(file, header.pixelsAt, storedRowSize(header) * static_cast<std::size_t>(header.height));
}

/// A black picture of the header's size.
inline Picture blackPicture(const BitmapHeader& header) {
    const auto size =
        static_cast<std::size_t>(bytesPerRow(header.width)) * static_cast<std::size_t>(header.height);
    return {header.width, header.height, std::vector<std::uint8_t>(size)};
}

/// The first row becomes the last.
void turnOver(Picture& picture);

/// The first byte of row y of the picture, 0 the first in memory.
inline std::uint8_t* rowOf(Picture& picture, int y) {
    return picture.rows.data() +
           static_cast<std::size_t>(bytesPerRow(picture.width)) * static_cast<std::size_t>(y);
}

} // namespace morvane
