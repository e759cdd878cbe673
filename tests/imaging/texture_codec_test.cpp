#include "imaging/texture_codec.h"

#include "imaging/bitmap_builder.h"
#include "imaging/picture_letters.h"
#include "imaging/picture_reader.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace morvane {
namespace {

using test::bitmapFile;
using test::fourLetters;
using test::hex;
using test::longIn;
using test::pixelAt;

using Colour = std::array<int, 3>; // red, green, blue

Picture painted(int width, int height, const std::function<Colour(int x, int y)>& colourAt) {
    Picture picture{width, height,
                    std::vector<std::uint8_t>(static_cast<std::size_t>(bytesPerRow(width) * height))};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Colour colour = colourAt(x, y);
            for (std::size_t i = 0; i < 3; ++i)
                picture.rows[static_cast<std::size_t>(bytesPerRow(width) * y + 3 * x) + 2 - i] =
                    static_cast<std::uint8_t>(std::clamp(colour[i], 0, 255));
        }
    return picture;
}

/// Slopes of light, fields with hard edges, and grain.
Picture photographLike(int width, int height) {
    std::mt19937 random(7);
    return painted(width, height, [&random](int x, int y) -> Colour {
        const int light = static_cast<int>(30 * std::sin(x * 0.05) + 30 * std::cos(y * 0.07 + x * 0.02));
        const int field = (x / 37 + y / 29) % 3 * 20;
        const int grain = static_cast<int>(random() % 13) - 6;
        return {110 + light + field + grain, 120 + light - field / 2 + grain, 70 + light / 2 + grain};
    });
}

struct Level {
    int width, height;
    qsizetype at;
};

/// Walks the file as a loader does: halving both sides down to 1 x 1.
std::vector<Level> levelsOf(int width, int height) {
    std::vector<Level> levels{{width, height, 74}};
    while (width > 1 || height > 1) {
        const qsizetype blocks = qsizetype{(width + 3) / 4} * ((height + 3) / 4);
        width = std::max(width / 2, 1);
        height = std::max(height / 2, 1);
        levels.push_back({width, height, levels.back().at + blocks * 8});
    }
    return levels;
}

Picture decoded(const QByteArray& texture, const Level& level) {
    return readPicture(bitmapFile({.width = level.width,
                                   .height = level.height,
                                   .bits = 16,
                                   .compression = fourLetters("DXT1"),
                                   .pixels = texture.mid(level.at)}));
}

Picture averaged(const Picture& picture) {
    return painted(std::max(picture.width / 2, 1), std::max(picture.height / 2, 1), [&picture](int x, int y) {
        Colour sum = {2, 2, 2};
        for (const int right : {0, 1})
            for (const int up : {0, 1}) {
                const Colour pixel = pixelAt(picture, std::min(2 * x + right, picture.width - 1),
                                             std::min(2 * y + up, picture.height - 1));
                for (std::size_t i = 0; i < 3; ++i)
                    sum[i] += pixel[i];
            }
        return Colour{sum[0] / 4, sum[1] / 4, sum[2] / 4};
    });
}

/// Likeness in decibels; equal pictures give infinity.
double likeness(const Picture& a, const Picture& b) {
    double squares = 0;
    for (std::size_t i = 0; i < a.rows.size(); ++i)
        squares += std::pow(a.rows[i] - b.rows[i], 2);
    return 10 * std::log10(255.0 * 255.0 * 3 * a.width * a.height / squares);
}

TEST(TextureCodec, headerOfTheUsualSize) {
    const QByteArray texture = compressTexture(photographLike(256, 256));
    EXPECT_EQ(texture.size(), 43778);
    EXPECT_EQ(texture.left(74).toHex(' '),
              hex("424DF2AA000000000000 4A000000 28000000 00010000 00010000 0100 1000"
                  "44585431 A8AA0000 00000000 00000000 00000000 00000000"
                  "46533730 14000000 00010000 0000 0600 00000000")
                  .toHex(' '));
}

TEST(TextureCodec, countsByTheSides) {
    struct Case {
        int width, height;
        quint32 mipWord, imageSize;
        qsizetype fileSize;
    };
    const Case cases[] = {
        {1024, 1024, 8, 699048, 699138},
        {512, 512, 7, 174760, 174850},
        {64, 64, 4, 2728, 2818},
        {8, 8, 1, 40, 130},
        {4, 4, 0, 8, 98},
        {16, 4, 0, 32, 74 + 32 + 16 + 8 + 8 + 8}, // counted while both sides are four or more
        {4, 8, 0, 16, 74 + 16 + 8 + 8 + 8},
    };
    for (const Case& c : cases) {
        const QByteArray texture = compressTexture(painted(c.width, c.height, [](int x, int) {
            return Colour{x, 0, 0};
        }));
        EXPECT_EQ(texture.size(), c.fileSize) << c.width << 'x' << c.height;
        EXPECT_EQ(longIn(texture, 2), 74 + c.imageSize);
        EXPECT_EQ(longIn(texture, 34), c.imageSize);
        EXPECT_EQ(longIn(texture, 66) >> 16, c.mipWord);
        EXPECT_EQ(longIn(texture, 18), static_cast<quint32>(c.width));
        EXPECT_EQ(longIn(texture, 22), static_cast<quint32>(c.height));
    }
}

TEST(TextureCodec, otherSidesAreRefused) {
    const std::pair<int, int> sides[] = {{0, 0},     {2, 2},     {2, 256},   {256, 1},   {200, 200},
                                         {256, 255}, {328, 251}, {2048, 64}, {64, 2048}, {2048, 2048}};
    for (const auto& [width, height] : sides)
        EXPECT_TRUE(compressTexture(painted(width, height, [](int, int) { return Colour{}; })).isEmpty())
            << width << 'x' << height;
}

TEST(TextureCodec, bottomRowsComeFirst) {
    const QByteArray texture = compressTexture(painted(256, 256, [](int, int y) {
        return y < 128 ? Colour{0, 0, 255} : Colour{255, 0, 0};
    }));
    const Level firstBlock{4, 4, 74}, lastBlock{4, 4, 32834};
    EXPECT_EQ(test::lettersOf(decoded(texture, firstBlock)), "bbbb/bbbb/bbbb/bbbb");
    EXPECT_EQ(test::lettersOf(decoded(texture, lastBlock)), "rrrr/rrrr/rrrr/rrrr");
    const Level smallest = levelsOf(256, 256)[7]; // 2 x 2
    EXPECT_EQ(test::lettersOf(decoded(texture, smallest)), "rr/bb");
}

TEST(TextureCodec, everyLevelIsTheAverageOfTheOneBefore) {
    for (const auto& [width, height] : {std::pair{256, 256}, {64, 16}, {4, 128}}) {
        Picture exact = photographLike(width, height);
        const QByteArray texture = compressTexture(exact);
        for (const Level& level : levelsOf(width, height)) {
            if (level.width < exact.width || level.height < exact.height) exact = averaged(exact);
            EXPECT_GT(likeness(exact, decoded(texture, level)), 28) << level.width << 'x' << level.height;
        }
    }
}

TEST(TextureCodec, photographsStayCloseToTheirSource) {
    const Picture source = photographLike(256, 256);
    EXPECT_GT(likeness(source, readPicture(compressTexture(source))), 35);
}

/// True when the block has a pixel that readers show as a hole.
bool hasHole(const QByteArray& block) {
    const quint32 colours = longIn(block, 0);
    if ((colours & 0xFFFF) > colours >> 16) return false;
    for (quint32 indexes = longIn(block, 4); indexes != 0; indexes >>= 2)
        if ((indexes & 3) == 3) return true;
    return false;
}

TEST(TextureCodec, noBlockHasAHole) {
    std::mt19937 random(3);
    const auto noise = [&random](int range) {
        return [&random, range](int x, int) {
            const int base = x / 4 * 16;
            const auto channel = [&] { return base + static_cast<int>(random()) % range; };
            return Colour{channel(), channel(), channel()};
        };
    };
    for (const int range : {1, 2, 3, 5, 9, 40, 256}) {
        const QByteArray texture = compressTexture(painted(64, 64, noise(range)));
        for (qsizetype at = 74; at < texture.size(); at += 8)
            EXPECT_FALSE(hasHole(texture.mid(at, 8)))
                << range << ' ' << texture.mid(at, 8).toHex().toStdString();
    }
}

void expectOneColour(const Picture& picture, const Colour& wanted) {
    const Colour first = pixelAt(picture, 0, 0);
    EXPECT_LE(std::abs(first[0] - wanted[0]), 4) << wanted[0];
    EXPECT_LE(std::abs(first[1] - wanted[1]), 2) << wanted[1];
    EXPECT_LE(std::abs(first[2] - wanted[2]), 4) << wanted[2];
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            EXPECT_EQ(pixelAt(picture, x, y), first);
}

TEST(TextureCodec, oneColourStaysOne) {
    for (int value = 0; value < 256; ++value) {
        const Colour colour = {value, 255 - value, value * 7 % 256};
        const QByteArray texture = compressTexture(painted(8, 8, [&](int, int) { return colour; }));
        for (const Level& level : levelsOf(8, 8))
            expectOneColour(decoded(texture, level), colour);
    }
}

// Some readers take a block with equal ends as one of three colours: only index 0 is safe there.
TEST(TextureCodec, equalEndsHaveIndexZeroOnly) {
    for (const int grey : {0, 255}) {
        const QByteArray texture = compressTexture(painted(4, 4, [&](int, int) {
            return Colour{grey, grey, grey};
        }));
        const quint32 ends = longIn(texture, 74);
        EXPECT_EQ(ends & 0xFFFF, ends >> 16);
        EXPECT_EQ(longIn(texture, 78), 0U);
    }
}

class TextureFile : public testing::Test {
protected:
    bool convert(QStringView source, const QString& format = "1", int levels = 10, int alpha = -1,
                 int options = 0) {
        return BMPScompressBMPVB(files, folder / source, format, levels, alpha, options, target);
    }

    static QByteArray plainFile(const Picture& picture) {
        return bitmapFile({.width = picture.width,
                           .height = picture.height,
                           .gap = QByteArray(4, '\0'),
                           .pixels = QByteArray(reinterpret_cast<const char*>(picture.rows.data()),
                                                static_cast<qsizetype>(picture.rows.size()))});
    }

    test::TemporaryFolder folder;
    NativeFileSystem files;
    FilePath target = folder / u"set" / u"006b2su1.bmp";
};

TEST_F(TextureFile, isWrittenOverTheOneBefore) {
    const Picture picture = photographLike(32, 32);
    test::writeFile(folder / u"source.bmp", plainFile(picture));
    EXPECT_FALSE(convert(u"source.bmp")); // no folder for it
    test::writeFile(target, "of an earlier run");
    EXPECT_TRUE(convert(u"source.bmp"));
    EXPECT_EQ(test::readFile(target), compressTexture(picture));
}

TEST_F(TextureFile, aRefusalTouchesNothing) {
    files.makeFolder(target.parent());
    test::writeFile(folder / u"good.bmp", plainFile(photographLike(32, 32)));
    test::writeFile(folder / u"odd.bmp", plainFile(photographLike(33, 32)));
    test::writeFile(folder / u"cut.bmp", plainFile(photographLike(32, 32)).left(900));
    const auto refuseAll = [this] {
        for (const char16_t* source : {u"odd.bmp", u"cut.bmp", u"missing.bmp"})
            EXPECT_FALSE(convert(source));
        EXPECT_FALSE(convert(u"good.bmp", "3"));
        EXPECT_FALSE(convert(u"good.bmp", "1", 0));
        EXPECT_FALSE(convert(u"good.bmp", "1", 10, 0));
        EXPECT_FALSE(convert(u"good.bmp", "1", 10, -1, 1));
    };
    refuseAll();
    EXPECT_FALSE(files.exists(target));
    test::writeFile(target, "of an earlier run");
    refuseAll();
    EXPECT_EQ(test::readFile(target), "of an earlier run");
}

} // namespace
} // namespace morvane
