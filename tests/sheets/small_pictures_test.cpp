#include "imaging/picture_reader.h"
#include "imaging/small_picture.h"
#include "imaging/texture_codec.h"
#include "sheets/small_base_pictures.h"
#include "support/small_install.h"

#include <QFile>

namespace morvane::test {
namespace {

/// A picture whose levels differ: a stripe of its own for every eight columns.
QByteArray texture(int side) {
    Picture picture{side, side,
                    std::vector<std::uint8_t>(static_cast<std::size_t>(bytesPerRow(side) * side))};
    for (std::size_t i = 0; i < picture.rows.size(); ++i)
        picture.rows[i] = static_cast<std::uint8_t>((i / 24 * 37 + i / 4096 * 11) & 0xFF);
    return compressTexture(picture);
}

struct SmallPictures : testing::Test {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath file = folder / u"029a2su1.bmp";

    QImage small(int side) { return imageOf(loadSmallPicture(files, file, side).picture); }
};

/// 128 x 128, where the levels begin at 74, 8266, 10314, 10826.
TEST_F(SmallPictures, aLevelIsReadWithoutTheOthers) {
    const QByteArray whole = texture(128);
    const struct {
        int side, found;
        qsizetype from, size;
    } cases[] = {{0, 128, 74, 8192},   {200, 128, 74, 8192}, {65, 128, 74, 8192}, {64, 64, 8266, 2048},
                 {40, 64, 8266, 2048}, {32, 32, 10314, 512}, {1, 4, 10986, 8}};
    for (const auto& [side, found, from, size] : cases) {
        SCOPED_TRACE(side);
        writeFile(file, whole);
        const QImage expected = small(side);
        EXPECT_EQ(expected.size(), QSize(found, found));
        EXPECT_EQ(loadSmallPicture(files, file, side).whole, QSize(128, 128));
        // What lies before and behind it has no part in it.
        QByteArray spoilt(whole.size(), '\x5A');
        spoilt.replace(0, 74, whole.left(74));
        spoilt.replace(from, size, whole.mid(from, size));
        writeFile(file, spoilt);
        EXPECT_EQ(small(side), expected);
        spoilt[from] = static_cast<char>(spoilt[from] ^ 0x7F);
        spoilt[from + 1] = static_cast<char>(spoilt[from + 1] ^ 0x7F);
        writeFile(file, spoilt);
        EXPECT_NE(small(side), expected);
    }
}

/// A header that promises more than the file has costs the small level, not the picture.
TEST_F(SmallPictures, whatIsNoTextureWithLevelsIsReadWhole) {
    const QByteArray whole = texture(128);
    QByteArray topDown = whole;
    topDown.replace(22, 4, QByteArray::fromHex("80ffffff"));
    const std::pair<QByteArray, bool> cases[] = {{whole.left(74 + 8192), false},
                                                 {QByteArray(whole).replace(54, 4, "FS71"), false},
                                                 {smallBitmap(128, 70), false},
                                                 {topDown, true}};
    for (const auto& [bytes, isLevel] : cases) {
        writeFile(file, bytes);
        const SmallPicture found = loadSmallPicture(files, file, 64);
        EXPECT_EQ(found.isLevel, isLevel);
        EXPECT_EQ(QSize(found.picture.width, found.picture.height), QSize(64, 64));
    }
    const QImage turned = small(64);
    writeFile(file, whole);
    EXPECT_EQ(turned, small(64).mirrored());
    for (const QByteArray& bytes : {QByteArray(), whole.left(60), QByteArray("no bitmap at all")}) {
        writeFile(file, bytes);
        EXPECT_ANY_THROW(small(64));
    }
}

struct KeptPictures : testing::Test {
    TemporaryFolder folder;
    NativeFileSystem files;
    const FilePath stock = folder / u"Resources\\GENERIC WORLD",
                   place = folder / u"Resources\\Small Pictures", kept = place / u"GENERIC WORLD.pictures",
                   other = place / u"mine.txt";
    const FilePath base = stock / u"029a2su1.bmp";

    void putBase(int shade) {
        writeFile(base, smallBitmap(128, shade));
        // As if it had been written a minute ago: what is new may be written again in the same moment.
        QFile file(base.native());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addSecs(-60 - shade),
                         QFileDevice::FileModificationTime);
    }
    QImage asked() {
        SmallBasePictures pictures(files, folder.path());
        pictures.open(stock);
        const QImage image = imageOf(pictures.of(base.resolved()).picture);
        pictures.keep();
        return image;
    }
};

TEST_F(KeptPictures, areTakenUntilTheBaseChanges) {
    putBase(30);
    writeFile(other, "the pilot's");
    const QImage first = asked();
    EXPECT_EQ(first.size(), QSize(64, 64));
    // What is kept is what is seen, and not the base: another picture there shows.
    auto pictures = readSmallPictureFile(readFile(kept)).value();
    ASSERT_EQ(pictures.keys(), QStringList{u"029a2su1.bmp"_s});
    EXPECT_EQ(pictures.begin()->whole, QSize(128, 128));
    pictures.begin()->texture = texture(64);
    writeFile(kept, smallPictureFile(pictures));
    EXPECT_NE(asked(), first);
    putBase(200);
    EXPECT_EQ(qGreen(asked().pixel(9, 9)),
              qGreen(imageOf(loadSmallPicture(files, base, 64).picture).pixel(9, 9)));
    EXPECT_EQ(readFile(other), "the pilot's");
}

TEST_F(KeptPictures, aDamagedFileIsMadeAnew) {
    putBase(30);
    const QImage first = asked();
    const QByteArray whole = readFile(kept);
    const QByteArray spoilt[] = {QByteArray(), "somebody else's", whole.left(whole.size() - 5),
                                 QByteArray(whole).replace(whole.size() - 9, 1, "?"),
                                 QByteArray(whole).replace(0, 4, "????")};
    for (const QByteArray& bytes : spoilt) {
        writeFile(kept, bytes);
        EXPECT_EQ(asked(), first);
        EXPECT_EQ(readFile(kept), whole);
    }
    // A place that cannot be written costs nothing but time.
    QFile::remove(kept.native());
    files.makeFolder(kept);
    EXPECT_EQ(asked(), first);
}

} // namespace
} // namespace morvane::test
