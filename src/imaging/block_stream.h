#pragma once

#include "imaging/block_group.h"
#include "imaging/texture_level.h"

namespace morvane {

/// Gathers the blocks of a texture's levels, one level after the other, encodes them in full groups and
/// writes them one behind the other: small levels share a group.
class BlockStream {
public:
    /// `target` has room for all blocks that will be added.
    explicit BlockStream(std::uint8_t* target) : target_(target) {}

    /// A level with a side below four takes whole blocks all the same, its edge repeated.
    void add(const TextureLevel& level);
    /// To be called after the last level.
    void finish();

private:
    void addRowOfBlocks(const TextureLevel& level, int firstRow);
    void addNarrow(const TextureLevel& level, int firstRow);

    std::uint8_t* target_;
    BlockGroup group_{};
    std::size_t count_ = 0;
};

} // namespace morvane
