#include "imaging/channel_steps.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {
namespace {

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
