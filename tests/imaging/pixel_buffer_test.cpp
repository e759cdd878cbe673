#include "imaging/pixel_buffer.h"

#include "core/error.h"
#include "core/literals.h"
#include "imaging/pixel_patterns.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {

namespace {

TEST(PixelBuffer, RefusesImpossibleSizes) {
    cDIBSection buffer;
    const std::pair<int, int> sizes[] = {{0, 5}, {5, 0}, {-1, 5}, {5, -5}, {40000, 40000}, {2147483647, 1}};
    for (const auto& [width, height] : sizes) {
        buffer.Create(4, 4);
        EXPECT_FALSE(buffer.Create(width, height) || buffer.isCreated()) << width;
    }
}

TEST(PixelBuffer, SavesAPictureAsItStandsBehindTheHeaderOfItsOwnLayout) {
    test::TemporaryFolder folder;
    const FilePath file = folder / u"saved.bmp";
    test::writeFile(file, QByteArray(300000, 'x'));
    cDIBSection buffer;
    buffer.CreateFromPicture({2, 2, {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 99}});
    ASSERT_TRUE(buffer.SavePicture(file));
    const QByteArray expected = QByteArray::fromHex("424d 4a000000 00000000 3a000000"
                                                    "28000000 02000000 02000000 0100 1800 00000000 10000000"
                                                    "00000000 00000000 00000000 00000000 00000000"
                                                    "010203 040506 0000 070809 0a0b0c 0063");
    EXPECT_EQ(test::readFile(file).toHex(' '), expected.toHex(' '));
    EXPECT_EQ(QImage(file.native()).pixel(1, 0), qRgb(12, 11, 10));
    EXPECT_THROW(buffer.CreateFromPicture({2, 2, {1, 2, 3}}), Error);
    EXPECT_FALSE(buffer.isCreated());
}

} // namespace

} // namespace morvane
