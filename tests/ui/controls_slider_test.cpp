#include "core/literals.h"
#include "support/raised_error.h"
#include "ui/controls/slider.h"
#include "ui/controls/slider_tip.h"

#include <QLabel>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(SliderScale, roundsHalvesToTheEvenNeighbourAndStaysOnTheRail) {
    const SliderScale scale{20, -5, 5}; // half a step every pixel
    const std::pair<double, int> cases[] = {{1, -4}, {3, -4}, {5, -2}, {11, 0}, {13, 2}, {15, 2}};
    for (const auto& [position, value] : cases)
        EXPECT_EQ(scale.valueAt(position), value) << position;
    EXPECT_DOUBLE_EQ(scale.positionOf(2), 14);
    EXPECT_DOUBLE_EQ(scale.onRail(-3), 0);
    EXPECT_DOUBLE_EQ(scale.onRail(20.5), 20);
    EXPECT_EQ((SliderScale{0, -5, 5}.valueAt(0)), -5) << "no room to move";
}

/// A slider as the colour pages have it; it counts what it tells.
class SliderTest : public testing::Test {
protected:
    SliderTest() {
        slider.resize(100, 20);
        slider.show();
        slider.setValue(0);
        QObject::connect(&slider, &ucSlider::Change, [this] { ++changes; });
    }
    const ucSliderTip* tip() const { return slider.findChild<ucSliderTip*>(); }
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

TEST_F(SliderTest, tellsOfANewValueAndRefusesOneOutside) {
    for (const int value : {7, 7, 100, -100})
        slider.setValue(value);
    EXPECT_EQ(changes, 3);
    for (const int outside : {101, -101})
        EXPECT_EQ(test::codeRaisedBy([&] { slider.setValue(outside); }), ErrorCode::invalidPropertyValue);
    EXPECT_EQ(slider.value(), -100);
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
    EXPECT_EQ(slider.value(), 61); // (77 - 5.5) / 89 of 200, less 100, is 60.67
    EXPECT_NEAR(slider.thumbPlace().center().x(), 77, 0.25) << "at the step next to the pointer";
    release({77, 10});
    QTest::mousePress(&slider, Qt::RightButton, {}, QPoint(10, 10));
    EXPECT_EQ(slider.value(), 61);
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

} // namespace
} // namespace morvane
