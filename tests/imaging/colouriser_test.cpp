#include "imaging/colouriser.h"

#include "imaging/pixel_patterns.h"
#include "support/printing.h"
#include "support/scripted_user.h"

#include <gtest/gtest.h>

namespace morvane {

namespace {

class Colouriser : public testing::Test {
protected:
    RgbColour processed(const RgbColour& pixel) {
        const cDIBSection source = test::filledBuffer(1, 1, pixel);
        cDIBSection destination = test::createdBuffer(1, 1);
        colouriser.process(source, destination);
        return test::pixelAt(destination, 0, 0);
    }

    cDIBSection skyOf(const RgbColour& pixel) {
        const cDIBSection source = test::filledBuffer(32, 40, pixel);
        cDIBSection destination = test::createdBuffer(32, 40);
        colouriser.processSkyTexture(source, destination);
        return destination;
    }

    test::ScriptedUser user;
    cColourise colouriser{user};
};

TEST_F(Colouriser, TellsTheUserOfFailuresAndGoesOn) {
    cDIBSection never, created = test::createdBuffer(2, 2);
    colouriser.process(never, created);
    colouriser.processSky(never, created);
    colouriser.Red = 1e10f;
    colouriser.process(test::filledBuffer(2, 2, {255, 255, 254}), created);
    const QString invalid = u"Error|Morvane Error|Invalid procedure call or argument"_s;
    EXPECT_EQ(user.told(), (QStringList{invalid, invalid, u"Error|Morvane Error|Overflow"_s}));
}

// Columns and rows of groups count from 1; row 255 is the band of rows 2 to 30, whatever the columns.
TEST_F(Colouriser, SkyGroupsReachTheirOwnPixelsAlone) {
    for (const float groupRow : {2.0f, 255.0f}) {
        colouriser.skyTextureGroups[4] = {.PixelXLow = 3, .PixelXHigh = 5, .PixelY = groupRow, .red = 100};
        const cDIBSection sky = skyOf({100, 100, 100});
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 32; ++x) {
                const bool isInGroup = groupRow == 255 ? y >= 2 && y <= 30 : y == 1 && x >= 2 && x <= 4;
                ASSERT_EQ(test::pixelAt(sky, x, y).red, isInGroup ? 120 : 100) << x << ' ' << y;
            }
    }
}

TEST_F(Colouriser, SkyValuesAreScaledButForSaturation) {
    const struct {
        SkyGroup group;
        RgbColour pixel, expected;
    } cases[] = {
        {{1, 1, 1, 0, 100, 0, -100, 0, 0}, {100, 100, 100}, {120, 100, 80}},
        {{1, 1, 1, 0, 0, 0, 0, 100, 0}, {10, 20, 30}, {13, 26, 39}},
        {{1, 1, 1, 0, 0, 0, 0, 0, 100}, {177, 127, 77}, {192, 127, 62}},
        {{1, 1, 1, -100, 0, 0, 0, 0, 0}, {200, 100, 50}, {125, 125, 125}},
        // 250 at -19.8 % is a tie, 200.5; the value that `process` takes was cut to a float and lies above
        // it.
        {{1, 1, 1, 0, -99, 0, 0, 0, 0}, {250, 0, 0}, {200, 0, 0}},
    };
    for (const auto& [group, pixel, expected] : cases) {
        colouriser.skyTextureGroups[0] = group;
        EXPECT_EQ(test::pixelAt(skyOf(pixel), 0, 0), expected);
    }
    EXPECT_EQ(processed({250, 0, 0}).red, 250);
    colouriser.Red = static_cast<float>(-99 * 0.2);
    EXPECT_EQ(processed({250, 0, 0}).red, 201) << "new values between two pictures";
}

TEST_F(Colouriser, LaterSkyGroupsWorkOnUnclampedChannels) {
    // 250 overshoots to 300 in the first group; the second takes it down by 20 % to 240, not to 204.
    colouriser.skyTextureGroups[2] = {1, 1, 1, 0, 100, 0, 0, 0, 0};
    colouriser.skyTextureGroups[7] = {1, 1, 1, 0, -100, 0, 0, 0, 0};
    EXPECT_EQ(test::pixelAt(skyOf({250, 100, 100}), 0, 0), (RgbColour{240, 100, 100}));
}

} // namespace

} // namespace morvane
