#include "imaging/saturation_kernel.h"

#include "imaging/pixel_blocks.h"

#include <cstring>
#include <immintrin.h>

namespace morvane {

bool SaturationKernel::isSupported() {
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
}

SaturationKernel::SaturationKernel(const ChannelTables& tables, float saturation)
    : saturationPercent_(saturation + 100.0) {
    for (int channel = 0; channel < channelCount; ++channel)
        for (int level = 0; level < 256; ++level)
            levels_[channel][level] = static_cast<float>(tables[channel][level] / 255.0);
}

#ifdef __clang__
#pragma clang attribute push(__attribute__((target("avx2,fma"))), apply_to = function)
#else
#pragma GCC push_options
#pragma GCC target("avx2,fma")
#endif
#define MORVANE_INLINE inline __attribute__((always_inline))

namespace {

using Floats = __m256;   ///< one value of eight pixels
using Doubles = __m256d; ///< of four

constexpr int groupPixels = 8;
constexpr int groups = 16;
constexpr std::size_t blockPixels = groupPixels * groups;
/// Four pixels are stored as 16 bytes, the last four to be overwritten by the next ones.
constexpr std::size_t spill = 4;

using Levels = std::array<std::array<float, 256>, channelCount>;

/// Everything that is known of a block's pixels. The stages below each walk the whole block: a single pixel's
/// way is one long chain of dependent operations, and only many pixels side by side keep the processor busy.
struct Block {
    Floats blue[groups], green[groups], red[groups];
    Floats largest[groups], middle[groups], smallest[groups];
    /// 1, 256 or 65536: what the channel's byte is multiplied by to stand at its place in the pixel.
    Floats largestPlace[groups], middlePlace[groups];
    Floats lightness[groups];
    Floats headroom[groups]; ///< distance of the lightness from black or white, whichever is nearer
    /// The hue's sextant border (0, 2 or 4). Negative where the hue lies below it: hue and border are then
    /// both kept negated, which rounds the same.
    Floats border[groups], hue[groups];
    Floats saturation[groups];
    Floats newLargest[groups], newMiddle[groups], newSmallest[groups];
};

MORVANE_INLINE Floats floats(float value) {
    return _mm256_set1_ps(value);
}

MORVANE_INLINE Doubles doubles(double value) {
    return _mm256_set1_pd(value);
}

template <int half>
MORVANE_INLINE Doubles widened(const Floats& values) {
    return _mm256_cvtps_pd(_mm_load_ps(reinterpret_cast<const float*>(&values) + 4 * half));
}

template <int half>
MORVANE_INLINE void cut(Doubles values, Floats& result) {
    _mm_store_ps(reinterpret_cast<float*>(&result) + 4 * half, _mm256_cvtpd_ps(values));
}

MORVANE_INLINE Doubles cutOnce(Doubles values) {
    return _mm256_cvtps_pd(_mm256_cvtpd_ps(values));
}

MORVANE_INLINE __m256i bitWhere(Floats mask, int bit) {
    return _mm256_and_si256(_mm256_castps_si256(mask), _mm256_set1_epi32(bit));
}

MORVANE_INLINE void lookUp(const Levels& levels, const std::uint8_t* pixels, Block& block, int group) {
    auto* blue = reinterpret_cast<float*>(&block.blue[group]);
    auto* green = reinterpret_cast<float*>(&block.green[group]);
    auto* red = reinterpret_cast<float*>(&block.red[group]);
    pixels += 3 * groupPixels * group;
    for (int i = 0; i < groupPixels; ++i) {
        blue[i] = levels[0][pixels[3 * i]];
        green[i] = levels[1][pixels[3 * i + 1]];
        red[i] = levels[2][pixels[3 * i + 2]];
    }
}

/// Sets what depends on the order of the channels. The index has a bit for each of red >= green, red >= blue
/// and green >= blue, so 2 and 5 contradict themselves and never occur.
MORVANE_INLINE void placeChannels(Block& block, int group) {
    const Floats blue = block.blue[group], green = block.green[group], red = block.red[group];
    const __m256i order =
        _mm256_or_si256(bitWhere(_mm256_cmp_ps(red, green, _CMP_GE_OQ), 1),
                        _mm256_or_si256(bitWhere(_mm256_cmp_ps(red, blue, _CMP_GE_OQ), 2),
                                        bitWhere(_mm256_cmp_ps(green, blue, _CMP_GE_OQ), 4)));
    constexpr float b = 1, g = 256, r = 65536;
    block.largestPlace[group] = _mm256_permutevar8x32_ps(_mm256_setr_ps(b, b, 0, r, g, 0, g, r), order);
    block.middlePlace[group] = _mm256_permutevar8x32_ps(_mm256_setr_ps(g, r, 0, b, b, 0, r, g), order);
    block.border[group] = _mm256_permutevar8x32_ps(_mm256_setr_ps(-4, 4, 0, 0, 2, 0, -2, 0), order);
}

MORVANE_INLINE void sortChannels(Block& block, int group) {
    const Floats blue = block.blue[group], green = block.green[group], red = block.red[group];
    const Floats lower = _mm256_min_ps(red, green);
    const Floats higher = _mm256_max_ps(red, green);
    block.largest[group] = _mm256_max_ps(higher, blue);
    block.smallest[group] = _mm256_min_ps(lower, blue);
    block.middle[group] = _mm256_max_ps(lower, _mm256_min_ps(higher, blue));
}

/// Half the sum is exact, so a sum in floats is the cut of the exact lightness; 1 - L is exact above 0.5.
MORVANE_INLINE void setLightness(Block& block, int group) {
    const Floats lightness = (block.largest[group] + block.smallest[group]) * floats(0.5f);
    const Floats isDark = _mm256_cmp_ps(lightness, floats(0.5f), _CMP_LE_OQ);
    block.lightness[group] = lightness;
    block.headroom[group] = _mm256_blendv_ps(floats(1) - lightness, lightness, isDark);
}

/// Saturation and hue by one division: the reciprocal of the product of both denominators. A zero denominator
/// stands in with mHLSRGB's number; such a pixel has no headroom and comes out black or white.
template <int half>
MORVANE_INLINE void setSaturationAndHue(Block& block, int group) {
    const Doubles largest = widened<half>(block.largest[group]);
    const Doubles smallest = widened<half>(block.smallest[group]);
    const Doubles isDark = _mm256_cmp_pd(widened<half>(block.lightness[group]), doubles(0.5), _CMP_LE_OQ);
    const Doubles delta = largest - smallest;
    const Doubles sum = largest + smallest;
    const Doubles bound = _mm256_blendv_pd(doubles(2) - sum, sum, isDark);
    const Doubles isZero = _mm256_cmp_pd(bound, doubles(0), _CMP_EQ_OQ);
    const Doubles denominator = _mm256_blendv_pd(bound, doubles(-0.0000001), isZero);
    // A grey pixel has no delta; both numerators are 0, any divisor will do.
    const Doubles divisor = _mm256_max_pd(delta, doubles(1e-9));
    const Doubles reciprocal = doubles(1) / (divisor * denominator);
    cut<half>(delta * (divisor * reciprocal), block.saturation[group]);
    const Doubles beyondBorder = widened<half>(block.middle[group]) - smallest;
    cut<half>(_mm256_fmadd_pd(beyondBorder, denominator * reciprocal, widened<half>(block.border[group])),
              block.hue[group]);
}

/// S / 100, rounded as a division is: the product with 0.01 and one correction. A plain product would send
/// ties another way, and at saturations such as 50 one pixel in three has a tie.
MORVANE_INLINE Doubles dividedByHundred(Doubles values) {
    const Doubles quotient = values * doubles(0.01);
    return _mm256_fmadd_pd(_mm256_fmadd_pd(doubles(-100), quotient, values), doubles(0.01), quotient);
}

template <int half>
MORVANE_INLINE void setNewSmallest(Block& block, int group, Doubles percent) {
    const Doubles saturation = cutOnce(dividedByHundred(widened<half>(block.saturation[group])) * percent);
    cut<half>(_mm256_fnmadd_pd(widened<half>(block.headroom[group]), saturation,
                               widened<half>(block.lightness[group])),
              block.newSmallest[group]);
}

template <int half>
MORVANE_INLINE void setNewMiddle(Block& block, int group, const Floats& beyondBorder) {
    const Doubles smallest = widened<half>(block.newSmallest[group]);
    const Doubles range = widened<half>(block.newLargest[group]) - smallest;
    const Doubles middle = (smallest + range * widened<half>(beyondBorder)) * doubles(255);
    cut<half>(_mm256_round_pd(middle, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC), block.newMiddle[group]);
}

MORVANE_INLINE void setNewLargestAndMiddle(Block& block, int group) {
    const Floats lightness = block.lightness[group];
    block.newLargest[group] = lightness + lightness - block.newSmallest[group];
    const Floats beyondBorder = block.hue[group] - block.border[group];
    setNewMiddle<0>(block, group, beyondBorder);
    setNewMiddle<1>(block, group, beyondBorder);
}

MORVANE_INLINE Floats clampedToByte(Floats values) {
    return _mm256_min_ps(_mm256_max_ps(values, floats(0)), floats(255));
}

/// 255 times the value, rounded once: beside 1.5 * 2^23 a float has no room for a fraction.
MORVANE_INLINE Floats roundedByte(Floats values) {
    const Floats roomForIntegers = floats(12582912);
    return clampedToByte(_mm256_fmadd_ps(floats(255), values, roomForIntegers) - roomForIntegers);
}

/// Puts the pixel together as a number below 2^24, which a float holds exactly, and stores its three bytes.
MORVANE_INLINE void store(const Block& block, int group, std::uint8_t* destination) {
    const Floats largest = roundedByte(block.newLargest[group]);
    const Floats middle = clampedToByte(block.newMiddle[group]);
    const Floats smallest = roundedByte(block.newSmallest[group]);
    const Floats all = smallest * floats(1 + 256 + 65536);
    const Floats withMiddle = _mm256_fmadd_ps(middle - smallest, block.middlePlace[group], all);
    const Floats pixels = _mm256_fmadd_ps(largest - smallest, block.largestPlace[group], withMiddle);
    const __m128i threeOfFour = _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
    const __m256i packed =
        _mm256_shuffle_epi8(_mm256_cvtps_epi32(pixels), _mm256_set_m128i(threeOfFour, threeOfFour));
    destination += 3 * groupPixels * group;
    _mm_storeu_si128(reinterpret_cast<__m128i*>(destination), _mm256_castsi256_si128(packed));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(destination + 12), _mm256_extracti128_si256(packed, 1));
}

/// Recolours the block that was looked up, and looks up the next one while the divisions run.
void recolourBlock(Block& block, Doubles percent, const Levels& levels, const std::uint8_t* next,
                   std::uint8_t* destination) {
    for (int group = 0; group < groups; ++group) {
        placeChannels(block, group);
        sortChannels(block, group);
        setLightness(block, group);
    }
    for (int group = 0; group < groups; ++group) {
        setSaturationAndHue<0>(block, group);
        setSaturationAndHue<1>(block, group);
        lookUp(levels, next, block, group);
    }
    for (int group = 0; group < groups; ++group) {
        setNewSmallest<0>(block, group, percent);
        setNewSmallest<1>(block, group, percent);
    }
    for (int group = 0; group < groups; ++group)
        setNewLargestAndMiddle(block, group);
    for (int group = 0; group < groups; ++group)
        store(block, group, destination);
}

} // namespace

void SaturationKernel::run(const std::uint8_t* source, std::uint8_t* destination, std::size_t pixels) const {
    PixelBlocks<blockPixels, spill> blocks(source, destination, pixels);
    Block block;
    for (int group = 0; group < groups; ++group)
        lookUp(levels_, blocks.source(0), block, group);
    for (std::size_t first = 0; first < pixels; first += blockPixels) {
        recolourBlock(block, doubles(saturationPercent_), levels_, blocks.source(first + blockPixels),
                      blocks.target(first));
        blocks.finish(first);
    }
}

#undef MORVANE_INLINE
#ifdef __clang__
#pragma clang attribute pop
#else
#pragma GCC pop_options
#endif

} // namespace morvane
