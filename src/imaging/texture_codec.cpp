#include "imaging/texture_codec.h"

#include "core/error.h"
#include "core/reading_limits.h"
#include "imaging/block_group.h"
#include "imaging/block_stream.h"
#include "imaging/picture_reader.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <cstring>

namespace morvane {

namespace {

constexpr int headerSize = 74;
constexpr int blockSize = 8;

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

bool isOnlySelection(const QString& format, int levels, int alpha, int options) {
    return format == u"1" && levels == 10 && alpha == -1 && options == 0;
}

} // namespace

bool isTextureSide(int side) {
    return side >= blockSide && side <= largestTextureSide &&
           std::has_single_bit(static_cast<unsigned>(side));
}

QByteArray compressTexture(const Picture& picture) {
    const int width = picture.width, height = picture.height;
    if (!isTextureSide(width) || !isTextureSide(height)) return {};
    const int levels = levelsOf(width, height);
    QByteArray file(headerSize + sizeOfLevels(width, height, levels), Qt::Uninitialized);
    writeHeader(file.data(), width, height);
    BlockStream blocks(reinterpret_cast<std::uint8_t*>(file.data()) + headerSize);
    TextureLevel level = levelOf(picture);
    blocks.add(level);
    for (int i = 1; i < levels; ++i) {
        level = halved(level);
        blocks.add(level);
    }
    blocks.finish();
    return file;
}

bool BMPScompressBMPVB(FileSystem& files, const FilePath& source, const QString& format, int levels,
                       int alpha, int options, const FilePath& target) {
    if (!isOnlySelection(format, levels, alpha, options)) return false;
    try {
        const QByteArray texture = compressTexture(loadPicture(files, source, largestTextureSide));
        if (texture.isEmpty()) return false;
        files.write(target, texture);
        return true;
    } catch (const Error&) {
        return false; // not told: the missing file is all that callers go by
    }
}

} // namespace morvane
