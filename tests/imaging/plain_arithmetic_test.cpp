#include "imaging/plain_arithmetic.h"

#include "imaging/pixel_patterns.h"

#include <gtest/gtest.h>

namespace morvane {

namespace {

struct Example {
    ColourValues values; // saturation, red, green, blue, brightness, contrast
    RgbColour pixel;
    RgbColour expected;
};

const Example workedExamples[] = {
    {{-100, 0, 0, 0, 0, 0}, {200, 100, 50}, {125, 125, 125}},
    {{0, 0, 0, 0, 30, 0}, {10, 20, 30}, {13, 26, 39}},
    {{10, 2, 1, -3, 6, 3}, {120, 140, 90}, {130, 153, 88}},
    {{0, 0, 0, 0, 30, 30}, {250, 250, 10}, {255, 255, 0}},
    {{80, 0, 0, 0, 0, 0}, {77, 77, 77}, {77, 77, 77}},
};

TEST(PlainArithmetic, HoldsTheWorkedExamples) {
    for (const Example& example : workedExamples)
        EXPECT_EQ(test::PlainArithmetic(example.values).process(example.pixel), example.expected);
}

TEST(PlainArithmetic, LeavesEveryPixelAtZero) {
    const test::PlainArithmetic plain({});
    for (int red = 0; red < 256; red += 3)
        for (int green = 0; green < 256; green += 5)
            for (int blue = 0; blue < 256; ++blue) {
                const RgbColour pixel = {red, green, blue};
                ASSERT_EQ(plain.process(pixel), pixel);
            }
}

TEST(PlainArithmetic, TurnsExtremesThatCancelOutBlackAndWhite) {
    const test::PlainArithmetic plain({});
    EXPECT_EQ(plain.saturate({38, 20, -38}), (RgbColour{0, 0, 0}));
    EXPECT_EQ(plain.saturate({-1, 0, 1}), (RgbColour{0, 0, 0}));
    EXPECT_EQ(plain.saturate({31, 479, 400}), (RgbColour{255, 255, 255}));
    EXPECT_EQ(plain.saturate({38, 20, -37}), (RgbColour{38, 20, 0}));
}

} // namespace

} // namespace morvane
