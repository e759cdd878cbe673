#include "ground/ground_randomiser.h"
#include "sets/slider_values.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace morvane {
namespace {

constexpr double nearlyOne = 0.99999999999999989;

TEST(GroundRandomiser, drawsEachFieldInItsRange) {
    // The cloud number, and the lowest and highest: saturation, red, green, blue, brightness, contrast.
    const std::tuple<int, SliderValues, SliderValues> cases[] = {
        {1, {0, 0, 0, 0, 10, 0}, {0, 9, 4, 0, 49, 29}},
        {2, {0, 0, 0, 0, 0, -5}, {0, 9, 0, 0, 19, 14}},
        {3, {0, -10, 0, -5, -5, -5}, {0, -1, 0, 4, 4, 4}},
        {4, {0, -15, 0, 0, -5, -10}, {0, -6, 0, 24, 4, 4}},
        {5, {0, -22, 0, 20, -10, -10}, {0, -11, 0, 49, -1, -1}},
        {6, {}, {}},
    };
    test::SmallInstall install;
    for (const auto& [cloudNumber, lowest, highest] : cases)
        for (const double fraction : {0.0, nearlyOne}) {
            SliderValues values{};
            install.random.numbers = {fraction};
            getRandomGroundValues(install.session, cloudNumber, values);
            EXPECT_EQ(values, fraction == 0 ? lowest : highest) << cloudNumber;
        }
}

TEST(GroundRandomiser, realSourceGivesEachFieldAFractionOfItsOwn) {
    ReseedingRandomSource source;
    std::vector<double> drawn;
    for (int i = 0; i < 1000; ++i)
        drawn.push_back(source.draw());
    std::sort(drawn.begin(), drawn.end());
    EXPECT_EQ(std::unique(drawn.begin(), drawn.end()), drawn.end());
    EXPECT_LT(drawn.front(), 0.05);
    EXPECT_GT(drawn.back(), 0.95);
    EXPECT_LT(drawn.back(), 1);
}

} // namespace
} // namespace morvane
