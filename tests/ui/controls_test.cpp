#include "core/literals.h"
#include "sheets/screens/sheet_loading.h"
#include "support/small_install.h"
#include "support/temporary_folder.h"
#include "support/testing.h"
#include "ui/controls/foot_line.h"
#include "ui/controls/slider.h"
#include "ui/controls/wrapped_tip.h"
#include "ui/shaped_form.h"
#include "ui/skin.h"
#include "ui/skinned_button.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <functional>

namespace morvane::test {
namespace {

struct FootLineTest : testing::Test {
    FootLineTest() {
        window.resize(880, 580);
        elsewhere.show();
        window.show();
    }
    QLabel& label(const QString& name) const { return *line->findChild<QLabel*>(name); }
    QString text() const { return label(u"lblFootText"_s).text(); }

    QWidget window;
    QPushButton elsewhere;
    FootLine* line = new FootLine(&window);
};

TEST_F(FootLineTest, theNextClickOrKeyAnywhereTakesALineAway) {
    EXPECT_FALSE(line->isVisible()) << "nothing to tell";
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] {
             QTest::mouseMove(&window, {50, 50});
         },
         false},
        {[&] { QTest::mouseRelease(&elsewhere, Qt::LeftButton); }, false}, // of the press that began the job
        {[&] { QTest::keyRelease(&elsewhere, Qt::Key_Space); }, false},
        {[&] { QTest::mousePress(&elsewhere, Qt::LeftButton); }, true},
        {[&] { QTest::keyPress(&elsewhere, Qt::Key_Shift); }, true}};
    for (int number = 0; const auto& [act, takesAway] : cases) {
        line->tellDone({u"1,183 textures backed up"_s, u"Backup 2"_s});
        EXPECT_TRUE(line->isVisible());
        EXPECT_EQ(text() + label(u"lblFootRemark"_s).text(), u"1,183 textures backed upBackup 2"_s);
        act();
        EXPECT_EQ(line->isVisible(), !takesAway) << number++;
    }
}

TEST_F(FootLineTest, aLongTextIsCutAndItsTipHasTheWhole) {
    const QString whole = u"files put back, "_s.repeated(20);
    line->tellDone({whole, u"since 21 Nov 2026, 23:47"_s});
    EXPECT_TRUE(text().endsWith(u'…')) << text().toStdString();
    EXPECT_EQ(label(u"lblFootText"_s).accessibleName(), whole);
    EXPECT_EQ(QString(line->toolTip()).remove(u'\n').remove(u' '), QString(whole).remove(u' '));
    EXPECT_LE(label(u"lblFootText"_s).geometry().right(), label(u"lblFootRemark"_s).geometry().left());
    line->tellDone({u"short"_s});
    EXPECT_EQ(line->toolTip(), QString());
}

TEST(WrappedTip, linesAreNoWiderThanAskedAndKeepEveryWord) {
    const QString words = u"Click to install selected texture set. "_s.repeated(8).trimmed();
    for (const QString& text : {words, u"Documents"_s.repeated(30)}) {
        const QString wrapped = wrappedTip(text);
        EXPECT_GT(wrapped.count(u'\n'), 1);
        for (const QString& line : wrapped.split(u'\n'))
            EXPECT_LE(QFontMetrics(QToolTip::font()).horizontalAdvance(line), 400);
        EXPECT_EQ(QString(wrapped).replace(u'\n', u' ').remove(u' '), QString(text).remove(u' '));
    }
    for (const QString& text : {u"Back"_s, u"one\n\ntwo"_s, QString()})
        EXPECT_EQ(wrappedTip(text), text);
    EXPECT_FALSE(wrappedTip(u"<b>Dusk</b>"_s).contains(u"<b>"_s)) << "a set's name is no mark-up";
}

/// A slider as the colour pages have it; it counts what it tells.
struct SliderTest : testing::Test {
    SliderTest() {
        slider.resize(100, 20);
        slider.show();
        slider.setValue(0);
        QObject::connect(&slider, &ucSlider::Change, [this] { ++changes; });
    }
    void press(const QPoint& place) { QTest::mousePress(&slider, Qt::LeftButton, {}, place); }
    void release(const QPoint& place) { QTest::mouseRelease(&slider, Qt::LeftButton, {}, place); }
    /// QTest's move carries no button, so that a drag needs its own.
    void drag(const QPointF& place) {
        QMouseEvent move(QEvent::MouseMove, place, slider.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&slider, &move);
    }

    ucSlider slider{-100, 100};
    int changes = 0;
};

TEST_F(SliderTest, theWheelMovesItByOneStepANotch) {
    const auto turn = [this](int eighths) {
        const QPointF place(50, 10);
        QWheelEvent event(place, slider.mapToGlobal(place), {}, {0, eighths}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&slider, &event);
        return slider.value();
    };
    const std::pair<int, int> turns[] = {{120, 1}, {240, 3}, {-120, 2}, {60, 2}, {60, 3}, {-360, 0}};
    for (const auto& [eighths, value] : turns)
        EXPECT_EQ(turn(eighths), value) << eighths;
    slider.setValue(99);
    EXPECT_EQ(turn(600), 100) << "and no further";
}

TEST_F(SliderTest, dragKeepsTheGrabbedPointAndStopsAtTheEnds) {
    press({48, 10}); // inside the thumb of 44.5 to 55.5
    EXPECT_EQ(slider.value(), 0) << "grabbing the thumb moves nothing";
    drag({56.9, 10});
    EXPECT_EQ(slider.value(), 20);
    drag({400, -30});
    EXPECT_EQ(slider.value(), 100);
    EXPECT_DOUBLE_EQ(slider.thumbPlace().right(), 100);
    drag({-400, 30});
    EXPECT_DOUBLE_EQ(slider.thumbPlace().left(), 0);
    release({-400, 30});
    drag({50, 10});
    EXPECT_EQ(slider.value(), -100) << "the drag is over";
}

/// At one and a half times its size too: a slope of one point by one has no step of two.
TEST(Outline, isCutFromThePictureInSinglePixels) {
    QImage wedge(80, 80, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x)
            wedge.setPixel(x, y, x > y ? 0U : 0xFF202020U);
    for (const int size : {40, 60, 80}) {
        const QRegion outline = outlineOf(QPixmap::fromImage(wedge), {size, size});
        EXPECT_EQ(outline.rectCount(), size);
        EXPECT_EQ(outline.boundingRect(), QRect(0, 0, size, size));
    }
}

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
    ASSERT_TRUE(QImage(8193, 1, QImage::Format_Mono).save((folder / u"wide.bmp").native()));
    EXPECT_TRUE(own.picture(u"wide.bmp"_s).isNull());
    EXPECT_EQ(own.missing(), wanted + QStringList{u"wide.bmp (larger than 8192 pixels a side)"_s});
}

/// Small or large, seen or behind: each picture comes once, and then all are there.
TEST(SheetLoadingTest, loadsWhatIsSeenAndThenTheRest) {
    TemporaryFolder folder;
    NativeFileSystem files;
    Sheet sheet;
    for (int number = 0; number < 40; ++number) {
        sheet.textures.push_back({u"%1.bmp"_s.arg(number), folder.path().child(u"%1.bmp"_s.arg(number))});
        writeFile(sheet.textures.back().base, smallBitmap(16, number));
    }
    for (const int side : {SheetPictures::smallSide, 128}) {
        SheetLoading loading(std::make_unique<SheetPictures>(files, folder.path(), sheet), nullptr);
        loading.see({30, 31}, side);
        loading.wait(10'000);
        EXPECT_TRUE(loading.pair(30) && loading.pair(31));
        EXPECT_TRUE(QTest::qWaitFor([&] { return loading.isWhole(); }));
        for (std::size_t texture = 0; texture < sheet.textures.size(); ++texture)
            EXPECT_TRUE(loading.pair(texture)) << texture;
    }
}

} // namespace
} // namespace morvane::test
