#include "core/sha1_blocks.h"

#include <cpuid.h>
#include <immintrin.h>
#include <utility>

namespace morvane {

namespace {

constexpr int groups = 20; ///< of four rounds each
constexpr int blockBytes = 64;

/// What goes through the rounds: four of the five words, and the fifth with the four of the group before.
struct Words {
    __m128i abcd, e;
};

/// Of the message, in four groups; a later one replaces the oldest.
struct Message {
    __m128i groups[4];
};

/// Four words of the message, the first in the highest place.
__m128i loadGroup(const std::uint8_t* block, int group) {
    const __m128i reversed = _mm_set_epi64x(0x0001020304050607, 0x08090a0b0c0d0e0f);
    return _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(block) + group), reversed);
}

/// The groups behind the block's own four are made of the four before them.
template <int group>
void addGroup(Words& words, Message& message) {
    __m128i& own = message.groups[group % 4];
    if constexpr (group >= 4)
        own = _mm_sha1msg2_epu32(_mm_xor_si128(_mm_sha1msg1_epu32(own, message.groups[(group + 1) % 4]),
                                               message.groups[(group + 2) % 4]),
                                 message.groups[(group + 3) % 4]);
    const __m128i e = group == 0 ? _mm_add_epi32(words.e, own) : _mm_sha1nexte_epu32(words.e, own);
    words.e = words.abcd;
    words.abcd = _mm_sha1rnds4_epu32(words.abcd, e, group / 5);
}

template <int... group>
Words afterBlock(const Words& before, const std::uint8_t* block, std::integer_sequence<int, group...>) {
    Message message{{loadGroup(block, 0), loadGroup(block, 1), loadGroup(block, 2), loadGroup(block, 3)}};
    Words words = before;
    (addGroup<group>(words, message), ...);
    return {_mm_add_epi32(words.abcd, before.abcd), _mm_sha1nexte_epu32(words.e, before.e)};
}

constexpr int highestFirst = 0x1b;

} // namespace

bool hasSha1Instructions() {
    unsigned a = 0, b = 0, c = 0, d = 0;
    const bool hasShuffle = __get_cpuid(1, &a, &b, &c, &d) && (c & bit_SSSE3) && (c & bit_SSE4_1);
    return hasShuffle && __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & bit_SHA);
}

void addSha1Blocks(Sha1State& state, const std::uint8_t* blocks, std::size_t count) {
    auto* four = reinterpret_cast<__m128i*>(state.words);
    Words words{_mm_shuffle_epi32(_mm_loadu_si128(four), highestFirst),
                _mm_set_epi32(static_cast<int>(state.words[4]), 0, 0, 0)};
    for (std::size_t i = 0; i < count; ++i)
        words = afterBlock(words, blocks + i * blockBytes, std::make_integer_sequence<int, groups>());
    _mm_storeu_si128(four, _mm_shuffle_epi32(words.abcd, highestFirst));
    state.words[4] = static_cast<std::uint32_t>(_mm_extract_epi32(words.e, 3));
}

} // namespace morvane
