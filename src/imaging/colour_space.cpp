#include "imaging/colour_space.h"

#include "core/numbers.h"

#include <algorithm>

namespace morvane::mHLSRGB {

namespace {

/// Where the denominator is zero, which takes channels outside 0..255, the quotient by this small number
/// stands in: a large negative saturation. It makes black or white of such a pixel and is wanted.
constexpr double zeroStandIn = 0.0000001;

double saturationOf(double maximum, double minimum, double lightness) {
    const double sum = maximum + minimum;
    const double denominator = lightness <= 0.5 ? sum : 2 - maximum - minimum;
    if (denominator != 0) return (maximum - minimum) / denominator;
    return (minimum - maximum) / zeroStandIn;
}

/// Red is asked first: a pixel whose red equals another largest channel has a hue next to red.
double hueOf(double red, double green, double blue, double maximum, double minimum) {
    const double delta = maximum - minimum;
    if (red == maximum) return (green - blue) / delta;
    if (green == maximum) return 2 + (blue - red) / delta;
    return 4 + (red - green) / delta;
}

RgbColour scaled(double red, double green, double blue) {
    return {roundToLong(red * 255), roundToLong(green * 255), roundToLong(blue * 255)};
}

} // namespace

float Maximum(float a, float b, float c) {
    return std::max({a, b, c});
}

float Minimum(float a, float b, float c) {
    return std::min({a, b, c});
}

HlsColour RGBToHLS(std::int32_t red, std::int32_t green, std::int32_t blue) {
    const auto r = static_cast<float>(red / 255.0);
    const auto g = static_cast<float>(green / 255.0);
    const auto b = static_cast<float>(blue / 255.0);
    const float maximum = Maximum(r, g, b);
    const float minimum = Minimum(r, g, b);
    HlsColour colour;
    colour.lightness = static_cast<float>((static_cast<double>(maximum) + minimum) / 2);
    if (maximum == minimum) return colour;
    colour.saturation = static_cast<float>(saturationOf(maximum, minimum, colour.lightness));
    colour.hue = static_cast<float>(hueOf(r, g, b, maximum, minimum));
    return colour;
}

RgbColour HLSToRGB(float hue, float saturation, float lightness) {
    const double s = saturation;
    const double l = lightness;
    if (s == 0) return scaled(l, l, l);
    const auto minimum = static_cast<float>(l <= 0.5 ? (1 - s) * l : l - (1 - l) * s);
    const auto maximum = static_cast<float>(2 * l - minimum);
    const double low = minimum;
    const double high = maximum;
    const double range = high - low;
    if (hue < 0) return scaled(high, low, low - range * hue);
    if (hue < 1) return scaled(high, low + range * hue, low);
    if (hue < 2) return scaled(low - range * (hue - 2.0), high, low);
    if (hue < 3) return scaled(low, high, low + range * (hue - 2.0));
    if (hue < 4) return scaled(low, low - range * (hue - 4.0), high);
    return scaled(low + range * (hue - 4.0), low, high);
}

} // namespace morvane::mHLSRGB
