#include "core/literals.h"
#include "ui/controls/slider.h"

#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace morvane {
namespace {

/// A slider as the colour pages have it; it counts what it tells.
class SliderTest : public testing::Test {
protected:
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

} // namespace
} // namespace morvane
