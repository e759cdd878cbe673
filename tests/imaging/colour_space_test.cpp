#include "imaging/colour_space.h"

#include "core/error.h"
#include "imaging/pixel_patterns.h"

#include <gtest/gtest.h>

namespace morvane {

namespace {

using namespace mHLSRGB;

TEST(ColourSpace, TellsHueInSextantsRedFirst) {
    const struct {
        RgbColour colour;
        float hue;
    } cases[] = {
        {{255, 0, 0}, 0},   {{255, 0, 255}, -1}, // magenta: red is asked before blue, and -1 is kept
        {{255, 255, 0}, 1}, {{0, 255, 0}, 2},       {{0, 255, 255}, 3},   {{0, 0, 255}, 4},
        {{90, 90, 90}, 0},  {{100, 50, 75}, -0.5f}, {{51, 0, 255}, 4.2f},
    };
    for (const auto& [colour, hue] : cases)
        EXPECT_FLOAT_EQ(RGBToHLS(colour.red, colour.green, colour.blue).hue, hue);
}

TEST(ColourSpace, TellsSaturationAndLightness) {
    const HlsColour dark = RGBToHLS(102, 51, 51);
    EXPECT_FLOAT_EQ(dark.lightness, 0.3f);
    EXPECT_FLOAT_EQ(dark.saturation, 1 / 3.0f);
    const HlsColour light = RGBToHLS(255, 204, 204);
    EXPECT_FLOAT_EQ(light.lightness, 0.9f);
    EXPECT_FLOAT_EQ(light.saturation, 1);
    EXPECT_EQ(RGBToHLS(200, 200, 200).saturation, 0);
}

TEST(ColourSpace, ZeroDenominatorsGiveALargeNegativeSaturation) {
    EXPECT_FLOAT_EQ(RGBToHLS(51, 0, -51).saturation, -4e6f);
    EXPECT_FLOAT_EQ(RGBToHLS(510, 100, 0).saturation, -2e7f);
    EXPECT_EQ(HLSToRGB(0.5f, -4e6f, 0), (RgbColour{0, 0, 0}));
}

TEST(ColourSpace, ComesBackFromEverySextantUnclamped) {
    for (const RgbColour& colour :
         {RgbColour{200, 100, 150}, RgbColour{200, 150, 100}, RgbColour{150, 200, 100},
          RgbColour{100, 200, 150}, RgbColour{100, 150, 200}, RgbColour{150, 100, 200},
          RgbColour{300, -12, 90}, RgbColour{479, -38, 3}, RgbColour{-38, -10, -20},
          RgbColour{479, 300, 400}}) {
        const HlsColour hls = RGBToHLS(colour.red, colour.green, colour.blue);
        EXPECT_EQ(HLSToRGB(hls.hue, hls.saturation, hls.lightness), colour);
    }
}

TEST(ColourSpace, RaisesOverflowAndKnowsTheExtremes) {
    EXPECT_THROW(HLSToRGB(0, 1e9f, 0.4f), Error);
    EXPECT_EQ(Maximum(1, 3, 2), 3);
    EXPECT_EQ(Minimum(2, 3, 1), 1);
}

} // namespace

} // namespace morvane
