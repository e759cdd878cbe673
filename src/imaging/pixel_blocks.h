#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace morvane {

/// A run of pixels of three bytes, one after the other, handed to a kernel in blocks of one size, so that it
/// knows whole blocks only and may write `spill` bytes past one. Source and destination may be the same
/// memory.
template <std::size_t blockPixels, std::size_t spill>
class PixelBlocks {
public:
    PixelBlocks(const std::uint8_t* source, std::uint8_t* destination, std::size_t count)
        : source_(source), destination_(destination), count_(count) {
        const std::size_t rest = count % blockPixels;
        if (rest != 0) std::memcpy(tail_, source + 3 * (count - rest), 3 * rest);
    }

    /// The block that starts at that pixel, a multiple of the block's size; the last, partial one filled up.
    /// Past the end there is still one to read, of no meaning.
    const std::uint8_t* source(std::size_t first) const {
        return first + blockPixels <= count_ ? source_ + 3 * first : tail_;
    }
    /// Where the kernel writes that block.
    std::uint8_t* target(std::size_t first) { return isDirect(first) ? destination_ + 3 * first : written_; }
    /// To be called when it has.
    void finish(std::size_t first) {
        if (isDirect(first)) return;
        const std::size_t left = count_ - first;
        std::memcpy(destination_ + 3 * first, written_, 3 * (left < blockPixels ? left : blockPixels));
    }

private:
    /// The spill goes into the next block, which is written after; it must not be read after.
    bool isDirect(std::size_t first) const { return source_ != destination_ && first + blockPixels < count_; }

    const std::uint8_t* source_;
    std::uint8_t* destination_;
    std::size_t count_;
    std::uint8_t tail_[3 * blockPixels] = {};
    std::uint8_t written_[3 * blockPixels + spill];
};

} // namespace morvane
