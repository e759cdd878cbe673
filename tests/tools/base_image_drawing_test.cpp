#include "base_image_drawing.h"

#include "core/literals.h"
#include "support/printing.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

namespace morvane {
namespace {

constexpr int side = 256;

Picture draw(const QString& fileName, const QString& folder = u"GENERIC WORLD"_s) {
    for (const BaseImage& image : baseImageList(1))
        if (image.fileName == fileName && image.resourceFolder == folder) return drawBaseImage(image);
    ADD_FAILURE() << "not in the stock: " << fileName.toStdString();
    return {};
}

/// Mean of one channel over the picture: 0 blue, 1 green, 2 red.
double meanOf(const Picture& picture, std::size_t channel) {
    double sum = 0;
    for (std::size_t place = channel; place < picture.rows.size(); place += 3)
        sum += picture.rows[place];
    return sum / (side * side);
}

double brightness(const Picture& picture) {
    return (meanOf(picture, 0) + meanOf(picture, 1) + meanOf(picture, 2)) / 3;
}

double meanDifference(const Picture& first, const Picture& second) {
    double sum = 0;
    for (std::size_t place = 0; place < first.rows.size(); ++place)
        sum += std::abs(first.rows[place] - second.rows[place]);
    return sum / static_cast<double>(first.rows.size());
}

/// Mean difference of two neighbouring columns (or rows) of pixels.
double stepBetween(const Picture& picture, int first, int second, bool columns) {
    double sum = 0;
    for (int along = 0; along < side; ++along)
        for (int channel = 0; channel < 3; ++channel) {
            const auto at = [&](int across) {
                const int pixel = columns ? along * side + across : across * side + along;
                return picture.rows[static_cast<std::size_t>(pixel * 3 + channel)];
            };
            sum += std::abs(at(first) - at(second));
        }
    return sum / (side * 3);
}

/// The roughest step between two neighbours inside the picture.
double roughestStep(const Picture& picture, bool columns) {
    double roughest = 0;
    for (int i = 0; i + 1 < side; ++i)
        roughest = std::max(roughest, stepBetween(picture, i, i + 1, columns));
    return roughest;
}

/// One file of every kind of land.
std::vector<BaseImage> oneOfEachKind() {
    std::vector<BaseImage> chosen;
    for (const BaseImage& image : baseImageList(1)) {
        const auto sameKind = [&](const BaseImage& other) { return other.kind == image.kind; };
        if (image.season == BaseImageSeason::summer && std::none_of(chosen.begin(), chosen.end(), sameKind))
            chosen.push_back(image);
    }
    return chosen;
}

/// FNV-1a over the picture's bytes.
std::uint64_t checksum(const Picture& picture) {
    std::uint64_t sum = 0xcbf29ce484222325u;
    for (const std::uint8_t byte : picture.rows)
        sum = (sum ^ byte) * 0x100000001b3u;
    return sum;
}

TEST(BaseImageDrawing, hasTheSimulatorsSize) {
    const Picture picture = draw(u"029h2su6.bmp"_s);
    EXPECT_EQ(picture.width, side);
    EXPECT_EQ(picture.height, side);
    EXPECT_EQ(picture.rows.size(), static_cast<std::size_t>(side * side * 3));
}

TEST(BaseImageDrawing, drawsTheSameBytesAgainInAnyThread) {
    for (const BaseImage& image : oneOfEachKind()) {
        const Picture here = drawBaseImage(image);
        Picture there;
        std::thread([&] { there = drawBaseImage(image); }).join();
        EXPECT_EQ(here.rows, there.rows) << image.fileName.toStdString();
    }
}

TEST(BaseImageDrawing, continuesBeyondEachEdge) {
    for (const BaseImage& image : oneOfEachKind()) {
        const Picture picture = drawBaseImage(image);
        for (const bool columns : {true, false})
            EXPECT_LE(stepBetween(picture, side - 1, 0, columns), roughestStep(picture, columns))
                << image.fileName.toStdString() << (columns ? " left and right" : " top and bottom");
    }
}

TEST(BaseImageDrawing, givesEveryFileAPictureOfItsOwn) {
    std::vector<std::uint64_t> sums;
    for (const BaseImage& image : baseImageList(1))
        if (image.landClass.startsWith(u"00") || image.resourceFolder != u"GENERIC WORLD")
            sums.push_back(checksum(drawBaseImage(image)));
    std::sort(sums.begin(), sums.end());
    EXPECT_EQ(std::adjacent_find(sums.begin(), sums.end()), sums.end());
}

TEST(BaseImageDrawing, seasonsDiffer) {
    const Picture spring = draw(u"004b2sp2.bmp"_s);
    const Picture summer = draw(u"004b2su2.bmp"_s);
    const Picture fall = draw(u"004b2fa2.bmp"_s);
    const Picture winter = draw(u"004b2wi2.bmp"_s);
    EXPECT_GT(brightness(winter), brightness(summer) + 40) << "snow";
    EXPECT_GT(meanDifference(spring, summer), 5);
    EXPECT_GT(meanOf(fall, 2) - meanOf(fall, 1), meanOf(summer, 2) - meanOf(summer, 1) + 10)
        << "ploughed and stubble";
    EXPECT_GT(meanOf(draw(u"011b2fa5.bmp"_s), 2), meanOf(draw(u"011b2su5.bmp"_s), 2) + 15) << "leaves turn";
}

TEST(BaseImageDrawing, landsHaveTheirColours) {
    const Picture red = draw(u"003c2su3.bmp"_s);
    EXPECT_GT(meanOf(red, 2), 2 * meanOf(red, 0));
    const Picture forest = draw(u"011b2su5.bmp"_s);
    EXPECT_GT(meanOf(forest, 1), meanOf(forest, 2));
    EXPECT_LT(brightness(forest), brightness(draw(u"003b2su3.bmp"_s)) - 50);
    const Picture snow = draw(u"124a2su1.bmp"_s);
    EXPECT_GT(brightness(snow), 180);
    // No snow in the hot deserts.
    EXPECT_LT(meanDifference(draw(u"003b2wi3.bmp"_s), draw(u"003b2su3.bmp"_s)), 40);
}

/// A stock made elsewhere, or with another compiler or optimisation, must be the same stock. Whoever changes
/// the art on purpose writes the new sums here.
TEST(BaseImageDrawing, isTheSameOnEverySystem) {
    EXPECT_EQ(checksum(draw(u"029h2su6.bmp"_s)), 8875878605636597178u);
    EXPECT_EQ(checksum(draw(u"004b2fa2.bmp"_s)), 14018030241937108310u);
    EXPECT_EQ(checksum(draw(u"056a2su3.bmp"_s)), 7250683440291539311u);
}

/// The simulator's "h" and "b" files of a class show the same place.
TEST(BaseImageDrawing, tropicalTwinsLookAlikeButAreNotTheSame) {
    const Picture plain = draw(u"029b2su1.bmp"_s);
    const Picture tropical = draw(u"029h2su1.bmp"_s);
    EXPECT_NE(plain.rows, tropical.rows);
    EXPECT_LT(meanDifference(plain, tropical), 6);
    EXPECT_GT(meanDifference(plain, draw(u"029a2su1.bmp"_s)), 25);
}

} // namespace
} // namespace morvane
