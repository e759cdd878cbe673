#include "imaging/window_region.h"

#include "core/error.h"
#include "imaging/bitmap_bytes.h"

#include <QtEndian>

namespace morvane {

namespace {

constexpr std::size_t headerSize = 32;
constexpr std::size_t rectangleSize = 16;
constexpr std::uint32_t rectangleKind = 1;
/// No window reaches further; within it no sum of coordinates overflows.
constexpr std::int32_t farthest = 32767;

std::int32_t coordinateAt(Bytes block, std::size_t at) {
    const auto value = static_cast<std::int32_t>(longAt(block, at));
    if (value < -farthest || value > farthest) refusePicture(u"a coordinate of the region is out of reach");
    return value;
}

QRect rectangleAt(Bytes block, std::size_t at) {
    const QPoint first(coordinateAt(block, at), coordinateAt(block, at + 4));
    const QPoint end(coordinateAt(block, at + 8), coordinateAt(block, at + 12));
    const QRect rectangle(first, end - QPoint(1, 1));
    if (!rectangle.isValid()) refusePicture(u"a rectangle of the region is empty");
    return rectangle;
}

/// True when `next` may follow `last` in a region; QRegion relies on it.
bool keepsBands(const QRect& last, const QRect& next) {
    if (next.top() == last.top()) return next.bottom() == last.bottom() && next.left() > last.right() + 1;
    return next.top() > last.bottom();
}

void appendLong(QByteArray& block, std::int32_t value) {
    const qint32 littleEndian = qToLittleEndian(value);
    block.append(reinterpret_cast<const char*>(&littleEndian), sizeof littleEndian);
}

void appendRectangle(QByteArray& block, const QRect& rectangle) {
    for (const int value : {rectangle.left(), rectangle.top(), rectangle.right() + 1, rectangle.bottom() + 1})
        appendLong(block, value);
}

/// The runs of one row that are not transparent, each one pixel high.
std::vector<QRect> opaqueRuns(const QImage& picture, int y, QRgb transparent) {
    const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    std::vector<QRect> runs;
    bool isInRun = false;
    for (int x = 0; x < picture.width(); ++x) {
        const bool isOpaque = (pixels[x] & RGB_MASK) != (transparent & RGB_MASK);
        if (isOpaque && isInRun)
            runs.back().setRight(x);
        else if (isOpaque)
            runs.emplace_back(x, y, 1, 1);
        isInRun = isOpaque;
    }
    return runs;
}

/// Lengthens the band at the end of `rectangles`, which starts at index `band`, by a row of the same runs.
bool lengthenBand(std::vector<QRect>& rectangles, std::size_t band, const std::vector<QRect>& runs) {
    if (runs.empty() || rectangles.size() - band != runs.size()) return false;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const QRect& above = rectangles[band + i];
        if (above.left() != runs[i].left() || above.right() != runs[i].right() ||
            above.bottom() + 1 != runs[i].top())
            return false;
    }
    for (std::size_t i = 0; i < runs.size(); ++i)
        rectangles[band + i].setBottom(runs[i].bottom());
    return true;
}

} // namespace

WindowRegion readWindowRegion(const QByteArray& file) {
    const Bytes block(reinterpret_cast<const std::uint8_t*>(file.constData()),
                      static_cast<std::size_t>(file.size()));
    if (longAt(block, 0) != headerSize || longAt(block, 4) != rectangleKind)
        refusePicture(u"it is no region");
    const std::size_t count = longAt(block, 8);
    if (count == 0) refusePicture(u"the region is empty");
    if (block.size() < headerSize || (block.size() - headerSize) / rectangleSize != count ||
        (block.size() - headerSize) % rectangleSize != 0 || longAt(block, 12) != count * rectangleSize)
        refusePicture(u"the region has not the size that it tells");

    WindowRegion region{rectangleAt(block, 16), {}};
    region.rectangles.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const QRect rectangle = rectangleAt(block, headerSize + i * rectangleSize);
        if (!region.bounds.contains(rectangle)) refusePicture(u"the region leaves its bounds");
        if (i > 0 && !keepsBands(region.rectangles.back(), rectangle))
            refusePicture(u"the region's rectangles are out of order");
        region.rectangles.push_back(rectangle);
    }
    return region;
}

QByteArray writeWindowRegion(const WindowRegion& region) {
    if (region.rectangles.empty())
        throw Error::withDescription(ErrorCode::invalidCall,
                                     u"Unable to determine size of region in SaveRegionDataToFile"_s);
    const auto count = static_cast<std::int32_t>(region.rectangles.size());
    QByteArray block;
    for (const std::int32_t value :
         {static_cast<std::int32_t>(headerSize), static_cast<std::int32_t>(rectangleKind), count,
          count * static_cast<std::int32_t>(rectangleSize)})
        appendLong(block, value);
    appendRectangle(block, region.bounds);
    for (const QRect& rectangle : region.rectangles)
        appendRectangle(block, rectangle);
    return block;
}

WindowRegion scanRegion(const QImage& picture, QRgb transparent) {
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    WindowRegion region;
    std::size_t band = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        const std::vector<QRect> runs = opaqueRuns(pixels, y, transparent);
        if (lengthenBand(region.rectangles, band, runs)) continue;
        band = region.rectangles.size();
        region.rectangles.insert(region.rectangles.end(), runs.begin(), runs.end());
    }
    for (const QRect& rectangle : region.rectangles)
        region.bounds |= rectangle;
    return region;
}

} // namespace morvane
