#include "base_image_contact_sheet.h"

#include "core/literals.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

Picture plain(std::uint8_t level) {
    return {8, 8, std::vector<std::uint8_t>(static_cast<std::size_t>(bytesPerRow(8) * 8), level)};
}

int count(const QImage& image, QRgb color) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels += image.pixel(x, y) == color;
    return pixels;
}

TEST(ContactSheet, turnsAPictureRightSideUp) {
    // Blue below, red above, 3 pixels wide so that rows have padding.
    const Picture picture{
        3, 2, {255, 0, 0, 255, 0, 0, 255, 0, 0, 9, 9, 9, 0, 0, 255, 0, 0, 255, 0, 0, 255, 9, 9, 9}};
    const QImage image = toImage(picture);
    EXPECT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixel(2, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(0, 1), qRgb(0, 0, 255));
}

TEST(ContactSheet, showsEveryPictureAtOneSizeWithRoomForItsCaption) {
    const std::vector<ContactRow> rows = {{u"029h2su6.bmp"_s, {plain(10), plain(20), plain(30)}},
                                          {u"006A2su7.bmp"_s, {plain(40), {}, plain(60)}}};
    const QStringList titles{u"Base"_s, u"Sky Clear"_s, u"Overcast"_s};
    const QImage sheet = contactSheet(rows, titles);
    for (const int level : {10, 20, 30, 40, 60})
        EXPECT_EQ(count(sheet, qRgb(level, level, level)), 144 * 144) << level;
    EXPECT_LT(contactSheet({{u"short"_s, {plain(1)}}}, titles).width(), sheet.width());
}

} // namespace
} // namespace morvane
