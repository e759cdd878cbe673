#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <vector>

namespace morvane {

/// The outline of a shaped window as rectangles, in pixels from the window's upper left corner. They lie in
/// bands: from top to bottom, those of one band alike in top and height, from left to right with gaps between
/// them. QRegion::setRects takes them as they are.
struct WindowRegion {
    QRect bounds;
    std::vector<QRect> rectangles;

    bool operator==(const WindowRegion&) const = default;
};

/// The region in the contents of a region file: the block RGNDATA of the Windows API, that is a header of 32
/// bytes (its own size 32, the type 1, the count, 16 bytes for each rectangle, the bounds), then left, top,
/// right and bottom of each rectangle as signed 32-bit numbers, all little-endian. The file's length is the
/// block's. Raises ErrorCode::invalidPicture for anything else, rectangles out of their bands or bounds
/// included; no more is ever allocated than the file is long.
WindowRegion readWindowRegion(const QByteArray& file);

/// The same block. A region that was read gives its file's bytes again. Raises ErrorCode::invalidCall for an
/// empty region.
QByteArray writeWindowRegion(const WindowRegion& region);

/// Every pixel of the picture that has not the transparent colour; alpha does not count.
WindowRegion scanRegion(const QImage& picture, QRgb transparent);

} // namespace morvane
