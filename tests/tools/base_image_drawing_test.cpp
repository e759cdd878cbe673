#include "base_image_contact_sheet.h"
#include "base_image_drawing.h"

#include "core/literals.h"
#include "support/printing.h"

#include <gtest/gtest.h>
#include <set>
#include <thread>

namespace morvane {
namespace {

/// FNV-1a over the picture's bytes.
std::uint64_t checksum(const Picture& picture) {
    std::uint64_t sum = 0xcbf29ce484222325u;
    for (const std::uint8_t byte : picture.rows)
        sum = (sum ^ byte) * 0x100000001b3u;
    return sum;
}

/// A stock made elsewhere, or with another compiler or optimisation, must be the same stock. Whoever changes
/// the art on purpose looks at the contact sheet and writes the new sum here.
TEST(BaseImageDrawing, givesEveryFileAPictureOfItsOwnAndTheSameOnEverySystemAndInAnyThread) {
    std::vector<BaseImage> images = baseImageList(1);
    std::erase_if(images, [](const BaseImage& image) {
        return image.resourceFolder == u"GENERIC WORLD" && !image.landClass.startsWith(u"00") &&
               !image.landClass.startsWith(u"029") && !image.landClass.startsWith(u"056");
    });
    for (const BaseImage& night : nightImageList(1))
        if (night.landClass == u"029b" || night.landClass == u"008b" || night.landClass == u"021a")
            images.push_back(night);
    std::set<std::uint64_t> sums;
    std::uint64_t all = 0, here = 0, there = 0;
    std::thread other([&] {
        for (std::size_t i = 0; i < images.size(); i += 8)
            there ^= checksum(drawBaseImage(images[i]));
    });
    for (std::size_t i = 0; i < images.size(); ++i) {
        const std::uint64_t sum = checksum(drawBaseImage(images[i]));
        EXPECT_TRUE(sums.insert(sum).second) << images[i].fileName.toStdString();
        all ^= sum;
        if (i % 8 == 0) here ^= sum;
    }
    other.join();
    EXPECT_EQ(there, here);
    EXPECT_EQ(all, 11002042008063319927u);
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
