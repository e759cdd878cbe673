#include "imaging/texture_codec.h"

#include "core/error.h"
#include "imaging/colour_blocks.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_level.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <cstring>

namespace morvane {

namespace {

constexpr int headerSize = 74;
constexpr int blockSide = 4;
constexpr int blockSize = 8;
constexpr int largestSide = 1024;

bool isTextureSide(int side) {
    return side >= blockSide && side <= largestSide && std::has_single_bit(static_cast<unsigned>(side));
}

/// Bytes of the first `levels` levels. A level of fewer pixels than a block still takes a whole one.
int sizeOfLevels(int width, int height, int levels) {
    int size = 0;
    for (int level = 0; level < levels; ++level) {
        const int across = std::max(width >> level, blockSide) / blockSide;
        const int down = std::max(height >> level, blockSide) / blockSide;
        size += across * down * blockSize;
    }
    return size;
}

/// The levels down to 1 x 1.
int levelsOf(int width, int height) {
    return std::bit_width(static_cast<unsigned>(std::max(width, height)));
}

/// The header counts only the levels whose sides are both four or more, though the rest stands in the file:
/// the simulator's own files are made so.
int countedLevelsOf(int width, int height) {
    return std::bit_width(static_cast<unsigned>(std::min(width, height))) - 2;
}

void writeHeader(char* header, int width, int height) {
    const auto put = [header](int at, int value) { qToLittleEndian<qint32>(value, header + at); };
    const int counted = countedLevelsOf(width, height);
    const int countedSize = sizeOfLevels(width, height, counted);
    std::memset(header, 0, headerSize);
    std::memcpy(header, "BM", 2);
    put(2, headerSize + countedSize);
    put(10, headerSize);
    put(14, 40); // size of the info header
    put(18, width);
    put(22, height);
    put(26, 16 << 16 | 1); // one plane of, as they say, 16 bits
    std::memcpy(header + 30, "DXT1", 4);
    put(34, countedSize);
    std::memcpy(header + 54, "FS70", 4);
    put(58, 20);                  // size of the FS70 block
    put(62, 1 << 8);              // no particular use, opaque
    put(66, (counted - 1) << 16); // counted levels below the first
}

/// The pixels of one block; beyond the edge of a small level the edge is repeated.
void fillBlock(const TextureLevel& level, int left, int firstRow, BlockPixels& block) {
    for (int y = 0; y < blockSide; ++y) {
        const int row = std::min(firstRow + y, level.height - 1);
        const auto rowStart = static_cast<std::size_t>(row) * static_cast<std::size_t>(level.width);
        std::uint8_t* target = block.data() + y * 16;
        if (level.width >= blockSide) {
            std::memcpy(target, &level.pixels[(rowStart + static_cast<std::size_t>(left)) * 4], 16);
            continue;
        }
        for (int x = 0; x < blockSide; ++x, target += 4)
            std::memcpy(
                target,
                &level.pixels[(rowStart + static_cast<std::size_t>(std::min(x, level.width - 1))) * 4], 4);
    }
}

/// Rows lie bottom-up in the file as in the picture, so blocks follow in the order of memory, without a flip.
std::uint8_t* encodeLevel(const TextureLevel& level, std::uint8_t* target) {
    const int count = sizeOfLevels(level.width, level.height, 1) / blockSize;
    FourBlockPixels blocks = {};
    std::array<std::uint8_t, blocksAtOnce * blockSize> encoded;
    int x = 0, y = 0;
    for (int left = count; left > 0; left -= blocksAtOnce) {
        const int taken = std::min(blocksAtOnce, left); // the smallest levels do not fill the lanes
        for (int i = 0; i < taken; ++i) {
            fillBlock(level, x, y, blocks[static_cast<std::size_t>(i)]);
            x += blockSide;
            if (x >= level.width) x = 0, y += blockSide;
        }
        encodeColourBlocks(blocks, encoded.data());
        target = std::copy_n(encoded.data(), taken * blockSize, target);
    }
    return target;
}

bool isOnlySelection(const QString& format, int levels, int alpha, int options) {
    return format == u"1" && levels == 10 && alpha == -1 && options == 0;
}

} // namespace

QByteArray compressTexture(const Picture& picture) {
    const int width = picture.width, height = picture.height;
    if (!isTextureSide(width) || !isTextureSide(height)) return {};
    const int levels = levelsOf(width, height);
    QByteArray file(headerSize + sizeOfLevels(width, height, levels), Qt::Uninitialized);
    writeHeader(file.data(), width, height);
    TextureLevel level = levelOf(picture);
    auto* target = encodeLevel(level, reinterpret_cast<std::uint8_t*>(file.data()) + headerSize);
    for (int i = 1; i < levels; ++i) {
        level = halved(level);
        target = encodeLevel(level, target);
    }
    return file;
}

bool BMPScompressBMPVB(FileSystem& files, const FilePath& source, const QString& format, int levels,
                       int alpha, int options, const FilePath& target) {
    if (!isOnlySelection(format, levels, alpha, options)) return false;
    try {
        const QByteArray texture = compressTexture(loadPicture(files, source));
        if (texture.isEmpty()) return false;
        files.write(target, texture);
        return true;
    } catch (const Error&) {
        return false; // not told: the missing file is all that callers go by
    }
}

} // namespace morvane
