#include "imaging/small_picture.h"

#include "core/error.h"
#include "imaging/block_group.h"
#include "imaging/picture_reader.h"
#include "imaging/pixel_rows.h"

#include <algorithm>
#include <optional>

namespace morvane {

namespace {

/// The longest headers that go before the pixels of a DXT file in any form known, and more.
constexpr std::int64_t headSize = 256;
constexpr std::size_t markSize = 20; ///< the block "FS70", which ends where the pixels begin

/// The levels below the first that the header counts; none without the simulator's block.
int countedLevels(const BitmapHeader& header, Bytes head) {
    const std::size_t mark = header.pixelsAt - markSize;
    if (header.pixelsAt < markSize || header.pixelsAt > head.size()) return 0;
    if (longAt(head, mark) != 0x30375346) return 0; // the letters "FS70"
    return std::min<int>(wordAt(head, mark + 14), 13);
}

bool hasBlocks(PixelKind kind) {
    return kind == PixelKind::dxt1 || kind == PixelKind::dxt3 || kind == PixelKind::dxt5;
}

std::int64_t levelSize(const BitmapHeader& header, int level) {
    const auto blocks = [&](int side) { return (std::max(side >> level, 1) + blockSide - 1) / blockSide; };
    return std::int64_t{blocks(header.width)} * blocks(header.height) *
           (header.kind == PixelKind::dxt1 ? 8 : 16);
}

/// The smallest counted level whose sides are not below that.
int levelFor(const BitmapHeader& header, int counted, int side) {
    int level = 0;
    while (level < counted && (std::min(header.width, header.height) >> (level + 1)) >= side)
        ++level;
    return level;
}

Bytes bytesOf(const QByteArray& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

/// Nothing where the file has no level but the first to take.
std::optional<SmallPicture> loadLevel(FileSystem& files, const FilePath& path, int side) {
    const QByteArray head = files.readPart(path, 0, headSize);
    BitmapHeader header = readBitmapHeader(bytesOf(head));
    const int level =
        hasBlocks(header.kind) && side > 0 ? levelFor(header, countedLevels(header, bytesOf(head)), side) : 0;
    if (level == 0) return std::nullopt;
    auto from = static_cast<std::int64_t>(header.pixelsAt);
    for (int larger = 0; larger < level; ++larger)
        from += levelSize(header, larger);
    const QByteArray blocks = files.readPart(path, from, levelSize(header, level));
    const QSize whole(header.width, header.height);
    header.width >>= level;
    header.height >>= level;
    header.pixelsAt = 0;
    Picture picture = readBlockRows(header, bytesOf(blocks));
    if (header.topDown) turnOver(picture);
    return SmallPicture{std::move(picture), whole, true};
}

Picture halved(const Picture& picture) {
    Picture half{picture.width / 2, picture.height / 2, {}};
    const auto sourceRow = static_cast<std::size_t>(bytesPerRow(picture.width));
    const auto targetRow = static_cast<std::size_t>(bytesPerRow(half.width));
    half.rows.resize(targetRow * static_cast<std::size_t>(half.height));
    for (int y = 0; y < half.height; ++y) {
        const std::uint8_t* lower = picture.rows.data() + 2 * sourceRow * static_cast<std::size_t>(y);
        const std::uint8_t* upper = lower + sourceRow;
        std::uint8_t* target = half.rows.data() + targetRow * static_cast<std::size_t>(y);
        for (int x = 0; x < half.width; ++x, lower += 6, upper += 6, target += 3)
            for (int i = 0; i < 3; ++i)
                target[i] =
                    static_cast<std::uint8_t>((lower[i] + lower[i + 3] + upper[i] + upper[i + 3] + 2) / 4);
    }
    return half;
}

} // namespace

Picture halvedTo(Picture picture, int side) {
    while (side > 0 && std::min(picture.width, picture.height) / 2 >= side)
        picture = halved(picture);
    return picture;
}

/// A level that is not where the header says does not make the picture a bad one.
SmallPicture loadSmallPicture(FileSystem& files, const FilePath& path, int side) {
    try {
        if (auto small = loadLevel(files, path, side)) return std::move(*small);
    } catch (const Error& error) {
        if (error.code() != ErrorCode::invalidPicture) throw;
    }
    Picture picture = loadPicture(files, path);
    const QSize whole(picture.width, picture.height);
    return {halvedTo(std::move(picture), side), whole};
}

QImage imageOf(const Picture& picture) {
    if (picture.isEmpty()) return {};
    QImage image(picture.width, picture.height, QImage::Format_RGB32);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* source =
            picture.rows.data() +
            static_cast<std::size_t>(bytesPerRow(picture.width)) * static_cast<std::size_t>(y);
        auto* target = reinterpret_cast<QRgb*>(image.scanLine(picture.height - 1 - y));
        for (int x = 0; x < picture.width; ++x, source += 3)
            target[x] = qRgb(source[2], source[1], source[0]);
    }
    return image;
}

} // namespace morvane
