#include "imaging/picture_reader.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "imaging/pixel_rows.h"

#include <algorithm>

namespace morvane {

namespace {

Picture readPixels(const BitmapHeader& header, Bytes file) {
    switch (header.kind) {
    case PixelKind::plain:
        return readPlainRows(header, file);
    case PixelKind::palette:
        return readPaletteRows(header, file);
    case PixelKind::runLength:
        return readRunLengthRows(header, file);
    case PixelKind::masked:
        return readMaskedRows(header, file);
    case PixelKind::dxt1:
    case PixelKind::dxt3:
    case PixelKind::dxt5:
        return readBlockRows(header, file);
    }
    refusePicture(u"unknown compression");
}

} // namespace

void turnOver(Picture& picture) {
    const int size = bytesPerRow(picture.width);
    for (int low = 0, high = picture.height - 1; low < high; ++low, --high)
        std::swap_ranges(rowOf(picture, low), rowOf(picture, low) + size, rowOf(picture, high));
}

Picture readPicture(const QByteArray& bytes, int largestSide) {
    const Bytes file(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                     static_cast<std::size_t>(bytes.size()));
    const BitmapHeader header = readBitmapHeader(file);
    if (std::max(header.width, header.height) > largestSide)
        throw Error(ErrorCode::invalidPicture, u"it is larger than %1 pixels a side"_s.arg(largestSide));
    Picture picture = readPixels(header, file);
    if (header.topDown) turnOver(picture);
    return picture;
}

Picture loadPicture(FileSystem& files, const FilePath& path, int largestSide) {
    const QByteArray bytes = readAtMost(files, path, largestPictureFile, u"a picture"_s);
    try {
        return readPicture(bytes, largestSide);
    } catch (const Error& error) {
        throw Error::withDescription(error.code(), error.description() + u": "_s + path.text());
    }
}

} // namespace morvane
