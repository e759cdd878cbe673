#include "skin_keys.h"

#include "core/literals.h"
#include "skin_palette.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using namespace skin;

/// Pixels of key colour at the left end of a row.
int cutPixels(const QImage& frame, int row) {
    int count = 0;
    while (count < frame.width() && frame.pixelColor(count, row) == keyColour)
        ++count;
    return count;
}

int pixelsOfKeyColour(const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == keyColour;
    return count;
}

TEST(SkinKeys, framesHaveHardCornersAndNoOtherKeyColour) {
    constexpr int cuts[] = {4, 2, 1, 1, 0, 0};
    for (const KeyImage& image : keyImages()) {
        const QImage strip = drawKeyStrip(image, 1);
        const QSize size = keySize(image.family);
        ASSERT_EQ(strip.size(), QSize(size.width(), 4 * size.height()));
        for (int state = 0; state < 4; ++state) {
            const QImage frame = strip.copy(0, state * size.height(), size.width(), size.height());
            for (const QImage& turned : {frame, frame.mirrored(true, true)})
                for (int row = 0; row < 6; ++row)
                    EXPECT_EQ(cutPixels(turned, row), cuts[row]) << image.name.toString().toStdString();
            EXPECT_EQ(pixelsOfKeyColour(frame), 4 * 8) << image.name.toString().toStdString();
        }
    }
}

TEST(SkinKeys, everyFrameLooksDifferentAndShowsThePictogram) {
    for (const KeyImage& image : keyImages()) {
        const QSize size = keySize(image.family);
        const QImage strip = drawKeyStrip(image, 1);
        // The middle of the frame without its edge, and a strip at the right that has no pictogram.
        const auto part = [&](int state, int x, int width) {
            return strip.copy(x, state * size.height() + 4, width, size.height() - 8);
        };
        for (int state = 0; state < 4; ++state) {
            for (int other = 0; other < state; ++other)
                EXPECT_NE(part(state, 9, 28), part(other, 9, 28)) << image.name.toString().toStdString();
            EXPECT_NE(part(state, 9, 28), part(state, 36, 1).scaled(28, size.height() - 8));
        }
    }
}

/// Brightness of the lamp at the left of a medium key, above its ground.
int lampLight(const QImage& strip, int state) {
    return qGray(strip.pixel(6, 44 * state + 20)) - qGray(strip.pixel(100, 44 * state + 20));
}

TEST(SkinKeys, disabledMediumKeyIsLitAsTheCurrentPage) {
    const QImage strip = drawKeyStrip(keyImages().front(), 1);
    EXPECT_LT(lampLight(strip, 0), 0);
    EXPECT_GT(lampLight(strip, 2), 60);
    EXPECT_GT(lampLight(strip, 3), 60);
    EXPECT_GT(strip.pixelColor(100, 152).blue(), strip.pixelColor(100, 20).blue());
}

TEST(SkinKeys, twiceTheSizeIsSharpAndCutAlike) {
    for (const KeyImage& image : keyImages()) {
        const QImage once = drawKeyStrip(image, 1), twice = drawKeyStrip(image, 2);
        ASSERT_EQ(twice.size(), once.size() * 2);
        EXPECT_NE(twice, once.scaled(twice.size()));
        EXPECT_NEAR(pixelsOfKeyColour(twice), 4 * pixelsOfKeyColour(once), 80);
    }
}

} // namespace
} // namespace morvane
