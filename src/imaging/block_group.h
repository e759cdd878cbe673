#pragma once

#include <cstddef>
#include <cstdint>

namespace morvane {

/// Pixels of a side of a compressed block.
inline constexpr int blockSide = 4;

/// Sixty-four blocks of four by four pixels, side by side, as three planes of bytes: four pixels of one
/// channel of one row of a block are one word, and the next word is the next block's. So a register holds the
/// same pixels of many blocks without any shuffling.
struct BlockGroup {
    static constexpr std::size_t blocks = 64;
    static constexpr std::size_t rows = 4;
    static constexpr std::size_t channels = 3; ///< red, green, blue

    alignas(64) std::uint32_t words[channels][rows][blocks];
};

/// What becomes of them, as it stands in a file: two ends of 5, 6 and 5 bits, then sixteen indexes of two
/// bits.
struct EncodedBlock {
    std::uint16_t ends[2];
    std::uint32_t indexes;
};
struct EncodedGroup {
    EncodedBlock blocks[BlockGroup::blocks];
};

} // namespace morvane
