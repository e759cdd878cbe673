#include "support/temporary_folder.h"
#include "ui/skin.h"
#include "ui/skinned_button.h"

#include "core/literals.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

/// A key without a strip: the states do not need one.
struct SkinnedButtonTest : testing::Test {
    NativeFileSystem files;
    TemporaryFolder folder;
    Skin skin{files, FilePath(folder.path())};
    SkinnedButton key{ButtonFamily::LargeButton, skin, nullptr};
    QSignalSpy clicks{&key, &SkinnedButton::dispatched};

    void enter() {
        QEnterEvent event(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QCoreApplication::sendEvent(&key, &event);
    }
    void leave() {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&key, &event);
    }
};

TEST_F(SkinnedButtonTest, followsTheMouse) {
    enter();
    EXPECT_EQ(key.state(), ButtonState::highlight);
    QTest::mousePress(&key, Qt::LeftButton);
    EXPECT_EQ(key.state(), ButtonState::down);
    QTest::mouseRelease(&key, Qt::LeftButton);
    EXPECT_EQ(key.state(), ButtonState::highlight);
    EXPECT_EQ(clicks.count(), 1);
    leave();
    EXPECT_EQ(key.state(), ButtonState::enabled);
    QTest::mouseClick(&key, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 1);
    QMouseEvent twice(QEvent::MouseButtonDblClick, {5, 5}, {5, 5}, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&key, &twice);
    EXPECT_EQ(key.state(), ButtonState::down);
    QTest::mouseRelease(&key, Qt::LeftButton, {}, QPoint(500, 500));
    EXPECT_EQ(clicks.count(), 2) << "wherever it is let go";
}

/// It looks disabled, takes no light, and is alive: that is how one key activates and deactivates.
TEST_F(SkinnedButtonTest, dispatchesFromDeactivateThoughItLooksDisabled) {
    key.setState(ButtonState::deactivate);
    EXPECT_EQ(key.frameOffset(), -129);
    QTest::keyRelease(&key, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 0) << "this release belonged to a press that went elsewhere";
    enter();
    QTest::mousePress(&key, Qt::LeftButton);
    EXPECT_EQ(key.state(), ButtonState::deactivate);
    QTest::mouseRelease(&key, Qt::LeftButton);
    EXPECT_EQ(key.state(), ButtonState::deactivate);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(SkinnedButtonTest, showsTheFrameOfItsStateAndKeepsItsStripWhereAPictureIsMissing) {
    const QColor frames[] = {Qt::red, Qt::green, Qt::blue, Qt::white};
    QImage strip(key.width(), 4 * key.height(), QImage::Format_RGB888);
    for (int y = 0; y < strip.height(); ++y)
        for (int x = 0; x < strip.width(); ++x)
            strip.setPixelColor(x, y, frames[y / key.height()]);
    ASSERT_TRUE(strip.save((folder / u"four.bmp").native()));
    for (const QString& picture : {u"four"_s, u"missing"_s}) {
        key.setPicture(picture);
        for (int frame = 0; frame < 4; ++frame) {
            key.setState(static_cast<ButtonState>(frame));
            EXPECT_EQ(key.grab().toImage().pixelColor(2, 2), frames[frame]) << frame;
        }
    }
}

TEST_F(SkinnedButtonTest, takesTheKeyColourOutOfAPicture) {
    QImage drawn(4, 2, QImage::Format_RGB888);
    drawn.fill(qRgb(255, 0, 255));
    drawn.setPixelColor(1, 0, QColor(254, 0, 255));
    ASSERT_TRUE(drawn.save((folder / u"btn_Exit.bmp").native()));
    const QImage shown = Skin(files, folder.path()).picture(u"btn_Exit.bmp"_s).toImage();
    EXPECT_EQ(qAlpha(shown.pixel(0, 0)), 0);
    EXPECT_EQ(shown.pixel(1, 0), qRgb(254, 0, 255)) << "only that very colour";
}

TEST_F(SkinnedButtonTest, livesWithFilesThatAreMissingOrBroken) {
    Skin own(files, folder.path());
    const QStringList names{u"broken.bmp"_s, u"broken.dat"_s, u"broken.cur"_s, u"broken.jpg"_s};
    for (const QString& name : names)
        files.write(folder.path().child(name), "BM that is no picture, no region and no pointer");
    const QStringList wanted = names + QStringList{u"gone.bmp"_s};
    for (int round = 0; round < 2; ++round)
        for (const QString& name : wanted) {
            EXPECT_TRUE(own.picture(name).isNull());
            EXPECT_TRUE(own.outline(name).isEmpty());
            EXPECT_EQ(own.cursor(name, Qt::SizeAllCursor).shape(), Qt::SizeAllCursor);
        }
    EXPECT_EQ(own.missing(), wanted) << "each is told once";
}

} // namespace
} // namespace morvane::test
