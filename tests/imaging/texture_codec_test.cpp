#include "imaging/texture_codec.h"

#include "imaging/bitmap_builder.h"
#include "imaging/block_encoder.h"
#include "imaging/picture_reader.h"
#include "imaging/pixel_buffer.h"
#include "imaging/texture_level.h"
#include "support/temporary_folder.h"

#include <QCryptographicHash>
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace morvane::test {

void encodeBlocksPlainly(const BlockGroup& group, EncodedGroup& encoded);

namespace {

Picture painted(int width, int height, const std::function<Colour(int x, int y)>& colourAt) {
    const int row = bytesPerRow(width);
    Picture picture{width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(row * height))};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Colour colour = colourAt(x, y);
            std::copy(colour.rbegin(), colour.rend(), picture.rows.begin() + row * y + 3 * x);
        }
    return picture;
}

Picture plainPicture(int width, int height, const Colour& colour) {
    return painted(width, height, [&colour](int, int) { return colour; });
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

/// All levels of a texture, found in the file as a loader does: halving both sides down to 1 x 1.
std::vector<Picture> levelsOf(const QByteArray& texture, int width, int height) {
    std::vector<Picture> levels;
    for (qsizetype at = 74; at < texture.size();
         width = std::max(width / 2, 1), height = std::max(height / 2, 1)) {
        levels.push_back(readPicture(bitmapFile({.width = width,
                                                 .height = height,
                                                 .bits = 16,
                                                 .compression = longIn("DXT1", 0),
                                                 .pixels = texture.mid(at)})));
        at += qsizetype{8} * ((width + 3) / 4) * ((height + 3) / 4);
    }
    return levels;
}

/// Likeness in decibels; equal pictures give infinity.
double likeness(const TextureLevel& a, const TextureLevel& b) {
    double squares = 0;
    for (std::size_t plane = 0; plane < 3; ++plane)
        for (std::size_t i = 0; i < a.planes[plane].size(); ++i)
            squares += std::pow(a.planes[plane][i] - b.planes[plane][i], 2);
    return 10 * std::log10(255.0 * 255.0 * 3 * a.width * a.height / squares);
}

TEST(TextureCodec, headerOfTheUsualSizeAndCountsByTheSides) {
    EXPECT_EQ(compressTexture(plainPicture(256, 256, {9, 9, 9})).left(74).toHex(' '),
              hex("424DF2AA000000000000 4A000000 28000000 00010000 00010000 0100 1000"
                  "44585431 A8AA0000 00000000 00000000 00000000 00000000"
                  "46533730 14000000 00010000 0000 0600 00000000")
                  .toHex(' '));
    const struct {
        int width, height;
        quint32 mipWord, imageSize;
        qsizetype fileSize;
    } cases[] = {
        {1024, 1024, 8, 699048, 699138},
        {4, 4, 0, 8, 98},
        {4, 8, 0, 16, 74 + 16 + 8 + 8 + 8}, // counted while both sides are four or more
        // Other sides are refused.
        {0, 0, 0, 0, 0},
        {2, 256, 0, 0, 0},
        {256, 200, 0, 0, 0},
        {64, 2048, 0, 0, 0},
    };
    for (const auto& [width, height, mipWord, imageSize, fileSize] : cases) {
        const QByteArray texture = compressTexture(plainPicture(width, height, {9, 9, 9}));
        ASSERT_EQ(texture.size(), fileSize) << width << 'x' << height;
        if (fileSize == 0) continue;
        EXPECT_EQ(longIn(texture, 2), 74 + imageSize);
        EXPECT_EQ(longIn(texture, 34), imageSize);
        EXPECT_EQ(longIn(texture, 66) >> 16, mipWord);
    }
}

TEST(TextureCodec, everyLevelIsTheAverageOfTheOneBefore) {
    for (const auto& [width, height] : {std::pair{256, 256}, {64, 16}, {4, 128}}) {
        const Picture source = photographLike(width, height);
        TextureLevel exact = levelOf(source);
        for (const Picture& level : levelsOf(compressTexture(source), width, height)) {
            ASSERT_EQ(std::pair(level.width, level.height), std::pair(exact.width, exact.height));
            EXPECT_GT(likeness(exact, levelOf(level)), level.width == 256 ? 35 : 28) << level.width;
            exact = halved(exact);
        }
    }
}

// Some readers take a block with equal ends as one of three colours: only index 0 is safe there.
TEST(TextureCodec, oneColourStaysOneAndEqualEndsHaveIndexZeroOnly) {
    for (int value = 0; value < 256; ++value) {
        const Colour wanted = {value, 255 - value, value * 7 % 256};
        for (const Picture& level : levelsOf(compressTexture(plainPicture(8, 8, wanted)), 8, 8)) {
            const Colour first = pixelAt(level, 0, 0);
            for (std::size_t i = 0; i < 3; ++i)
                EXPECT_LE(std::abs(first[i] - wanted[i]), i == 1 ? 2 : 4) << value;
            EXPECT_EQ(level.rows, plainPicture(level.width, level.height, first).rows) << value;
        }
        const QByteArray grey = compressTexture(plainPicture(4, 4, {value, value, value}));
        EXPECT_TRUE(grey.mid(74, 2) != grey.mid(76, 2) || longIn(grey, 78) == 0U) << value;
    }
}

TEST(TextureFile, isWrittenOverTheOneBeforeAndLeftAloneByARefusal) {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath good = folder / u"good.bmp", odd = folder / u"odd.bmp", target = folder / u"set\\a.bmp";
    const Picture picture = photographLike(32, 32);
    cDIBSection buffer;
    buffer.CreateFromPicture(picture);
    buffer.SavePicture(good);
    buffer.Create(33, 32);
    buffer.SavePicture(odd);
    EXPECT_FALSE(BMPScompressBMPVB(files, good, "1", 10, -1, 0, target)); // no folder for it
    writeFile(target, "of an earlier run");
    const std::tuple<FilePath, QString, int, int, int> refused[] = {
        {odd, "1", 10, -1, 0},  {folder / u"missing.bmp", "1", 10, -1, 0},
        {good, "3", 10, -1, 0}, {good, "1", 0, -1, 0},
        {good, "1", 10, 0, 0},  {good, "1", 10, -1, 1},
    };
    for (const auto& [source, format, levels, alpha, options] : refused)
        EXPECT_FALSE(BMPScompressBMPVB(files, source, format, levels, alpha, options, target));
    EXPECT_EQ(readFile(target), "of an earlier run");
    EXPECT_TRUE(BMPScompressBMPVB(files, good, "1", 10, -1, 0, target));
    EXPECT_EQ(readFile(target), compressTexture(picture));
}

using Channel = std::function<unsigned(std::size_t block, std::size_t pixel, std::size_t channel)>;

BlockGroup groupOf(const Channel& value) {
    BlockGroup group{};
    for (std::size_t channel = 0; channel < BlockGroup::channels; ++channel)
        for (std::size_t block = 0; block < BlockGroup::blocks; ++block)
            for (std::size_t pixel = 0; pixel < 16; ++pixel)
                group.words[channel][pixel / 4][block] |= value(block, pixel, channel) << (8 * (pixel % 4));
    return group;
}

QByteArray bytesBy(decltype(&encodeBlocks) encoder, const BlockGroup& group) {
    EncodedGroup encoded;
    encoder(group, encoded);
    return {reinterpret_cast<const char*>(&encoded), sizeof encoded};
}

/// The digest tells of a change that all of them share. Whoever improves the encoder on purpose looks at what
/// `codec_bench` tells of the likeness and writes the new one here.
TEST(BlockEncoder, everyInstructionSetGivesTheBytesOfThePlainArithmetic) {
    std::mt19937 random(11);
    const auto noise = [&random](unsigned range) { return static_cast<unsigned>(random() % range); };
    const std::pair<const char*, Channel> pictures[] = {
        {"noise", [&](auto, auto, auto) { return noise(256); }},
        {"one colour",
         [&](auto block, auto, auto channel) { return static_cast<unsigned>(block * (3 + channel)); }},
        {"almost one colour",
         [&](auto block, auto, auto channel) {
             return static_cast<unsigned>(block * (2 + channel) % 250) + noise(3);
         }},
        {"two colours",
         [&](auto block, auto pixel, auto channel) {
             return static_cast<unsigned>((pixel + block) % 2 != 0 ? 255 - block : block * channel % 256);
         }},
        {"channels against each other",
         [&](auto block, auto pixel, auto channel) {
             const auto rising = static_cast<unsigned>(pixel * 16 + block / 4);
             return channel == 1 ? 255 - rising : rising;
         }},
    };
    std::vector<decltype(&encodeBlocks)> encoders{encodeBlocksPlainly, encodeBlocks, encodeBlocksBySse2};
    if (hasAvx2()) encoders.push_back(encodeBlocksByAvx2);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (const auto& [name, picture] : pictures)
        for (int round = 0; round < 20; ++round) {
            const BlockGroup group = groupOf(picture);
            const QByteArray first = bytesBy(encoders[0], group);
            for (std::size_t encoder = 1; encoder < encoders.size(); ++encoder)
                EXPECT_EQ(bytesBy(encoders[encoder], group), first) << name << ' ' << encoder;
            digest.addData(first);
        }
    EXPECT_EQ(digest.result().toHex().toStdString(), "28b7e857081a8d2e8552e6fa1289ce7513f50c65");
}

} // namespace
} // namespace morvane::test
