#include "imaging/block_group.h"
#include "imaging/pixel_rows.h"

#include <algorithm>
#include <cstring>

namespace morvane {

namespace {

constexpr std::size_t colourBlockSize = 8;

using Colour = std::array<std::uint8_t, 3>; // blue, green, red, as in the picture

Colour colourOf(std::uint16_t packed) {
    const int red = packed >> 11, green = packed >> 5 & 63, blue = packed & 31;
    return {static_cast<std::uint8_t>(blue << 3 | blue >> 2),
            static_cast<std::uint8_t>(green << 2 | green >> 4),
            static_cast<std::uint8_t>(red << 3 | red >> 2)};
}

/// (weight x first + second) / (weight + 1), cut to a whole number as the texture's readers do.
Colour between(const Colour& first, const Colour& second, int weight) {
    Colour mixed;
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = static_cast<std::uint8_t>((weight * first[i] + second[i]) / (weight + 1));
    return mixed;
}

/// The four colours of a block. Only DXT1 has blocks of three colours; their fourth index is transparent, and
/// with alpha dropped black.
std::array<Colour, 4> coloursOf(Bytes block, bool hasThreeColourBlocks) {
    const std::uint16_t first = wordAt(block, 0), second = wordAt(block, 2);
    const Colour c0 = colourOf(first), c1 = colourOf(second);
    if (hasThreeColourBlocks && first <= second) return {c0, c1, between(c0, c1, 1), Colour{}};
    return {c0, c1, between(c0, c1, 2), between(c1, c0, 2)};
}

/// Paints the block whose first pixel is at (left, firstRow), as far as it lies in the picture.
void paintBlock(Picture& picture, int left, int firstRow, Bytes block, bool hasThreeColourBlocks) {
    const std::array<Colour, 4> colours = coloursOf(block, hasThreeColourBlocks);
    const int columns = std::min(blockSide, picture.width - left);
    const int rows = std::min(blockSide, picture.height - firstRow);
    for (int y = 0; y < rows; ++y) {
        unsigned indexes = block[4 + static_cast<std::size_t>(y)];
        std::uint8_t* target = rowOf(picture, firstRow + y) + 3 * left;
        for (int x = 0; x < columns; ++x, indexes >>= 2, target += 3)
            std::memcpy(target, colours[indexes & 3].data(), 3);
    }
}

} // namespace

/// DXT3 and DXT5 blocks begin with eight bytes of alpha, which are passed over.
Picture readBlockRows(const BitmapHeader& header, Bytes file) {
    const bool isDxt1 = header.kind == PixelKind::dxt1;
    const std::size_t blockSize = isDxt1 ? colourBlockSize : 2 * colourBlockSize;
    const int across = (header.width + blockSide - 1) / blockSide,
              down = (header.height + blockSide - 1) / blockSide;
    Bytes blocks = partOf(file, header.pixelsAt,
                          static_cast<std::size_t>(across) * static_cast<std::size_t>(down) * blockSize);
    Picture picture = blackPicture(header);
    for (int row = 0; row < down; ++row)
        for (int column = 0; column < across; ++column, blocks = blocks.subspan(blockSize))
            paintBlock(picture, column * blockSide, row * blockSide,
                       blocks.first(blockSize).last(colourBlockSize), isDxt1);
    return picture;
}

} // namespace morvane
