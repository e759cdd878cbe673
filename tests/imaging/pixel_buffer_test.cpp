#include "imaging/pixel_buffer.h"

#include "core/literals.h"
#include "imaging/pixel_patterns.h"
#include "support/printing.h"
#include "support/raised_error.h"
#include "support/scripted_services.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {

namespace {

TEST(PixelBuffer, LivesFromCreateToClearUpAndRefusesImpossibleSizes) {
    cDIBSection buffer;
    EXPECT_EQ(buffer.DIBSectionBitsPtr(), nullptr);
    ASSERT_TRUE(buffer.Create(5, 3));
    EXPECT_EQ(buffer.BytesPerScanLine(), 16);
    const std::uint8_t* address = buffer.DIBSectionBitsPtr();
    cDIBSection moved = std::move(buffer);
    EXPECT_EQ(moved.DIBSectionBitsPtr(), address);
    moved.UseDrawDib(true);
    moved.ClearUp();
    EXPECT_TRUE(moved.Width() == 0 && !moved.UseDrawDib());
    const std::pair<int, int> sizes[] = {{0, 5}, {5, 0}, {-1, 5}, {5, -5}, {40000, 40000}, {2147483647, 1}};
    for (const auto& [width, height] : sizes) {
        moved.Create(4, 4);
        EXPECT_FALSE(moved.Create(width, height) || moved.isCreated()) << width;
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

TEST(PixelBuffer, TellsWhyASaveFailed) {
    test::TemporaryFolder folder;
    const cDIBSection buffer = test::createdBuffer(256, 256);
    EXPECT_EQ(test::codeRaisedBy([&] { buffer.SavePicture(folder / u"missing" / u"saved.bmp"); }),
              ErrorCode::cannotOpenForWriting);
    EXPECT_FALSE(buffer.SavePicture(FilePath(u"/dev/full"_s)));
    EXPECT_FALSE(cDIBSection().SavePicture(folder / u"empty.bmp"));
}

/// Pixels whose red is the column and whose green is the row, counted from the top.
cDIBSection rulerBuffer(int width, int height) {
    cDIBSection buffer = test::createdBuffer(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            test::setPixel(buffer, x, height - 1 - y, {x, y, 200});
    return buffer;
}

TEST(PixelBuffer, LoadsARegionIntoItsTopLeftCorner) {
    const cDIBSection source = rulerBuffer(6, 5);
    cDIBSection part = test::filledBuffer(4, 4, {9, 9, 9});
    part.LoadPictureBlt(source, 4, 3, 3, 1);
    EXPECT_EQ(test::pixelAt(part, 0, 3), (RgbColour{4, 3, 200}));
    EXPECT_EQ(test::pixelAt(part, 1, 3), (RgbColour{5, 3, 200}));
    EXPECT_EQ(test::pixelAt(part, 2, 3), (RgbColour{9, 9, 9})); // beyond the source
    EXPECT_EQ(test::pixelAt(part, 0, 2), (RgbColour{9, 9, 9})); // one row was asked for
    part.LoadPictureBlt(source, -3, -3);
    EXPECT_EQ(test::pixelAt(part, 3, 0), (RgbColour{0, 0, 200}));
}

TEST(PixelBuffer, PaintsIntoAnImage) {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::black);
    rulerBuffer(6, 5).PaintPicture(image, 1, 2, 2, 1, 3, 4);
    EXPECT_EQ(image.pixel(2, 2), qRgb(4, 4, 200));
    EXPECT_EQ(image.pixel(3, 2), qRgb(0, 0, 0));
}

// Operations that the program offers and nothing calls.
TEST(PixelBuffer, OffersWhatNothingCalls) {
    cDIBSection wide;
    ASSERT_TRUE(wide.CreateDIB32(2, 2));
    EXPECT_EQ(wide.BytesPerScanLine(), 8); // too small for 32 bits, as ever

    cDIBSection noise = test::createdBuffer(2, 2);
    test::ScriptedRandom rows, columns;
    rows.numbers = columns.numbers = {1 / 255.0, 2 / 255.0, 3 / 255.0, 4 / 255.0};
    noise.RandomiseBits(true, rows);
    EXPECT_EQ(test::pixelAt(noise, 1, 0), (RgbColour{2, 2, 2}));
    noise.RandomiseBits(false, columns);
    EXPECT_EQ(test::pixelAt(noise, 0, 1), (RgbColour{4, 3, 0}));

    const cDIBSection source = rulerBuffer(5, 3);
    const auto larger = source.Resample(4, 10);
    // Row 1 of 4 lies at 0.5 of the rows 0 and 1, which are 2 and 1: 1.5 becomes 2. Column 9 lies at 3.6.
    EXPECT_EQ(test::pixelAt(larger.value(), 9, 1), (RgbColour{4, 2, 200}));
    EXPECT_EQ(test::pixelAt(*source.Resample(3, 5), 4, 2), (RgbColour{4, 0, 200}));
    EXPECT_FALSE(source.Resample(0, 5));
    EXPECT_FALSE(cDIBSection().Resample(2, 2));
}

} // namespace

} // namespace morvane
