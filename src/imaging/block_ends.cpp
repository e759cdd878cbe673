#include "imaging/block_ends.h"

#include <array>

namespace morvane {

namespace {

/// The numbers of one channel for one level.
struct ChannelEnds {
    std::uint8_t first = 0, second = 0;
};

template <int bits>
constexpr std::array<ChannelEnds, 256> endsByLevel() {
    const auto unpackedLevel = [](int number) { return number << (8 - bits) | number >> (2 * bits - 8); };
    std::array<ChannelEnds, 256> ends;
    std::array<int, 256> spreads;
    spreads.fill(256);
    for (int first = 0; first < 1 << bits; ++first)
        for (int second = 0; second < 1 << bits; ++second) {
            const int a = unpackedLevel(first), b = unpackedLevel(second);
            const int spread = a > b ? a - b : b - a;
            // Readers differ in how they round a mixture; near ends keep that small.
            const auto level = static_cast<std::size_t>((2 * a + b) / 3);
            if (spread >= spreads[level]) continue;
            spreads[level] = spread;
            ends[level] = {static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second)};
        }
    for (std::size_t level = 1; level < ends.size(); ++level) // a level that none reaches takes the one below
        if (spreads[level] == 256) ends[level] = ends[level - 1];
    return ends;
}

void fillIn(Lanes levels, const std::array<ChannelEnds, 256>& table, LaneBits& first, LaneBits& second) {
    for (int lane = 0; lane < laneCount; ++lane) {
        const ChannelEnds ends = table[static_cast<std::size_t>(levels[lane] + 0.5F)];
        first[lane] = ends.first;
        second[lane] = ends.second;
    }
}

} // namespace

BlockEnds endsForOneColour(const ColourLanes& colour) {
    static constexpr auto fiveBits = endsByLevel<5>();
    static constexpr auto sixBits = endsByLevel<6>();
    BlockEnds ends;
    fillIn(colour.red, fiveBits, ends.first.red, ends.second.red);
    fillIn(colour.green, sixBits, ends.first.green, ends.second.green);
    fillIn(colour.blue, fiveBits, ends.first.blue, ends.second.blue);
    return ends;
}

} // namespace morvane
