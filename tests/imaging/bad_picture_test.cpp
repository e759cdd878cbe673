#include "core/error.h"
#include "imaging/bitmap_builder.h"
#include "imaging/picture_reader.h"

#include <gtest/gtest.h>
#include <limits>

namespace morvane {
namespace {

using test::bitmapFile;
using test::BitmapParts;
using test::fourLetters;
using test::hex;
using test::withLong;

constexpr int pixelsAtField = 10, infoSizeField = 14, widthField = 18, heightField = 22;

bool isRefused(const QByteArray& file) {
    try {
        readPicture(file);
    } catch (const Error& error) {
        return error.code() == ErrorCode::invalidPicture;
    }
    return false;
}

QByteArray paletteOf(int entries) {
    return QByteArray(4 * entries, '\x11');
}

/// One small good file of each loader.
std::vector<QByteArray> goodFiles() {
    const QByteArray masks = hex("00F80000 E0070000 1F000000");
    return {
        bitmapFile({.pixels = QByteArray(24, '\x22')}),
        bitmapFile({.bits = 8, .behindHeader = paletteOf(256), .pixels = QByteArray(8, '\0')}),
        bitmapFile({.bits = 8,
                    .compression = 1,
                    .behindHeader = paletteOf(2),
                    .pixels = hex("0301 0000 0003 010001 00 0001")}),
        bitmapFile({.bits = 4,
                    .compression = 2,
                    .behindHeader = paletteOf(2),
                    .pixels = hex("0301 0002 0001 0001")}),
        bitmapFile({.bits = 16, .compression = 3, .behindHeader = masks, .pixels = QByteArray(16, '\x33')}),
        bitmapFile({.infoSize = 12, .pixels = QByteArray(24, '\x22')}),
        bitmapFile({.bits = 16, .compression = fourLetters("DXT1"), .pixels = QByteArray(8, '\x44')}),
        bitmapFile({.bits = 16, .compression = fourLetters("DXT5"), .pixels = QByteArray(16, '\x44')}),
    };
}

TEST(BadPicture, cutShortAnywhere) {
    for (const QByteArray& file : goodFiles()) {
        EXPECT_NO_THROW(readPicture(file)) << file.toHex(' ').toStdString();
        for (qsizetype length = 0; length < file.size(); ++length)
            EXPECT_TRUE(isRefused(file.left(length))) << length << " of " << file.toHex(' ').toStdString();
    }
}

TEST(BadPicture, sides) {
    constexpr quint32 most = std::numeric_limits<qint32>::max(), least = 0x80000000U;
    for (const QByteArray& file : goodFiles()) {
        if (test::longIn(file, infoSizeField) == 12) continue;
        for (const quint32 width : {0U, static_cast<quint32>(-3), 8193U, most, least})
            EXPECT_TRUE(isRefused(withLong(file, widthField, width))) << width;
        for (const quint32 height : {0U, 8193U, static_cast<quint32>(-8193), most, least})
            EXPECT_TRUE(isRefused(withLong(file, heightField, height))) << height;
        // Each side may be that long, but not both: runs could ask for the memory from a file of some bytes.
        EXPECT_TRUE(isRefused(withLong(withLong(file, widthField, 8192), heightField, 8192)));
    }
}

TEST(BadPicture, headers) {
    const QByteArray good = goodFiles().front();
    struct Case {
        const char* name;
        QByteArray file;
    };
    const Case cases[] = {
        {"empty", {}},
        {"other letters", "MB" + good.mid(2)},
        {"another info header", withLong(good, infoSizeField, 41)},
        {"a huge info header", withLong(good, infoSizeField, 0xFFFFFFFF)},
        {"pixels in the header", withLong(good, pixelsAtField, 53)},
        {"pixels behind the end", withLong(good, pixelsAtField, 0xFFFFFFF0)},
        {"oldest header, no width", bitmapFile({.width = 0, .infoSize = 12})},
        {"oldest header, 16 bits", bitmapFile({.bits = 16, .infoSize = 12, .pixels = QByteArray(99, 'x')})},
    };
    for (const Case& c : cases)
        EXPECT_TRUE(isRefused(c.file)) << c.name;
}

TEST(BadPicture, depthsAndCompressions) {
    const QByteArray manyBytes(4096, '\x01');
    for (const int bits : {0, 2, 3, 7, 15, 48, 64, 65535})
        EXPECT_TRUE(isRefused(bitmapFile({.bits = bits, .pixels = manyBytes}))) << bits;
    struct Case {
        int bits;
        quint32 compression;
    };
    const Case cases[] = {{4, 1},  {24, 1}, {8, 2},  {8, 3},   {24, 3},
                          {24, 4}, {24, 5}, {16, 7}, {24, 11}, {16, fourLetters("DXT2")}};
    for (const Case& c : cases)
        EXPECT_TRUE(
            isRefused(bitmapFile({.bits = c.bits, .compression = c.compression, .pixels = manyBytes})))
            << c.bits << ' ' << c.compression;
}

TEST(BadPicture, masks) {
    for (const char* masks : {"F0F00000 00000000 00000000", "00000100 E0070000 1F000000"})
        EXPECT_TRUE(isRefused(bitmapFile(
            {.bits = 16, .compression = 3, .behindHeader = hex(masks), .pixels = QByteArray(99, 'x')})))
            << masks;
}

TEST(BadPicture, colourBehindThePalette) {
    const BitmapParts parts = {
        .bits = 8, .usedColours = 3, .behindHeader = paletteOf(3), .pixels = hex("00010200 00010300")};
    EXPECT_TRUE(isRefused(bitmapFile(parts)));
    EXPECT_TRUE(isRefused(
        bitmapFile({.bits = 4, .compression = 2, .behindHeader = paletteOf(2), .pixels = hex("0321 0001")})));
}

TEST(BadPicture, runsThatLeadOutOfIt) {
    const char* runs[] = {
        "0401 0001",           // longer than the row
        "0002 0002 0101 0001", // above the top
        "0002 FFFF 0101 0001", // far away
        "0000 0000 0101 0001", // a third row
        "0004 01010101 0001",  // singles
    };
    for (const char* run : runs)
        EXPECT_TRUE(isRefused(
            bitmapFile({.bits = 8, .compression = 1, .behindHeader = paletteOf(2), .pixels = hex(run)})))
            << run;
}

// Enough of them to make a 32-bit row number run over and come back into the picture.
TEST(BadPicture, manyJumpsStayOutside) {
    const QByteArray jumps = hex("0002 00FF").repeated(8421505);
    EXPECT_TRUE(isRefused(bitmapFile(
        {.bits = 8, .compression = 1, .behindHeader = paletteOf(2), .pixels = jumps + hex("0101 0001")})));
}

} // namespace
} // namespace morvane
