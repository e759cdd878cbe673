#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace morvane {

/// Pixels of three bytes, one after the other, handed out in blocks of one size. The last, partial block is
/// filled up with black in a copy, so that a kernel knows whole blocks only.
template <std::size_t blockPixels>
class PixelRun {
public:
    PixelRun(const std::uint8_t* pixels, std::size_t count) : pixels_(pixels), count_(count) {
        const std::size_t whole = count - count % blockPixels;
        if (whole != count) std::memcpy(tail_, pixels + 3 * whole, 3 * (count - whole));
    }

    /// The block that starts at that pixel, a multiple of the block's size. Past the end there is still one
    /// to read, of no meaning.
    const std::uint8_t* block(std::size_t first) const {
        return first + blockPixels <= count_ ? pixels_ + 3 * first : tail_;
    }
    /// Bytes of that block that belong to the run.
    std::size_t bytes(std::size_t first) const {
        return 3 * (count_ - first < blockPixels ? count_ - first : blockPixels);
    }

private:
    const std::uint8_t* pixels_;
    std::size_t count_;
    std::uint8_t tail_[3 * blockPixels] = {};
};

} // namespace morvane
