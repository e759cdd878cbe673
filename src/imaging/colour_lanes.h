#pragma once

#include <cstdint>

// Four blocks are worked on side by side, one in each lane of a vector: what reads like the plain arithmetic
// of one block is that of four, and no branch depends on a pixel. Comparisons give a mask a lane.

namespace morvane {

constexpr int laneCount = 4;
using Lanes = float __attribute__((vector_size(16)));
using LaneBits = std::int32_t __attribute__((vector_size(16)));

inline Lanes inAllLanes(float value) {
    return Lanes{value, value, value, value};
}

inline Lanes choose(LaneBits mask, Lanes yes, Lanes no) {
    return mask ? yes : no;
}

inline Lanes smaller(Lanes a, Lanes b) {
    return a < b ? a : b;
}

inline Lanes greater(Lanes a, Lanes b) {
    return a > b ? a : b;
}

/// Red, green and blue of one pixel in each of the four blocks; also a direction in that space.
struct ColourLanes {
    Lanes red, green, blue;

    friend ColourLanes operator+(const ColourLanes& a, const ColourLanes& b) {
        return {a.red + b.red, a.green + b.green, a.blue + b.blue};
    }
    friend ColourLanes operator-(const ColourLanes& a, const ColourLanes& b) {
        return {a.red - b.red, a.green - b.green, a.blue - b.blue};
    }
    friend ColourLanes operator*(const ColourLanes& colour, Lanes factor) {
        return {colour.red * factor, colour.green * factor, colour.blue * factor};
    }
    friend Lanes dot(const ColourLanes& a, const ColourLanes& b) {
        return a.red * b.red + a.green * b.green + a.blue * b.blue;
    }
};

inline ColourLanes choose(LaneBits mask, const ColourLanes& yes, const ColourLanes& no) {
    return {choose(mask, yes.red, no.red), choose(mask, yes.green, no.green),
            choose(mask, yes.blue, no.blue)};
}

} // namespace morvane
