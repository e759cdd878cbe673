#include "imaging/picture_reader.h"

#include "core/error.h"
#include "imaging/bitmap_builder.h"
#include "imaging/picture_letters.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::bitmapFile;
using test::BitmapParts;
using test::fourLetters;
using test::hex;
using test::lettersOf;
using test::pixelAt;

// The same picture in every kind of file: red, green, blue at the bottom, white, black, yellow above.
constexpr const char* flag = "wky/rgb";

QByteArray flagPalette() {
    return hex("0000FF00 00FF0000 FF000000 FFFFFF00 00000000 00FFFF00");
}

QByteArray masks(const char* text) {
    return hex(text);
}

const QByteArray masks565 = masks("00F80000 E0070000 1F000000");
const QByteArray masks4444 = masks("000F0000 F0000000 0F000000");
const QByteArray usefulBlock = "FS70" + hex("14000000 03010000 00000200 00000000");

const QByteArray plain = hex("0000FF 00FF00 FF0000 AAAAAA  FFFFFF 000000 00FFFF AAAAAA");
const QByteArray plainTopDown = hex("FFFFFF 000000 00FFFF AAAAAA  0000FF 00FF00 FF0000 AAAAAA");
const QByteArray wide = hex("0000FF80 00FF0000 FF000000  FFFFFFFF 00000000 00FFFF00");
const QByteArray fiveBits = hex("007C E003 1F00 0000  FF7F 0080 E0FF 0000"); // the highest bit means nothing
const QByteArray sixBits = hex("00F8 E007 1F00 0000  FFFF 0000 E0FF 0000");
const QByteArray fourBits = hex("000F F0F0 0F00 0000  FF0F 00F0 F0FF 0000");
const QByteArray bytes = hex("000102FF 030405FF");
const QByteArray nibbles = hex("01200000 34500000");

struct Kind {
    const char* name;
    BitmapParts parts;
    const char* letters = flag;
};

std::vector<Kind> kindsOfPlainPixels() {
    return {
        {"24 bits", {.pixels = plain}},
        {"24 bits, pixels at 58", {.gap = QByteArray(4, '\0'), .pixels = plain}},
        {"24 bits, top-down", {.height = -2, .pixels = plainTopDown}},
        {"24 bits, oldest header", {.infoSize = 12, .pixels = plain}},
        {"24 bits, longest header", {.infoSize = 124, .pixels = plain}},
        {"24 bits, with a smaller level behind", {.pixels = plain + hex("123456 00")}},
        {"32 bits", {.bits = 32, .pixels = wide}},
        {"32 bits, FS70", {.bits = 32, .gap = usefulBlock, .pixels = wide}},
        {"32 bits, usual masks",
         {.bits = 32, .compression = 3, .behindHeader = masks("0000FF00 00FF0000 FF000000"), .pixels = wide}},
        {"32 bits, red lowest",
         {.bits = 32, .compression = 3, .behindHeader = masks("FF000000 00FF0000 0000FF00"), .pixels = wide},
         "wk?/bgr"},
        {"32 bits, ten a colour",
         {.bits = 32,
          .compression = 3,
          .infoSize = 56,
          .behindHeader = masks("0000F03F 00FC0F00 FF030000"),
          .pixels = hex("0000F03F 00FC0F00 FF030000  FFFFFF3F 000000C0 00FCFF3F")}},
    };
}

std::vector<Kind> kindsOfSixteenBits() {
    std::vector<Kind> kinds = {
        {"555", {.bits = 16, .pixels = fiveBits}},
        {"1555, FS70", {.bits = 16, .gap = usefulBlock, .pixels = fiveBits}},
        {"565", {.bits = 16, .compression = 3, .behindHeader = masks565, .pixels = sixBits}},
        {"565, FS70",
         {.bits = 16, .compression = 3, .behindHeader = masks565, .gap = usefulBlock, .pixels = sixBits}},
        {"4444, FS70",
         {.bits = 16, .compression = 3, .behindHeader = masks4444, .gap = usefulBlock, .pixels = fourBits}},
        {"4444, a mask for alpha",
         {.bits = 16, .compression = 6, .behindHeader = masks4444 + hex("00F00000"), .pixels = fourBits}},
        {"no mask for blue",
         {.bits = 16,
          .compression = 3,
          .behindHeader = masks("00F80000 E0070000 00000000"),
          .pixels = sixBits},
         "yky/rgk"},
    };
    for (const int size : {52, 56, 108, 124})
        kinds.push_back(
            {"565, masks inside the header",
             {.bits = 16, .compression = 3, .infoSize = size, .behindHeader = masks565, .pixels = sixBits}});
    return kinds;
}

std::vector<Kind> kindsWithPalette() {
    const QByteArray whole = flagPalette().leftJustified(1024, '\x55');
    const QByteArray twoColours = hex("0000FF00 FFFFFF00");
    const QByteArray oldEntries = hex("0000FF 00FF00 FF0000 FFFFFF 000000 00FFFF");
    return {
        {"8 bits", {.bits = 8, .behindHeader = whole, .pixels = bytes}},
        {"8 bits, FS70", {.bits = 8, .behindHeader = whole, .gap = usefulBlock, .pixels = bytes}},
        {"8 bits, six colours",
         {.bits = 8, .usedColours = 6, .behindHeader = flagPalette(), .pixels = bytes}},
        {"8 bits, more colours claimed than there are",
         {.bits = 8, .usedColours = 4000000000, .behindHeader = flagPalette(), .pixels = bytes}},
        {"8 bits, oldest header", {.bits = 8, .infoSize = 12, .behindHeader = oldEntries, .pixels = bytes}},
        {"8 bits, top-down",
         {.height = -2, .bits = 8, .behindHeader = whole, .pixels = hex("030405FF 000102FF")}},
        {"4 bits", {.bits = 4, .behindHeader = flagPalette(), .pixels = nibbles}},
        {"1 bit",
         {.width = 10, .bits = 1, .behindHeader = twoColours, .pixels = hex("A5400000 0F800000")},
         "rrrrwwwwwr/wrwrrwrwrw"},
    };
}

std::vector<Kind> kindsWithRuns() {
    return {
        {"8 bits, runs and singles",
         {.bits = 8,
          .compression = 1,
          .behindHeader = flagPalette(),
          .pixels = hex("0100 0101 0102 0000 0003 030405 00 0000 0001")}},
        {"8 bits, a jump leaves pixels out",
         {.width = 4,
          .bits = 8,
          .compression = 1,
          .behindHeader = flagPalette(),
          .pixels = hex("0201 0002 0101 0103 0001")},
         "kkkw/ggkk"},
        {"4 bits, runs and singles",
         {.bits = 4,
          .compression = 2,
          .behindHeader = flagPalette(),
          .pixels = hex("0003 0120 0000 0234 0150 0001")}},
        {"4 bits, an odd number of bytes",
         {.width = 5,
          .height = 1,
          .bits = 4,
          .compression = 2,
          .behindHeader = flagPalette(),
          .pixels = hex("0005 01234000 0001")},
         "rgbwk"},
    };
}

TEST(PictureReader, everyKindGivesTheSamePixels) {
    for (const auto& kinds :
         {kindsOfPlainPixels(), kindsOfSixteenBits(), kindsWithPalette(), kindsWithRuns()})
        for (const Kind& kind : kinds)
            EXPECT_EQ(lettersOf(readPicture(bitmapFile(kind.parts))), kind.letters) << kind.name;
}

TEST(PictureReader, narrowColoursAreStretchedToEightBits) {
    const QByteArray pixels = hex("4308 0000");
    struct Case {
        const char* name;
        BitmapParts parts;
        std::array<int, 3> pixel;
    };
    const Case cases[] = {
        {"555", {1, 1, 16, 0, 40, 0, {}, {}, pixels}, {16, 16, 24}},
        {"565", {1, 1, 16, 3, 40, 0, masks565, {}, pixels}, {8, 8, 24}},
        {"4444", {1, 1, 16, 3, 40, 0, masks4444, {}, pixels}, {136, 68, 51}},
        {"1, 2, 7", {1, 1, 16, 3, 40, 0, masks("00080000 03000000 7F000000"), {}, pixels}, {255, 255, 135}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pixelAt(readPicture(bitmapFile(c.parts)), 0, 0), c.pixel) << c.name;
}

// What fills a row up in the file is chance, and pictures are compared and written whole.
TEST(PictureReader, rowEndsAreCleared) {
    const Picture picture = readPicture(bitmapFile({.pixels = plain}));
    for (const std::size_t at : {9, 10, 11, 21, 22, 23})
        EXPECT_EQ(picture.rows.at(at), 0) << at;
}

Picture readBlocks(const char* compression, int width, int height, const QByteArray& blocks) {
    return readPicture(bitmapFile({.width = width,
                                   .height = height,
                                   .bits = 16,
                                   .compression = fourLetters(compression),
                                   .pixels = blocks}));
}

TEST(PictureReader, blockOfFourColours) {
    using Row = std::array<std::array<int, 3>, 4>;
    const std::array<int, 3> red = {255, 0, 0}, blue = {0, 0, 255}, nearRed = {170, 0, 85},
                             nearBlue = {85, 0, 170};
    const Row topDown[] = {{nearRed, nearRed, nearRed, nearRed},
                           {blue, blue, blue, blue},
                           {red, red, red, red},
                           {red, blue, nearRed, nearBlue}};
    const QByteArray block = hex("00F8 1F00 E4 00 55 AA"), alpha = hex("0123456789ABCDEF");
    for (const Picture& picture : {readBlocks("DXT1", 4, 4, block), readBlocks("DXT3", 4, 4, alpha + block),
                                   readBlocks("DXT5", 4, 4, alpha + block)})
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 4; ++x)
                EXPECT_EQ(pixelAt(picture, x, 3 - y), topDown[y][static_cast<std::size_t>(x)])
                    << x << ' ' << y;
}

// Where the first colour is not the greater one, DXT1 has three colours and a hole; the others never do.
TEST(PictureReader, blockOfThreeColours) {
    const QByteArray block = hex("1F00 00F8 E4 E4 E4 E4");
    const Picture three = readBlocks("DXT1", 4, 4, block);
    EXPECT_EQ(pixelAt(three, 2, 0), (std::array{127, 0, 127}));
    EXPECT_EQ(pixelAt(three, 3, 0), (std::array{0, 0, 0}));
    const Picture four = readBlocks("DXT3", 4, 4, QByteArray(8, '\0') + block);
    EXPECT_EQ(pixelAt(four, 2, 0), (std::array{85, 0, 170}));
    EXPECT_EQ(pixelAt(four, 3, 0), (std::array{170, 0, 85}));
}

TEST(PictureReader, blocksReachOverTheEdge) {
    const QByteArray red = hex("00F8 00F8 00000000"), green = hex("E007 E007 00000000"),
                     blue = hex("1F00 1F00 00000000"), white = hex("FFFF FFFF 00000000");
    const QByteArray blocks = red + green + blue + white;
    EXPECT_EQ(lettersOf(readBlocks("DXT1", 6, 5, blocks)), "bbbbww/rrrrgg/rrrrgg/rrrrgg/rrrrgg");
    EXPECT_EQ(lettersOf(readBlocks("DXT1", 1, -5, blocks)), "r/r/r/r/g");
}

TEST(PictureReader, filesAreNamedInTheFailure) {
    test::TemporaryFolder folder;
    NativeFileSystem files;
    test::writeFile(folder / u"flag.bmp", bitmapFile({.pixels = plain}));
    test::writeFile(folder / u"letter.bmp", "Dear pilot");
    EXPECT_EQ(lettersOf(loadPicture(files, folder / u"FLAG.bmp")), flag);
    try {
        loadPicture(files, folder / u"letter.bmp");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::invalidPicture);
        EXPECT_TRUE(error.description().endsWith("letter.bmp")) << error.what();
    }
    try {
        loadPicture(files, folder / u"missing.bmp");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::fileNotFound);
    }
}

} // namespace
} // namespace morvane
