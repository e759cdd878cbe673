#include "imaging/channel_steps.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {

namespace {

TEST(ChannelSteps, RoundTiesToEvenAndNeverClamp) {
    // 1.1 * 25 is 27.5, 1.1 * 35 is 38.5: the first goes up, the second down.
    const ColourValues values = {0, 10, 0, 0, 0, 0};
    EXPECT_EQ(steppedChannel(values, Channel::red, 25), 28);
    EXPECT_EQ(steppedChannel(values, Channel::red, 35), 38);
    EXPECT_EQ(steppedChannel(values, Channel::green, 35), 35);
    EXPECT_EQ(steppedChannel(values, Channel::red, 255), 280);
}

TEST(ChannelSteps, StayWithinTheirBoundsAtTheSlidersEnds) {
    std::int32_t lowest = 0, highest = 0;
    for (const float gain : {-20.0f, 20.0f})
        for (const float brightness : {-30.0f, 30.0f})
            for (const float contrast : {-30.0f, 30.0f})
                for (const auto& table : steppedChannels({0, gain, gain, gain, brightness, contrast})) {
                    const auto [least, most] = std::minmax_element(table.begin(), table.end());
                    lowest = std::min(lowest, *least);
                    highest = std::max(highest, *most);
                }
    EXPECT_EQ(lowest, lowestStepped);
    EXPECT_EQ(highest, highestStepped);
}

TEST(ChannelSteps, KnowTheSlidersEnds) {
    EXPECT_TRUE(isWithinSliders({-100, 20, -20, 20, 30, -30}));
    for (const ColourValues& beyond : {ColourValues{101, 0, 0, 0, 0, 0}, ColourValues{0, 20.5f, 0, 0, 0, 0},
                                       ColourValues{0, 0, -21, 0, 0, 0}, ColourValues{0, 0, 0, 21, 0, 0},
                                       ColourValues{0, 0, 0, 0, 31, 0}, ColourValues{0, 0, 0, 0, 0, -31}})
        EXPECT_FALSE(isWithinSliders(beyond));
}

} // namespace

} // namespace morvane
