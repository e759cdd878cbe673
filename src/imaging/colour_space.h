#pragma once

#include <cstdint>

namespace morvane {

/// Channels of a pixel while it is worked on: they may stand far outside 0..255.
struct RgbColour {
    std::int32_t red = 0;
    std::int32_t green = 0;
    std::int32_t blue = 0;

    bool operator==(const RgbColour&) const = default;
};

struct HlsColour {
    float hue = 0;        ///< in sextants, -1 up to but not including 5; negative values are never wrapped
    float saturation = 0; ///< 0..1, and outside it for channels outside 0..255
    float lightness = 0;  ///< 0..1, and outside it for channels outside 0..255
};

/// The conversions of the colouriser. Arithmetic is in double precision; values are cut to 32-bit floats only
/// where a float is named, and those cuts decide which way a tie is rounded, so none is added or left out.
namespace mHLSRGB {

HlsColour RGBToHLS(std::int32_t red, std::int32_t green, std::int32_t blue);

/// The inverse, channels rounded to nearest (ties to even) and not clamped. Raises "Overflow" when one does
/// not fit into 32 bits.
RgbColour HLSToRGB(float hue, float saturation, float lightness);

float Maximum(float a, float b, float c);
float Minimum(float a, float b, float c);

} // namespace mHLSRGB

} // namespace morvane
