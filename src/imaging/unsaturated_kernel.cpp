#include "imaging/unsaturated_kernel.h"

#include "imaging/pixel_blocks.h"

#include <algorithm>
#include <cstring>
#include <emmintrin.h>

namespace morvane {

namespace {

constexpr std::size_t blockPixels = 128;
/// A pixel is stored as four bytes, the fourth to be overwritten by the next one.
constexpr std::size_t spill = 1;

void storePixel(__m128i looked, std::uint8_t* destination) {
    const int bytes = _mm_cvtsi128_si32(looked);
    std::memcpy(destination, &bytes, sizeof bytes);
}

/// The upper halves of the lower 64 bits of four registers.
__m128i gatherExtremes(__m128i first, __m128i second, __m128i third, __m128i fourth) {
    return _mm_unpackhi_epi64(_mm_unpacklo_epi32(first, second), _mm_unpacklo_epi32(third, fourth));
}

bool isException(std::int32_t sum) {
    return sum == 0 || sum == 510;
}

/// The same question for the extremes of four pixels: largest minus (minus the smallest).
bool holdsException(__m128i extremes) {
    const __m128i sums = _mm_madd_epi16(extremes, _mm_set1_epi32(static_cast<int>(0xffff0001u)));
    const __m128i hits =
        _mm_or_si128(_mm_cmpeq_epi32(sums, _mm_setzero_si128()), _mm_cmpeq_epi32(sums, _mm_set1_epi32(510)));
    return _mm_movemask_epi8(hits) != 0;
}

} // namespace

struct UnsaturatedKernel::Lookup {
    const UnsaturatedKernel& kernel;

    static __m128i load(const Entry& entry) {
        return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&entry));
    }

    /// Stores the pixel and gives its extremes in the upper half of the lower 64 bits.
    __m128i recolour(const std::uint8_t* source, std::uint8_t* destination) const {
        const __m128i blue = load(kernel.entries_[0][source[0]]);
        const __m128i green = load(kernel.entries_[1][source[1]]);
        const __m128i red = load(kernel.entries_[2][source[2]]);
        storePixel(_mm_or_si128(_mm_or_si128(blue, green), red), destination);
        return _mm_max_epi16(_mm_max_epi16(blue, green), red);
    }

    /// A grey pixel of level 0 or 255 passes the test too; it is black or white anyway.
    void repairException(const std::uint8_t* source, std::uint8_t* destination) const {
        const auto [smallest, largest] =
            std::minmax({kernel.entries_[0][source[0]].stepped, kernel.entries_[1][source[1]].stepped,
                         kernel.entries_[2][source[2]].stepped});
        const int sum = smallest + largest;
        if (isException(sum)) std::memset(destination, sum / 2, channelCount);
    }

    void recolourFour(const std::uint8_t* source, std::uint8_t* destination) const {
        const __m128i first = recolour(source, destination);
        const __m128i second = recolour(source + 3, destination + 3);
        const __m128i third = recolour(source + 6, destination + 6);
        const __m128i fourth = recolour(source + 9, destination + 9);
        if (!holdsException(gatherExtremes(first, second, third, fourth))) return;
        for (int offset = 0; offset < 12; offset += 3)
            repairException(source + offset, destination + offset);
    }
};

UnsaturatedKernel::UnsaturatedKernel(const ChannelTables& tables) {
    for (int channel = 0; channel < channelCount; ++channel)
        for (int level = 0; level < 256; ++level) {
            const std::int32_t stepped = tables[channel][level];
            const auto clamped = static_cast<std::uint32_t>(std::clamp(stepped, 0, 255));
            entries_[channel][level] = {clamped << (8 * channel), static_cast<std::int16_t>(stepped),
                                        static_cast<std::int16_t>(-stepped)};
        }
}

void UnsaturatedKernel::run(const std::uint8_t* source, std::uint8_t* destination, std::size_t pixels) const {
    const Lookup lookup{*this};
    PixelBlocks<blockPixels, spill> blocks(source, destination, pixels);
    for (std::size_t first = 0; first < pixels; first += blockPixels) {
        const std::uint8_t* block = blocks.source(first);
        std::uint8_t* target = blocks.target(first);
        for (std::size_t offset = 0; offset < 3 * blockPixels; offset += 12)
            lookup.recolourFour(block + offset, target + offset);
        blocks.finish(first);
    }
}

} // namespace morvane
