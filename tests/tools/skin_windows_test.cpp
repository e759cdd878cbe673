#include "skin_windows.h"

#include "core/error.h"
#include "imaging/program_font.h"
#include "imaging/window_region.h"
#include "skin_palette.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using namespace skin;

QImage drawnWindow(QStringView name, int scale = 1) {
    loadProgramFont();
    return drawWindow(name, scale);
}

WindowRegion regionOf(const QImage& picture) {
    return scanRegion(picture, keyColour.rgb());
}

/// A pixel in whose mixture the key colour took part is much redder and bluer than green; nothing else in
/// the skin is.
bool isTintedByKey(QRgb pixel) {
    return qRed(pixel) > qGreen(pixel) + 12 && qBlue(pixel) > qGreen(pixel) + 30;
}

TEST(SkinWindows, edgesAreHard) {
    for (const WindowPicture& window : windowPictures())
        for (const int scale : {1, 2}) {
            const QImage picture = drawnWindow(window.name, scale);
            ASSERT_EQ(picture.size(), window.size * scale);
            int tinted = 0;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    tinted += picture.pixelColor(x, y) != keyColour && isTintedByKey(picture.pixel(x, y));
            EXPECT_EQ(tinted, 0) << window.name.toString().toStdString();
        }
}

/// The outermost pixels of every row that is not part of a curve or corner.
TEST(SkinWindows, outlineIsDarkAndOnePixelWide) {
    for (const WindowPicture& window : windowPictures()) {
        const QImage picture = drawnWindow(window.name);
        for (const int x : {0, picture.width() - 1})
            for (int y = 60; y < picture.height() - 30; ++y)
                ASSERT_EQ(picture.pixelColor(x, y), outlineColour) << window.name.toString().toStdString();
        EXPECT_GT(qGray(picture.pixel(1, 60)), qGray(outlineColour.rgb()) + 20);
    }
}

TEST(SkinWindows, regionHasTheLipAndTheCorners) {
    const WindowRegion region = regionOf(drawnWindow(u"MVMainInterface"));
    EXPECT_EQ(region.bounds, QRect(0, 0, 880, 580));
    // The lip's flat top is 288 wide; where its shoulders set in, they fall by less than half a pixel.
    const QRect& lip = region.rectangles.front();
    EXPECT_EQ(lip.top(), 0);
    EXPECT_NEAR(lip.width(), 304, 4);
    EXPECT_NEAR(lip.center().x(), 440, 1);
    EXPECT_EQ(region.rectangles.back(), QRect(14, 579, 852, 1));
}

TEST(SkinWindows, mainWindowAndHostsShareOneOutline) {
    const WindowRegion region = regionOf(drawnWindow(u"MVMainInterface"));
    const QImage main = drawnWindow(u"MVMainInterface");
    for (const QStringView host : {u"MVGroundInterface", u"MVSkyInterface", u"MVNightInterface"}) {
        const QImage picture = drawnWindow(host);
        EXPECT_EQ(regionOf(picture), region);
        EXPECT_NE(picture.copy(10, 40, 140, 30), main.copy(10, 40, 140, 30));     // its own label
        EXPECT_NE(picture.copy(746, 137, 126, 44), main.copy(746, 137, 126, 44)); // a blank slot
        EXPECT_EQ(picture.copy(8, 137, 126, 44), main.copy(8, 137, 126, 44));     // a key's place
    }
    EXPECT_THROW(drawnWindow(u"MVNowhere"), Error);
}

} // namespace
} // namespace morvane
