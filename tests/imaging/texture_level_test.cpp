#include "imaging/texture_level.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

std::uint8_t redAt(const TextureLevel& level, int x, int y) {
    return level.pixels[static_cast<std::size_t>(4 * (y * level.width + x))];
}

TextureLevel levelOfReds(int width, int height, const std::vector<int>& reds) {
    TextureLevel level{width, height, {}};
    for (const int red : reds)
        level.pixels.insert(level.pixels.end(), {static_cast<std::uint8_t>(red), 10, 20, 255});
    return level;
}

TEST(TextureLevel, averagesAreRoundedToNearest) {
    const TextureLevel half =
        halved(levelOfReds(4, 4, {0, 0, 1, 2, 0, 1, 2, 2, 255, 255, 0, 0, 255, 254, 1, 1}));
    ASSERT_EQ(half.width, 2);
    ASSERT_EQ(half.height, 2);
    EXPECT_EQ(redAt(half, 0, 0), 0);   // 1/4
    EXPECT_EQ(redAt(half, 1, 0), 2);   // 7/4
    EXPECT_EQ(redAt(half, 0, 1), 255); // 1019/4
    EXPECT_EQ(redAt(half, 1, 1), 1);   // 2/4, the half goes up
    EXPECT_EQ(half.pixels[1], 10);
    EXPECT_EQ(half.pixels[2], 20);
    EXPECT_EQ(half.pixels[3], 255);
}

TEST(TextureLevel, aSideOfOneStays) {
    const TextureLevel row = halved(levelOfReds(4, 1, {0, 10, 20, 40}));
    ASSERT_EQ(row.width, 2);
    ASSERT_EQ(row.height, 1);
    EXPECT_EQ(redAt(row, 0, 0), 5);
    EXPECT_EQ(redAt(row, 1, 0), 30);
    const TextureLevel column = halved(levelOfReds(1, 4, {0, 10, 20, 41}));
    ASSERT_EQ(column.width, 1);
    ASSERT_EQ(column.height, 2);
    EXPECT_EQ(redAt(column, 0, 1), 31);
    const TextureLevel last = halved(halved(column));
    EXPECT_EQ(last.width, 1);
    EXPECT_EQ(last.height, 1);
    EXPECT_EQ(redAt(last, 0, 0), 18);
}

} // namespace
} // namespace morvane
