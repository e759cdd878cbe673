#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace morvane::art {

/// Spreads the bits of a counter or seed over 64 bits (SplitMix64 by Sebastiano Vigna, public domain).
constexpr std::uint64_t scrambled(std::uint64_t value) {
    value += 0x9e3779b97f4a7c15u;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
    return value ^ (value >> 31);
}

/// FNV-1a, 64 bits.
constexpr std::uint64_t hashOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325u;
    for (const char letter : text)
        hash = (hash ^ static_cast<std::uint8_t>(letter)) * 0x100000001b3u;
    return hash;
}

/// The draws of one picture. Not the standard library's: its distributions differ between systems, and a
/// stock must come out the same everywhere.
class RandomStream {
public:
    explicit constexpr RandomStream(std::uint64_t seed) : state_(seed) {}

    constexpr std::uint64_t bits() { return scrambled(state_++ * 0x9e3779b97f4a7c15u); }
    /// From 0 up to 1, 1 not reached.
    constexpr float unit() { return static_cast<float>(bits() >> 40) * (1.0f / 16777216.0f); }
    constexpr float between(float low, float high) { return low + (high - low) * unit(); }
    /// 0 to `count` - 1.
    constexpr int below(int count) { return static_cast<int>((bits() >> 33) % static_cast<unsigned>(count)); }
    constexpr bool chance(float probability) { return unit() < probability; }

    /// One element of an array, all alike likely.
    template <class Array>
    constexpr const typename Array::value_type& pick(const Array& values) {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }

private:
    std::uint64_t state_;
};

} // namespace morvane::art
