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

} // namespace
} // namespace morvane
