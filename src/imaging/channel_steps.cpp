#include "imaging/channel_steps.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

double gainOf(const ColourValues& values, Channel channel) {
    if (channel == Channel::red) return values.red;
    return channel == Channel::green ? values.green : values.blue;
}

} // namespace

std::int32_t steppedChannel(const ColourValues& values, Channel channel, std::int32_t level) {
    const std::int32_t gained = roundToLong((gainOf(values, channel) + 100) * (level / 100.0));
    const auto total = static_cast<float>(values.brightness + 100.0);
    const std::int32_t brightened = roundToLong((gained / 100.0) * total);
    // The centre is 127, not 128.
    const auto spread = static_cast<float>(static_cast<double>(brightened) - 127);
    return roundToLong(((values.contrast + 100.0) * spread) / 100 + 127);
}

bool isWithinSliders(const ColourValues& values) {
    const auto within = [](float value, float bound) { return std::fabs(value) <= bound; };
    return within(values.saturation, 100) && within(values.red, 20) && within(values.green, 20) &&
           within(values.blue, 20) && within(values.brightness, 30) && within(values.contrast, 30);
}

ChannelTables steppedChannels(const ColourValues& values) {
    ChannelTables tables;
    for (int channel = 0; channel < channelCount; ++channel)
        for (int level = 0; level < 256; ++level)
            tables[channel][level] = steppedChannel(values, static_cast<Channel>(channel), level);
    return tables;
}

} // namespace morvane
