#include "imaging/window_region.h"

#include "imaging/bitmap_builder.h"
#include "support/raised_error.h"

#include <QRegion>
#include <gtest/gtest.h>
#include <random>

namespace morvane::test {
namespace {

constexpr QRgb key = qRgb(255, 0, 255);

/// A picture out of letters: '#' is opaque, anything else transparent.
QImage pictureOf(const std::vector<const char*>& rows) {
    QImage picture(static_cast<int>(strlen(rows[0])), static_cast<int>(rows.size()), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, rows[static_cast<std::size_t>(y)][x] == '#' ? qRgb(1, 2, 3) : key);
    return picture;
}

const std::vector<const char*> lippedWindow = {"..##..", "######", "######", "#.##.#",
                                               "#.##..", "......", ".##..."};

/// The rule as it is told: the whole rectangle less each transparent run. The pictures are narrow, so that
/// neighbouring rows often differ in one end of a run only.
TEST(WindowRegion, scanEqualsTheRectangleLessItsRuns) {
    std::mt19937 random(20040); // NOLINT: the same pictures every time
    for (int turn = 0; turn < 50; ++turn) {
        QImage picture(5, 15, QImage::Format_RGB888);
        QRegion expected(picture.rect());
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const bool isOpaque = random() % 10 < static_cast<unsigned>(turn % 10);
                picture.setPixel(x, y, isOpaque ? qRgb(0, 0, 0) : key);
                if (!isOpaque) expected -= QRect(x, y, 1, 1);
            }
        const WindowRegion region = scanRegion(picture, key);
        EXPECT_EQ(region.rectangles, std::vector<QRect>(expected.begin(), expected.end()));
        EXPECT_EQ(region.bounds, expected.boundingRect());
    }
}

TEST(WindowRegion, blockHasTheLayoutOfTheSystem) {
    const QByteArray block = writeWindowRegion(scanRegion(pictureOf({".##", ".##"}), key));
    EXPECT_EQ(block, QByteArray::fromHex("20000000 01000000 01000000 10000000"
                                         "01000000 00000000 03000000 02000000"
                                         "01000000 00000000 03000000 02000000"));
    EXPECT_EQ(descriptionRaisedBy([] { writeWindowRegion(scanRegion(pictureOf({".."}), key)); }),
              u"Unable to determine size of region in SaveRegionDataToFile");
}

TEST(WindowRegion, damagedFilesAreRefused) {
    const QByteArray good = writeWindowRegion(scanRegion(pictureOf(lippedWindow), key));
    const std::pair<const char*, QByteArray> damages[] = {
        {"nothing", {}},
        {"a rectangle short", good.left(good.size() - 16)},
        {"something behind", good + QByteArray(16, '\0')},
        {"another header size", withLong(good, 0, 36)},
        {"no rectangle", withLong(good.left(32), 8, 0)},
        {"a count that overflows", withLong(good, 8, 0x10000008)},
        {"another size of the rectangles", withLong(good, 12, 16)},
        {"a far end", withLong(good, 40, 0x80000000)},
        {"an empty rectangle", withLong(good, 40, 2)},
        {"a rectangle out of bounds", withLong(good, 40, 7)},
        {"one that reaches into the next row", withLong(good, 32 + 16 + 12, 4)},
        {"two that touch", withLong(good, 32 + 3 * 16 + 8, 5)},
        {"one out of its row", withLong(good, 32 + 16 + 4, 0)},
    };
    for (const auto& [what, file] : damages)
        EXPECT_THROW(readWindowRegion(file), Error) << what;
}

} // namespace
} // namespace morvane::test
