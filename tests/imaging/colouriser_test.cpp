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

    test::ScriptedUser user;
    cColourise colouriser{user};
};

TEST_F(Colouriser, HoldsTheWorkedExamplesWithOneObject) {
    EXPECT_EQ(processed({17, 200, 3}), (RgbColour{17, 200, 3}));
    colouriser.saturation = -100;
    EXPECT_EQ(processed({200, 100, 50}), (RgbColour{125, 125, 125}));
    colouriser.saturation = 10;
    colouriser.Red = 2;
    colouriser.green = 1;
    colouriser.blue = -3;
    colouriser.brightness = 6;
    colouriser.contrast = 3;
    EXPECT_EQ(processed({120, 140, 90}), (RgbColour{130, 153, 88}));
    EXPECT_EQ(user.told(), QStringList());
}

TEST_F(Colouriser, TellsTheUserOfFailuresAndGoesOn) {
    cDIBSection never, created = test::createdBuffer(2, 2);
    colouriser.process(never, created);
    colouriser.processAutogen(created, never);
    colouriser.processSky(never, created);
    colouriser.Red = 1e10f;
    cDIBSection white = test::filledBuffer(2, 2, {255, 255, 254});
    colouriser.process(white, created);
    colouriser.processAutogen(white, created);
    const QString invalid = u"Error|Morvane Error|Invalid procedure call or argument"_s;
    const QString overflow = u"Error|Morvane Error|Overflow"_s;
    EXPECT_EQ(user.told(), (QStringList{invalid, invalid, invalid, overflow, overflow}));
}

// Operations that the program offers and nothing calls.
TEST_F(Colouriser, EightBitIsTheSameAndAutogenPassesKeyColoursOver) {
    colouriser.brightness = 10;
    const RgbColour held = {7, 8, 9};
    const struct {
        RgbColour pixel;
        bool isSkipped;
    } cases[] = {
        {{255, 0, 0}, true},    {{0, 255, 0}, true},   {{0, 0, 255}, true},      {{255, 255, 0}, true},
        {{0, 255, 255}, true},  {{0, 0, 0}, false},    {{255, 255, 255}, false}, {{255, 100, 0}, true},
        {{255, 0, 100}, false}, // the lone green of the first condition: blue is not 0, green not 255
        {{100, 0, 255}, false}, {{0, 100, 255}, true}, {{90, 120, 140}, false},
    };
    for (const auto& [pixel, isSkipped] : cases) {
        const cDIBSection source = test::filledBuffer(1, 1, pixel);
        cDIBSection autogen = test::filledBuffer(1, 1, held), eightBit = test::createdBuffer(1, 1);
        colouriser.processAutogen(source, autogen);
        EXPECT_EQ(test::pixelAt(autogen, 0, 0), isSkipped ? held : processed(pixel));
        colouriser.process8Bit(source, eightBit);
        EXPECT_EQ(test::pixelAt(eightBit, 0, 0), processed(pixel));
    }
}

class SkyColouriser : public Colouriser {
protected:
    /// A group of one pixel, or of a run in one row; columns and row count from 1.
    static SkyGroup groupAt(float firstColumn, float lastColumn, float row, float red = 0) {
        SkyGroup group;
        group.PixelXLow = firstColumn;
        group.PixelXHigh = lastColumn;
        group.PixelY = row;
        group.red = red;
        return group;
    }

    cDIBSection skyOf(const RgbColour& pixel) {
        const cDIBSection source = test::filledBuffer(32, 40, pixel);
        cDIBSection destination = test::createdBuffer(32, 40);
        colouriser.processSkyTexture(source, destination);
        return destination;
    }
};

TEST_F(SkyColouriser, ReachesThePixelsOfItsGroupsAlone) {
    colouriser.skyTextureGroups[0] = groupAt(3, 5, 2, 100);
    const cDIBSection sky = skyOf({100, 100, 100});
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 32; ++x) {
            const bool isInGroup = y == 1 && x >= 2 && x <= 4;
            ASSERT_EQ(test::pixelAt(sky, x, y),
                      (isInGroup ? RgbColour{120, 100, 100} : RgbColour{100, 100, 100}))
                << x << ' ' << y;
        }
}

TEST_F(SkyColouriser, Row255IsTheBandOfRows2To30) {
    colouriser.skyTextureGroups[4] = groupAt(3, 5, 255, 100);
    const cDIBSection sky = skyOf({100, 100, 100});
    for (int y = 0; y < 40; ++y)
        for (const int x : {0, 31})
            ASSERT_EQ(test::pixelAt(sky, x, y).red, y >= 2 && y <= 30 ? 120 : 100) << y;
}

TEST_F(SkyColouriser, LaterGroupsWorkOnUnclampedChannels) {
    // 250 overshoots to 300 in the first group; the second takes it down by 20 % to 240, not to 204.
    colouriser.skyTextureGroups[2] = groupAt(1, 1, 1, 100);
    colouriser.skyTextureGroups[7] = groupAt(1, 1, 1, -100);
    EXPECT_EQ(test::pixelAt(skyOf({250, 100, 100}), 0, 0), (RgbColour{240, 100, 100}));
}

TEST_F(SkyColouriser, ScalesBrightnessAndContrastButNotSaturation) {
    SkyGroup group = groupAt(1, 1, 1);
    group.brightness = 100;
    colouriser.skyTextureGroups[0] = group;
    EXPECT_EQ(test::pixelAt(skyOf({10, 20, 30}), 0, 0), (RgbColour{13, 26, 39}));
    group.brightness = 0;
    group.contrast = 100;
    colouriser.skyTextureGroups[0] = group;
    EXPECT_EQ(test::pixelAt(skyOf({177, 127, 77}), 0, 0), (RgbColour{192, 127, 62}));
    group.contrast = 0;
    group.saturation = -100;
    colouriser.skyTextureGroups[0] = group;
    EXPECT_EQ(test::pixelAt(skyOf({200, 100, 50}), 0, 0), (RgbColour{125, 125, 125}));
}

TEST_F(SkyColouriser, IsNotTheSameAsScaledValues) {
    // 250 at -19.8 % is a tie, 200.5; the value that `process` takes was cut to a float and lies above it.
    colouriser.skyTextureGroups[0] = groupAt(1, 1, 1, -99);
    colouriser.Red = static_cast<float>(-99 * 0.2);
    EXPECT_EQ(test::pixelAt(skyOf({250, 0, 0}), 0, 0).red, 200);
    EXPECT_EQ(processed({250, 0, 0}).red, 201);
}

TEST_F(SkyColouriser, KeepsTwoTables) {
    colouriser.skyTextureGroups[0] = groupAt(1, 1, 1, 100);
    colouriser.skyPaletteGroups[0] = groupAt(2, 2, 1, -100);
    colouriser.Red = 20; // no part in the sky
    const cDIBSection source = test::filledBuffer(3, 1, {100, 0, 0});
    cDIBSection palette = test::createdBuffer(3, 1);
    colouriser.processSky(source, palette);
    EXPECT_EQ(test::pixelAt(palette, 0, 0).red, 100);
    EXPECT_EQ(test::pixelAt(palette, 1, 0).red, 80);
    EXPECT_EQ(test::pixelAt(skyOf({100, 0, 0}), 0, 0).red, 120);
    EXPECT_EQ(test::pixelAt(skyOf({100, 0, 0}), 1, 0).red, 100);
}

} // namespace

} // namespace morvane
