#pragma once

#include "imaging/colour_values.h"

#include <array>
#include <cstdint>

namespace morvane {

/// The order of the three bytes of a pixel, and of everything that is kept by channel.
enum class Channel { blue, green, red };
constexpr int channelCount = 3;

/// Gain, brightness and contrast of one channel, rounded after each and clamped by none: an overshoot is kept
/// for the saturation step. Raises "Overflow" outside 32 bits.
std::int32_t steppedChannel(const ColourValues& values, Channel channel, std::int32_t level);

/// What the sliders can set. Within it no step overflows, and every stepped channel lies between the bounds.
bool isWithinSliders(const ColourValues& values);
constexpr std::int32_t lowestStepped = -38;  ///< 0 at contrast 30
constexpr std::int32_t highestStepped = 479; ///< 255 at gain 20, brightness 30, contrast 30

/// `steppedChannel` of every byte, by channel and byte. Only for values within the sliders.
using ChannelTables = std::array<std::array<std::int32_t, 256>, channelCount>;
ChannelTables steppedChannels(const ColourValues& values);

} // namespace morvane
