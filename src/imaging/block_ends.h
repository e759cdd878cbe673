#pragma once

#include "imaging/colour_lanes.h"

namespace morvane {

/// The two ends of a block's palette, as whole numbers of their five or six bits.
struct PackedColour {
    LaneBits red, green, blue;
};

struct BlockEnds {
    PackedColour first, second;
};

inline LaneBits narrowed(Lanes level, float top) {
    const Lanes inside = smaller(greater(level, inAllLanes(0)), inAllLanes(255));
    return __builtin_convertvector(inside * (top / 255) + 0.5F, LaneBits);
}

inline PackedColour packed(const ColourLanes& colour) {
    return {narrowed(colour.red, 31), narrowed(colour.green, 63), narrowed(colour.blue, 31)};
}

/// What a reader of the texture makes of it.
inline ColourLanes unpacked(const PackedColour& colour) {
    return {__builtin_convertvector(colour.red << 3 | colour.red >> 2, Lanes),
            __builtin_convertvector(colour.green << 2 | colour.green >> 4, Lanes),
            __builtin_convertvector(colour.blue << 3 | colour.blue >> 2, Lanes)};
}

inline LaneBits joined(const PackedColour& colour) {
    return colour.red << 11 | colour.green << 5 | colour.blue;
}

/// The ends whose mixture, two parts of the first and one of the second, comes closest to a colour of levels
/// from 0 to 255. Mixed ends reach levels that five or six bits alone do not.
BlockEnds endsForOneColour(const ColourLanes& colour);

} // namespace morvane
