#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/slider.h"
#include "ui/controls/slider_tip.h"

#include <QLabel>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(SliderScale, valueAndPositionAgreeOnBothAxes) {
    const SliderScale across{SliderOrientation::horizontal, 89, -100, 100};
    const SliderScale upright{SliderOrientation::vertical, 89, -100, 100};
    EXPECT_DOUBLE_EQ(across.positionOf(-100), 0);
    EXPECT_DOUBLE_EQ(across.positionOf(0), 44.5);
    EXPECT_DOUBLE_EQ(upright.positionOf(100), 0) << "the highest value is at the top";
    EXPECT_DOUBLE_EQ(upright.positionOf(-100), 89);
    for (int value = -100; value <= 100; ++value) {
        ASSERT_EQ(across.valueAt(across.positionOf(value)), value);
        ASSERT_EQ(upright.valueAt(upright.positionOf(value)), value);
    }
}

TEST(SliderScale, roundsHalvesToTheEvenNeighbourAndStaysOnTheRail) {
    const SliderScale scale{SliderOrientation::horizontal, 20, -5, 5}; // half a step every pixel
    const std::pair<double, int> cases[] = {{1, -4}, {3, -4}, {5, -2}, {11, 0}, {13, 2}, {15, 2}};
    for (const auto& [position, value] : cases)
        EXPECT_EQ(scale.valueAt(position), value) << position;
    EXPECT_DOUBLE_EQ(scale.onRail(-3), 0);
    EXPECT_DOUBLE_EQ(scale.onRail(20.5), 20);
    EXPECT_DOUBLE_EQ(scale.positionOf(9), 20) << "a value above the range lies at its end";
    EXPECT_EQ((SliderScale{SliderOrientation::horizontal, 0, -5, 5}.valueAt(0)), -5) << "no room to move";
}

/// A slider as the colour pages have it, with the names of its events in the
/// order told.
class SliderTest : public testing::Test {
protected:
    SliderTest() {
        slider.readProperties({{u"Min"_s, -100}, {u"Max"_s, 100}, {u"Orientation"_s, 0}});
        slider.resize(100, 20);
        slider.show();
        note(&ucSlider::Click, u"Click"_s);
        note(&ucSlider::ArrivedFirst, u"ArrivedFirst"_s);
        note(&ucSlider::ArrivedLast, u"ArrivedLast"_s);
        note(&ucSlider::Change, u"Change"_s);
        note(&ucSlider::MouseDown, u"MouseDown"_s);
        note(&ucSlider::MouseUp, u"MouseUp"_s);
    }
    void note(void (ucSlider::*signal)(), const QString& name) {
        QObject::connect(&slider, signal, [this, name] { events += name; });
    }
    QStringList takeEvents() { return std::exchange(events, {}); }
    const ucSliderTip* tip() const { return slider.findChild<ucSliderTip*>(); }
    void press(const QPoint& place) { QTest::mousePress(&slider, Qt::LeftButton, {}, place); }
    void release(const QPoint& place) { QTest::mouseRelease(&slider, Qt::LeftButton, {}, place); }
    /// QTest's move carries no button, so that a drag needs its own.
    void drag(const QPointF& place) {
        QMouseEvent move(QEvent::MouseMove, place, slider.mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&slider, &move);
    }

    ucSlider slider;
    QStringList events;
};

TEST_F(SliderTest, settingTheValueTellsChangeAndThenTheEndItArrivedAt) {
    const std::pair<int, QStringList> cases[] = {{0, {}},
                                                 {100, {u"Change"_s, u"ArrivedLast"_s}},
                                                 {100, {}},
                                                 {-100, {u"Change"_s, u"ArrivedFirst"_s}},
                                                 {7, {u"Change"_s}}};
    for (const auto& [value, told] : cases) {
        slider.setValue(value);
        EXPECT_EQ(takeEvents(), told) << value;
    }
}

// Wanted: a new `min` takes the value along, a new `max` does not, even when it
// leaves the value outside.
TEST_F(SliderTest, minMovesTheValueAndMaxDoesNot) {
    slider.setValue(5);
    takeEvents();
    slider.setMin(-50);
    EXPECT_EQ(slider.value(), -50);
    EXPECT_EQ(takeEvents(), (QStringList{u"Change"_s, u"ArrivedFirst"_s}));
    slider.setValue(80);
    takeEvents();
    slider.setMax(60);
    EXPECT_EQ(slider.value(), 80);
    EXPECT_EQ(takeEvents(), QStringList());
    EXPECT_LE(slider.thumbPlace().right(), 100) << "the thumb stays on the rail all the same";
}

TEST_F(SliderTest, refusesWhatLeavesNoRangeOrLiesOutside) {
    slider.setValue(5);
    takeEvents();
    for (const int outside : {101, -101})
        EXPECT_THROW(slider.setValue(outside), InvalidPropertyValue);
    for (const int tooMuch : {100, 101})
        EXPECT_THROW(slider.setMin(tooMuch), InvalidPropertyValue);
    EXPECT_THROW(slider.setMax(-100), InvalidPropertyValue);
    for (const QVariantMap& stored : {QVariantMap{{u"Value"_s, 11}}, QVariantMap{{u"Min"_s, 10}}})
        EXPECT_THROW(slider.readProperties(stored), InvalidPropertyValue);
    EXPECT_EQ(static_cast<int>(InvalidPropertyValue().code()), 380);
    EXPECT_EQ(slider.min(), -100);
    EXPECT_EQ(slider.max(), 100);
    EXPECT_EQ(slider.value(), 5);
    EXPECT_EQ(takeEvents(), QStringList());
}

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

TEST_F(SliderTest, clickOnTheRailCentresTheThumbAndMovesTheValueAtOnce) {
    press({77, 10});
    EXPECT_EQ(takeEvents(), (QStringList{u"Change"_s, u"MouseDown"_s}));
    EXPECT_EQ(slider.value(), 61); // (77 - 5.5) / 89 of 200, less 100, is 60.67
    EXPECT_NEAR(slider.thumbPlace().center().x(), 77, 0.25) << "at the step next to the pointer";
    release({77, 10});
    EXPECT_EQ(takeEvents(), (QStringList{u"MouseUp"_s, u"Click"_s}));
    QTest::mousePress(&slider, Qt::RightButton, {}, QPoint(10, 10));
    EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(SliderTest, dragKeepsTheGrabbedPointAndStopsAtTheEnds) {
    press({48, 10}); // inside the thumb of 44.5 to 55.5
    EXPECT_EQ(slider.value(), 0) << "grabbing the thumb moves nothing";
    EXPECT_EQ(takeEvents(), QStringList{u"MouseDown"_s});
    drag({56.9, 10});
    EXPECT_EQ(slider.value(), 20);
    drag({400, -30});
    EXPECT_EQ(slider.value(), 100);
    EXPECT_DOUBLE_EQ(slider.thumbPlace().right(), 100);
    drag({-400, 30});
    EXPECT_DOUBLE_EQ(slider.thumbPlace().left(), 0);
    takeEvents();
    release({-400, 30});
    EXPECT_EQ(takeEvents(), QStringList{u"MouseUp"_s}) << "let go elsewhere is no click";
    drag({50, 10});
    EXPECT_EQ(slider.value(), -100) << "the drag is over";
}

TEST_F(SliderTest, tipShowsTheValueAboveTheThumbWhileItIsDragged) {
    slider.move(300, 300);
    press({50, 10});
    drag({67.8, 10});
    ASSERT_TRUE(tip() && tip()->isVisible());
    EXPECT_EQ(tip()->findChild<QLabel*>(u"lblTip"_s)->text(), u"40"_s);
    EXPECT_FALSE(tip()->testAttribute(Qt::WA_TranslucentBackground)) << "black where nobody mixes windows";
    EXPECT_FALSE(tip()->mask().contains(tip()->rect().bottomRight()));
    const QRect thumb(slider.mapToGlobal(slider.thumbPlace().topLeft()).toPoint(), QSize(11, 18));
    EXPECT_EQ(tip()->y() + tip()->height() + 5, thumb.top());
    EXPECT_EQ(tip()->x(), thumb.x() + (11 - tip()->width() - 4) / 2);
    release({67, 10});
    EXPECT_FALSE(tip()->isVisible());
    press({20, 10});
    drag({30, 10});
    EXPECT_TRUE(tip()->isVisible());
    slider.setEnabled(false);
    EXPECT_FALSE(tip()->isVisible()) << "a disabled slider hears of no release";
}

TEST_F(SliderTest, keysMoveTheValueWithinItsLimits) {
    const std::pair<Qt::Key, int> cases[] = {
        {Qt::Key_Right, 1},     {Qt::Key_Up, 2},      {Qt::Key_Left, 1},    {Qt::Key_PageUp, 6},
        {Qt::Key_PageDown, 1},  {Qt::Key_End, 100},   {Qt::Key_Up, 100},    {Qt::Key_PageUp, 100},
        {Qt::Key_PageDown, 95}, {Qt::Key_Home, -100}, {Qt::Key_Down, -100}, {Qt::Key_A, -100}};
    for (const auto& [key, value] : cases) {
        QTest::keyClick(&slider, key);
        EXPECT_EQ(slider.value(), value) << key;
    }
}

TEST_F(SliderTest, verticalSliderHasItsMaximumAtTheTop) {
    slider.setOrientation(SliderOrientation::vertical);
    slider.resize(20, 100);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(10, 1));
    EXPECT_EQ(slider.value(), 100);
    EXPECT_DOUBLE_EQ(slider.thumbPlace().top(), 0);
}

TEST_F(SliderTest, picturesTakeThePlaceOfTheDrawnRailAndThumb) {
    QPixmap rail(100, 6), thumb(20, 10);
    rail.fill(Qt::green);
    thumb.fill(Qt::red);
    slider.setBackColor(Qt::white);
    slider.setRailStyle(SliderRail::picture);
    slider.setRailImage(rail);
    slider.setSliderImage(thumb);
    EXPECT_EQ(slider.thumbPlace(), QRectF(40, 5, 20, 10));
    const QImage shown = slider.grab().toImage();
    EXPECT_EQ(shown.pixelColor(10, 6), QColor(Qt::white));
    EXPECT_EQ(shown.pixelColor(10, 7), QColor(Qt::green)) << "half of the spare height above it";
    EXPECT_EQ(shown.pixelColor(50, 7), QColor(Qt::red)) << "the thumb lies over the rail";
}

} // namespace
} // namespace morvane
