#include "skin_files.h"

#include "core/literals.h"
#include "imaging/window_region.h"
#include "skin_palette.h"
#include "support/contrast.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

/// One skin, written once for all tests.
struct SkinFiles : testing::Test {
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TemporaryFolder>();
        NativeFileSystem().makeFolder(media());
        NativeFileSystem files;
        writeSkin([&](const FilePath& file, const QByteArray& contents) { files.write(file, contents); },
                  media());
    }
    static void TearDownTestSuite() { folder_.reset(); }

    /// Name and size of each picture.
    QStringList listed() {
        const FilePath list = FilePath(QStringLiteral(MORVANE_TEST_FOLDER)) / u"skin_pictures.txt";
        return QString::fromUtf8(files.read(list)).split(u'\n', Qt::SkipEmptyParts);
    }
    static FilePath media() { return *folder_ / u"Media"; }
    static QImage imageOf(QStringView name) { return QImage(media().child(name.toString()).native()); }

    NativeFileSystem files;

    inline static std::unique_ptr<TemporaryFolder> folder_;
};

/// A pixel in whose mixture the key colour took part is much redder and bluer than green; nothing else in the
/// skin is.
bool isTintedByKey(const QColor& pixel) {
    return pixel != skin::keyColour && pixel.red() > pixel.green() + 12 && pixel.blue() > pixel.green() + 30;
}

int tintedPixels(const QImage& picture) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += isTintedByKey(picture.pixelColor(x, y));
    return count;
}

TEST_F(SkinFiles, haveEveryPictureInBothSizesAsPlainBitmapsWithHardEdges) {
    for (const QString& line : listed()) {
        const QStringList words = line.split(u' ');
        const QSize size(words[1].toInt(), words[2].toInt());
        for (const int scale : {1, 2}) {
            const QString name = words[0] + (scale == 2 ? u"@2x.bmp"_s : u".bmp"_s);
            ASSERT_TRUE(files.exists(media().child(name))) << name.toStdString();
            EXPECT_EQ(files.read(media().child(name)).at(28), 24) << name.toStdString(); // bits a pixel
            const QImage picture = imageOf(name);
            EXPECT_EQ(picture.size(), size * scale) << name.toStdString();
            EXPECT_EQ(tintedPixels(picture), 0) << name.toStdString();
            if (scale == 2) {
                EXPECT_NE(picture, imageOf(words[0] + u".bmp"_s).scaled(picture.size()))
                    << "drawn, not enlarged";
            }
        }
    }
    EXPECT_EQ(files.list(media(), u"*.bmp"_s).size(), 2 * listed().size() + 4); // and the previews
}

/// What has paper or its text in it is marked in the list.
TEST_F(SkinFiles, areThereForTheNightWhereTheyArePaper) {
    int paperPictures = 0;
    for (const QString& line : listed()) {
        const QStringList words = line.split(u' ');
        const bool isSign = words[1].toInt() <= 44;
        paperPictures += words.value(3) == u"night";
        for (const int scale : {1, 2}) {
            const QImage night = imageOf(words[0] + (scale == 2 ? u"_night@2x.png"_s : u"_night.png"_s));
            EXPECT_EQ(!night.isNull(), words.value(3) == u"night") << line.toStdString();
            if (night.isNull()) continue;
            EXPECT_EQ(night.size(), imageOf(words[0] + u".bmp"_s).size() * scale) << line.toStdString();
            EXPECT_EQ(tintedPixels(night), 0) << line.toStdString();
            const QRgb middle = isSign ? 0 : night.pixel(20 * scale, night.height() / 2);
            EXPECT_GE(
                isSign ? contrasts(night, paper::top.night).second : contrast(middle, paper::text.night), 4.5)
                << line.toStdString();
        }
    }
    EXPECT_EQ(files.list(media(), u"*_night*.png"_s).size(), 2 * paperPictures);
}

/// The last of the four frames of a key.
TEST_F(SkinFiles, deadKeysCanBeRead) {
    for (const QString& line : listed()) {
        if (!line.startsWith(u"btn_")) continue;
        const QImage strip = imageOf(line.section(u' ', 0, 0) + u"@2x.bmp"_s);
        const int height = strip.height() / 4, edge = 10;
        const QImage dead = strip.copy(edge, 3 * height + edge, strip.width() - 2 * edge, height - 2 * edge);
        EXPECT_GE(contrasts(dead, commonest(dead)).second, 3) << line.toStdString();
    }
}

TEST_F(SkinFiles, textIsReadableOnTheHillsOfTheStatusPage) {
    for (const auto& [name, text] : {std::pair{u"page_status.bmp"_s, paper::text.day},
                                     {u"page_status_night.png"_s, paper::text.night}}) {
        const QImage page = imageOf(name);
        const auto place = [&](int y) { return page.copy(0, y, page.width(), 1); };
        for (int y = 305; y < 388; ++y)
            EXPECT_GE(contrasts(place(y), text).first, 4.5) << name.toStdString() << " line " << y;
    }
}

TEST_F(SkinFiles, regionsAreThoseOfTheirPictures) {
    const QStringView pairs[][2] = {
        {u"MainRegion.dat", u"MVMainInterface.bmp"}, {u"MainRegion.dat", u"MVSkyInterface.bmp"},
        {u"MsgRegion.dat", u"MVMsg_BG.bmp"},         {u"AddRegion.dat", u"MVAdd_BG.bmp"},
        {u"RandomizerRegion.dat", u"MVWide_BG.bmp"}, {u"ReadyRegion.dat", u"MVReady_BG.bmp"},
        {u"SheetRegion.dat", u"MVSheet_BG.bmp"}};
    for (const auto& [region, picture] : pairs) {
        const WindowRegion read = readWindowRegion(files.read(media().child(region.toString())));
        EXPECT_EQ(read, scanRegion(imageOf(picture), skin::keyColour.rgb()))
            << picture.toString().toStdString();
        EXPECT_GT(read.rectangles.size(), 1U) << "it is no rectangle";
    }
}

TEST_F(SkinFiles, helpPageIsWholeAndNeedsNoOtherFile) {
    writeHelp([&](const FilePath& file, const QByteArray& contents) { files.write(file, contents); },
              media());
    const QByteArray page = files.read(media() / u"index.html");
    EXPECT_TRUE(page.endsWith("</html>\n"));
    EXPECT_TRUE(page.contains("morvane-cli originals restore"));
    EXPECT_FALSE(page.contains("src=") || page.contains("http") || page.contains("url("));
    // Every link of its contents leads to a heading.
    for (qsizetype at = page.indexOf("href=\"#"); at >= 0; at = page.indexOf("href=\"#", at + 1)) {
        const QByteArray anchor = page.mid(at + 7, page.indexOf('"', at + 7) - at - 7);
        EXPECT_TRUE(page.contains("id=\"" + anchor + "\"")) << anchor.toStdString();
    }
}

} // namespace
} // namespace morvane::test
