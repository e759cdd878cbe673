#pragma once

#include <cstdint>

namespace morvane {

/// For each value 0 to 255 of a channel of five or six bits: the ends whose point one third of the way from
/// the first to the second comes nearest to it, the first in the lower 16 bits and the second in the upper.
/// Either may be the greater.
struct EndTable {
    std::uint32_t of[256];
};
extern const EndTable fiveBitEnds, sixBitEnds;

} // namespace morvane
