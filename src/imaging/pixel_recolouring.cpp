#include "imaging/pixel_recolouring.h"

#include "core/numbers.h"
#include "imaging/channel_steps.h"

namespace morvane {

namespace {

constexpr double channelScale = 20.0 / 100;
constexpr double levelScale = 30.0 / 100;

RgbColour saturated(const RgbColour& colour, float saturation) {
    const HlsColour hls = mHLSRGB::RGBToHLS(colour.red, colour.green, colour.blue);
    const auto changed = static_cast<float>((hls.saturation / 100.0) * (saturation + 100.0));
    return mHLSRGB::HLSToRGB(hls.hue, changed, hls.lightness);
}

std::int32_t steppedByGroup(const SkyGroup& group, float gain, std::int32_t level) {
    const std::int32_t gained = roundToLong((gain * channelScale + 100) * (level / 100.0));
    const auto total = static_cast<float>(group.brightness * levelScale + 100);
    const std::int32_t brightened = roundToLong((gained / 100.0) * total);
    return roundToLong(((brightened - 127.0) * (group.contrast * levelScale + 100)) / 100 + 127);
}

} // namespace

RgbColour recolouredPixel(const ColourValues& values, const RgbColour& pixel) {
    const RgbColour stepped = {steppedChannel(values, Channel::red, pixel.red),
                               steppedChannel(values, Channel::green, pixel.green),
                               steppedChannel(values, Channel::blue, pixel.blue)};
    return saturated(stepped, values.saturation);
}

RgbColour recolouredByGroup(const SkyGroup& group, const RgbColour& pixel) {
    const RgbColour stepped = {steppedByGroup(group, group.red, pixel.red),
                               steppedByGroup(group, group.green, pixel.green),
                               steppedByGroup(group, group.blue, pixel.blue)};
    return saturated(stepped, group.saturation);
}

bool belongsToGroup(const SkyGroup& group, int x, int y) {
    const double row = group.PixelY - 1.0;
    // Row 255 stands for a band over the whole width, whatever columns the group names.
    if (row == 254) return y >= 2 && y <= 30;
    return y == row && x >= group.PixelXLow * 3.0 - 3 && x <= group.PixelXHigh * 3.0 - 3;
}

} // namespace morvane
