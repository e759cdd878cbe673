#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

namespace morvane {
namespace {

/// Four blocks at a time. What the encoder's stages do with a register stands here in words of theirs; the
/// file for wider registers has the same words. "Halves" are two numbers of 16 bits in each word.
struct Lanes {
    static constexpr std::size_t count = 4;
    using Words = __m128i;
    using Floats = __m128;

    static Words load(const std::uint32_t* from) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    }
    static void store(std::uint32_t* to, Words words) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), words);
    }
    static Floats load(const float* from) { return _mm_loadu_ps(from); }
    static void store(float* to, Floats floats) { _mm_storeu_ps(to, floats); }

    static Words words(int value) { return _mm_set1_epi32(value); }
    static Words bothHalves(Words low) { return either(both(low, words(0xFFFF)), leftBy<16>(low)); }
    static Words both(Words a, Words b) { return _mm_and_si128(a, b); }
    static Words either(Words a, Words b) { return _mm_or_si128(a, b); }
    static Words differing(Words a, Words b) { return _mm_xor_si128(a, b); }
    template <int bits>
    static Words leftBy(Words value) {
        return _mm_slli_epi32(value, bits);
    }
    template <int bits>
    static Words rightBy(Words value) {
        return _mm_srli_epi32(value, bits);
    }
    template <int bits>
    static Words signedRightBy(Words value) {
        return _mm_srai_epi32(value, bits);
    }
    static Words add(Words a, Words b) { return _mm_add_epi32(a, b); }
    static Words equal(Words a, Words b) { return _mm_cmpeq_epi32(a, b); }
    static Words greater(Words a, Words b) { return _mm_cmpgt_epi32(a, b); }

    /// One bit a lane, the lowest first, of a mask of whole lanes.
    static unsigned bitsOf(Words mask) {
        return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(mask)));
    }

    static Words addHalves(Words a, Words b) { return _mm_add_epi16(a, b); }
    static Words subtractHalves(Words a, Words b) { return _mm_sub_epi16(a, b); }
    static Words multiplyHalves(Words a, Words b) { return _mm_mullo_epi16(a, b); }
    /// The upper 16 bits of the products, the halves taken as numbers without a sign.
    static Words highProducts(Words a, Words b) { return _mm_mulhi_epu16(a, b); }
    /// Cut downward.
    static Words averageHalves(Words a, Words b) {
        return addHalves(both(a, b), _mm_srai_epi16(differing(a, b), 1));
    }
    static Words smallerHalves(Words a, Words b) { return _mm_min_epi16(a, b); }
    static Words largerHalves(Words a, Words b) { return _mm_max_epi16(a, b); }
    /// All bits of a half where it is so, that is -1.
    static Words greaterHalves(Words a, Words b) { return _mm_cmpgt_epi16(a, b); }
    /// The sum of the products of both halves.
    static Words sumOfProducts(Words a, Words b) { return _mm_madd_epi16(a, b); }

    static Floats floats(float value) { return _mm_set1_ps(value); }
    static Floats floats(Words value) { return _mm_cvtepi32_ps(value); }
    /// To the nearest, ties to the even one.
    static Words rounded(Floats value) { return _mm_cvtps_epi32(value); }
    static Floats smaller(Floats a, Floats b) { return _mm_min_ps(a, b); }
    static Floats larger(Floats a, Floats b) { return _mm_max_ps(a, b); }
    static Floats magnitude(Floats value) { return _mm_and_ps(value, _mm_castsi128_ps(words(0x7FFFFFFF))); }
    static Floats isAtLeast(Floats a, Floats b) { return _mm_cmpge_ps(a, b); }
    static Floats chosen(Floats mask, Floats yes, Floats no) {
        return _mm_or_ps(_mm_and_ps(mask, yes), _mm_andnot_ps(mask, no));
    }

    /// First ends, then indexes of each block.
    static void storeBlocks(std::uint32_t* to, Words ends, Words indexes) {
        store(to, _mm_unpacklo_epi32(ends, indexes));
        store(to + count, _mm_unpackhi_epi32(ends, indexes));
    }
};

} // namespace
} // namespace morvane
