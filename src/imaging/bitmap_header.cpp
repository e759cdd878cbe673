#include "imaging/bitmap_header.h"

#include "core/reading_limits.h"

#include <QtEndian>
#include <algorithm>

namespace morvane {

namespace {

constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t oldestInfoHeaderSize = 12;
constexpr std::size_t usualInfoHeaderSize = 40;
/// Behind the usual header, or inside the longer ones: the same offset in the file.
constexpr std::size_t masksAt = fileHeaderSize + usualInfoHeaderSize;

enum Compression : std::uint32_t {
    none = 0,
    runs8 = 1,
    runs4 = 2,
    masks = 3,
    masksWithAlpha = 6,
    dxt1 = 0x31545844, // the letters "DXT1"
    dxt3 = 0x33545844,
    dxt5 = 0x35545844,
};

bool isDepth(int bits, std::initializer_list<int> depths) {
    return std::find(depths.begin(), depths.end(), bits) != depths.end();
}

PixelKind uncompressedKind(int bits) {
    if (isDepth(bits, {1, 4, 8})) return PixelKind::palette;
    if (isDepth(bits, {16, 32})) return PixelKind::masked;
    if (bits == 24) return PixelKind::plain;
    refusePicture(u"unknown colour depth");
}

PixelKind kindOfDepth(PixelKind kind, bool depthFits) {
    if (!depthFits) refusePicture(u"colour depth and compression do not go together");
    return kind;
}

/// The compression decides before the depth: the DXT kinds all claim 16 bits.
PixelKind kindOf(std::uint32_t compression, int bits) {
    switch (compression) {
    case Compression::none:
        return uncompressedKind(bits);
    case Compression::runs8:
        return kindOfDepth(PixelKind::runLength, bits == 8);
    case Compression::runs4:
        return kindOfDepth(PixelKind::runLength, bits == 4);
    case Compression::masks:
    case Compression::masksWithAlpha:
        return kindOfDepth(PixelKind::masked, isDepth(bits, {16, 32}));
    case Compression::dxt1:
        return PixelKind::dxt1;
    case Compression::dxt3:
        return PixelKind::dxt3;
    case Compression::dxt5:
        return PixelKind::dxt5;
    }
    refusePicture(u"unknown compression");
}

std::array<std::uint32_t, 3> masksOf(Bytes file, std::uint32_t compression, int bits) {
    if (compression != Compression::none)
        return {longAt(file, masksAt), longAt(file, masksAt + 4), longAt(file, masksAt + 8)};
    if (bits == 16) return {0x7C00, 0x03E0, 0x001F};
    return {0xFF0000, 0x00FF00, 0x0000FF};
}

void setSides(BitmapHeader& header, std::int64_t width, std::int64_t height) {
    header.topDown = height < 0;
    const std::int64_t rows = header.topDown ? -height : height;
    if (width < 1 || rows < 1) refusePicture(u"it has no pixels");
    if (width > largestPictureSide || rows > largestPictureSide || width * rows > largestPictureArea)
        refusePicture(u"it is too large");
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(rows);
}

/// `used` is the header's own count, 0 for as many as the depth can tell apart. Some files claim more entries
/// than fit before the pixels.
void setPalette(BitmapHeader& header, std::size_t infoSize, std::uint32_t used) {
    if (header.kind != PixelKind::palette && header.kind != PixelKind::runLength) return;
    const std::uint32_t most = 1U << header.bitsPerPixel;
    header.paletteAt = fileHeaderSize + infoSize;
    header.paletteEntrySize = infoSize == oldestInfoHeaderSize ? 3 : 4;
    const std::size_t room =
        (header.pixelsAt - header.paletteAt) / static_cast<std::size_t>(header.paletteEntrySize);
    const std::size_t claimed = used == 0 ? most : std::min(used, most);
    header.paletteEntries = static_cast<int>(std::min(room, claimed));
}

void readOldestHeader(BitmapHeader& header, Bytes file) {
    setSides(header, wordAt(file, 18), wordAt(file, 20));
    header.bitsPerPixel = wordAt(file, 24);
    header.kind = uncompressedKind(header.bitsPerPixel);
    if (header.kind == PixelKind::masked) refusePicture(u"unknown colour depth");
    setPalette(header, oldestInfoHeaderSize, 0);
}

void readUsualHeader(BitmapHeader& header, Bytes file, std::size_t infoSize) {
    setSides(header, static_cast<std::int32_t>(longAt(file, 18)),
             static_cast<std::int32_t>(longAt(file, 22)));
    header.bitsPerPixel = wordAt(file, 28);
    const std::uint32_t compression = longAt(file, 30);
    header.kind = kindOf(compression, header.bitsPerPixel);
    if (header.kind == PixelKind::masked) header.masks = masksOf(file, compression, header.bitsPerPixel);
    setPalette(header, infoSize, longAt(file, 46));
}

} // namespace

BitmapHeader readBitmapHeader(Bytes file) {
    if (wordAt(file, 0) != 0x4D42) refusePicture(u"it is no bitmap");
    const std::size_t infoSize = longAt(file, fileHeaderSize);
    const bool isOldest = infoSize == oldestInfoHeaderSize;
    if (!isOldest && infoSize != 40 && infoSize != 52 && infoSize != 56 && infoSize != 108 && infoSize != 124)
        refusePicture(u"unknown header");
    partOf(file, fileHeaderSize, infoSize);

    BitmapHeader header;
    header.pixelsAt = longAt(file, 10);
    if (header.pixelsAt < fileHeaderSize + infoSize) refusePicture(u"its pixels lie inside the header");
    if (isOldest)
        readOldestHeader(header, file);
    else
        readUsualHeader(header, file, infoSize);
    return header;
}

} // namespace morvane
