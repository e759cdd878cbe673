#include "support/temporary_folder.h"
#include "ui/skin.h"
#include "window/screen_scale.h"

#include "core/literals.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {
namespace {

class SkinTest : public testing::Test {
protected:
    NativeFileSystem files;
    test::TemporaryFolder folder;
    Skin skin{files, folder.path()};
};

TEST_F(SkinTest, takesTheKeyColourOutOfAPicture) {
    QImage drawn(4, 2, QImage::Format_RGB888);
    drawn.fill(qRgb(255, 0, 255));
    drawn.setPixelColor(1, 0, QColor(254, 0, 255));
    ASSERT_TRUE(drawn.save((folder / u"btn_Exit.bmp").native()));
    const QImage shown = skin.picture(u"btn_Exit.bmp"_s).toImage();
    EXPECT_EQ(qAlpha(shown.pixel(0, 0)), 0);
    EXPECT_EQ(shown.pixel(1, 0), qRgb(254, 0, 255)) << "only that very colour";
    EXPECT_TRUE(skin.missing().isEmpty());
}

TEST_F(SkinTest, livesWithFilesThatAreMissingOrBroken) {
    const QStringList names{u"broken.bmp"_s, u"broken.dat"_s, u"broken.cur"_s, u"broken.jpg"_s};
    for (const QString& name : names)
        files.write(folder.path().child(name), "BM that is no picture, no region and no pointer");
    const QStringList wanted = names + QStringList{u"gone.bmp"_s};
    for (int round = 0; round < 2; ++round)
        for (const QString& name : wanted) {
            EXPECT_TRUE(skin.picture(name).isNull());
            EXPECT_TRUE(skin.outline(name).isEmpty());
            EXPECT_EQ(skin.cursor(name, Qt::SizeAllCursor).shape(), Qt::SizeAllCursor);
        }
    EXPECT_EQ(skin.missing(), wanted) << "each is told once";
}

TEST(ScreenScale, isTheLargestAtWhichTheMainWindowFits) {
    const std::tuple<QSize, double, double> cases[] = {{{1920, 1200}, 1.5, 1.5}, {{1920, 1160}, 2, 2},
                                                       {{1920, 1158}, 2, 1.99},  {{1280, 1000}, 1.5, 1.45},
                                                       {{1366, 728}, 1.5, 1.25}, {{800, 600}, 2, 1}};
    for (const auto& [screen, chosen, fitting] : cases) {
        const QSize room = (QSizeF(screen) / chosen).toSize();
        EXPECT_DOUBLE_EQ(fittingScale(room, chosen), fitting) << screen.width() << ' ' << chosen;
    }
}

} // namespace
} // namespace morvane
