#pragma once

#include "imaging/colour_space.h"
#include "imaging/colour_values.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace morvane::test {

/// The colouriser's arithmetic in its plainest form, one pixel at a time and apart from the engine's: what
/// the fast paths are measured by. It trusts its input; nothing overflows here.
class PlainArithmetic {
public:
    explicit PlainArithmetic(const ColourValues& values) : values_(values) {}

    /// One pixel through all steps, clamped to bytes.
    RgbColour process(const RgbColour& pixel) const {
        return saturate(
            {step(pixel.red, values_.red), step(pixel.green, values_.green), step(pixel.blue, values_.blue)});
    }

    /// Gain, brightness and contrast of one channel.
    int step(int level, float gain) const {
        const int gained = rounded((gain + 100.0) * (level / 100.0));
        const float total = static_cast<float>(values_.brightness + 100.0);
        const int brightened = rounded((gained / 100.0) * total);
        const float spread = static_cast<float>(brightened - 127);
        return rounded(((values_.contrast + 100.0) * spread) / 100.0 + 127.0);
    }

    /// The way to HLS and back from unclamped channels, clamped to bytes at its end.
    RgbColour saturate(const RgbColour& stepped) const {
        const float r = static_cast<float>(stepped.red / 255.0);
        const float g = static_cast<float>(stepped.green / 255.0);
        const float b = static_cast<float>(stepped.blue / 255.0);
        const double most = std::max({r, g, b});
        const double least = std::min({r, g, b});
        const float lightness = static_cast<float>((most + least) / 2.0);
        float hue = 0;
        float saturation = 0;
        if (most != least) {
            const double denominator = lightness <= 0.5f ? most + least : 2.0 - most - least;
            saturation = static_cast<float>(denominator != 0 ? (most - least) / denominator
                                                             : (least - most) / 0.0000001);
            const double red = r, green = g, blue = b;
            if (red == most)
                hue = static_cast<float>((green - blue) / (most - least));
            else if (green == most)
                hue = static_cast<float>(2.0 + (blue - red) / (most - least));
            else
                hue = static_cast<float>(4.0 + (red - green) / (most - least));
        }
        return back(hue, static_cast<float>((saturation / 100.0) * (values_.saturation + 100.0)), lightness);
    }

private:
    static int rounded(double value) { return static_cast<int>(std::nearbyint(value)); }
    static int byte(double value) { return std::clamp(rounded(value * 255.0), 0, 255); }

    static RgbColour back(float hue, float saturation, float lightness) {
        if (saturation == 0) return {byte(lightness), byte(lightness), byte(lightness)};
        const double s = saturation, l = lightness, h = hue;
        const float least = static_cast<float>(l <= 0.5 ? (1.0 - s) * l : l - (1.0 - l) * s);
        const float most = static_cast<float>(2.0 * l - least);
        const double min = least, max = most, range = max - min;
        if (h < 0) return {byte(max), byte(min), byte(min - range * h)};
        if (h < 1) return {byte(max), byte(min + range * h), byte(min)};
        if (h < 2) return {byte(min - range * (h - 2)), byte(max), byte(min)};
        if (h < 3) return {byte(min), byte(max), byte(min + range * (h - 2))};
        if (h < 4) return {byte(min), byte(min - range * (h - 4)), byte(max)};
        return {byte(min + range * (h - 4)), byte(min), byte(max)};
    }

    ColourValues values_;
};

} // namespace morvane::test
