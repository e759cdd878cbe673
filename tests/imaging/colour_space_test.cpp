#include "imaging/colour_space.h"

#include "core/error.h"
#include "imaging/channel_steps.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(ColourSpace, TellsHueInSextantsRedFirst) {
    const std::pair<RgbColour, HlsColour> cases[] = {
        {{255, 0, 255}, {-1, 1, 0.5f}}, // magenta: red is asked before blue, and -1 is kept
        {{255, 255, 0}, {1, 1, 0.5f}},
        {{0, 255, 255}, {3, 1, 0.5f}},
        {{102, 51, 51}, {0, 1 / 3.0f, 0.3f}},
        {{51, 0, -51}, {0.5f, -4e6f, 0}}, // a denominator of zero
        {{510, 100, 0}, {100 / 510.0f, -2e7f, 1}},
    };
    for (const auto& [colour, expected] : cases) {
        const HlsColour hls = mHLSRGB::RGBToHLS(colour.red, colour.green, colour.blue);
        EXPECT_FLOAT_EQ(hls.hue, expected.hue);
        EXPECT_FLOAT_EQ(hls.saturation, expected.saturation);
        EXPECT_FLOAT_EQ(hls.lightness, expected.lightness);
    }
    EXPECT_THROW(mHLSRGB::HLSToRGB(0, 1e9f, 0.4f), Error);
}

TEST(ChannelSteps, RoundTiesToEvenAndNeverClamp) {
    // 1.1 * 25 is 27.5, 1.1 * 35 is 38.5: the first goes up, the second down.
    for (const auto& [level, stepped] : {std::pair{25, 28}, {35, 38}, {255, 280}})
        EXPECT_EQ(steppedChannel({0, 10}, Channel::red, level), stepped);
}

// The fast paths have room for no more.
TEST(ChannelSteps, StayWithinTheirBoundsAtTheSlidersEnds) {
    const auto dark = steppedChannels({0, 0, 0, 0, 0, 30}), bright = steppedChannels({0, 20, 20, 20, 30, 30});
    EXPECT_EQ(*std::min_element(dark[0].begin(), dark[0].end()), lowestStepped);
    EXPECT_EQ(*std::max_element(bright[2].begin(), bright[2].end()), highestStepped);
    EXPECT_TRUE(isWithinSliders({-100, 20, -20, 20, 30, -30}));
    for (const ColourValues& beyond :
         {ColourValues{101}, {0, 20.5f}, {0, 0, -21}, {0, 0, 0, 21}, {0, 0, 0, 0, 31}, {0, 0, 0, 0, 0, -31}})
        EXPECT_FALSE(isWithinSliders(beyond));
}

} // namespace
} // namespace morvane
