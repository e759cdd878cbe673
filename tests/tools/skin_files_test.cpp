#include "skin_files.h"

#include "core/literals.h"
#include "imaging/picture_reader.h"
#include "imaging/window_region.h"
#include "skin_palette.h"
#include "support/temporary_folder.h"

#include <QImageReader>
#include <gtest/gtest.h>

namespace morvane {
namespace {

/// One skin, written once for all tests.
class SkinFiles : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<test::TemporaryFolder>();
        NativeFileSystem().makeFolder(media());
        NativeFileSystem files;
        writeSkin(files, media());
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static FilePath media() { return *folder_ / u"Media"; }
    static QImage imageOf(QStringView name) { return QImage(media().child(name.toString()).native()); }

    NativeFileSystem files;

private:
    static std::unique_ptr<test::TemporaryFolder> folder_;
};

std::unique_ptr<test::TemporaryFolder> SkinFiles::folder_;

TEST_F(SkinFiles, haveEveryPictureInBothSizesAsPlainBitmaps) {
    const FilePath list = FilePath(QStringLiteral(MORVANE_TEST_FOLDER)) / u"skin_pictures.txt";
    const QString lines = QString::fromUtf8(files.read(list));
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList words = line.split(u' ');
        const QSize size(words[1].toInt(), words[2].toInt());
        for (const int scale : {1, 2}) {
            const QString name = words[0] + (scale == 2 ? u"@2x.bmp"_s : u".bmp"_s);
            ASSERT_TRUE(files.exists(media().child(name))) << name.toStdString();
            const QByteArray file = files.read(media().child(name));
            EXPECT_EQ(file.at(28), 24) << name.toStdString(); // bits a pixel
            const Picture picture = readPicture(file);
            EXPECT_EQ(QSize(picture.width, picture.height), size * scale) << name.toStdString();
        }
    }
    EXPECT_EQ(files.list(media(), u"*.bmp"_s).size(), 2 * lines.count(u'\n') + 4); // and the previews
}

TEST_F(SkinFiles, regionsAreThoseOfTheirPictures) {
    const QStringView pairs[][2] = {{u"MainRegion.dat", u"MVMainInterface.bmp"},
                                    {u"MsgRegion.dat", u"MVMsg_BG.bmp"},
                                    {u"AddRegion.dat", u"MVAdd_BG.bmp"},
                                    {u"RandomizerRegion.dat", u"MVWide_BG.bmp"}};
    for (const auto& [region, picture] : pairs) {
        const QByteArray file = files.read(media().child(region.toString()));
        EXPECT_EQ(readWindowRegion(file), scanRegion(imageOf(picture), skin::keyColour.rgb()));
        EXPECT_EQ(writeWindowRegion(readWindowRegion(file)), file);
    }
}

TEST_F(SkinFiles, otherPicturesAreReadableAndOfTheirSize) {
    const std::pair<QStringView, QSize> pictures[] = {{u"splash_screen.jpg", {700, 500}},
                                                      {u"orrinsoft.jpg", {27, 27}},
                                                      {u"MV_Night.bmp", {230, 140}},
                                                      {u"morvane.png", {128, 128}}};
    for (const auto& [name, size] : pictures)
        EXPECT_EQ(imageOf(name).size(), size) << name.toString().toStdString();
}

TEST_F(SkinFiles, animationIconAndCursorsHoldWhatTheyTell) {
    QImageReader animation(media().child(u"ASv6Process.gif"_s).native());
    QImage last;
    int frames = 0;
    for (QImage frame = animation.read(); !frame.isNull(); frame = animation.read()) {
        EXPECT_EQ(frame.size(), QSize(27, 27));
        EXPECT_EQ(frame.pixelColor(0, 0), skin::paperTop);
        EXPECT_NE(frame, last);
        last = frame;
        ++frames;
    }
    EXPECT_EQ(frames, 8);
    EXPECT_EQ(animation.loopCount(), -1);

    QImageReader icon(media().child(u"morvane.ico"_s).native());
    for (const int side : {16, 32, 48}) {
        EXPECT_EQ(icon.read().size(), QSize(side, side));
        icon.jumpToNextImage();
    }
    for (const QString& name : {u"Hand.cur"_s, u"HMOVE.cur"_s}) {
        const QByteArray file = files.read(media().child(name));
        const QImage cursor = QImage::fromData(file, "ICO");
        ASSERT_EQ(cursor.size(), QSize(32, 32));
        EXPECT_EQ(qAlpha(cursor.pixel(0, 0)), 0);
        EXPECT_EQ(qAlpha(cursor.pixel(file.at(10), file.at(12))), 255) << "the hot spot is on the drawing";
    }
}

TEST_F(SkinFiles, helpPageIsWholeAndNeedsNoOtherFile) {
    writeHelp(files, media());
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
} // namespace morvane
