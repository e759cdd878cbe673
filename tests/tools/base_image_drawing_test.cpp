#include "base_image_contact_sheet.h"
#include "base_image_drawing.h"

#include "core/literals.h"
#include "support/printing.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <numeric>
#include <set>
#include <thread>

namespace morvane {
namespace {

constexpr int side = 256;

Picture draw(const QString& fileName) {
    for (const BaseImage& image : baseImageList(1))
        if (image.fileName == fileName) return drawBaseImage(image);
    ADD_FAILURE() << "not in the stock: " << fileName.toStdString();
    return {};
}

double brightness(const Picture& picture) {
    return std::accumulate(picture.rows.begin(), picture.rows.end(), 0.0) / (side * side * 3);
}

double meanDifference(const Picture& first, const Picture& second) {
    double sum = 0;
    for (std::size_t place = 0; place < first.rows.size(); ++place)
        sum += std::abs(first.rows[place] - second.rows[place]);
    return sum / static_cast<double>(first.rows.size());
}

/// Mean step from each pixel of one column (or row) to the next one of the other.
double stepBetween(const Picture& picture, int first, int second, bool columns) {
    double sum = 0;
    for (int along = 0; along < side; ++along) {
        const auto at = [&](int across) {
            const int pixel = columns ? along * side + across : across * side + along;
            return picture.rows[static_cast<std::size_t>(pixel * 3)];
        };
        sum += std::abs(at(first) - at(second));
    }
    return sum / side;
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

TEST(BaseImageDrawing, isTheSameInAnyThreadAndContinuesBeyondEachEdge) {
    for (const BaseImage& image : oneOfEachKind()) {
        const Picture picture = drawBaseImage(image);
        EXPECT_EQ(picture.rows.size(), static_cast<std::size_t>(side * side * 3));
        Picture there;
        std::thread([&] { there = drawBaseImage(image); }).join();
        EXPECT_EQ(picture.rows, there.rows) << image.fileName.toStdString();
        for (const bool columns : {true, false}) {
            double roughest = 0; // of the steps inside
            for (int i = 0; i + 1 < side; ++i)
                roughest = std::max(roughest, stepBetween(picture, i, i + 1, columns));
            EXPECT_LE(stepBetween(picture, side - 1, 0, columns), roughest) << image.fileName.toStdString();
        }
    }
}

/// A stock made elsewhere, or with another compiler or optimisation, must be the same stock. Whoever changes
/// the art on purpose looks at the contact sheet and writes the new sum here.
TEST(BaseImageDrawing, givesEveryFileAPictureOfItsOwnAndTheSameOnEverySystem) {
    std::set<std::uint64_t> sums;
    std::uint64_t all = 0;
    for (const BaseImage& image : baseImageList(1))
        if (image.landClass.startsWith(u"00") || image.resourceFolder != u"GENERIC WORLD" ||
            image.landClass.startsWith(u"029") || image.landClass.startsWith(u"056")) {
            const std::uint64_t sum = checksum(drawBaseImage(image));
            EXPECT_TRUE(sums.insert(sum).second) << image.fileName.toStdString();
            all ^= sum;
        }
    EXPECT_EQ(all, 13474773033156935933u);
}

TEST(BaseImageDrawing, winterHasSnowButInDeserts) {
    EXPECT_GT(brightness(draw(u"004b2wi2.bmp"_s)), brightness(draw(u"004b2su2.bmp"_s)) + 40);
    EXPECT_LT(meanDifference(draw(u"003b2wi3.bmp"_s), draw(u"003b2su3.bmp"_s)), 40);
}

/// The simulator's "h" and "b" files of a class show the same place.
TEST(BaseImageDrawing, tropicalTwinsLookAlike) {
    const Picture plain = draw(u"029b2su1.bmp"_s);
    EXPECT_LT(meanDifference(plain, draw(u"029h2su1.bmp"_s)), 6);
    EXPECT_GT(meanDifference(plain, draw(u"029a2su1.bmp"_s)), 25);
}

/// Streets and houses by night lie where they lie by day: what is dark there follows the day's light. Not in
/// the centres of cities, where lamps reach everything.
TEST(BaseImageDrawing, theNightOfAFileFitsItsDay) {
    for (const BaseImage& night : nightImageList(1)) {
        if (night.landClass != u"029b" && night.landClass != u"008b" && night.landClass != u"021a") continue;
        const Picture dark = drawBaseImage(night);
        BaseImage byDay = night;
        byDay.resourceFolder = u"GENERIC WORLD"_s;
        const Picture day = drawBaseImage(byDay);
        EXPECT_LT(brightness(dark), 45) << night.fileName.toStdString();
        EXPECT_GT(*std::ranges::max_element(dark.rows), 200) << "with lights";
        double bright = 0, dim = 0;
        int brightCount = 0, dimCount = 0;
        for (std::size_t place = 0; place < dark.rows.size(); place += 3) {
            if (dark.rows[place + 2] > 16) continue; // lit by a lamp or a window
            const bool isBright = day.rows[place + 2] > 120;
            (isBright ? bright : dim) += dark.rows[place + 2];
            ++(isBright ? brightCount : dimCount);
        }
        EXPECT_GT(bright / brightCount, 1.1 * dim / dimCount) << night.fileName.toStdString();
    }
}

TEST(ContactSheet, showsPicturesUprightAndAtOneSize) {
    Picture blueBelow{8, 8, std::vector<std::uint8_t>(8 * 24, 40)};
    std::fill_n(blueBelow.rows.begin(), 24, 200);
    const QImage sheet = contactSheet({{u"029h2su6.bmp"_s, {blueBelow, {}}}}, {u"Base"_s, u"Sky Clear"_s});
    QRect dark, bright;
    for (int y = 0; y < sheet.height(); ++y)
        for (int x = 0; x < sheet.width(); ++x) {
            if (sheet.pixel(x, y) == qRgb(40, 40, 40)) dark |= QRect(x, y, 1, 1);
            if (sheet.pixel(x, y) == qRgb(200, 200, 200)) bright |= QRect(x, y, 1, 1);
        }
    EXPECT_EQ(dark.width(), 144);
    EXPECT_EQ(bright.width(), 144);
    EXPECT_GT(bright.top(), dark.bottom());
}

} // namespace
} // namespace morvane
