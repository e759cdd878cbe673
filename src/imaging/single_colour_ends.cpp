#include "imaging/single_colour_ends.h"

namespace morvane {

namespace {

constexpr int magnitude(int value) {
    return value < 0 ? -value : value;
}

/// As readers widen a channel: its first bits once more behind it.
constexpr int widened(int value, int bits) {
    return value << (8 - bits) | value >> (2 * bits - 8);
}

/// The distance of the point, cut as readers do; of equal ones that of the ends from each other, as not all
/// readers round alike.
constexpr int penalty(int value, int first, int second) {
    return magnitude((2 * first + second) / 3 - value) * 256 + magnitude(first - second);
}

constexpr std::uint32_t nearestPair(int value, int bits) {
    int least = penalty(value, 0, 0);
    std::uint32_t nearest = 0;
    const int around = value >> (8 - bits);
    // Farther ends hit a few values better, but only for readers that cut exactly so.
    constexpr int reach = 6;
    for (int first = around - reach; first <= around + reach; ++first)
        for (int second = around - reach; second <= around + reach; ++second) {
            if (first < 0 || second < 0 || first >> bits != 0 || second >> bits != 0) continue;
            const int found = penalty(value, widened(first, bits), widened(second, bits));
            if (found >= least) continue;
            least = found;
            nearest = static_cast<std::uint32_t>(second << 16 | first);
        }
    return nearest;
}

constexpr EndTable endTable(int bits) {
    EndTable table{};
    for (int value = 0; value < 256; ++value)
        table.of[value] = nearestPair(value, bits);
    return table;
}

} // namespace

constexpr EndTable fiveBitEnds = endTable(5), sixBitEnds = endTable(6);

} // namespace morvane
