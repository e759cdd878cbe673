#include "imaging/picture_reader.h"

#include "core/error.h"
#include "imaging/bitmap_builder.h"
#include "imaging/picture_pair.h"
#include "imaging/pixel_buffer.h"
#include "support/raised_error.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

#include <QImage>

namespace morvane::test {
namespace {

struct Kind {
    std::string name;
    QByteArray file;
    std::string picture;
};

Kind kindOf(const QList<QByteArray>& cells) {
    const bool isNumber = cells.at(4).size() < 4;
    return {cells.at(0).toStdString(),
            bitmapFile({.width = cells.at(1).toInt(),
                        .height = cells.at(2).toInt(),
                        .bits = cells.at(3).toInt(),
                        .compression = isNumber ? cells.at(4).toUInt() : longIn(cells.at(4), 0),
                        .infoSize = cells.at(5).toInt(),
                        .usedColours = cells.at(6).toUInt(),
                        .behindHeader = hex(cells.at(7)),
                        .gap = hex(cells.at(8)),
                        .pixels = hex(cells.at(9))}),
            cells.at(10).toStdString()};
}

std::vector<Kind> allKinds() {
    std::vector<Kind> kinds;
    for (const QByteArray& line : readFile(FilePath(QStringLiteral(MORVANE_BITMAP_KINDS))).split('\n'))
        if (!line.isEmpty() && !line.startsWith('#')) kinds.push_back(kindOf(line.split('\t')));
    return kinds;
}

std::vector<Kind> readableKinds() {
    std::vector<Kind> kinds = allKinds();
    std::erase_if(kinds, [](const Kind& kind) { return kind.picture == "refused"; });
    return kinds;
}

std::string seen(const QByteArray& file) {
    try {
        return lettersOf(readPicture(file));
    } catch (const Error& error) {
        return error.code() == ErrorCode::invalidPicture ? "refused" : error.what();
    }
}

TEST(PictureReader, everyKindGivesItsPixelsOrIsRefused) {
    for (const Kind& kind : allKinds())
        EXPECT_EQ(seen(kind.file), kind.picture) << kind.name;
}

TEST(PictureReader, cutShortAnywhere) {
    for (const Kind& kind : readableKinds())
        for (qsizetype length = 0; length < kind.file.size(); ++length)
            EXPECT_EQ(seen(kind.file.left(length)), "refused") << length << " of " << kind.name;
}

TEST(PictureReader, brokenHeaders) {
    constexpr int pixelsAtField = 10, infoSizeField = 14, widthField = 18, heightField = 22;
    constexpr quint32 most = 0x7FFFFFFF, least = 0x80000000, minus = 0xFFFFFFFF;
    const std::pair<int, quint32> changes[] = {
        {0, 0x424D},         {pixelsAtField, 53}, {pixelsAtField, minus - 15}, {infoSizeField, minus},
        {widthField, 0},     {widthField, 8193},  {widthField, minus},         {widthField, most},
        {widthField, least}, {heightField, 0},    {heightField, 8193},         {heightField, minus - 8192},
        {heightField, most}, {heightField, least}};
    for (const auto& [name, file, picture] : readableKinds()) {
        if (longIn(file, infoSizeField) == 12) continue;
        for (const auto& [field, value] : changes)
            EXPECT_EQ(seen(withLong(file, field, value)), "refused") << name << ' ' << field << ' ' << value;
        // Each side may be that long, but not both: runs could ask for the memory from a file of some bytes.
        EXPECT_EQ(seen(withLong(withLong(file, widthField, 8192), heightField, 8192)), "refused") << name;
    }
}

// Enough of them to make a 32-bit row number run over and come back into the picture.
TEST(PictureReader, aBaseImageIsNoLargerThanATexture) {
    const TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath file = folder / u"base.bmp";
    const auto toldOfWidth = [&](int width) {
        writeFile(
            file,
            bitmapFile({.width = width, .height = 1, .bits = 24, .pixels = QByteArray(3 * width + 4, 'A')}));
        return descriptionRaisedBy([&] { EXPECT_EQ(loadPicturePair(files, file).result.Width(), width); });
    };
    EXPECT_EQ(toldOfWidth(1024), "");
    EXPECT_EQ(toldOfWidth(1025), u"Invalid picture: it is larger than 1024 pixels a side: "_s + file.text());
    ASSERT_TRUE(QFile::resize(file.native(), largestPictureFile + 1));
    EXPECT_EQ(descriptionRaisedBy([&] { loadPicture(files, file); }),
              "base.bmp is far too large for a picture: more than 128 MB");
}

TEST(PictureReader, manyJumpsStayOutside) {
    const QByteArray jumps = hex("0002 00FF").repeated(8421505), palette(8, '\x11');
    const QByteArray file = bitmapFile(
        {.bits = 8, .compression = 1, .behindHeader = palette, .pixels = jumps + hex("0101 0001")});
    EXPECT_EQ(seen(file), "refused");
}

// What fills a row up in the file is chance, and pictures are compared and written whole.
TEST(PictureReader, rowEndsAreCleared) {
    const Picture picture = readPicture(bitmapFile({.pixels = QByteArray(24, '\xAA')}));
    for (const std::size_t at : {9, 10, 11, 21, 22, 23})
        EXPECT_EQ(picture.rows.at(at), 0) << at;
}

TEST(PixelBuffer, SavesAPictureAsItStandsBehindTheHeaderOfItsOwnLayout) {
    TemporaryFolder folder;
    const FilePath file = folder / u"saved.bmp";
    writeFile(file, QByteArray(300000, 'x'));
    cDIBSection buffer;
    buffer.CreateFromPicture({2, 2, {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 99}});
    ASSERT_TRUE(buffer.SavePicture(file));
    const QByteArray expected = QByteArray::fromHex("424d 4a000000 00000000 3a000000"
                                                    "28000000 02000000 02000000 0100 1800 00000000 10000000"
                                                    "00000000 00000000 00000000 00000000 00000000"
                                                    "010203 040506 0000 070809 0a0b0c 0063");
    EXPECT_EQ(readFile(file).toHex(' '), expected.toHex(' '));
    EXPECT_EQ(QImage(file.native()).pixel(1, 0), qRgb(12, 11, 10));
    EXPECT_THROW(buffer.CreateFromPicture({2, 2, {1, 2, 3}}), Error);
    EXPECT_FALSE(buffer.isCreated());
}

} // namespace
} // namespace morvane::test
