#include "base_image_contact_sheet.h"

#include "core/literals.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

/// Blue below, red above, 3 pixels wide so that rows have padding.
Picture twoRows() {
    return {3, 2, {255, 0, 0, 255, 0, 0, 255, 0, 0, 9, 9, 9, 0, 0, 255, 0, 0, 255, 0, 0, 255, 9, 9, 9}};
}

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
    const QImage image = toImage(twoRows());
    EXPECT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixel(2, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(0, 1), qRgb(0, 0, 255));
}

TEST(ContactSheet, showsEveryPictureAtOneSize) {
    const std::vector<ContactRow> rows = {{u"029h2su6.bmp"_s, {plain(10), plain(20), plain(30)}},
                                          {u"006A2su7.bmp"_s, {plain(40), {}, plain(60)}}};
    const QImage sheet = contactSheet(rows, {u"Base"_s, u"Sky Clear"_s, u"Overcast"_s});
    for (const int level : {10, 20, 30, 40, 60})
        EXPECT_EQ(count(sheet, qRgb(level, level, level)), 144 * 144) << level;
}

TEST(ContactSheet, makesRoomForLongerCaptionsAndMoreColumns) {
    const auto widthOf = [](const QString& caption, const QStringList& titles) {
        return contactSheet({{caption, {plain(1)}}}, titles).width();
    };
    EXPECT_GT(widthOf(u"a long caption"_s, {u"Base"_s}), widthOf(u"short"_s, {u"Base"_s}));
    EXPECT_GE(widthOf(u"short"_s, {u"Base"_s, u"Overcast"_s}), widthOf(u"short"_s, {u"Base"_s}) + 144);
}

} // namespace
} // namespace morvane
