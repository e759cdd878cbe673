#include "imaging/pixel_rows.h"

#include <algorithm>
#include <bit>

namespace morvane {

namespace {

/// Takes one colour out of a pixel value and stretches it to eight bits.
class MaskedColour {
public:
    MaskedColour(std::uint32_t mask, int pixelBits) : mask_(mask) {
        if (pixelBits == 16 && mask > 0xFFFF) refusePicture(u"odd colour masks");
        if (mask == 0) return; // this colour is not in the picture
        const int lowest = std::countr_zero(mask), count = std::popcount(mask);
        if (mask >> lowest != ~0U >> (32 - count)) refusePicture(u"odd colour masks");
        const int taken = std::min(count, 8); // the upper eight of a wider one
        shift_ = lowest + count - taken;
        for (std::size_t value = 0; value < std::size_t{1} << taken; ++value)
            levels_[value] = stretched(static_cast<unsigned>(value), taken);
    }

    std::uint8_t of(std::uint32_t pixel) const { return levels_[(pixel & mask_) >> shift_]; }

private:
    /// Repeats the bits downward until eight are filled: full stays full, none stays none.
    static std::uint8_t stretched(unsigned value, int bits) {
        unsigned level = value << (8 - bits);
        for (int filled = bits; filled < 8; filled *= 2)
            level |= level >> filled;
        return static_cast<std::uint8_t>(level);
    }

    std::uint32_t mask_;
    int shift_ = 0;
    std::array<std::uint8_t, 256> levels_ = {};
};

} // namespace

Picture readMaskedRows(const BitmapHeader& header, Bytes file) {
    const Bytes stored = storedRows(header, file);
    const bool isWide = header.bitsPerPixel == 32;
    const std::size_t pixelSize = isWide ? 4 : 2;
    const MaskedColour red(header.masks[0], header.bitsPerPixel), green(header.masks[1], header.bitsPerPixel),
        blue(header.masks[2], header.bitsPerPixel);
    Picture picture = blackPicture(header);
    for (int y = 0; y < header.height; ++y) {
        std::size_t at = storedRowSize(header) * static_cast<std::size_t>(y);
        std::uint8_t* target = rowOf(picture, y);
        for (int x = 0; x < header.width; ++x, at += pixelSize, target += 3) {
            const std::uint32_t pixel = isWide ? longAt(stored, at) : wordAt(stored, at);
            target[0] = blue.of(pixel);
            target[1] = green.of(pixel);
            target[2] = red.of(pixel);
        }
    }
    return picture;
}

} // namespace morvane
