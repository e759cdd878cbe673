#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

namespace morvane {
namespace {

/// Eight blocks at a time; as block_lanes_sse2.h says.
struct Lanes {
    static constexpr std::size_t count = 8;
    using Words = __m256i;
    using Floats = __m256;

    static Words load(const std::uint32_t* from) {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
    }
    static void store(std::uint32_t* to, Words words) {
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), words);
    }
    static Floats load(const float* from) { return _mm256_loadu_ps(from); }
    static void store(float* to, Floats floats) { _mm256_storeu_ps(to, floats); }

    static Words words(int value) { return _mm256_set1_epi32(value); }
    static Words bothHalves(Words low) { return either(both(low, words(0xFFFF)), leftBy<16>(low)); }
    static Words both(Words a, Words b) { return _mm256_and_si256(a, b); }
    static Words either(Words a, Words b) { return _mm256_or_si256(a, b); }
    static Words differing(Words a, Words b) { return _mm256_xor_si256(a, b); }
    template <int bits>
    static Words leftBy(Words value) {
        return _mm256_slli_epi32(value, bits);
    }
    template <int bits>
    static Words rightBy(Words value) {
        return _mm256_srli_epi32(value, bits);
    }
    template <int bits>
    static Words signedRightBy(Words value) {
        return _mm256_srai_epi32(value, bits);
    }
    static Words add(Words a, Words b) { return _mm256_add_epi32(a, b); }
    static Words equal(Words a, Words b) { return _mm256_cmpeq_epi32(a, b); }
    static Words greater(Words a, Words b) { return _mm256_cmpgt_epi32(a, b); }

    static unsigned bitsOf(Words mask) {
        return static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(mask)));
    }

    static Words addHalves(Words a, Words b) { return _mm256_add_epi16(a, b); }
    static Words subtractHalves(Words a, Words b) { return _mm256_sub_epi16(a, b); }
    static Words multiplyHalves(Words a, Words b) { return _mm256_mullo_epi16(a, b); }
    static Words highProducts(Words a, Words b) { return _mm256_mulhi_epu16(a, b); }
    static Words averageHalves(Words a, Words b) {
        return addHalves(both(a, b), _mm256_srai_epi16(differing(a, b), 1));
    }
    static Words smallerHalves(Words a, Words b) { return _mm256_min_epi16(a, b); }
    static Words largerHalves(Words a, Words b) { return _mm256_max_epi16(a, b); }
    static Words greaterHalves(Words a, Words b) { return _mm256_cmpgt_epi16(a, b); }
    static Words sumOfProducts(Words a, Words b) { return _mm256_madd_epi16(a, b); }

    static Floats floats(float value) { return _mm256_set1_ps(value); }
    static Floats floats(Words value) { return _mm256_cvtepi32_ps(value); }
    static Words rounded(Floats value) { return _mm256_cvtps_epi32(value); }
    static Floats smaller(Floats a, Floats b) { return _mm256_min_ps(a, b); }
    static Floats larger(Floats a, Floats b) { return _mm256_max_ps(a, b); }
    static Floats magnitude(Floats value) {
        return _mm256_and_ps(value, _mm256_castsi256_ps(words(0x7FFFFFFF)));
    }
    static Floats isAtLeast(Floats a, Floats b) { return _mm256_cmp_ps(a, b, _CMP_GE_OQ); }
    static Floats chosen(Floats mask, Floats yes, Floats no) { return _mm256_blendv_ps(no, yes, mask); }

    static void storeBlocks(std::uint32_t* to, Words ends, Words indexes) {
        const Words first = _mm256_unpacklo_epi32(ends, indexes),
                    second = _mm256_unpackhi_epi32(ends, indexes);
        store(to, _mm256_permute2x128_si256(first, second, 0x20));
        store(to + count, _mm256_permute2x128_si256(first, second, 0x31));
    }
};

} // namespace
} // namespace morvane
