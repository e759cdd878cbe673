#include "imaging/pixel_rows.h"

#include <algorithm>

namespace morvane {

namespace {

/// What files hold in the bytes that fill a row up is chance; two readings of one picture shall be equal.
void clearRowEnds(Picture& picture) {
    const int used = picture.width * 3;
    for (int y = 0; y < picture.height && used != bytesPerRow(picture.width); ++y)
        std::fill(rowOf(picture, y) + used, rowOf(picture, y) + bytesPerRow(picture.width), std::uint8_t{0});
}

} // namespace

/// The file's layout is the picture's, so this is one copy.
Picture readPlainRows(const BitmapHeader& header, Bytes file) {
    const Bytes stored = storedRows(header, file);
    Picture picture{header.width, header.height, {stored.begin(), stored.end()}};
    clearRowEnds(picture);
    return picture;
}

} // namespace morvane
