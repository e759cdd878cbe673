#pragma once

#include <cstdint>

namespace morvane {

/// The ends whose point one third of the way from the first to the second comes nearest to a value.
struct EndPair {
    std::uint8_t first, second;
};

/// For each value 0 to 255 of a channel of five or six bits. Either end may be the greater.
struct EndTable {
    EndPair of[256];
};
extern const EndTable fiveBitEnds, sixBitEnds;

} // namespace morvane
