#include "imaging/pixel_buffer.h"

#include "core/error.h"
#include "core/literals.h"
#include "imaging/pixel_patterns.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {

namespace {

TEST(PixelBuffer, RoundsRowsUpToFourBytes) {
    const std::pair<int, int> widths[] = {{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}, {256, 768}};
    for (const auto& [width, bytes] : widths)
        EXPECT_EQ(test::createdBuffer(width, 2).BytesPerScanLine(), bytes);
}

TEST(PixelBuffer, LivesFromCreateToClearUp) {
    cDIBSection buffer;
    EXPECT_FALSE(buffer.isCreated());
    EXPECT_EQ(buffer.DIBSectionBitsPtr(), nullptr);
    buffer.UseDrawDib(true);
    ASSERT_TRUE(buffer.Create(5, 3));
    EXPECT_TRUE(buffer.UseDrawDib());
    EXPECT_EQ(buffer.Width(), 5);
    EXPECT_EQ(buffer.Height(), 3);
    test::setPixel(buffer, 4, 2, {1, 2, 3});
    const std::uint8_t* address = buffer.DIBSectionBitsPtr();
    const cDIBSection moved = std::move(buffer);
    EXPECT_EQ(moved.DIBSectionBitsPtr(), address);
    EXPECT_EQ(test::pixelAt(moved, 4, 2), (RgbColour{1, 2, 3}));
    buffer.ClearUp();
    EXPECT_EQ(buffer.Width(), 0);
    EXPECT_FALSE(buffer.UseDrawDib());
}

TEST(PixelBuffer, RefusesImpossibleSizesAndIsThenEmpty) {
    const std::pair<int, int> sizes[] = {{0, 5}, {5, 0}, {-1, 5}, {5, -5}, {40000, 40000}, {2147483647, 1}};
    for (const auto& [width, height] : sizes) {
        cDIBSection buffer = test::createdBuffer(4, 4);
        EXPECT_FALSE(buffer.Create(width, height));
        EXPECT_FALSE(buffer.isCreated());
    }
}

TEST(PixelBuffer, TakesAPictureAsItStands) {
    cDIBSection buffer;
    buffer.CreateFromPicture({2, 2, {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0}});
    EXPECT_EQ(test::pixelAt(buffer, 0, 0), (RgbColour{3, 2, 1}));
    EXPECT_EQ(test::pixelAt(buffer, 1, 1), (RgbColour{12, 11, 10}));
    EXPECT_THROW(buffer.CreateFromPicture({2, 2, {1, 2, 3}}), Error);
    EXPECT_FALSE(buffer.isCreated());
    buffer.CreateFromPicture({});
    EXPECT_FALSE(buffer.isCreated());
}

TEST(PixelBuffer, SavesTheHeaderOfItsOwnLayout) {
    test::TemporaryFolder folder;
    const FilePath file = folder / u"saved.bmp";
    test::writeFile(file, QByteArray(300000, 'x'));
    const cDIBSection buffer = test::filledBuffer(256, 256, {30, 20, 10});
    ASSERT_TRUE(buffer.SavePicture(file));
    const QByteArray saved = test::readFile(file);
    ASSERT_EQ(saved.size(), 196666);
    const QByteArray header = QByteArray::fromHex("424d 3a000300 00000000 3a000000"
                                                  "28000000 00010000 00010000 0100 1800 00000000 00000300"
                                                  "00000000 00000000 00000000 00000000 00000000");
    EXPECT_EQ(saved.first(58).toHex(), header.toHex());
    EXPECT_EQ(saved.mid(58, 3).toHex(), QByteArray("0a141e"));
    EXPECT_EQ(QImage(file.native()).pixel(255, 255), qRgb(30, 20, 10));
}

TEST(PixelBuffer, SavesRowsBottomUpWithTheirPadding) {
    test::TemporaryFolder folder;
    cDIBSection buffer = test::filledBuffer(2, 2, {0, 0, 0});
    test::setPixel(buffer, 0, 0, {3, 2, 1});
    buffer.row(1)[7] = 99;
    ASSERT_TRUE(buffer.SavePicture(folder / u"saved.bmp"));
    EXPECT_EQ(test::readFile(folder / u"saved.bmp").mid(58).toHex(),
              QByteArray("01020300000000000000000000000063"));
}

TEST(PixelBuffer, TellsWhyASaveFailed) {
    test::TemporaryFolder folder;
    const cDIBSection buffer = test::createdBuffer(256, 256);
    const FilePath unreachable = folder / u"missing" / u"saved.bmp";
    try {
        buffer.SavePicture(unreachable);
        FAIL() << "opened";
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::cannotOpenForWriting);
        EXPECT_TRUE(error.description().endsWith(unreachable.text()));
    }
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
    cDIBSection whole = test::createdBuffer(6, 5);
    whole.LoadPictureBlt(source);
    EXPECT_TRUE(std::equal(whole.row(0), whole.row(0) + 5 * whole.BytesPerScanLine(), source.row(0)));

    cDIBSection part = test::filledBuffer(4, 4, {9, 9, 9});
    part.LoadPictureBlt(source, 4, 3, 3, 1);
    EXPECT_EQ(test::pixelAt(part, 0, 3), (RgbColour{4, 3, 200}));
    EXPECT_EQ(test::pixelAt(part, 1, 3), (RgbColour{5, 3, 200}));
    EXPECT_EQ(test::pixelAt(part, 2, 3), (RgbColour{9, 9, 9})); // beyond the source
    EXPECT_EQ(test::pixelAt(part, 0, 2), (RgbColour{9, 9, 9})); // one row was asked for
    part.LoadPictureBlt(source, -3, -3);
    EXPECT_EQ(test::pixelAt(part, 3, 0), (RgbColour{0, 0, 200}));
    part.LoadPictureBlt(cDIBSection());
    part.LoadPictureBlt(source, 100, 100);
    EXPECT_EQ(test::pixelAt(part, 3, 0), (RgbColour{0, 0, 200}));
}

TEST(PixelBuffer, PaintsIntoAnImage) {
    const cDIBSection buffer = rulerBuffer(6, 5);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::black);
    buffer.PaintPicture(image, 1, 2);
    EXPECT_EQ(image.pixel(1, 2), qRgb(0, 0, 200));
    EXPECT_EQ(image.pixel(6, 6), qRgb(5, 4, 200));
    EXPECT_EQ(image.pixel(0, 2), qRgb(0, 0, 0));
    buffer.PaintPicture(image, 0, 0, 2, 1, 3, 4);
    EXPECT_EQ(image.pixel(1, 0), qRgb(4, 4, 200));
    EXPECT_EQ(image.pixel(2, 0), qRgb(0, 0, 0));
}

class CountingRandom : public RandomSource {
public:
    double draw() override { return ++draws_ / 255.0; }

private:
    int draws_ = 0;
};

// Operations that the program offers and nothing calls.
TEST(PixelBuffer, OffersWhatNothingCalls) {
    cDIBSection wide;
    ASSERT_TRUE(wide.CreateDIB32(2, 2));
    EXPECT_EQ(wide.BytesPerScanLine(), 8); // too small for 32 bits, as ever
    test::TemporaryFolder folder;
    ASSERT_TRUE(wide.SavePicture(folder / u"wide.bmp"));
    EXPECT_EQ(test::readFile(folder / u"wide.bmp").size(), 58 + 16);
    EXPECT_EQ(test::readFile(folder / u"wide.bmp").at(28), 32);

    cDIBSection noise = test::createdBuffer(2, 2);
    CountingRandom rows, columns;
    noise.RandomiseBits(true, rows);
    EXPECT_EQ(test::pixelAt(noise, 1, 0), (RgbColour{2, 2, 2}));
    noise.RandomiseBits(false, columns);
    EXPECT_EQ(test::pixelAt(noise, 0, 1), (RgbColour{4, 3, 0}));
    EXPECT_EQ(test::pixelAt(noise, 1, 0), (RgbColour{6, 5, 0}));

    const cDIBSection source = rulerBuffer(5, 3);
    const auto larger = source.Resample(4, 10);
    ASSERT_TRUE(larger);
    EXPECT_EQ(larger->Width(), 10);
    // Row 1 of 4 lies at 0.5 of the rows 0 and 1, which are 2 and 1: 1.5 becomes 2. Column 9 lies at 3.6.
    EXPECT_EQ(test::pixelAt(*larger, 9, 1), (RgbColour{4, 2, 200}));
    EXPECT_EQ(test::pixelAt(*larger, 4, 0), (RgbColour{2, 2, 200})); // 1.6
    EXPECT_EQ(test::pixelAt(*source.Resample(3, 5), 4, 2), (RgbColour{4, 0, 200}));
    EXPECT_EQ(test::pixelAt(*test::filledBuffer(1, 1, {5, 6, 7}).Resample(2, 2), 1, 1), (RgbColour{5, 6, 7}));
    EXPECT_FALSE(source.Resample(0, 5));
    EXPECT_FALSE(cDIBSection().Resample(2, 2));
}

} // namespace

} // namespace morvane
